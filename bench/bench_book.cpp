// The journal page with a million entries: filling its row model (filter and footer
// included), sorting it by a clicked column, and filtering it by a text. The list control
// shows only what the model hands it, so these are what a user waits for.
#include <benchmark/benchmark.h>
#include <wx/init.h>

#include "book/bookshapes.h"

namespace {

constexpr int ROWS = 1000000;
enum DenikColumn { DATUM, CISLO, POPIS, CASTKA };

lxDenikViewArray journalRows(int count) {
    static const char* const popisy[] = {"Tržba", "nájem kanceláře", "Materiál", "Pohonné hmoty", "Záloha"};
    std::vector<wxDateTime> days;
    for (int d = 0; d < 366; ++d) days.push_back(wxDateTime(1, wxDateTime::Jan, 2024) + wxDateSpan::Days(d));
    lxDenikViewArray rows;
    rows.reserve(count);
    for (int i = 0; i < count; ++i) {
        // Dates, amounts and texts in no particular order, as years of typing give them.
        const unsigned mix = static_cast<unsigned>(i) * 2654435761u;
        rows.push_back(std::make_unique<DenikView>(i, days[mix % 366], wxString::Format("PP%06u", mix % 1000000),
                                                   wxString::FromUTF8(popisy[mix % 5]), (mix % 100000) / 10.0,
                                                   mix % 3 != 0, "POK1", 0));
    }
    return rows;
}

// What a reload costs once the database has given its rows: taking them over (and freeing
// the previous ones), the filter pass and the footer's totals.
void BM_FillJournalModel(benchmark::State& state) {
    lxTableModel<DenikView> model(bookshapes::denik(NAV_DENIK));
    model.setRows(journalRows(ROWS));
    for (auto _ : state) {
        state.PauseTiming();
        lxDenikViewArray rows = journalRows(ROWS);
        state.ResumeTiming();
        model.setRows(std::move(rows));
        benchmark::DoNotOptimize(model.footer());
    }
    state.SetItemsProcessed(state.iterations() * ROWS);
}

// Each round turns the order round, as a second click on the header does.
void BM_SortJournalModel(benchmark::State& state) {
    lxTableModel<DenikView> model(bookshapes::denik(NAV_DENIK));
    model.setRows(journalRows(ROWS));
    const int column = static_cast<int>(state.range(0));
    bool ascending = true;
    for (auto _ : state) {
        model.sort(column, ascending);
        ascending = !ascending;
        benchmark::DoNotOptimize(model.text(0, column));
    }
    state.SetItemsProcessed(state.iterations() * ROWS);
}

void BM_FilterJournalModelByText(benchmark::State& state) {
    lxTableModel<DenikView> model(bookshapes::denik(NAV_DENIK));
    model.setRows(journalRows(ROWS));
    lxFilter filter;
    filter.text = wxString::FromUTF8("nájem");
    for (auto _ : state) {
        model.setFilter(filter);
        benchmark::DoNotOptimize(model.rowCount());
    }
    state.SetItemsProcessed(state.iterations() * ROWS);
}

}  // namespace

BENCHMARK(BM_FillJournalModel)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SortJournalModel)->Arg(DATUM)->Arg(CISLO)->Arg(POPIS)->Arg(CASTKA)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_FilterJournalModelByText)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) {
    wxInitializer init;
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
