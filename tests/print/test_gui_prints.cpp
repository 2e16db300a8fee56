// The first users of each print controller, written to PDF and read back.
#include <gtest/gtest.h>

#include "fulldenikprint.h"
#include "pokladnidokladprint.h"
#include "pokladniknihaprint.h"
#include "prehledprint.h"
#include "printtest.h"
#include "seznamkontaktuprint.h"

class ReportPrints : public PrintTest {};

TEST_F(ReportPrints, ContactListPrintsEveryContactWithItsAddress) {
    std::vector<KontaktRadek> kontakty{
        {u8("Žluťoučký kůň s.r.o."), "12345678", "CZ12345678", u8("Dlouhá 5"), "Praha", "110 00", "", ""},
        {"O'Brien & syn", "", "", "", u8("Brno"), "602 00", "+420 123 456 789", "obrien@example.cz"},
        {u8("Firma \"Alfa\""), "87654321", "", "", "", "", "", ""}};
    SeznamKontaktuPrint print(nullptr, u8("Účetní firma"), kontakty);
    ASSERT_TRUE(print.writePdf(path("kontakty.pdf"), print.printTitle()));
    EXPECT_EQ(pdfPages(path("kontakty.pdf")), 1);
    const wxString text = pdfText(path("kontakty.pdf"));
    for (const char* expected : {"Seznam kontaktů", "Žluťoučký kůň s.r.o.", "110 00 Praha", "O'Brien & syn",
                                 "obrien@example.cz", "Firma \"Alfa\"", "Stránka 1 z 1"})
        EXPECT_NE(text.Find(u8(expected)), wxNOT_FOUND) << expected;
}

TEST_F(ReportPrints, WideJournalIsSplitIntoColumnGroupsOnLandscapePages) {
    wxArrayString sloupce;
    for (int c = 0; c < 24; ++c) sloupce.push_back(wxString::Format(u8("Sloupec číslo %d"), c + 1));
    std::vector<wxArrayString> radky(150);
    for (int r = 0; r < 150; ++r)
        for (int c = 0; c < 24; ++c) radky[r].push_back(wxString::Format("%d.%02d", r * 100 + c, c));
    FullDenikPrint print(nullptr, u8("Účetní firma"), 2024, sloupce, radky, {5, 6});
    ASSERT_TRUE(print.writePdf(path("denik.pdf"), ""));
    const int pages = pdfPages(path("denik.pdf"));
    ASSERT_TRUE(print.table());
    const int groups = print.table()->numberOfColumnsSplit();
    EXPECT_GT(groups, 1);
    EXPECT_EQ(pages, print.table()->pagesWithoutSplit() * groups);
    EXPECT_NE(pdfInfo(path("denik.pdf"))["Page size"].Find("841.89 x 595.27"), wxNOT_FOUND);
    // The last column is on the last page of the first row page, not on the first page.
    EXPECT_EQ(pdfText(path("denik.pdf"), 1).Find(u8("Sloupec číslo 24")), wxNOT_FOUND);
    EXPECT_NE(pdfText(path("denik.pdf"), groups).Find(u8("Sloupec číslo 24")), wxNOT_FOUND);
    EXPECT_NE(pdfText(path("denik.pdf"), groups + 1).Find(u8("Sloupec číslo 1")), wxNOT_FOUND);
}

TEST_F(ReportPrints, CashBookPrintsMovementsThenTotals) {
    std::vector<PokladniPohyb> pohyby{{"2.1.2024", "PP1", u8("Tržba za zboží"), 1500, 0},
                                      {"3.1.2024", "VP1", u8("Nákup kancelářských potřeb"), 0, 320.5},
                                      {"5.1.2024", "PP2", u8("Tržba za služby"), 200, 0}};
    PokladniKnihaPrint print(nullptr, u8("Účetní firma"), u8("Hlavní pokladna"), 2024, 1000, pohyby);
    ASSERT_TRUE(print.writePdf(path("pokladna.pdf"), ""));
    EXPECT_EQ(pdfPages(path("pokladna.pdf")), 2);  // each table starts a page
    const wxString kniha = pdfText(path("pokladna.pdf"), 1);
    EXPECT_NE(kniha.Find(u8("Nákup kancelářských potřeb")), wxNOT_FOUND);
    EXPECT_NE(kniha.Find("2179.50"), wxNOT_FOUND);  // running balance after the second line
    const wxString souhrn = pdfText(path("pokladna.pdf"), 2);
    for (const char* expected :
         {"Souhrn", "Počáteční stav", "1000.00", "1700.00", "320.50", "Konečný stav", "2379.50", "Stránka 2 z 2"})
        EXPECT_NE(souhrn.Find(u8(expected)), wxNOT_FOUND) << expected;
}

TEST_F(ReportPrints, CashVoucherIsOnePageDocument) {
    PokladniDoklad d;
    d.cislo = "PP2024/007";
    d.datum = "15.3.2024";
    d.firma = u8("Účetní firma");
    d.firmaIc = "12345678";
    d.partner = u8("Jiří Čermák");
    d.ucel = u8("Úhrada faktury FV2024/003");
    d.castka = 1234.5;
    PokladniDokladPrint print(nullptr, d);
    const wxString pdf = print.CreatePDF(d.cislo, print.printTitle(), false);
    ASSERT_FALSE(pdf.empty());
    EXPECT_EQ(pdfPages(pdf), 1);
    EXPECT_EQ(pdfInfo(pdf)["Title"], u8("Příjmový pokladní doklad PP2024/007"));
    const wxString text = pdfText(pdf);
    for (const char* expected : {"Příjmový pokladní doklad PP2024/007", "Přijato od", "Jiří Čermák", "1234.50 CZK",
                                 "Zaplatil", "IČ: 12345678"})
        EXPECT_NE(text.Find(u8(expected)), wxNOT_FOUND) << expected;
}

TEST_F(ReportPrints, OverviewSetsTheSummariesInTwoColumnsRowBelowRow) {
    Prehled p;
    p.firma = u8("Šťastná firma s.r.o.");
    p.ic = "27074358";
    p.obdobi = u8("účetní období 2024");
    // A longer first summary pushes the whole next row down.
    p.souhrny = {u8("Příjmy:\nDaňové: 1.00 Kč\nCelkem: 2.00 Kč\nJiné: 3.00 Kč\nDalší: 4.00 Kč"),
                 u8("Výdaje:\nDaňové: 0.00 Kč"), u8("Pohledávky:\nNeuhrazené: 0")};
    PrehledPrint print(nullptr, p);
    const wxString pdf = print.CreatePDF("prehled", print.printTitle(), false);
    ASSERT_FALSE(pdf.empty());
    EXPECT_EQ(pdfPages(pdf), 1);
    std::map<wxString, PdfWord> words;
    for (const PdfWord& w : pdfWords(pdf)) words.emplace(w.text, w);
    for (const char* word : {"Šťastná", "Příjmy:", "Výdaje:", "Další:", "Pohledávky:"})
        ASSERT_EQ(words.count(u8(word)), 1u) << word;
    const PdfWord prijmy = words[u8("Příjmy:")], vydaje = words[u8("Výdaje:")];
    EXPECT_NEAR(vydaje.yMin, prijmy.yMin, 0.5);
    EXPECT_NEAR(vydaje.xMin - prijmy.xMin, 95 * PT_PER_MM, 1.0);
    EXPECT_GT(words[u8("Pohledávky:")].yMin, words[u8("Další:")].yMax);
    EXPECT_NEAR(words[u8("Pohledávky:")].xMin, prijmy.xMin, 0.5);
    EXPECT_LT(words[u8("Šťastná")].yMax, prijmy.yMin);
}
