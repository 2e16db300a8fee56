// Depreciation of a large asset register: calculateOdpisy on 1 000 and 5 000 assets acquired
// over the last ten years (half straight-line, half accelerated, the six groups in turn), from
// an empty depreciation table, and a second run that finds every year already stored. The two
// sizes show the work grows with the number of assets, not faster.
#include <benchmark/benchmark.h>
#include <wx/app.h>
#include <wx/filename.h>
#include <wx/init.h>
#include <wx/utils.h>

#include <cstdlib>

#include "clock.h"
#include "companysetup.h"
#include "dbmodel.h"
#include "lxsettings.h"
#include "lxutils.h"

namespace {

wxString g_home;

// A company with `count` assets acquired in the ten years up to this one.
void fill(DbModel& model, int count) {
    const int rok = lxutils::today().GetYear();
    wxSQLite3Database& db = model.db();
    wxSQLite3Transaction tx(&db);
    db.ExecuteUpdate("DELETE FROM odpis");
    db.ExecuteUpdate("DELETE FROM majetek");
    wxSQLite3Statement st = db.PrepareStatement(
        "INSERT INTO majetek(id,cislo,nazev,porizen,vyrazen,cena,typ,odpis,skupinaid) VALUES(?,?,?,?,0,?,1,?,?)");
    for (int i = 1; i <= count; ++i) {
        st.Reset();
        st.Bind(1, i);
        st.Bind(2, wxString::Format("MA%05d", i));
        st.Bind(3, wxString::Format("Majetek %d", i));
        st.Bind(4, wxString::Format("%d-%02d-15", rok - i % 10, 1 + i % 12));
        st.Bind(5, 40000.0 + 17 * i);
        st.Bind(6, 1 + i % 2);
        st.Bind(7, 1 + i % 6);
        st.ExecuteUpdate();
    }
    tx.Commit();
}

DbModel& model() {
    static DbModel m;
    if (!m.isOpen()) {
        char tmpl[] = "/tmp/evida-bench-XXXXXX";
        g_home = wxString::FromUTF8(mkdtemp(tmpl));
        wxSetEnv("HOME", g_home);
        lxSettings::reset();
        companysetup::createPlaceholderCompany(m, lxutils::dataDir() + "/majetek.db");
    }
    return m;
}

void BM_calculateOdpisy(benchmark::State& state) {
    DbModel& m = model();
    for (auto _ : state) {
        state.PauseTiming();
        fill(m, static_cast<int>(state.range(0)));
        state.ResumeTiming();
        benchmark::DoNotOptimize(m.calculateOdpisy());
    }
    state.counters["odpisu"] = m.tableRows("odpis");
}
BENCHMARK(BM_calculateOdpisy)->Arg(1000)->Arg(5000)->Unit(benchmark::kMillisecond);

void BM_calculateOdpisyNothingNew(benchmark::State& state) {
    DbModel& m = model();
    fill(m, static_cast<int>(state.range(0)));
    m.calculateOdpisy();
    for (auto _ : state) benchmark::DoNotOptimize(m.calculateOdpisy());
}
BENCHMARK(BM_calculateOdpisyNothingNew)->Arg(1000)->Arg(5000)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    wxInitializer init;
    wxTheApp->SetAppName("evida");
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    model().closeDatabase();
    if (!g_home.empty()) wxFileName::Rmdir(g_home, wxPATH_RMDIR_RECURSIVE);
    return 0;
}
