// The books of invoices and receivables/liabilities and the receivable/liability document,
// written to PDF and read back, and drawn by the preview.
#include <gtest/gtest.h>

#include "knihadokladuprint.h"
#include "printtest.h"
#include "zavpohprint.h"

namespace {

wxDateTime den(int d, wxDateTime::Month m) { return wxDateTime(d, m, 2024); }

std::vector<KnihaRadek> radky(int pocet) {
    std::vector<KnihaRadek> r;
    for (int i = 1; i <= pocet; ++i)
        r.push_back({wxString::Format("FV2024%03d", i), den(1 + i % 28, wxDateTime::Feb),
                     den(1 + i % 28, wxDateTime::Mar), u8("Žluťoučký kůň s.r.o."), u8("Práce a materiál"), 1210.5 * i,
                     i % 2 ? "CZK" : "EUR", 210.0 * i, 0, u8("Neuhrazeno")});
    return r;
}

ZavpohDoklad doklad(bool platce, int polozek) {
    ZavpohDoklad d;
    d.zavazek = true;
    d.platce = platce;
    d.cislo = "ZA0003";
    d.firma = {u8("Účetní firma"), {u8("Dlouhá 5"), "110 00 Praha"}, "12345678", "CZ12345678"};
    d.protistrana = {u8("Dodavatel Čech"), {"Brno"}, "87654321", ""};
    d.vystaveni = den(1, wxDateTime::Apr);
    d.splatnost = den(15, wxDateTime::Apr);
    d.vs = "2024003";
    d.uhrada = u8("Převodem");
    for (int i = 1; i <= polozek; ++i)
        d.polozky.push_back({wxString::Format(u8("Položka %d"), i), "ks", 1, 100, 21, 21, 121});
    d.souhrn = {{21, 100.0 * polozek, 21.0 * polozek}};
    d.celkem = 121.0 * polozek;
    return d;
}

}  // namespace

class DokladyPrints : public PrintTest {};

struct BookCase {
    const char* name;
    bool faktury;
    bool druhy;  // received invoices, liabilities
    const char* nadpis;
    const char* protistrana;
};
void PrintTo(const BookCase& c, std::ostream* os) { *os << c.name; }
class Books : public PrintTest, public ::testing::WithParamInterface<BookCase> {};

TEST_P(Books, ListEveryDocumentThenTheTotalInCrowns) {
    const BookCase& c = GetParam();
    const KnihaCelkem celkem{4321.5, 630, 1000, 3321.5};
    std::unique_ptr<KnihaDokladuPrint> print;
    if (c.faktury)
        print = std::make_unique<KnihaFakturPrint>(nullptr, !c.druhy, u8("Účetní firma"), 2024, radky(3), celkem);
    else
        print = std::make_unique<KnihaZavpohPrint>(nullptr, c.druhy, u8("Účetní firma"), 2024, radky(3), celkem);
    ASSERT_TRUE(print->writePdf(path("kniha.pdf"), print->printTitle()));
    EXPECT_EQ(pdfPages(path("kniha.pdf")), 1);
    const wxString text = pdfText(path("kniha.pdf"));
    for (const char* expected : {c.nadpis, c.protistrana, "Účetní firma", "FV2024001", "FV2024003", "Žluťoučký kůň",
                                 "02.03.2024", "3 631,50", "EUR", "Celkem", "4 321,50", "3 321,50", "Dokladů: 3"})
        EXPECT_NE(text.Find(u8(expected)), wxNOT_FOUND) << expected;
}

INSTANTIATE_TEST_SUITE_P(Kinds, Books,
                         ::testing::Values(BookCase{"issued", true, false, "Kniha vydaných faktur 2024", "Odběratel"},
                                           BookCase{"received", true, true, "Kniha přijatých faktur 2024", "Dodavatel"},
                                           BookCase{"receivables", false, false, "Kniha pohledávek 2024", "Odběratel"},
                                           BookCase{"liabilities", false, true, "Kniha závazků 2024", "Dodavatel"}),
                         [](const auto& i) { return std::string(i.param.name); });

TEST_F(DokladyPrints, LongBookRunsOverPagesWithTheTotalOnTheLast) {
    KnihaFakturPrint print(nullptr, true, u8("Účetní firma"), 2024, radky(80), KnihaCelkem{1, 0, 0, 1});
    ASSERT_TRUE(print.writePdf(path("dlouha.pdf"), ""));
    const int pages = pdfPages(path("dlouha.pdf"));
    ASSERT_GT(pages, 1);
    EXPECT_NE(pdfText(path("dlouha.pdf"), pages).Find("FV2024080"), wxNOT_FOUND);
    EXPECT_NE(pdfText(path("dlouha.pdf"), pages).Find(u8("Dokladů: 80")), wxNOT_FOUND);
    EXPECT_EQ(pdfText(path("dlouha.pdf"), 1).Find(u8("Dokladů: 80")), wxNOT_FOUND);
}

TEST_F(DokladyPrints, LiabilityShowsPartiesItemsVatSummaryAndTotal) {
    ZavpohPrint print(nullptr, doklad(true, 2));
    const wxString pdf = print.CreatePDF("zavazek", print.printTitle(), false);
    ASSERT_FALSE(pdf.empty());
    EXPECT_EQ(pdfPages(pdf), 1);
    EXPECT_EQ(pdfInfo(pdf)["Title"], u8("Závazek ZA0003"));
    const wxString text = pdfText(pdf);
    // On a liability the counterparty supplies: it stands on the left, under "Dodavatel".
    double cech = -1, firma = -1;
    for (const PdfWord& w : pdfWords(pdf)) {
        if (w.text == u8("Čech")) cech = w.xMin;
        if (w.text == u8("Účetní")) firma = w.xMin;
    }
    ASSERT_GE(cech, 0);
    EXPECT_LT(cech, firma);
    for (const char* expected : {"Dodavatel", "Odběratel", "110 00 Praha", "DIČ: CZ12345678", "Položka 1", "Položka 2",
                                 "DPH %", "Rekapitulace DPH", "200,00", "42,00", "242,00", "15.04.2024", "2024003",
                                 "Převodem", "Celkem k úhradě: 242,00 CZK"})
        EXPECT_NE(text.Find(u8(expected)), wxNOT_FOUND) << expected;
}

TEST_F(DokladyPrints, NonPayerDocumentHasNoVatAndManyItemsContinueOnTheNextPage) {
    ZavpohPrint print(nullptr, doklad(false, 60));
    const wxString pdf = print.CreatePDF("zavazek", print.printTitle(), false);
    ASSERT_FALSE(pdf.empty());
    const int pages = pdfPages(pdf);
    ASSERT_GE(pages, 2);
    const wxString text = pdfText(pdf);
    EXPECT_EQ(text.Find(u8("DPH")), wxNOT_FOUND);
    EXPECT_NE(text.Find(u8("Položka 60")), wxNOT_FOUND);
    // The item header repeats on the page the items continue on.
    EXPECT_NE(pdfText(pdf, 2).Find(u8("Cena za MJ")), wxNOT_FOUND);
    EXPECT_NE(pdfText(pdf, pages).Find(u8("Celkem k úhradě: 7 260,00 CZK")), wxNOT_FOUND);
}

TEST_F(DokladyPrints, PreviewDrawsThePages) {
    KnihaZavpohPrint kniha(nullptr, false, u8("Účetní firma"), 2024, radky(5), KnihaCelkem{});
    ZavpohPrint zavazek(nullptr, doklad(true, 3));
    EXPECT_GT(previewDarkPixels(kniha), 1000);
    EXPECT_GT(previewDarkPixels(zavazek), 1000);
}
