// Import of journal entries from CSV: what a good file stores, that a bad row is reported
// with its line and stores nothing, the bounds on what a file may hold, the encodings and
// separators spreadsheets write, and evida-cli's import and balance commands.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wx/ffile.h>

#include <cstdio>
#include <string>

#include "denikimport.h"
#include "lxutils.h"
#include "testcompany.h"

using ::testing::HasSubstr;

namespace {

void writeFile(const wxString& path, const std::string& bytes) {
    wxFFile f(path, "wb");
    f.Write(bytes.data(), bytes.size());
}

}  // namespace

class DenikImportTest : public TestCompany {
 protected:
    void SetUp() override {
        TestCompany::SetUp();
        m_path = createCompany();
        ASSERT_TRUE(m_model->setCurrentRok(2024));
        ASSERT_TRUE(m_model->addDenik(
            Denik(1, wxDateTime(5, wxDateTime::Jan, 2024), "BV0007", "", 1, 0, 1, "", 0, 1, 4, -1, 1, 6, 0, 2024)));
    }
    int count(const char* table) { return m_model->tableRows(table); }
    wxString m_path;
};

TEST_F(DenikImportTest, GoodFileStoresEveryRowAsTheDialogWould) {
    Firma firma = m_model->firma();
    firma.setPausal(true);
    ASSERT_TRUE(m_model->setFirma(firma));
    const DenikImport r =
        importDenikText(*m_model, u8("Datum;Číslo;Popis;Částka;Pokladna/účet;Předkontace;Protistrana;Paušál\r\n"
                                     "2024-01-15;;\"Tržba; hotově \"\"A\"\"\";1 234,50;POK1;P001;Alfa s.r.o.\r\n"
                                     "\r\n"
                                     "31.1.2024;X-77;Nájem;12.000,25;BU1;V008; Alfa s.r.o. \r\n"
                                     "2. 2. 2024;;Vklad;500.5;POK1;P101;;40;;\r\n"));
    ASSERT_TRUE(r.ok) << r.zprava;
    EXPECT_EQ(r.pocet, 3);
    EXPECT_EQ(r.zprava, u8("Importováno záznamů: 3"));

    const Denik cash = m_model->getDenik(2), bank = m_model->getDenik(3), vklad = m_model->getDenik(4);
    EXPECT_EQ(cash.cislo(), "PP0001");
    EXPECT_EQ(cash.popis(), u8("Tržba; hotově \"A\""));
    EXPECT_DOUBLE_EQ(cash.castka(), 1234.5);
    EXPECT_EQ(cash.pokladnaid(), 1);
    EXPECT_EQ(cash.pausal(), 80);
    EXPECT_EQ(bank.cislo(), "X-77");
    EXPECT_DOUBLE_EQ(bank.castka(), 12000.25);
    EXPECT_EQ(bank.bankaid(), 1);
    EXPECT_EQ(bank.vypis(), 6);
    EXPECT_EQ(bank.pausal(), 0);
    EXPECT_EQ(bank.protistranaid(), cash.protistranaid());
    EXPECT_EQ(vklad.datum(), wxDateTime(2, wxDateTime::Feb, 2024));
    EXPECT_EQ(vklad.cislo(), "PP0002");
    EXPECT_EQ(vklad.pausal(), 40);
    EXPECT_EQ(vklad.protistranaid(), 0);
    EXPECT_EQ(vklad.obdobirok(), 2024);
    EXPECT_EQ(m_model->getRadaCislo("PP"), 3);
    EXPECT_EQ(m_model->getRadaCislo("BV"), 1) << "a number outside the series leaves the series alone";
    EXPECT_EQ(scalar("SELECT count(*) FROM kontakt WHERE nazev='Alfa s.r.o.'"), 1);
}

std::string repeat(const char* text, int times) {
    std::string s;
    for (int i = 0; i < times; ++i) s += text;
    return s;
}

struct BadRowCase {
    const char* name;
    std::string bad;       // the row on line 3
    const char* fragment;  // what the message says after "Řádek 3: "
};

class BadRow : public DenikImportTest, public ::testing::WithParamInterface<BadRowCase> {};

TEST_P(BadRow, IsRefusedWithItsLineAShortMessageAndNothingStored) {
    const BadRowCase c = GetParam();
    // A good row with a line break inside quotes comes first, so the bad one is on line 3.
    const wxString text = u8("2024-01-15;;\"dva\nřádky\";10;POK1;P001;Beta\n") + u8(c.bad.c_str()) + "\n";
    const DenikImport r = importDenikText(*m_model, text);
    EXPECT_FALSE(r.ok);
    EXPECT_EQ(r.radek, 3);
    EXPECT_TRUE(r.zprava.StartsWith(u8("Řádek 3: "))) << r.zprava;
    EXPECT_THAT(std::string(r.zprava.utf8_str()), HasSubstr(c.fragment));
    // A field of any length is quoted in at most about forty characters.
    EXPECT_LT(r.zprava.length(), 260u) << r.zprava;
    EXPECT_EQ(count("denik"), 1);
    EXPECT_EQ(m_model->getKontaktIdByNazev("Beta"), -1);
    EXPECT_EQ(m_model->getRadaCislo("PP"), 1);
}

const std::string LONG_TEXT = repeat("abcdefghij", 101);  // 1010 characters

INSTANTIATE_TEST_SUITE_P(
    Rows, BadRow,
    ::testing::Values(
        BadRowCase{"six_columns", "2024-01-15;1;x;10;POK1;P001",
                   "očekává se 7 sloupců (datum, číslo, popis, částka, pokladna nebo účet, předkontace, protistrana), "
                   "nalezeno 6"},
        BadRowCase{"day_the_month_lacks", "2024-02-30;1;x;10;POK1;P001;", "Datum: „2024-02-30“ není platné datum"},
        BadRowCase{"other_year", "31.12.2023;1;x;10;POK1;P001;", "datum 31.12.2023 nepatří do účetního období 2024"},
        // Amounts go through the one amount parser, whose own table covers every form.
        BadRowCase{"amount_with_letters", "2024-01-15;1;x;12,5x;POK1;P001;", "Částka: „12,5x“ není platná částka"},
        BadRowCase{"amount_with_exponent", "2024-01-15;1;x;1e308;POK1;P001;", "„1e308“ není platná částka"},
        BadRowCase{"amount_of_a_trillion", "2024-01-15;1;x;1 000 000 000 000;POK1;P001;",
                   "částka „1 000 000 000 000“ je mimo povolený rozsah"},
        BadRowCase{"unknown_register", "2024-01-15;1;x;10;POK9;P001;", "pokladna ani bankovní účet POK9 neexistuje"},
        BadRowCase{"empty_register", "2024-01-15;1;x;10;;P001;", "Pokladna nemůže být prázdná"},
        BadRowCase{"empty_pre_posting", "2024-01-15;1;x;10;BU1;;", "Předkontace nemůže být prázdná"},
        BadRowCase{"unknown_pre_posting", "2024-01-15;1;x;10;BU1;Q1;", "Předkontace Q1 neexistuje"},
        BadRowCase{"bad_flat_rate", "2024-01-15;1;x;10;POK1;P001;;abc", "neplatný paušální výdaj 'abc'"},
        BadRowCase{"unclosed_quote", "2024-01-15;;\"open;10;POK1;P001;", "neukončené uvozovky"},
        BadRowCase{"description_over_a_thousand", "2024-01-15;;" + LONG_TEXT + ";10;POK1;P001;",
                   "pole „abcdefghijabcdefghijabcdefghijabcdefghij…“ je delší než 1000 znaků"},
        BadRowCase{"quoted_field_over_a_thousand", "2024-01-15;;\"" + LONG_TEXT + "\";10;POK1;P001;",
                   "je delší než 1000 znaků (neukončené uvozovky?)"},
        BadRowCase{"long_bad_amount_cut", "2024-01-15;;x;" + repeat("9x", 300) + ";POK1;P001;",
                   "„9x9x9x9x9x9x9x9x9x9x9x9x9x9x9x9x9x9x9x9x…“ není platná částka"},
        BadRowCase{"long_bad_date_cut", repeat("1", 900) + ";;x;10;POK1;P001;",
                   "Datum: „1111111111111111111111111111111111111111…“"},
        BadRowCase{"long_register_cut", "2024-01-15;;x;10;" + repeat("R", 900) + ";P001;",
                   "pokladna ani bankovní účet RRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRRR… neexistuje"},
        BadRowCase{"long_pre_posting_cut", "2024-01-15;;x;10;POK1;" + repeat("P", 900) + ";",
                   "Předkontace PPPPPPPPPPPPPPPPPPPPPPPPPPPPPPPPPPPPPPPP… neexistuje"},
        BadRowCase{"too_many_columns", "2024-01-15;;x;10;POK1;P001;" + repeat(";x", 70), "více než 64 sloupců"}),
    [](const auto& i) { return std::string(i.param.name); });

struct BadFileCase {
    const char* name;
    const char* text;
    int line;
    const char* message;
};

class BadFile : public DenikImportTest, public ::testing::WithParamInterface<BadFileCase> {};

TEST_P(BadFile, IsRefusedWholeNamingTheLine) {
    const BadFileCase c = GetParam();
    const DenikImport r = importDenikText(*m_model, u8(c.text));
    EXPECT_FALSE(r.ok);
    EXPECT_EQ(r.radek, c.line);
    EXPECT_EQ(r.zprava, u8(c.message));
    EXPECT_EQ(count("denik"), 1);
}

INSTANTIATE_TEST_SUITE_P(
    Files, BadFile,
    ::testing::Values(BadFileCase{"heading_only", "Datum;Číslo;Popis;Částka;Pokladna/účet;Předkontace;Protistrana\n\n",
                                  0, "Soubor neobsahuje žádné záznamy"},
                      BadFileCase{"blank_lines_only", "\n  \n;;;\n", 0, "Soubor neobsahuje žádné záznamy"},
                      BadFileCase{"heading_without_a_column", "datum;číslo\n2024-01-15;1\n", 1,
                                  "Řádek 1: v záhlaví chybí sloupec „Popis“"},
                      BadFileCase{"unknown_heading",
                                  "Datum;Číslo;Popis;Částka;Pokladna/účet;Předkontace;Protistrana;Poznámka\n", 1,
                                  "Řádek 1: neznámý sloupec záhlaví „Poznámka“"},
                      BadFileCase{"heading_twice",
                                  "Datum;Číslo;Popis;Částka;Pokladna/účet;Předkontace;Protistrana;popis\n", 1,
                                  "Řádek 1: sloupec „Popis“ je v záhlaví dvakrát"},
                      BadFileCase{"row_wider_than_heading",
                                  "Datum;Číslo;Popis;Částka;Pokladna/účet;Předkontace;Protistrana\n"
                                  "2024-01-15;;x;10;POK1;P001;;80\n",
                                  2, "Řádek 2: očekává se 7 sloupců podle záhlaví, nalezeno 8"}),
    [](const auto& i) { return std::string(i.param.name); });

TEST_F(DenikImportTest, BlankFirstLinesDoNotDecideTheSeparator) {
    for (const char* lead : {"", "\n", "\r\n\r\n", "   \n", "\t\n", "\xEF\xBB\xBF\n"}) {
        const DenikImport r =
            importDenikText(*m_model, u8(lead) + u8("2024-01-15;;Tržba, hotově;10;POK1;P001;Alfa, s.r.o.\n"));
        ASSERT_TRUE(r.ok) << r.zprava;
        const Denik& d = m_model->getDenik(m_model->getLastId("denik") - 1);
        EXPECT_EQ(d.popis(), u8("Tržba, hotově"));
    }
    // A comma file is still one when its first line is blank.
    const DenikImport comma = importDenikText(*m_model, u8("\n2024-01-15,,Tržba,\"1,5\",POK1,P001,\n"));
    ASSERT_TRUE(comma.ok) << comma.zprava;
    EXPECT_DOUBLE_EQ(m_model->getDenik(m_model->getLastId("denik") - 1).castka(), 1.5);
}

TEST_F(DenikImportTest, WindowsEncodedCommaSeparatedFileIsRead) {
    const wxString csv = m_home + "/denik.csv";
    writeFile(csv,
              "2024-01-15,,Tr\x9E"
              "ba,\"1,5\",POK1,P001,\xC8"
              "ern\xFD\n");
    const DenikImport r = importDenik(*m_model, csv);
    ASSERT_TRUE(r.ok) << r.zprava;
    EXPECT_EQ(m_model->getDenik(2).popis(), u8("Tržba"));
    EXPECT_DOUBLE_EQ(m_model->getDenik(2).castka(), 1.5);
    EXPECT_GT(m_model->getKontaktIdByNazev(u8("Černý")), 0);

    const DenikImport missing = importDenik(*m_model, m_home + "/none.csv");
    EXPECT_FALSE(missing.ok);
    EXPECT_EQ(missing.zprava, u8("Soubor ") + m_home + u8("/none.csv nelze přečíst"));
}

TEST_F(DenikImportTest, CommandLineImportsAndPrintsBalances) {
    m_model->closeDatabase();
    const wxString good = m_home + "/good.csv", bad = m_home + "/bad.csv";
    writeFile(good, "2024-01-15;;Trzba;10;POK1;P001;\n2024-01-16;;Vyber;4;BU1;V201;\n");
    writeFile(bad, "2024-01-15;;Trzba;10;POK1;P001;\n2024-01-16;;Vyber;4;BU1;V999;\n");

    const CliResult refused = runCli("import " + m_path + " " + bad);
    EXPECT_EQ(refused.status, 1);
    EXPECT_THAT(refused.output, HasSubstr(std::string(u8("Řádek 2: Předkontace V999 neexistuje").utf8_str())));
    const CliResult imported = runCli("import " + m_path + " " + good);
    EXPECT_EQ(imported.status, 0) << imported.output;
    EXPECT_THAT(imported.output, HasSubstr(std::string(u8("Importováno záznamů: 2").utf8_str())));

    const CliResult stav = runCli("stav " + m_path);
    EXPECT_EQ(stav.status, 0);
    EXPECT_EQ(stav.output, std::string(u8("Pokladny:\n"
                                          "POK1 (Výchozí pokladna): 10,00 CZK\n"
                                          "Banky:\n"
                                          "BU1 (Výchozí bankovní účet): -5,00 CZK\n")
                                           .utf8_str()));
}

struct EncodingCase {
    const char* name;
    std::string bytes;
    const char* popis;     // the description stored, when read
    int line;              // the line named, when refused
    const char* fragment;  // and what the message says
};

class FileEncoding : public DenikImportTest, public ::testing::WithParamInterface<EncodingCase> {};

TEST_P(FileEncoding, IsReadOrRefusedNamingTheLineOfTheBadByte) {
    const EncodingCase c = GetParam();
    const wxString csv = m_home + "/denik.csv";
    writeFile(csv, c.bytes);
    const DenikImport r = importDenik(*m_model, csv);
    if (c.popis) {
        ASSERT_TRUE(r.ok) << r.zprava;
        EXPECT_EQ(m_model->getDenik(2).popis(), u8(c.popis));
        return;
    }
    EXPECT_FALSE(r.ok);
    EXPECT_EQ(r.radek, c.line);
    EXPECT_THAT(std::string(r.zprava.utf8_str()), HasSubstr(c.fragment));
    EXPECT_EQ(count("denik"), 1);
}

const std::string ROW1 =
    "2024-01-15;;Tr\xC5\xBE"
    "ba;10;POK1;P001;\n";  // "Tržba" in UTF-8

INSTANTIATE_TEST_SUITE_P(
    Bytes, FileEncoding,
    ::testing::Values(EncodingCase{"utf8", ROW1, "Tržba", 0, nullptr},
                      EncodingCase{"utf8_with_byte_order_mark", "\xEF\xBB\xBF" + ROW1, "Tržba", 0, nullptr},
                      EncodingCase{"windows_1250",
                                   "2024-01-15;;\xC8"
                                   "ern\xE1 \x9E"
                                   "idle;10;POK1;P001;\n",
                                   "Černá židle", 0, nullptr},
                      EncodingCase{"utf16_with_byte_order_mark",
                                   std::string("\xFF\xFE"
                                               "2\0"
                                               "0\0"
                                               "2\0"
                                               "4\0"
                                               "-\0"
                                               "0\0"
                                               "1\0"
                                               "-\0"
                                               "1\0"
                                               "5\0"
                                               ";\0"
                                               ";\0"
                                               "~\x01"
                                               ";\0"
                                               "1\0"
                                               ";\0"
                                               "P\0"
                                               "O\0"
                                               "K\0"
                                               "1\0"
                                               ";\0"
                                               "P\0"
                                               "0\0"
                                               "0\0"
                                               "1\0"
                                               ";\0"
                                               "\n\0",
                                               56),
                                   "ž", 0, nullptr},
                      EncodingCase{"utf8_with_one_stray_byte",
                                   ROW1 + ROW1 +
                                       "2024-01-15;;Tr\xC5\xBE"
                                       "ba \xFF;10;POK1;P001;\n",
                                   nullptr, 3, "neplatný bajt 0xFF"},
                      EncodingCase{"utf8_cut_inside_a_letter", ROW1 + "2024-01-15;;Tr\xC5;10;POK1;P001;\n", nullptr, 2,
                                   "neplatný bajt 0xC5"},
                      EncodingCase{"byte_windows_1250_leaves_undefined",
                                   "2024-01-15;;\x9E"
                                   "idle;10;POK1;P001;\n\n2024-01-15;;\x81;10;POK1;P001;\n",
                                   nullptr, 3, "neplatný bajt 0x81"},
                      EncodingCase{"binary_with_zero_byte", ROW1 + std::string("PK\x03\x04\0\0", 6), nullptr, 2,
                                   "řídicí znak 0x03"},
                      EncodingCase{"utf16_without_mark",
                                   std::string("2\0"
                                               "0\0",
                                               4),
                                   nullptr, 1, "řídicí znak 0x00"}),
    [](const auto& i) { return std::string(i.param.name); });

TEST_F(DenikImportTest, FileOverFiftyMegabytesIsRefusedBeforeReading) {
    const wxString csv = m_home + "/velky.csv";
    {
        wxFFile f(csv, "wb");
        ASSERT_TRUE(f.IsOpened());
        // A sparse file: its size is known without writing 51 MB.
        ASSERT_TRUE(f.Seek(51 * 1024 * 1024 - 1));
        ASSERT_EQ(f.Write("\n", 1), 1u);
    }
    const DenikImport r = importDenik(*m_model, csv);
    EXPECT_FALSE(r.ok);
    EXPECT_EQ(r.radek, 0);
    EXPECT_EQ(r.zprava, u8("Soubor ") + csv + u8(" je větší než 50 MB, nelze jej importovat"));
}
