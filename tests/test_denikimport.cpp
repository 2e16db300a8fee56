// Import of journal entries from CSV: what a good file stores, that a bad row is reported
// with its line and stores nothing, the encodings and separators spreadsheets write, and
// evida-cli's import and balance commands.
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
        importDenikText(*m_model, u8("Datum;Číslo;Popis;Částka;Pokladna/účet;Předkontace;Protistrana\r\n"
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
    EXPECT_EQ(m_model->getRadaCislo("BV"), 2);
    EXPECT_EQ(scalar("SELECT count(*) FROM kontakt WHERE nazev='Alfa s.r.o.'"), 1);
}

TEST_F(DenikImportTest, FirstBadRowIsReportedWithItsLineAndNothingIsStored) {
    struct Case {
        const char* bad;
        const char* message;
    };
    const Case cases[] = {
        {"2024-01-15;1;x;10;POK1;P001",
         "Řádek 3: očekává se 7 sloupců (datum, číslo, popis, částka, pokladna nebo účet, předkontace, protistrana), "
         "nalezeno 6"},
        {"2024-02-30;1;x;10;POK1;P001;", "Řádek 3: neplatné datum '2024-02-30' (zadejte RRRR-MM-DD nebo D.M.RRRR)"},
        {"31.12.2023;1;x;10;POK1;P001;", "Řádek 3: datum 31.12.2023 nepatří do účetního období 2024"},
        {"2024-01-15;1;x;12,5x;POK1;P001;", "Řádek 3: neplatná částka '12,5x'"},
        {"2024-01-15;1;x;10;POK9;P001;", "Řádek 3: pokladna ani bankovní účet POK9 neexistuje"},
        {"2024-01-15;1;x;10;;P001;", "Řádek 3: Pokladna nemůže být prázdná"},
        {"2024-01-15;1;x;10;BU1;;", "Řádek 3: Předkontace nemůže být prázdná"},
        {"2024-01-15;1;x;10;BU1;Q1;", "Řádek 3: Předkontace Q1 neexistuje"},
        {"2024-01-15;1;x;10;POK1;P001;;abc", "Řádek 3: neplatný paušální výdaj 'abc'"},
        {"2024-01-15;;\"open;10;POK1;P001;", "Řádek 3: neukončené uvozovky"},
    };
    for (const Case& c : cases) {
        // A good row with a line break inside quotes comes first, so the bad one is on line 3.
        const wxString text = u8("2024-01-15;;\"dva\nřádky\";10;POK1;P001;Beta\n") + u8(c.bad) + "\n";
        const DenikImport r = importDenikText(*m_model, text);
        EXPECT_FALSE(r.ok);
        EXPECT_EQ(r.radek, 3) << c.bad;
        EXPECT_EQ(r.zprava, u8(c.message));
    }
    EXPECT_EQ(count("denik"), 1);
    EXPECT_EQ(m_model->getKontaktIdByNazev("Beta"), -1);
    EXPECT_EQ(m_model->getRadaCislo("PP"), 1);

    const DenikImport empty = importDenikText(*m_model, u8("datum;číslo\n\n"));
    EXPECT_FALSE(empty.ok);
    EXPECT_EQ(empty.zprava, u8("Soubor neobsahuje žádné záznamy"));
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
