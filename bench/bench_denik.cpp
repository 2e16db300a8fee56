// The journal on a large company: years of 20 000 entries each over three cash registers
// and three bank accounts (one of each in euros), with 2 000 invoices a year. Each operation
// runs next to the one plain SQL query that returns the same rows or sums (its floor), and
// the table at the end gives the ratio operation / floor, which should stay at most 1.5.
// Run with --benchmark_repetitions=5 for medians on a busy machine.
// Two company sizes show whether an operation grows faster than the number of rows.
#include <benchmark/benchmark.h>
#include <wx/app.h>
#include <wx/filename.h>
#include <wx/init.h>
#include <wx/utils.h>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "companysetup.h"
#include "dbmodel.h"
#include "lxsettings.h"
#include "lxutils.h"

namespace {

const int ENTRIES_PER_YEAR = 20000;
const int INVOICES_PER_YEAR = 2000;

// The temporary homes of the generated companies, removed at the end.
std::vector<wxString>& homes() {
    static std::vector<wxString> list;
    return list;
}

// Fills a new company with `years` years of journal entries and invoices ending with the
// current year; returns the file's path.
wxString makeCompany(int years) {
    char tmpl[] = "/tmp/evida-bench-XXXXXX";
    const wxString home = wxString::FromUTF8(mkdtemp(tmpl));
    homes().push_back(home);
    wxSetEnv("HOME", home);
    lxSettings::reset();
    const wxString path = lxutils::dataDir() + "/denik.db";
    DbModel model;
    companysetup::createPlaceholderCompany(model, path);
    const int last = model.currentRok();
    wxSQLite3Database& db = model.db();
    wxSQLite3Transaction tx(&db);
    db.ExecuteUpdate("INSERT INTO pokladna(id,zkratka,popis,menaid) VALUES(2,'POK2','Druhá',1),(3,'POKEUR','Eura',2)");
    db.ExecuteUpdate(
        "INSERT INTO banka(id,zkratka,popis,cislouctu,kodbanky,menaid) "
        "VALUES(2,'BU2','Druhý','0','0',1),(3,'BUEUR','Eura','0','0',2)");
    std::map<int, bool> prijem;
    wxSQLite3ResultSet rs = db.ExecuteQuery("SELECT id,prijem FROM predkontace");
    while (rs.NextRow()) prijem[rs.GetInt(0)] = rs.GetInt(1) == 1;
    rs.Finalize();

    wxSQLite3Statement st = db.PrepareStatement(
        "INSERT INTO denik(datum,cislo,popis,castka,castkacizi,kurz,reference,pausal,menaid,predkontaceid,pokladnaid,"
        "bankaid,vypis,protistranaid,obdobirok) VALUES(?,?,?,?,?,?,'',0,?,?,?,?,?,0,?)");
    wxSQLite3Statement fa = db.PrepareStatement(
        "INSERT INTO faktura(protistranaid,celkem,cislo,typid,uhradaid,menaid,predkontaceid,obdobirok,vydana,duzp,"
        "dppd) VALUES(0,1210,?,1,2,1,1,?,1,?,?)");
    for (int rok = last - years + 1; rok <= last; ++rok) {
        if (rok != last) db.ExecuteUpdate(wxString::Format("INSERT INTO obdobi(rok,current) VALUES(%d,0)", rok));
        std::map<wxString, int> series;
        for (int i = 0; i < ENTRIES_PER_YEAR; ++i) {
            const wxDateTime datum = wxDateTime(1, wxDateTime::Jan, rok) + wxDateSpan::Days(i * 365 / ENTRIES_PER_YEAR);
            const int r = i % 6;
            const bool banka = r >= 3;
            const int registr = r % 3 + 1;
            const bool euro = registr == 3;
            const int predkontace = (i * 7) % 23 + 1;
            const wxString rada = banka ? (prijem[predkontace] ? "BP" : "BV") : (prijem[predkontace] ? "PP" : "PV");
            const double castka = 100.0 + i % 1000;
            st.Bind(1, datum.FormatISODate());
            st.Bind(2, wxString::Format("%s%04d", rada, ++series[rada]));
            st.Bind(3, wxString::FromUTF8("Tržba"));
            st.Bind(4, castka);
            st.Bind(5, euro ? castka / 25.0 : 0.0);
            st.Bind(6, euro ? 25.0 : 1.0);
            st.Bind(7, euro ? 2 : 1);
            st.Bind(8, predkontace);
            banka ? st.BindNull(9) : st.Bind(9, registr);
            banka ? st.Bind(10, registr) : st.BindNull(10);
            st.Bind(11, banka ? datum.GetMonth() + 1 : 0);
            st.Bind(12, rok);
            st.ExecuteUpdate();
            st.Reset();
        }
        for (int i = 0; i < INVOICES_PER_YEAR; ++i) {
            const wxString datum = wxString::Format("%d-%02d-%02d", rok, i % 12 + 1, i % 28 + 1);
            fa.Bind(1, wxString::Format("FV%04d", i + 1));
            fa.Bind(2, rok);
            fa.Bind(3, datum);
            fa.Bind(4, datum);
            fa.ExecuteUpdate();
            fa.Reset();
        }
    }
    tx.Commit();
    model.closeDatabase();
    return path;
}

const wxString& company(int years) {
    static std::map<int, wxString> paths;
    auto found = paths.find(years);
    if (found == paths.end()) found = paths.emplace(years, makeCompany(years)).first;
    return found->second;
}

// A connection opened as the program opens a company, without its check.
void openPlain(wxSQLite3Database& db, const wxString& path) {
    db.Open(path, wxEmptyString, WXSQLITE_OPEN_READWRITE);
    db.ExecuteUpdate("PRAGMA locking_mode = EXCLUSIVE;");
}

// Steps through every row of a query reading each column, as a caller that keeps the rows would.
double readAll(wxSQLite3Database& db, const wxString& sql, int rok = 0) {
    wxSQLite3Statement st = db.PrepareStatement(sql);
    for (int i = 1; i <= st.GetParamCount(); ++i) st.Bind(i, rok);
    wxSQLite3ResultSet rs = st.ExecuteQuery();
    double sum = 0;
    while (rs.NextRow()) {
        for (int c = 0; c < rs.GetColumnCount(); ++c) {
            sum += rs.GetColumnType(c) == WXSQLITE_TEXT ? rs.GetAsString(c).length() : rs.GetDouble(c);
        }
    }
    return sum;
}

// ---------------------------------------------------------------- the operations and their floors

void openWithCheck(benchmark::State& state, int years) {
    const wxString path = company(years);
    for (auto _ : state) {
        DbModel model;
        benchmark::DoNotOptimize(model.openDatabase(path));
        model.closeDatabase();
    }
}

// One query that tests every reference of every table in one pass over each table: what a
// check of the file's references cannot do with less.
wxString allReferencesSql(wxSQLite3Database& db) {
    wxString sum;
    wxSQLite3ResultSet tables = db.ExecuteQuery("SELECT name FROM sqlite_master WHERE type='table'");
    while (tables.NextRow()) {
        const wxString table = tables.GetAsString(0);
        wxString tests;
        wxSQLite3ResultSet keys = db.ExecuteQuery("PRAGMA foreign_key_list(" + table + ")");
        while (keys.NextRow()) {
            if (!tests.empty()) tests += " OR ";
            tests += wxString::Format("%s NOT IN (SELECT %s FROM %s)", keys.GetAsString("from"), keys.GetAsString("to"),
                                      keys.GetAsString("table"));
        }
        if (tests.empty()) continue;
        if (!sum.empty()) sum += "+";
        sum += wxString::Format("(SELECT count(*) FROM %s WHERE %s)", table, tests);
    }
    return "SELECT " + sum;
}

void openFloor(benchmark::State& state, int years) {
    const wxString path = company(years);
    wxString sql;
    {
        wxSQLite3Database db;
        openPlain(db, path);
        sql = allReferencesSql(db);
        db.Close();
    }
    for (auto _ : state) {
        wxSQLite3Database db;
        openPlain(db, path);
        benchmark::DoNotOptimize(readAll(db, sql));
        db.Close();
    }
}

// Runs `op` on the open company for each iteration.
void onModel(benchmark::State& state, int years, const std::function<void(DbModel&)>& op) {
    DbModel model;
    model.openDatabase(company(years));
    for (auto _ : state) op(model);
    model.closeDatabase();
}

void onPlain(benchmark::State& state, int years, const wxString& sql, bool withYear) {
    wxSQLite3Database db;
    openPlain(db, company(years));
    const int rok = db.ExecuteScalar("SELECT rok FROM obdobi WHERE current=1");
    for (auto _ : state) benchmark::DoNotOptimize(readAll(db, sql, withYear ? rok : 0));
    db.Close();
}

const char* const DENIKVIEW_FLOOR =
    "SELECT d.id, d.datum, d.cislo, d.popis, d.castka, p.prijem, IFNULL(b.zkratka, r.zkratka), d.vypis "
    "FROM denik d LEFT JOIN banka b ON d.bankaid=b.id LEFT JOIN pokladna r ON d.pokladnaid=r.id "
    "LEFT JOIN predkontace p ON d.predkontaceid=p.id "
    "WHERE d.obdobirok=? AND (b.id IS NOT NULL OR r.id IS NOT NULL) ORDER BY b.id IS NULL, d.datum, d.id";

const char* const BALANCES_FLOOR =
    "SELECT d.pokladnaid, d.bankaid, total(CASE WHEN p.prijem=1 THEN d.castka ELSE -d.castka END), "
    "total(CASE WHEN p.prijem=1 THEN d.castkacizi ELSE -d.castkacizi END) "
    "FROM denik d LEFT JOIN predkontace p ON d.predkontaceid=p.id GROUP BY d.pokladnaid, d.bankaid";

const char* const BEFORE_DAY_FLOOR =
    "SELECT total(CASE WHEN p.prijem=1 THEN d.castka ELSE -d.castka END) FROM denik d "
    "JOIN pokladna r ON d.pokladnaid=r.id LEFT JOIN predkontace p ON d.predkontaceid=p.id WHERE d.datum<'2030-07-01'";

const char* const SERIES_FLOOR =
    "SELECT cislo FROM denik WHERE obdobirok=?1 UNION ALL SELECT cislo FROM faktura WHERE obdobirok=?1 "
    "UNION ALL SELECT cislo FROM zavpoh WHERE obdobirok=?1 UNION ALL SELECT cislo FROM pohybzasob WHERE obdobirok=?1 "
    "UNION ALL SELECT cislo FROM inventura WHERE obdobirok=?1";

// Remembers the time of every benchmark and prints each operation against its floor.
class RatioReporter : public benchmark::ConsoleReporter {
 public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        // With --benchmark_repetitions the median is taken, which the shared machines need.
        for (const Run& run : runs) {
            if (run.error_occurred) continue;
            const std::string name = run.run_name.str();
            if (run.run_type == Run::RT_Aggregate && run.aggregate_name == "median") {
                m_times[name] = run.GetAdjustedCPUTime();
                m_medians.insert(name);
            } else if (run.run_type == Run::RT_Iteration && !m_medians.count(name)) {
                m_times[name] = run.GetAdjustedCPUTime();
            }
        }
    }
    void Finalize() override {
        ConsoleReporter::Finalize();
        std::printf("\n%-40s %12s %12s %8s\n", "operation (CPU time)", "ms", "floor ms", "ratio");
        for (const auto& [name, time] : m_times) {
            const std::string::size_type slash = name.find('/');
            const std::string floor = name.substr(0, slash) + "_floor" + name.substr(slash);
            const auto found = m_times.find(floor);
            if (found == m_times.end()) continue;
            std::printf("%-40s %12.2f %12.2f %8.2f\n", name.c_str(), time, found->second, time / found->second);
        }
    }

 private:
    std::map<std::string, double> m_times;
    std::set<std::string> m_medians;
};

void registerAll() {
    for (int years : {2, 10}) {
        const std::string size = "/years:" + std::to_string(years);
        auto add = [&](const std::string& name, auto fn) {
            benchmark::RegisterBenchmark((name + size).c_str(), fn)->Unit(benchmark::kMillisecond);
        };
        add("open_with_check", [years](benchmark::State& s) { openWithCheck(s, years); });
        add("open_with_check_floor", [years](benchmark::State& s) { openFloor(s, years); });
        add("denikview", [years](benchmark::State& s) {
            onModel(s, years, [](DbModel& m) { benchmark::DoNotOptimize(m.denikview()); });
        });
        add("denikview_floor", [years](benchmark::State& s) { onPlain(s, years, DENIKVIEW_FLOOR, true); });
        add("all_balances", [years](benchmark::State& s) {
            onModel(s, years, [](DbModel& m) { benchmark::DoNotOptimize(m.stavyUctu()); });
        });
        add("all_balances_floor", [years](benchmark::State& s) { onPlain(s, years, BALANCES_FLOOR, false); });
        add("registers_before_day", [years](benchmark::State& s) {
            onModel(s, years, [](DbModel& m) {
                benchmark::DoNotOptimize(m.getPokladnyStav(wxDateTime(1, wxDateTime::Jul, 2030)));
            });
        });
        add("registers_before_day_floor", [years](benchmark::State& s) { onPlain(s, years, BEFORE_DAY_FLOOR, false); });
        add("setDefaultRadaCislo",
            [years](benchmark::State& s) { onModel(s, years, [](DbModel& m) { m.setDefaultRadaCislo(); }); });
        add("setDefaultRadaCislo_floor", [years](benchmark::State& s) { onPlain(s, years, SERIES_FLOOR, true); });
    }
}

}  // namespace

int main(int argc, char** argv) {
    wxInitializer init;
    wxTheApp->SetAppName("evida");
    registerAll();
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    for (const wxString& home : homes()) wxFileName::Rmdir(home, wxPATH_RMDIR_RECURSIVE);
    return 0;
}
