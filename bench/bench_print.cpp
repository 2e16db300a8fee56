// Print layout and PDF output of a long book: 20 000 journal rows of 8 columns. Wrapping
// looks at cells character by character, so text measurement must stay linear in a cell's
// length (BM_WrapLongCell shows the growth), and laying out the whole book must take well
// under a second. Needs a display: run under xvfb-run -a.
#include <benchmark/benchmark.h>
#include <wx/app.h>
#include <wx/filename.h>
#include <wx/init.h>
#include <wx/log.h>

#include <cstdlib>

#include "tableprint.h"
#include "textmeasure.h"

namespace {

constexpr int ROWS = 20000;

class BenchApp : public wxApp {
 public:
    bool OnInit() override { return true; }
};

wxString u8(const char* text) { return wxString::FromUTF8(text); }

// A money journal as the book prints it: date, document, description, column, income,
// expense, register, note.
Table journal(int rows) {
    static const char* const popisy[] = {"Tržba za zboží v hotovosti",
                                         "Nákup kancelářských potřeb",
                                         "Úhrada faktury FV2024/0815 od odběratele Žluťoučký kůň s.r.o.",
                                         "Nájemné za provozovnu, Dlouhá 5, Praha",
                                         "Pohonné hmoty",
                                         "Záloha na daň z příjmů fyzických osob za 2. čtvrtletí",
                                         "Poštovné",
                                         "Oprava služebního vozidla včetně náhradních dílů a práce"};
    static const char* const sloupce[] = {"Příjmy z prodeje", "Materiál", "Služby", "Nájemné", "Daně a poplatky"};
    Table t;
    t.tableTitle.title = u8("Peněžní deník 2024");
    for (const char* h : {"Datum", "Doklad", "Popis", "Sloupec", "Příjem", "Výdej", "Pokladna", "Poznámka"})
        t.addCellToHeader(u8(h));
    t.setColumnWidth(2, 60);
    t.setColumnWidth(7, 30);
    for (int i = 0; i < rows; ++i) {
        const bool income = i % 3 == 0;
        const wxString amount = wxString::Format("%.2f", 100.0 + (i * 37 % 100000) / 7.0);
        t.addRow();
        t.addCell(wxString::Format("%d.%d.2024", i % 28 + 1, i % 12 + 1));
        t.addCell(wxString::Format(income ? "PP%05d" : "VP%05d", i));
        t.addCell(u8(popisy[i % 8]));
        t.addCell(u8(sloupce[i % 5]));
        t.addCell(income ? amount : wxString(), wxTEXT_ALIGNMENT_RIGHT);
        t.addCell(income ? wxString() : amount, wxTEXT_ALIGNMENT_RIGHT);
        t.addCell(i % 4 ? u8("Hlavní pokladna") : u8("Banka ČSOB"));
        t.addCell(i % 10 ? wxString() : u8("viz příloha"));
    }
    return t;
}

void BM_JournalLayout(benchmark::State& state) {
    Table t = journal(ROWS);
    lxTextMeasure::clearCache();
    int pages = 0;
    for (auto _ : state) {
        t.refreshCellsSize();
        pages = t.calculatePages(15, 15, 289);
        benchmark::DoNotOptimize(pages);
    }
    state.counters["rows"] = ROWS;
    state.counters["pages"] = pages;
}
BENCHMARK(BM_JournalLayout)->Unit(benchmark::kMillisecond);

void BM_JournalPdf(benchmark::State& state) {
    Table t = journal(ROWS);
    const wxString path = wxFileName::CreateTempFileName("evida-bench") + ".pdf";
    int pages = 0;
    for (auto _ : state) {
        TablePrint print(nullptr, u8("Peněžní deník"));
        print.setTable(&t);
        print.layout().headerLeftText = u8("Účetní firma");
        print.layout().headerLine = true;
        wxString error;
        if (!print.writePdf(path, u8("Peněžní deník 2024"), &error)) state.SkipWithError(error.utf8_str());
        pages = t.pagesWithoutSplit();
    }
    wxFileName file(path);
    state.counters["rows"] = ROWS;
    state.counters["pages"] = pages;
    state.counters["MB"] = file.GetSize().ToDouble() / 1e6;
    wxRemoveFile(path);
    wxRemoveFile(path.BeforeLast('.'));
}
BENCHMARK(BM_JournalPdf)->Unit(benchmark::kMillisecond)->Iterations(2);

void BM_WrapLongCell(benchmark::State& state) {
    const wxFont font = printFont(8);
    wxString text;
    while (static_cast<long>(text.length()) < state.range(0)) text += u8("slovo žluťoučké ");
    for (auto _ : state) benchmark::DoNotOptimize(lxTextMeasure::wrappedLineCount(font, text, 200));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(BM_WrapLongCell)->RangeMultiplier(4)->Range(1 << 10, 1 << 18)->Complexity(benchmark::oN);

}  // namespace

wxIMPLEMENT_APP_NO_MAIN(BenchApp);

int main(int argc, char** argv) {
    if (!wxEntryStart(argc, argv) || !wxTheApp || !wxTheApp->CallOnInit()) {
        fprintf(stderr, "The print benchmark needs a display (run it under xvfb-run -a).\n");
        return 1;
    }
    wxLog::SetActiveTarget(new wxLogStderr());
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    wxTheApp->OnExit();
    wxEntryCleanup();
    return 0;
}
