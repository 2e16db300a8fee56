// The first users of each print controller, written to PDF and read back.
#include <gtest/gtest.h>

#include "peneznidokladprint.h"
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

TEST_F(ReportPrints, CashBookPrintsMovementsThenTotals) {
    std::vector<PokladniPohyb> pohyby{{"2.1.2024", "PP1", u8("Tržba za zboží"), 1500, 0},
                                      {"3.1.2024", "VP1", u8("Nákup kancelářských potřeb"), 0, 320.5},
                                      {"5.1.2024", "PP2", u8("Tržba za služby"), 200, 0}};
    PokladniKnihaPrint print(nullptr, u8("Účetní firma"), u8("Hlavní pokladna"), 2024, 1000, pohyby);
    ASSERT_TRUE(print.writePdf(path("pokladna.pdf"), ""));
    EXPECT_EQ(pdfPages(path("pokladna.pdf")), 2);  // each table starts a page
    const wxString kniha = pdfText(path("pokladna.pdf"), 1);
    EXPECT_NE(kniha.Find(u8("Nákup kancelářských potřeb")), wxNOT_FOUND);
    EXPECT_NE(kniha.Find(u8("2 179,50")), wxNOT_FOUND);  // running balance after the second line
    const wxString souhrn = pdfText(path("pokladna.pdf"), 2);
    for (const char* expected :
         {"Souhrn", "Počáteční stav", "1 000,00", "1 700,00", "320,50", "Konečný stav", "2 379,50", "Stránka 2 z 2"})
        EXPECT_NE(souhrn.Find(u8(expected)), wxNOT_FOUND) << expected;
}

struct VoucherCase {
    const char* name;
    bool banka;
    bool prijem;
    const char* nadpis;
    std::vector<const char*> texty;  // labels, values and signatures the voucher shows
    std::vector<const char*> chybi;  // what belongs to the other kind only
};
void PrintTo(const VoucherCase& c, std::ostream* os) { *os << c.name; }
class Vouchers : public PrintTest, public ::testing::WithParamInterface<VoucherCase> {};

TEST_P(Vouchers, OnePageWithTheRowsAndSignaturesOfItsKind) {
    const VoucherCase& c = GetParam();
    PenezniDoklad d;
    d.banka = c.banka;
    d.prijem = c.prijem;
    d.cislo = "D2024/007";
    d.datum = wxDateTime(15, wxDateTime::Mar, 2024);
    d.firma = u8("Účetní firma");
    d.firmaIc = "12345678";
    d.ucet = "BU1  123456789/0800";
    d.vypis = 3;
    d.partner = u8("Jiří Čermák");
    d.ucel = u8("Úhrada faktury FV2024/003");
    d.reference = "2024003";
    d.castka = 1234.5;
    PenezniDokladPrint print(nullptr, d);
    const wxString pdf = print.CreatePDF("doklad", print.printTitle(), false);
    ASSERT_FALSE(pdf.empty());
    EXPECT_EQ(pdfPages(pdf), 1);
    EXPECT_EQ(pdfInfo(pdf)["Title"], u8(c.nadpis));
    const wxString text = pdfText(pdf);
    for (const char* expected : {"Jiří Čermák", "Účel platby", "1 234,50 CZK", "15.03.2024", "IČ: 12345678"})
        EXPECT_NE(text.Find(u8(expected)), wxNOT_FOUND) << expected;
    for (const char* expected : c.texty) EXPECT_NE(text.Find(u8(expected)), wxNOT_FOUND) << expected;
    for (const char* other : c.chybi) EXPECT_EQ(text.Find(u8(other)), wxNOT_FOUND) << other;
}

INSTANTIATE_TEST_SUITE_P(Kinds, Vouchers,
                         ::testing::Values(VoucherCase{"cash_income",
                                                       false,
                                                       true,
                                                       "Příjmový pokladní doklad D2024/007",
                                                       {"Přijato od", "Vystavil", "Zaplatil"},
                                                       {"Bankovní účet", "Zaúčtoval"}},
                                           VoucherCase{"cash_expense",
                                                       false,
                                                       false,
                                                       "Výdajový pokladní doklad D2024/007",
                                                       {"Vyplaceno komu", "Vystavil", "Přijal"},
                                                       {"Číslo výpisu", "Zaplatil"}},
                                           VoucherCase{"bank_income",
                                                       true,
                                                       true,
                                                       "Bankovní doklad - příjem D2024/007",
                                                       {"Bankovní účet", "123456789/0800", "Číslo výpisu",
                                                        "Variabilní symbol", "2024003", "Přijato od", "Zaúčtoval"},
                                                       {"Vystavil"}},
                                           VoucherCase{"bank_expense",
                                                       true,
                                                       false,
                                                       "Bankovní doklad - výdaj D2024/007",
                                                       {"Zaplaceno komu", "Zaúčtoval"},
                                                       {"Vyplaceno komu", "Přijal"}}),
                         [](const auto& info) { return std::string(info.param.name); });

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
