// The vehicle log on a busy vehicle: a year of trips (5 000, and 20 000 to show that the time
// grows with the number of trips and no faster), with a second vehicle's year beside it. Measured:
// the reimbursement of one month and the odometer check of the vehicle's year, each one query
// over the trips plus the per-trip arithmetic, and the plain query that reads the same trips.
#include <benchmark/benchmark.h>
#include <wx/app.h>
#include <wx/filename.h>
#include <wx/init.h>
#include <wx/utils.h>

#include <cstdlib>
#include <map>
#include <memory>
#include <vector>

#include "companysetup.h"
#include "dbmodel.h"
#include "jizdy/jizdydb.h"
#include "lxsettings.h"
#include "lxutils.h"

namespace {

const int ROK = 2026;

struct Firma {
    wxString home;
    std::unique_ptr<DbModel> model;
};

// A company whose vehicle 1 (private) and vehicle 2 each drove `jizd` trips in the year: each
// trip on its own stretch of the odometer, spread evenly over the days.
std::map<int, Firma>& firmy() {
    static std::map<int, Firma> all;
    return all;
}

DbModel& firma(int jizd) {
    Firma& f = firmy()[jizd];
    if (f.model) return *f.model;
    char tmpl[] = "/tmp/evida-bench-XXXXXX";
    f.home = wxString::FromUTF8(mkdtemp(tmpl));
    wxSetEnv("HOME", f.home);
    lxSettings::reset();
    f.model = std::make_unique<DbModel>();
    companysetup::createPlaceholderCompany(*f.model, lxutils::dataDir() + wxString::Format("/jizdy%d.db", jizd));
    wxSQLite3Database& db = f.model->db();
    wxSQLite3Transaction tx(&db);
    db.ExecuteUpdate("INSERT INTO ridic(id,jmeno) VALUES(1,'Jan Novák')");
    db.ExecuteUpdate(
        "INSERT INTO vozidlo(id,druhvozidlaid,spotreba,rz,jmeno,soukrome,phmid) "
        "VALUES(1,1,6.5,'1AB 2345','Octavia',1,1),(2,3,9,'2CD 6789','Dodávka',0,3)");
    wxSQLite3Statement st = db.PrepareStatement(
        "INSERT INTO jizda(id,vozidloid,ridicid,startcas,endcas,startkm,endkm,cesta,ucel) VALUES(?,?,1,?,?,?,?,?,?)");
    int id = 1;
    const double krok = 365.0 * 24 * 60 / jizd;  // minutes between the starts of two trips
    for (int vozidlo = 1; vozidlo <= 2; ++vozidlo) {
        for (int i = 0; i < jizd; ++i) {
            wxDateTime start(1, wxDateTime::Jan, ROK);
            start.Add(wxTimeSpan::Minutes(static_cast<long>(i * krok)));
            wxDateTime end = start;
            end.Add(wxTimeSpan::Minutes(static_cast<long>(krok / 2)));
            st.Bind(1, id++);
            st.Bind(2, vozidlo);
            st.Bind(3, start.FormatISOCombined(' '));
            st.Bind(4, end.FormatISOCombined(' '));
            st.Bind(5, 10000 + 40 * i);
            st.Bind(6, 10000 + 40 * i + 35 + i % 6);  // now and then a few km over the next start
            st.Bind(7, wxString::FromUTF8("Praha - Brno"));
            st.Bind(8, wxString::FromUTF8("Jednání"));
            st.ExecuteUpdate();
            st.Reset();
        }
    }
    tx.Commit();
    return *f.model;
}

void nahradaMesice(benchmark::State& state) {
    DbModel& model = firma(static_cast<int>(state.range(0)));
    for (auto _ : state) benchmark::DoNotOptimize(jizdy::nahradaVozidla(model, 1, ROK, 10));
    state.SetItemsProcessed(state.iterations() * state.range(0) / 12);
}

void navaznostRoku(benchmark::State& state) {
    DbModel& model = firma(static_cast<int>(state.range(0)));
    for (auto _ : state) benchmark::DoNotOptimize(jizdy::navaznostVozidla(model, 1, ROK));
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

// The floor: the same year's trips read by one plain query, every column touched.
void jizdyRokuFloor(benchmark::State& state) {
    DbModel& model = firma(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        wxSQLite3Statement st = model.db().PrepareStatement(
            "SELECT * FROM jizda WHERE vozidloid=1 AND datetime(startcas)>=datetime('2026-01-01') "
            "AND datetime(startcas)<datetime('2027-01-01') ORDER BY datetime(startcas), id");
        wxSQLite3ResultSet rs = st.ExecuteQuery();
        size_t sum = 0;
        while (rs.NextRow())
            for (int c = 0; c < rs.GetColumnCount(); ++c) sum += rs.GetAsString(c).length();
        benchmark::DoNotOptimize(sum);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

BENCHMARK(nahradaMesice)->Arg(5000)->Arg(20000)->Unit(benchmark::kMillisecond);
BENCHMARK(navaznostRoku)->Arg(5000)->Arg(20000)->Unit(benchmark::kMillisecond);
BENCHMARK(jizdyRokuFloor)->Arg(5000)->Arg(20000)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    wxInitializer init;
    wxTheApp->SetAppName("evida");
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    for (auto& f : firmy()) {
        f.second.model.reset();
        wxFileName::Rmdir(f.second.home, wxPATH_RMDIR_RECURSIVE);
    }
    return 0;
}
