// Invoices on a large company: 5 000 invoices a year of three items each, four in five
// issued, two in three of them paid (some in two parts), a tenth in euros, over five or ten
// years (25 000 or 50 000 invoices). The lists of the invoice pages, the unpaid list and the
// open receivables each run next to the plain SQL query that returns the same rows or sums
// (its floor); the table at the end gives the ratio operation / floor, which should stay at
// most 1.5, and the two sizes show whether the one-year list grows with the older years.
// The VAT return of one month (every form row from the month's documents) runs next to the one
// query that sums the same items by rate.
// Run with --benchmark_repetitions=5 for medians on a busy machine.
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
#include "dph/dphdp3fill.h"
#include "dph/dphkh1fill.h"
#include "dph/kontrola.h"
#include "lxsettings.h"
#include "lxutils.h"

namespace {

const int INVOICES_PER_YEAR = 5000;
const int ITEMS_PER_INVOICE = 3;

std::vector<wxString>& homes() {
    static std::vector<wxString> list;
    return list;
}

// Fills a new company with `years` years of invoices ending with the current year, with their
// items, payments and the journal entries the payments wrote; returns the file's path.
wxString makeCompany(int years) {
    char tmpl[] = "/tmp/evida-bench-XXXXXX";
    const wxString home = wxString::FromUTF8(mkdtemp(tmpl));
    homes().push_back(home);
    wxSetEnv("HOME", home);
    lxSettings::reset();
    const wxString path = lxutils::dataDir() + "/faktury.db";
    DbModel model;
    companysetup::createPlaceholderCompany(model, path);
    const int last = model.currentRok();
    wxSQLite3Database& db = model.db();
    {  // the statements end with this block, so that the file closes
        wxSQLite3Transaction tx(&db);
        for (int k = 1; k <= 200; ++k)
            db.ExecuteUpdate(
                wxString::Format("INSERT INTO kontakt(id,nazev,public,adresaid) VALUES(%d,'Odberatel %d',1,0)", k, k));
        wxSQLite3Statement fa = db.PrepareStatement(
            "INSERT INTO faktura(id,protistranaid,popis,celkem,cislo,vs,typid,uhradaid,menaid,predkontaceid,obdobirok,"
            "vydana,platce,vystaveni,duzp,dppd,splatnost,kurz,dphdruhid) "
            "VALUES(?,?,'Sluzby',?,?,?,1,2,?,1,?,?,1,?,?,?,?,?,?)");
        const int prodej = model.getDphDruhIdByZkratka("R1,2"), nakup = model.getDphDruhIdByZkratka("R40,41");
        wxSQLite3Statement po = db.PrepareStatement(
            "INSERT INTO fapolozka(popis,mj,pocet,cenamj,sazbaid,dph,celkem,bezdph,fakturaid,zavpohid,zasobaid,"
            "zaokrouhleni) VALUES('Prace','h',2,?,1,?,?,0,?,NULL,NULL,0)");
        wxSQLite3Statement de = db.PrepareStatement(
            "INSERT INTO denik(id,datum,cislo,popis,castka,castkacizi,kurz,reference,pausal,menaid,predkontaceid,"
            "pokladnaid,bankaid,vypis,protistranaid,obdobirok) VALUES(?,?,?,'Uhrada',?,0,1,'',0,1,1,NULL,1,1,0,?)");
        wxSQLite3Statement uh =
            db.PrepareStatement("INSERT INTO uhrada(castka,denikid,fakturaid,zavpohid,obdobirok) VALUES(?,?,?,NULL,?)");
        int id = 0, denikId = 0;
        auto platba = [&](double castka, const wxString& datum, int faktura, int rok) {
            ++denikId;
            de.Bind(1, denikId);
            de.Bind(2, datum);
            de.Bind(3, wxString::Format("BP%06d", denikId));
            de.Bind(4, castka);
            de.Bind(5, rok);
            de.ExecuteUpdate();
            de.Reset();
            uh.Bind(1, castka);
            uh.Bind(2, denikId);
            uh.Bind(3, faktura);
            uh.Bind(4, rok);
            uh.ExecuteUpdate();
            uh.Reset();
        };
        for (int rok = last - years + 1; rok <= last; ++rok) {
            if (rok != last) db.ExecuteUpdate(wxString::Format("INSERT INTO obdobi(rok,current) VALUES(%d,0)", rok));
            for (int i = 0; i < INVOICES_PER_YEAR; ++i) {
                ++id;
                const wxString datum = wxString::Format("%d-%02d-%02d", rok, i % 12 + 1, i % 28 + 1);
                const bool euro = i % 10 == 0;
                const double cena = 100.0 + i % 500;
                const double celkem = ITEMS_PER_INVOICE * 2 * cena * 1.21;
                fa.Bind(1, id);
                fa.Bind(2, i % 200 + 1);
                fa.Bind(3, celkem);
                fa.Bind(4, wxString::Format("FV%d%05d", rok, i + 1));
                fa.Bind(5, wxString::Format("%d", i + 1));
                fa.Bind(6, euro ? 2 : 1);
                fa.Bind(7, rok);
                fa.Bind(8, i % 5 != 0 ? 1 : 0);
                for (int d = 9; d <= 12; ++d) fa.Bind(d, datum);
                fa.Bind(13, euro ? 25.0 : 1.0);
                fa.Bind(14, i % 5 != 0 ? prodej : nakup);
                fa.ExecuteUpdate();
                fa.Reset();
                for (int p = 0; p < ITEMS_PER_INVOICE; ++p) {
                    po.Bind(1, cena);
                    po.Bind(2, 2 * cena * 0.21);
                    po.Bind(3, 2 * cena * 1.21);
                    po.Bind(4, id);
                    po.ExecuteUpdate();
                    po.Reset();
                }
                if (i % 3 == 0) continue;  // unpaid
                if (i % 3 == 1) {
                    platba(celkem, datum, id, rok);
                } else {  // in two parts, the second one not yet on even ones
                    platba(celkem / 2, datum, id, rok);
                    if (i % 2) platba(celkem - celkem / 2, datum, id, rok);
                }
            }
        }
        tx.Commit();
    }
    model.closeDatabase();
    // Opening once adds whatever the program adds to a file it opens (its indexes).
    DbModel opened;
    opened.openDatabase(path);
    opened.closeDatabase();
    return path;
}

const wxString& company(int years) {
    static std::map<int, wxString> paths;
    auto found = paths.find(years);
    if (found == paths.end()) found = paths.emplace(years, makeCompany(years)).first;
    return found->second;
}

void openPlain(wxSQLite3Database& db, const wxString& path) {
    db.Open(path, wxEmptyString, WXSQLITE_OPEN_READWRITE);
    db.ExecuteUpdate("PRAGMA locking_mode = EXCLUSIVE;");
}

// Steps through every row of a query reading each column, as a caller that keeps the rows would.
double readAll(wxSQLite3Database& db, const wxString& sql, int rok) {
    wxSQLite3Statement st = db.PrepareStatement(sql);
    for (int i = 1; i <= st.GetParamCount(); ++i) st.Bind(i, rok);
    wxSQLite3ResultSet rs = st.ExecuteQuery();
    double sum = 0;
    while (rs.NextRow()) {
        for (int c = 0; c < rs.GetColumnCount(); ++c)
            sum += rs.GetColumnType(c) == WXSQLITE_TEXT ? rs.GetAsString(c).length() : rs.GetDouble(c);
    }
    return sum;
}

void onModel(benchmark::State& state, int years, const std::function<void(DbModel&)>& op) {
    DbModel model;
    model.openDatabase(company(years));
    for (auto _ : state) op(model);
    model.closeDatabase();
}

void onPlain(benchmark::State& state, int years, const wxString& sql) {
    wxSQLite3Database db;
    openPlain(db, company(years));
    const int rok = db.ExecuteScalar("SELECT rok FROM obdobi WHERE current=1");
    for (auto _ : state) benchmark::DoNotOptimize(readAll(db, sql, rok));
    db.Close();
}

// The floors: the documents' own columns with the counterparty, the currency and the paid
// sum, which no list can do without.
#define FAKTURA_FLOOR_COLUMNS                                                                                  \
    "SELECT f.id, f.cislo, f.popis, k.nazev, f.celkem, f.vystaveni, f.splatnost, "                             \
    "(SELECT total(castka) FROM uhrada WHERE fakturaid=f.id), m.kod, f.kurz, f.obdobirok, f.platce, f.typid, " \
    "f.vydana FROM faktura f LEFT JOIN kontakt k ON f.protistranaid=k.id LEFT JOIN mena m ON f.menaid=m.id "

const char* const VYSTAVENE_FLOOR =
    FAKTURA_FLOOR_COLUMNS "WHERE f.obdobirok=? AND f.vydana=1 ORDER BY f.obdobirok, f.cislo, f.id";
const char* const NEUHRAZENE_FLOOR = FAKTURA_FLOOR_COLUMNS
    "WHERE f.obdobirok<=? AND f.celkem>(SELECT total(castka) FROM uhrada WHERE fakturaid=f.id) "
    "ORDER BY f.obdobirok, f.cislo, f.id";
const char* const POHLEDAVKY_FLOOR =
    "SELECT m.kod, f.menaid, f.celkem, (SELECT total(castka) FROM uhrada WHERE fakturaid=f.id) FROM faktura f "
    "LEFT JOIN mena m ON f.menaid=m.id WHERE f.obdobirok<=?1 AND f.vydana=1 UNION ALL "
    "SELECT m.kod, z.menaid, z.celkem, (SELECT total(castka) FROM uhrada WHERE zavpohid=z.id) FROM zavpoh z "
    "LEFT JOIN mena m ON z.menaid=m.id WHERE z.obdobirok<=?1 AND IFNULL(z.zavazek,0)<>1";

const char* const DPH_MESICE_FLOOR =
    "SELECT p.sazbaid, total((p.celkem - p.dph) * f.kurz), total(p.dph * f.kurz) FROM fapolozka p "
    "JOIN faktura f ON p.fakturaid=f.id WHERE (f.dppd BETWEEN ?1||'-03-01' AND ?1||'-03-31' AND f.vydana=0) OR "
    "(f.duzp BETWEEN ?1||'-03-01' AND ?1||'-03-31' AND f.vydana=1) GROUP BY p.sazbaid";

// Remembers the time of every benchmark and prints each operation against its floor.
class RatioReporter : public benchmark::ConsoleReporter {
 public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
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
    for (int years : {5, 10}) {
        const std::string size = "/years:" + std::to_string(years);
        auto add = [&](const std::string& name, auto fn) {
            benchmark::RegisterBenchmark((name + size).c_str(), fn)->Unit(benchmark::kMillisecond);
        };
        add("vystaveneview", [years](benchmark::State& s) {
            onModel(s, years, [](DbModel& m) { benchmark::DoNotOptimize(m.vystaveneview()); });
        });
        add("vystaveneview_floor", [years](benchmark::State& s) { onPlain(s, years, VYSTAVENE_FLOOR); });
        add("neuhrazeneFakturyView", [years](benchmark::State& s) {
            onModel(s, years, [](DbModel& m) { benchmark::DoNotOptimize(m.neuhrazeneFakturyView()); });
        });
        add("neuhrazeneFakturyView_floor", [years](benchmark::State& s) { onPlain(s, years, NEUHRAZENE_FLOOR); });
        add("getPohledavkyStav", [years](benchmark::State& s) {
            onModel(s, years, [](DbModel& m) { benchmark::DoNotOptimize(m.getPohledavkyStav(m.currentRok())); });
        });
        add("getPohledavkyStav_floor", [years](benchmark::State& s) { onPlain(s, years, POHLEDAVKY_FLOOR); });
        add("dphdp3Mesic", [years](benchmark::State& s) {
            onModel(s, years, [](DbModel& m) {
                const DphObdobi brezen = DphObdobi::zMesice(m.currentRok(), 3);
                Dphdp3 p;
                dp3::fillVeta1to6(m, p, brezen.od, brezen.doDne, 0);
                benchmark::DoNotOptimize(p.castka("dan23"));
            });
        });
        add("dphdp3Mesic_floor", [years](benchmark::State& s) { onPlain(s, years, DPH_MESICE_FLOOR); });
        // The control statement reads every document of the month once a section; the check
        // before filing computes the return and the statement together.
        add("dphkh1Mesic", [years](benchmark::State& s) {
            onModel(s, years, [](DbModel& m) {
                Kh1Zadani z;
                z.obdobi = DphObdobi::zMesice(m.currentRok(), 3);
                Dphkh1 p;
                kh1::fillData(m, p, z);
                benchmark::DoNotOptimize(p.pocetVet("VetaA4"));
            });
        });
        add("kontrolaMesic", [years](benchmark::State& s) {
            onModel(s, years, [](DbModel& m) {
                benchmark::DoNotOptimize(kontrola::zkontrolovat(m, DphObdobi::zMesice(m.currentRok(), 3)).vPoradku());
            });
        });
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
