// Stock valuation: FIFO and the weighted average over one item with many movements (the
// valuation alone, and the model's state of the item read from the database), and the state of
// every item of a warehouse at a date (getZasobyStav, one query for all movements). Each runs
// at two sizes; time per movement should stay flat when the size doubles.
#include <benchmark/benchmark.h>
#include <wx/app.h>
#include <wx/filename.h>
#include <wx/init.h>
#include <wx/utils.h>

#include <cstdlib>
#include <map>
#include <vector>

#include "companysetup.h"
#include "dbmodel.h"
#include "lxsettings.h"
#include "lxutils.h"
#include "sklad/ocenovani.h"

namespace {

std::vector<wxString>& homes() {
    static std::vector<wxString> list;
    return list;
}

// Receipts and issues in turn, an issue taking a little less than the receipt before it, so
// that FIFO keeps a long queue of part-used receipts.
std::vector<ocenovani::Pohyb> pohyby(int n) {
    std::vector<ocenovani::Pohyb> v;
    v.reserve(n);
    for (int i = 0; i < n; ++i)
        v.push_back(i % 2 == 0 ? ocenovani::Pohyb{10, 100.0 + i % 37, true} : ocenovani::Pohyb{7, 0, false});
    return v;
}

void Valuation(benchmark::State& state, int metoda) {
    const auto v = pohyby(static_cast<int>(state.range(0)));
    for (auto _ : state) benchmark::DoNotOptimize(ocenovani::stav(metoda, v).celkem);
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK_CAPTURE(Valuation, Fifo, ocenovani::FIFO)->Arg(50000)->Arg(100000);
BENCHMARK_CAPTURE(Valuation, Average, ocenovani::PRUMER)->Arg(50000)->Arg(100000);

// A company with `items` items (every other one FIFO) of `perItem` movements each, spread over
// the current year; returns the file's path.
wxString makeCompany(int items, int perItem) {
    char tmpl[] = "/tmp/evida-bench-XXXXXX";
    const wxString home = wxString::FromUTF8(mkdtemp(tmpl));
    homes().push_back(home);
    wxSetEnv("HOME", home);
    lxSettings::reset();
    const wxString path = lxutils::dataDir() + "/sklad.db";
    DbModel model;
    companysetup::createPlaceholderCompany(model, path);
    const int rok = model.currentRok();
    wxSQLite3Database& db = model.db();
    {
        wxSQLite3Transaction tx(&db);
        db.ExecuteUpdate("INSERT INTO sklad(id,nazev,popis,ocenovani) VALUES(1,'Hlavni','',0)");
        wxSQLite3Statement z = db.PrepareStatement(
            "INSERT INTO zasoba(id,cislo,nazev,popis,ocenovani,mj,pocet,celkem,skladid,cenamj,bezdph,dph) "
            "VALUES(?,?,?,'',?,'ks',0,0,1,100,1,21)");
        wxSQLite3Statement p = db.PrepareStatement(
            "INSERT INTO pohybzasob(datum,cislo,pocet,cenamj,prijemka,pocatek,inventura,zasobaid,obdobirok) "
            "VALUES(?,?,?,?,?,0,0,?,?)");
        const wxDateTime start(1, wxDateTime::Jan, rok);
        for (int i = 1; i <= items; ++i) {
            z.Bind(1, i);
            z.Bind(2, wxString::Format("ZB%06d", i));
            z.Bind(3, wxString::Format("Zbozi %d", i));
            z.Bind(4, i % 2);
            z.ExecuteUpdate();
            z.Reset();
            for (int k = 0; k < perItem; ++k) {
                const bool prijem = k % 2 == 0;
                const wxDateTime datum = start + wxTimeSpan::Minutes(static_cast<long>(k) * 525600 / perItem);
                p.Bind(1, datum.FormatISOCombined(' '));
                p.Bind(2, wxString::Format(prijem ? "PR%06d" : "VY%06d", k));
                p.Bind(3, prijem ? 10.0 : 7.0);
                p.Bind(4, 100.0 + k % 37);
                p.Bind(5, prijem ? 1 : 0);
                p.Bind(6, i);
                p.Bind(7, rok);
                p.ExecuteUpdate();
                p.Reset();
            }
        }
        tx.Commit();
    }
    model.closeDatabase();
    return path;
}

const wxString& company(int items, int perItem) {
    static std::map<std::pair<int, int>, wxString> paths;
    auto found = paths.find({items, perItem});
    if (found == paths.end()) found = paths.emplace(std::make_pair(items, perItem), makeCompany(items, perItem)).first;
    return found->second;
}

// One item with many movements, read and valued by the model.
void OneItemState(benchmark::State& state) {
    const int n = static_cast<int>(state.range(0));
    DbModel model;
    model.openDatabase(company(2, n));
    for (auto _ : state) benchmark::DoNotOptimize(model.stavZasobyToDate(1, wxDateTime()).celkem);
    model.closeDatabase();
    state.SetItemsProcessed(state.iterations() * n);
}
BENCHMARK(OneItemState)->Arg(50000)->Arg(100000)->Unit(benchmark::kMillisecond);

// Every item's state at the end of the year, as the stock page shows it.
void AllItemsState(benchmark::State& state) {
    const int items = static_cast<int>(state.range(0));
    DbModel model;
    model.openDatabase(company(items, 100));
    const wxDateTime konec(31, wxDateTime::Dec, model.currentRok());
    for (auto _ : state) benchmark::DoNotOptimize(model.getZasobyStav(konec).size());
    model.closeDatabase();
    state.SetItemsProcessed(state.iterations() * items * 100);
}
BENCHMARK(AllItemsState)->Arg(500)->Arg(1000)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    wxInitializer init;
    wxTheApp->SetAppName("evida");
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    for (const wxString& home : homes()) wxFileName::Rmdir(home, wxPATH_RMDIR_RECURSIVE);
    return 0;
}
