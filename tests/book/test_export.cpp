// CSV exports of the book pages as Czech spreadsheets open them (";", a byte-order mark,
// CRLF, quoted fields, or Windows-1250 on request), the journal's full entries that the
// journal import reads back, and the row builder of that export without any window.
#include <gmock/gmock.h>
#include <wx/ffile.h>
#include <wx/filename.h>

#include <string>

#include "book/bookshapes.h"
#include "book/lxbook.h"
#include "book/lxbookpage.h"
#include "book/lxcsv.h"
#include "book/lxlistctrl.h"
#include "booktest.h"
#include "denikexport.h"

using ::testing::HasSubstr;

namespace {

std::string utf8(const char* text) { return std::string(text); }

const char* const DENIK_HEADER =
    "\"Datum\";\"Číslo\";\"Popis\";\"Částka\";\"Pokladna/účet\";\"Předkontace\";\"Protistrana\";\"Paušál\";"
    "\"Reference\";\"Výpis\";\"Měna\";\"Částka v měně\";\"Kurz\"\r\n";

// A journal entry with every field given, for the row builder.
Denik entry(int pokladna, int banka, int mena, double castka, double cizi, double kurz, int pausal, int vypis,
            int protistrana) {
    return Denik(7, iso("2026-11-23"), "PP2026/001", u8("Nákup \"A\"; B"), castka, cizi, kurz, "REF-1", pausal, mena, 3,
                 pokladna, banka, vypis, protistrana, 2026);
}

}  // namespace

TEST(DenikExportRow, EveryFieldInTheFormTheImportReads) {
    denikexport::Nazvy n;
    n.pokladny = {{1, "POK1"}};
    n.banky = {{1, "BU1"}};
    n.predkontace = {{3, "V001"}};
    n.kontakty = {{5, u8("Řezník s.r.o.")}};
    n.meny = {{1, "CZK"}, {2, "EUR"}};
    const struct {
        const char* name;
        Denik denik;
        std::vector<const char*> fields;
    } cases[] = {
        {"cash_in_crowns",
         entry(1, -1, 1, 1250.5, 1250.5, 1, 0, 0, 0),
         {"23.11.2026", "PP2026/001", "Nákup \"A\"; B", "1250,50", "POK1", "V001", "", "", "REF-1", "", "", "", ""}},
        {"bank_in_euros",
         entry(-1, 1, 2, 25345.5, 1000, 25.3455, 0, 12, 5),
         {"23.11.2026", "PP2026/001", "Nákup \"A\"; B", "25345,50", "BU1", "V001", "Řezník s.r.o.", "", "REF-1", "12",
          "EUR", "1000,00", "25,3455"}},
        {"flat_rate_and_large_amount",
         entry(1, -1, 1, 1234567.891, 0, 1, 60, 0, 0),
         {"23.11.2026", "PP2026/001", "Nákup \"A\"; B", "1234567,89", "POK1", "V001", "", "60", "REF-1", "", "", "",
          ""}},
        {"negative_and_unknown_counterparty",
         entry(1, -1, 1, -0.004, 0, 1, 0, 0, 99),
         {"23.11.2026", "PP2026/001", "Nákup \"A\"; B", "0,00", "POK1", "V001", "", "", "REF-1", "", "", "", ""}},
    };
    EXPECT_EQ(denikexport::header().size(), 13u);
    for (const auto& c : cases) {
        const wxArrayString row = denikexport::row(c.denik, n);
        ASSERT_EQ(row.size(), c.fields.size()) << c.name;
        for (size_t i = 0; i < row.size(); ++i)
            EXPECT_EQ(row[i], u8(c.fields[i])) << c.name << " field " << denikexport::header()[i];
    }
}

TEST(CsvFile, VisibleColumnsWithSemicolonsBomCrlfAndUngroupedAmounts) {
    lxPageShape<DenikView> shape = bookshapes::denik(NAV_POKLADNA);
    shape.source = nullptr;
    lxTableModel<DenikView> rows(shape);
    lxTableModel<DenikView>::Rows loaded;
    loaded.push_back(
        std::make_unique<DenikView>(1, iso("2024-03-02"), "D1", u8("Prodej; \"velký\""), 31458, true, "POK1", 0));
    rows.setRows(std::move(loaded));
    const wxString path = wxFileName::CreateTempFileName("evida-csv");
    ASSERT_TRUE(lxcsv::write(path, rows));
    EXPECT_EQ(fileBytes(path),
              utf8("\xEF\xBB\xBF"
                   "\"Datum\";\"Číslo dokladu\";\"Popis\";\"Částka\";\"Typ\";\"Pokladna\"\r\n"
                   "\"02.03.2024\";\"D1\";\"Prodej; \"\"velký\"\"\";\"31458,00\";\"Příjem\";\"POK1\"\r\n"));

    ASSERT_TRUE(lxcsv::write(path, rows, lxcsv::Kodovani::WINDOWS1250));
    const std::string cp = fileBytes(path);
    EXPECT_EQ(cp.substr(0, 10), "\"Datum\";\"\xC8") << "no mark, Č is 0xC8";
    EXPECT_THAT(cp, HasSubstr("\"P\xF8\xEDjem\""));
    wxRemoveFile(path);
}

TEST(CsvFile, CharactersWindows1250LacksBecomeQuestionMarks) {
    const wxString path = wxFileName::CreateTempFileName("evida-csv");
    wxArrayString header;
    header.Add(u8("Popis"));
    const wxString popis = u8("Žluťoučký kůň € ✓");
    ASSERT_TRUE(lxcsv::write(
        path, header, 1,
        [&popis](size_t) {
            wxArrayString f;
            f.Add(popis);
            return f;
        },
        lxcsv::Kodovani::WINDOWS1250));
    EXPECT_EQ(fileBytes(path), "\"Popis\"\r\n\"\x8Elu\x9Dou\xE8k\xFD k\xF9\xF2 \x80 ?\"\r\n");
    wxRemoveFile(path);
}

class JournalExport : public BookTest {
 protected:
    void SetUp() override {
        BookTest::SetUp();
        denik("P001", 1200.5, "2024-03-02", "Prodej zboží");
        denik("V001", 300, "2024-02-15", "materiál", true);
        denik("V008", 50, "2024-03-02", "Nájem");
        m_book->createPages();
        m_book->selectPage(NAV_DENIK);
        m_page = m_book->page(NAV_DENIK);
    }
    lxBookPage* m_page = nullptr;
};

TEST_F(JournalExport, WholeEntriesInTheShownOrderAndSaysWhereSaved) {
    m_prompts.answerPath(m_home + u8("/deník"));
    m_page->exportCsv();
    EXPECT_EQ(
        fileBytes(m_home + u8("/deník.csv")),
        utf8("\xEF\xBB\xBF") + DENIK_HEADER +
            "\"15.02.2024\";\"D002\";\"materiál\";\"300,00\";\"BU1\";\"V001\";\"\";\"\";\"\";\"7\";\"\";\"\";\"\"\r\n"
            "\"02.03.2024\";\"D001\";\"Prodej zboží\";\"1200,50\";\"POK1\";\"P001\";\"\";\"\";\"\";\"\";\"\";\"\";"
            "\"\"\r\n"
            "\"02.03.2024\";\"D003\";\"Nájem\";\"50,00\";\"POK1\";\"V008\";\"\";\"\";\"\";\"\";\"\";\"\";\"\"\r\n");
    ASSERT_FALSE(m_prompts.shown().empty());
    EXPECT_EQ(m_prompts.shown().back().text, u8("Uloženo do ") + m_home + u8("/deník.csv"));
    EXPECT_EQ(m_prompts.shown().back().caption, u8("Informace"));

    // The second file type of the dialog writes Windows-1250 without a mark.
    m_prompts.answerPath(m_home + "/cp.csv");
    m_prompts.answerFileType(1);
    m_page->exportCsv();
    const std::string cp = fileBytes(m_home + "/cp.csv");
    EXPECT_EQ(cp.substr(0, 14), "\"Datum\";\"\xC8\xEDslo");
    EXPECT_THAT(cp, HasSubstr("\"materi\xE1l\""));

    // A file that cannot be written is reported and nothing is claimed saved.
    m_prompts.clear();
    m_prompts.answerPath(m_home + u8("/chybí/x.csv"));
    m_page->exportCsv();
    ASSERT_EQ(m_prompts.shown().size(), 2u);  // the chooser, then the failure
    EXPECT_THAT(m_prompts.shown().back().text.utf8_string(), HasSubstr("nelze"));
}

TEST_F(JournalExport, FilteredPageExportsOnlyTheShownEntries) {
    lxFilter prijmy;
    prijmy.choice = 1;
    m_page->setFilter(prijmy);
    wxString error;
    ASSERT_TRUE(m_page->exportCsv(m_home + "/prijmy.csv", &error)) << error;
    const std::string csv = fileBytes(m_home + "/prijmy.csv");
    EXPECT_THAT(csv, HasSubstr("\"D001\""));
    EXPECT_EQ(csv.find("\"D002\""), std::string::npos);
    EXPECT_EQ(csv.find("\"D003\""), std::string::npos);
}
