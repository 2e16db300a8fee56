// The money journal with all its columns, written to PDF and read back: few landscape pages,
// the date and number on every page, headers wrapped but whole, the running totals carried
// from page to page and the year's totals at the end.
#include <gtest/gtest.h>

#include <map>

#include "fulldenikprint.h"
#include "lxformat.h"
#include "printtest.h"

namespace {

// The 23 columns of a new company.
std::vector<FullDenikPrint::Sloupec> sloupce() {
    const char* popisy[] = {"Prodej zboží (příjem ovlivňující základ daně)",
                            "Prodej výrobků a služeb (příjem ovlivňující základ daně)",
                            "Ostatní (příjem ovlivňující základ daně)",
                            "Nákup materiálu (výdaj ovlivňující základ daně)",
                            "Nákup zboží (výdaj ovlivňující základ daně)",
                            "Nákup drobného majetku (výdaj ovlivňující základ daně)",
                            "Mzdy (výdaj ovlivňující základ daně)",
                            "Daň ze mzdy (výdaj ovlivňující základ daně)",
                            "Sociální pojištění (výdaj ovlivňující základ daně)",
                            "Zdravotní pojištění (výdaj ovlivňující základ daně)",
                            "Režie (výdaj ovlivňující základ daně)",
                            "Ostatní (výdaj ovlivňující základ daně)",
                            "Vklad podnikatele (příjem neovlivňující základ daně)",
                            "DPH (příjem neovlivňující základ daně)",
                            "Ostatní (příjem neovlivňující základ daně)",
                            "Nákup dlouhodobého majetku (výdaj neovlivňující základ daně)",
                            "DPH (výdaj neovlivňující základ daně)",
                            "Sociální a zdravotní pojištění (výdaj neovlivňující základ daně)",
                            "Daň z příjmu (výdaj neovlivňující základ daně)",
                            "Osobní (výdaj neovlivňující základ daně)",
                            "Ostatní (výdaj neovlivňující základ daně)",
                            "Průběžné položky - příjem",
                            "Průběžné položky - výdaj"};
    std::vector<FullDenikPrint::Sloupec> s;
    for (int i = 0; i < 23; ++i) s.push_back({10 + i, u8(popisy[i])});
    return s;
}

wxDateTime den(int day, int month) {
    return wxDateTime(static_cast<wxDateTime::wxDateTime_t>(day), static_cast<wxDateTime::Month>(month - 1), 2024);
}

// An amount as pdftotext reads it back: the no-break spaces become plain ones.
wxString vytisteno(double castka) {
    wxString text = lxformat::formatCastka(castka);
    text.Replace(wxString(wxUniChar(0x00A0)), " ");
    return text;
}

int count(const wxString& text, const wxString& what) {
    int n = 0;
    for (size_t at = text.find(what); at != wxString::npos; at = text.find(what, at + 1)) ++n;
    return n;
}

class FullJournal : public PrintTest {};

}  // namespace

struct HeaderCase {
    const char* name;
    int cislo;
    const char* popis;
    const char* zahlavi;
};
void PrintTo(const HeaderCase& c, std::ostream* os) { *os << c.name; }
class JournalColumnHeader : public ::testing::TestWithParam<HeaderCase> {};

TEST_P(JournalColumnHeader, IsTheNumberAndAShortName) {
    const HeaderCase& c = GetParam();
    EXPECT_EQ(FullDenikPrint::zahlavi({c.cislo, u8(c.popis)}), u8(c.zahlavi));
}

INSTANTIATE_TEST_SUITE_P(
    Columns, JournalColumnHeader,
    ::testing::Values(HeaderCase{"taxable_income", 10, "Prodej zboží (příjem ovlivňující základ daně)",
                                 "10 Prodej zboží\ndaňový příjem"},
                      HeaderCase{"untaxed_expense", 25, "Nákup dlouhodobého majetku (výdaj neovlivňující základ daně)",
                                 "25 Nákup dlouhodobého majetku\nnedaňový výdaj"},
                      HeaderCase{"no_qualifier", 31, "Průběžné položky - příjem", "31 Průběžné položky - příjem"},
                      HeaderCase{"own_qualifier_kept", 40, " Nájem (kancelář) ", "40 Nájem\nkancelář"},
                      HeaderCase{"bracket_first_is_no_qualifier", 41, "(jiné)", "41 (jiné)"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(FullJournal, FourEntriesFitOnTwoOrThreeLandscapePagesWithDateNumberAndTotalsOnEach) {
    const std::vector<FullDenikPrint::Radek> radky{{den(2, 1), "PP0001", u8("Tržba za zboží"), 10, 12500},
                                                   {den(5, 1), "PV0001", u8("Kancelářský papír"), 13, 321.5},
                                                   {den(9, 2), "BV0001", u8("Nový počítač"), 25, 45000},
                                                   {den(3, 3), "BP0001", u8("Vklad do podnikání"), 22, 100000}};
    FullDenikPrint print(nullptr, u8("Účetní firma"), 2024, sloupce(), radky);
    ASSERT_TRUE(print.writePdf(path("denik.pdf"), print.printTitle()));
    const int pages = pdfPages(path("denik.pdf"));
    EXPECT_GE(pages, 2);
    EXPECT_LE(pages, 3);
    EXPECT_NE(pdfInfo(path("denik.pdf"))["Page size"].Find("841.89 x 595.27"), wxNOT_FOUND);

    wxString all;
    for (int page = 1; page <= pages; ++page) {
        const wxString text = pdfText(path("denik.pdf"), page);
        all += text;
        for (const char* repeated : {"Datum", "Doklad", "02.01.2024", "PP0001", "03.03.2024", "BP0001", "Celkem"})
            EXPECT_NE(text.Find(u8(repeated)), wxNOT_FOUND) << repeated << " on page " << page;
        EXPECT_EQ(text.Find(u8("Převod")), wxNOT_FOUND) << "one page of rows carries nothing";
    }
    // Each amount and its column's total, once in the whole print; the column headers.
    for (const char* amount : {"12 500,00", "321,50", "45 000,00", "100 000,00"})
        EXPECT_EQ(count(all, u8(amount)), 2) << amount;
    // The headers wrap word by word; each word of them comes out whole, once.
    std::map<wxString, int> words;
    for (const PdfWord& w : pdfWords(path("denik.pdf"))) ++words[w.text];
    for (const char* word : {"dlouhodobého", "podnikatele", "výrobků", "Průběžné"})
        EXPECT_EQ(words[u8(word)], std::string(word) == "Průběžné" ? 2 : 1) << word;
    EXPECT_EQ(words[u8("daňový")], 12);
    EXPECT_EQ(words[u8("nedaňový")], 9);
    EXPECT_EQ(count(all, u8("Tržba za zboží")), 1) << "the description goes with the first group only";
}

TEST_F(FullJournal, LongJournalCarriesItsRunningTotalsFromPageToPage) {
    std::vector<FullDenikPrint::Radek> radky;
    for (int i = 0; i < 90; ++i)
        radky.push_back({den(1 + i % 28, 1 + i / 28), wxString::Format("PP%04d", i + 1), u8("Tržba"),
                         i % 3 == 0 ? 11 : 10, 100.25 * (i + 1)});
    FullDenikPrint print(nullptr, u8("Účetní firma"), 2024, sloupce(), radky);
    const int pages = print.paginate();
    const Table& t = *print.table();
    const int groups = t.numberOfColumnsSplit();
    const int rowPages = t.pagesWithoutSplit();
    ASSERT_GE(rowPages, 2);
    ASSERT_EQ(pages, rowPages * groups);

    // Column 10 is the fourth column: the sums of its entries page by page.
    std::vector<double> soucty;
    double prubezne = 0;
    size_t radek = 0;
    for (int p = 0; p < rowPages; ++p) {
        const TableRowsPerPage& strana = t.rowsPerPage()[p];
        const int prvni = strana.rowStart + (p > 0 ? 1 : 0);
        for (int r = prvni; r < strana.rowEnd; ++r, ++radek)
            if (radky[radek].sloupec == 10) prubezne += radky[radek].castka;
        soucty.push_back(prubezne);
        if (p > 0) {
            EXPECT_EQ(t.rows[strana.rowStart][0].value, u8("Převod"));
            EXPECT_EQ(t.rows[strana.rowStart][3].value, lxformat::formatCastka(soucty[p - 1]));
        }
        EXPECT_EQ(t.rows[strana.rowEnd][0].value, p + 1 == rowPages ? u8("Celkem") : u8("Převod"));
        EXPECT_EQ(t.rows[strana.rowEnd][3].value, lxformat::formatCastka(prubezne)) << "page " << p;
    }
    EXPECT_EQ(radek, radky.size()) << "every entry printed once";
    double celkem = 0;
    for (const auto& r : radky)
        if (r.sloupec == 10) celkem += r.castka;
    EXPECT_NEAR(soucty.back(), celkem, 1e-6);

    ASSERT_TRUE(print.writePdf(path("dlouhy.pdf"), ""));
    ASSERT_EQ(pdfPages(path("dlouhy.pdf")), pages);
    const wxString konecPrvni = pdfText(path("dlouhy.pdf"), 1), zacatekDruhe = pdfText(path("dlouhy.pdf"), groups + 1);
    EXPECT_NE(konecPrvni.Find(vytisteno(soucty[0])), wxNOT_FOUND);
    EXPECT_NE(zacatekDruhe.Find(u8("Převod")), wxNOT_FOUND);
    EXPECT_NE(zacatekDruhe.Find(vytisteno(soucty[0])), wxNOT_FOUND);
    EXPECT_NE(zacatekDruhe.Find(radky[t.rowsPerPage()[1].rowStart].cislo), wxNOT_FOUND);
    EXPECT_NE(pdfText(path("dlouhy.pdf"), pages).Find(u8("Celkem")), wxNOT_FOUND);
}

TEST_F(FullJournal, NoWordIsCutAndNothingPassesTheSheetsEdge) {
    const std::vector<FullDenikPrint::Radek> radky{
        {den(2, 1), "PP0001", u8("Tržba za zboží podle dodacího listu a objednávky zákazníka"), 10, 987654321.5}};
    FullDenikPrint print(nullptr, u8("Účetní firma"), 2024, sloupce(), radky);
    ASSERT_TRUE(print.writePdf(path("okraje.pdf"), ""));
    const std::vector<PdfWord> words = pdfWords(path("okraje.pdf"));
    ASSERT_FALSE(words.empty());
    for (const PdfWord& w : words) {
        EXPECT_GE(w.xMin, 10 * PT_PER_MM - 1) << w.text;
        EXPECT_LE(w.xMax, 287 * PT_PER_MM + 1) << w.text;
    }
    // The longest words of the headers come out whole; an amount too long for its column
    // to group its thousands runs its digits together.
    const wxString all = pdfText(path("okraje.pdf"));
    EXPECT_EQ(count(all, "987654321,50"), 2);
    for (const char* word : {"dlouhodobého", "podnikatele", "zdravotní", "nedaňový"})
        EXPECT_NE(all.Find(u8(word)), wxNOT_FOUND) << word;
}

TEST_F(FullJournal, EmptyJournalIsOneRowPageWithZeroTotals) {
    FullDenikPrint print(nullptr, u8("Účetní firma"), 2024, sloupce(), {});
    const int pages = print.paginate();
    EXPECT_EQ(print.table()->pagesWithoutSplit(), 1);
    ASSERT_EQ(print.table()->rows.size(), 1u);
    EXPECT_EQ(print.table()->rows[0][0].value, u8("Celkem"));
    EXPECT_EQ(print.table()->rows[0][5].value, "0,00");
    ASSERT_TRUE(print.writePdf(path("prazdny.pdf"), ""));
    EXPECT_EQ(pdfPages(path("prazdny.pdf")), pages);
}
