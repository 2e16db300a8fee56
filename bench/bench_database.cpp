// Opening a company file runs SQLite's quick check of the whole file, the upgrade cascade and
// every table check; on a large company (up to 200 000 journal entries) it must stay quick:
// a whole evida-cli run that opens such a file and prints its balances well under 0.3 s. A
// rebuild of a damaged journal must be a set operation, not one statement per row.
#include <benchmark/benchmark.h>
#include <wx/app.h>
#include <wx/filename.h>
#include <wx/init.h>
#include <wx/utils.h>

#include <cstdlib>

#include <sys/resource.h>

#include "companysetup.h"
#include "dbmodel.h"
#include "lxsettings.h"
#include "lxutils.h"

namespace {

wxString makeCompany(int entries) {
    char tmpl[] = "/tmp/evida-bench-XXXXXX";
    const wxString home = wxString::FromUTF8(mkdtemp(tmpl));
    wxSetEnv("HOME", home);
    lxSettings::reset();
    const wxString path = lxutils::dataDir() + "/bench.db";
    DbModel model;
    companysetup::createPlaceholderCompany(model, path);
    const int rok = model.currentRok();
    wxSQLite3Database& db = model.db();
    wxSQLite3Transaction tx(&db);
    wxSQLite3Statement st = db.PrepareStatement(
        "INSERT INTO denik(datum,cislo,popis,castka,castkacizi,pausal,menaid,predkontaceid,pokladnaid,vypis,"
        "protistranaid,obdobirok) VALUES(?,?,?,?,?,0,1,?,1,-1,0,?)");
    wxSQLite3Statement fa = db.PrepareStatement(
        "INSERT INTO faktura(protistranaid,celkem,cislo,typid,uhradaid,menaid,predkontaceid,obdobirok,vydana,duzp,"
        "dppd) VALUES(0,?,?,1,2,1,1,?,1,?,?)");
    for (int i = 0; i < entries; ++i) {
        const wxString datum = wxString::Format("%d-%02d-%02d", rok, i % 12 + 1, i % 28 + 1);
        st.Bind(1, datum);
        st.Bind(2, wxString::Format("PP%06d", i));
        st.Bind(3, "Tržba");
        st.Bind(4, 100.0 + i);
        st.Bind(5, 100.0 + i);
        st.Bind(6, i % 23 + 1);
        st.Bind(7, rok);
        st.ExecuteUpdate();
        st.Reset();
        if (i % 4 == 0) {
            fa.Bind(1, 1210.0);
            fa.Bind(2, wxString::Format("FV%06d", i));
            fa.Bind(3, rok);
            fa.Bind(4, datum);
            fa.Bind(5, datum);
            fa.ExecuteUpdate();
            fa.Reset();
        }
    }
    tx.Commit();
    model.closeDatabase();
    return path;
}

// User and system time of the finished child processes.
double childCpuSeconds() {
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    return usage.ru_utime.tv_sec + usage.ru_stime.tv_sec + (usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
}

void BM_OpenLargeCompany(benchmark::State& state) {
    const wxString path = makeCompany(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        DbModel model;
        benchmark::DoNotOptimize(model.openDatabase(path));
        model.closeDatabase();
    }
    state.SetLabel("journal entries");
}
BENCHMARK(BM_OpenLargeCompany)->Arg(1000)->Arg(50000)->Arg(200000)->Unit(benchmark::kMillisecond);

// The quick check alone, the part of every open that reads the whole file.
void BM_QuickCheck(benchmark::State& state) {
    const wxString path = makeCompany(static_cast<int>(state.range(0)));
    wxSQLite3Database db;
    db.Open(path, wxEmptyString, WXSQLITE_OPEN_READONLY);
    for (auto _ : state) benchmark::DoNotOptimize(db.ExecuteQuery("PRAGMA quick_check").GetAsString(0));
}
BENCHMARK(BM_QuickCheck)->Arg(200000)->Unit(benchmark::kMillisecond);

// A whole evida-cli process: start, open (quick check and table checks), exit. "info" only
// counts rows after opening; "stav" also computes every balance.
void cliLargeCompany(benchmark::State& state, const char* what) {
    const wxString path = makeCompany(static_cast<int>(state.range(0)));
    const wxString command = wxString(EVIDA_CLI) + " " + what + " " + path + " >/dev/null 2>&1";
    const double before = childCpuSeconds();
    for (auto _ : state) {
        if (std::system(command.utf8_str()) != 0) state.SkipWithError("evida-cli failed");
    }
    // The wall time counts waiting for a busy machine too; the processor time of the
    // program itself is what the user waits for on an idle one.
    state.counters["cli_cpu_ms"] = benchmark::Counter((childCpuSeconds() - before) * 1000.0 / state.iterations());
}
void BM_CliOpenLargeCompany(benchmark::State& state) { cliLargeCompany(state, "info"); }
void BM_CliStavLargeCompany(benchmark::State& state) { cliLargeCompany(state, "stav"); }
BENCHMARK(BM_CliOpenLargeCompany)->Arg(200000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_CliStavLargeCompany)->Arg(200000)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_RepairDamagedJournal(benchmark::State& state) {
    const wxString path = makeCompany(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        state.PauseTiming();
        {
            wxSQLite3Database db;
            db.Open(path);
            // A journal that lost its statement column and its keys.
            db.ExecuteUpdate("CREATE TABLE x AS SELECT id,datum,cislo,popis,castka,castkacizi,kurz,reference,pausal,"
                             "menaid,predkontaceid,pokladnaid,bankaid,protistranaid,obdobirok FROM denik");
            db.ExecuteUpdate("DROP TABLE denik");
            db.ExecuteUpdate("ALTER TABLE x RENAME TO denik");
            db.Close();
        }
        state.ResumeTiming();
        DbModel model;
        benchmark::DoNotOptimize(model.openDatabase(path));
        model.closeDatabase();
    }
}
BENCHMARK(BM_RepairDamagedJournal)->Arg(50000)->Unit(benchmark::kMillisecond);

void BM_CreateCompany(benchmark::State& state) {
    char tmpl[] = "/tmp/evida-bench-XXXXXX";
    const wxString home = wxString::FromUTF8(mkdtemp(tmpl));
    wxSetEnv("HOME", home);
    lxSettings::reset();
    int n = 0;
    for (auto _ : state) {
        DbModel model;
        benchmark::DoNotOptimize(
            companysetup::createPlaceholderCompany(model, lxutils::dataDir() + wxString::Format("/c%d.db", n++)));
        model.closeDatabase();
    }
}
BENCHMARK(BM_CreateCompany)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    wxInitializer init;
    wxAppConsole::GetInstance()->SetAppName("evida");
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
