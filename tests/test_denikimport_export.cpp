// The journal import reading the journal page's own export, rows of foreign-currency
// registers, and the number series an import leaves behind.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wx/ffile.h>

#include <string>
#include <vector>

#include "denikform.h"
#include "denikimport.h"
#include "lxformat.h"
#include "testcompany.h"

using ::testing::HasSubstr;

namespace {

wxDateTime day(const char* iso) {
    wxDateTime d;
    d.ParseISODate(iso);
    return d;
}

// A company of 2024 using flat-rate expenses, with a euro cash register and a euro account
// beside the default crown ones, and no journal entries.
class ImportCompany : public TestCompany {
 protected:
    void SetUp() override {
        TestCompany::SetUp();
        m_path = createCompany();
        ASSERT_TRUE(m_model->setCurrentRok(2024));
        Firma firma = m_model->firma();
        firma.setPausal(true);
        ASSERT_TRUE(m_model->setFirma(firma));
        ASSERT_TRUE(m_model->addPokladna(Pokladna(2, "POKE", u8("Eurová pokladna"), EUR)));
        ASSERT_TRUE(m_model->addBanka(Banka(2, "BUE", u8("Eurový účet"), "", "", "", "", EUR)));
        ASSERT_EQ(m_model->tableRows("denik"), 0);
    }

    DenikImport import(const std::string& utf8) { return importDenikBytes(*m_model, utf8); }
    Denik byCislo(const wxString& cislo) {
        return m_model->getDenik(scalar("SELECT id FROM denik WHERE cislo='" + cislo + "'"));
    }
    std::vector<wxString> cisla() {
        std::vector<wxString> out;
        for (const auto& d : m_model->denik()) out.push_back(d->cislo());
        return out;
    }

    static constexpr int EUR = 2;
    static constexpr int USD = 3;
    wxString m_path;
};

// ---------------------------------------------------------------- the journal's export

// One entry as the journal page shows it: codes and names instead of ids.
struct Row {
    const char* datum;
    const char* cislo;
    const char* popis;
    double castka;
    double castkacizi;
    double kurz;
    const char* reference;
    int menaid;
    const char* registr;
    const char* predkontace;
    int vypis;
    const char* protistrana;
    int pausal;
};

const Row ROWS[] = {
    {"2024-01-15", "PP0001", "Tržba; hotově \"A\"", 1250.5, 0, 1, "FV2024001", 1, "POK1", "P001", 0, "Alfa s.r.o.", 60},
    {"2024-01-31", "BV0001", "Nájem\nleden", 12000.25, 0, 1, "VS 123", 1, "BU1", "V008", 3, "Alfa s.r.o.", 0},
    {"2024-02-02", "BP0001", "Platba z Německa", 2512.5, 100, 25.125, "", 2, "BUE", "P002", 1, "Müller GmbH", 80},
    {"2024-02-03", "PV0001", "Nákup v Rakousku", 992.25, 40.5, 24.5, "", 2, "POKE", "V002", 0, "", 0},
    {"2024-02-04", "PP0002", "Tržba v dolarech", 225, 10, 22.5, "", 3, "POK1", "P003", 0, "", 30},
    {"2024-03-01", "X-77", "Storno vkladu", -500, 0, 1, "", 1, "POK1", "P101", 0, "", 40},
};

wxString quoted(const wxString& text) {
    wxString q = text;
    q.Replace("\"", "\"\"");
    return "\"" + q + "\"";
}

// The file as the journal page exports it: UTF-8 with a byte-order mark, CRLF, ";", every
// field quoted, amounts "1250,50", dates "23.11.2026" and this heading.
std::string exportCsv(DbModel& model, const std::vector<Row>& rows) {
    wxString text = wxString(wxUniChar(0xFEFF)) +
                    u8("Datum;Číslo;Popis;Částka;Pokladna/účet;Předkontace;Protistrana;Paušál;Reference;Výpis;"
                       "Měna;Částka v měně;Kurz\r\n");
    for (const Row& r : rows) {
        const bool banka = wxString(r.registr).StartsWith("BU");
        const wxString fields[] = {lxformat::formatDatum(day(r.datum)),
                                   u8(r.cislo),
                                   u8(r.popis),
                                   lxformat::formatCastka(r.castka, false),
                                   u8(r.registr),
                                   u8(r.predkontace),
                                   u8(r.protistrana),
                                   wxString::Format("%d", r.pausal),
                                   u8(r.reference),
                                   banka ? wxString::Format("%d", r.vypis) : wxString(),
                                   model.kodMena(r.menaid),
                                   lxformat::formatCastka(r.castkacizi, false),
                                   lxformat::formatKurz(r.kurz)};
        wxString line;
        for (const wxString& f : fields) line += (line.empty() ? "" : ";") + quoted(f);
        text += line + "\r\n";
    }
    return std::string(text.utf8_str());
}

}  // namespace

TEST_F(ImportCompany, JournalExportComesBackFieldForField) {
    const std::vector<Row> rows(std::begin(ROWS), std::end(ROWS));
    const DenikImport r = import(exportCsv(*m_model, rows));
    ASSERT_TRUE(r.ok) << r.zprava;
    EXPECT_EQ(r.pocet, static_cast<int>(rows.size()));
    for (const Row& row : rows) {
        SCOPED_TRACE(row.cislo);
        const Denik d = byCislo(u8(row.cislo));
        ASSERT_TRUE(d.isValid());
        EXPECT_EQ(d.datum(), day(row.datum));
        EXPECT_EQ(d.popis(), u8(row.popis));
        EXPECT_EQ(d.castka(), row.castka);
        EXPECT_EQ(d.castkacizi(), row.castkacizi);
        EXPECT_EQ(d.kurz(), row.kurz);
        EXPECT_EQ(d.reference(), u8(row.reference));
        EXPECT_EQ(d.menaid(), row.menaid);
        EXPECT_EQ(d.predkontaceid(), m_model->getPredkontaceIdByZkratka(row.predkontace));
        const bool banka = wxString(row.registr).StartsWith("BU");
        EXPECT_EQ(d.pokladnaid(), banka ? -1 : m_model->getPokladnaIdByZkratka(row.registr));
        EXPECT_EQ(d.bankaid(), banka ? m_model->getBankaIdByZkratka(row.registr) : -1);
        EXPECT_EQ(d.vypis(), row.vypis);
        EXPECT_EQ(d.protistranaid(), *row.protistrana ? m_model->getKontaktIdByNazev(u8(row.protistrana)) : 0);
        EXPECT_EQ(d.obdobirok(), 2024);
        EXPECT_EQ(d.pausal(), m_model->isPredkontacePrijem(d.predkontaceid()) ? row.pausal : 0);
    }
    // Each series continues after the numbers the file brought.
    EXPECT_EQ(m_model->getCisloDokladu("PP"), "PP0003");
    EXPECT_EQ(m_model->getCisloDokladu("PV"), "PV0002");
    EXPECT_EQ(m_model->getCisloDokladu("BP"), "BP0002");
    EXPECT_EQ(m_model->getCisloDokladu("BV"), "BV0002");
}

TEST_F(ImportCompany, CommandLineImportsTheJournalExport) {
    const wxString csv = m_home + "/export.csv";
    {
        const std::string bytes = exportCsv(*m_model, std::vector<Row>(std::begin(ROWS), std::end(ROWS)));
        wxFFile f(csv, "wb");
        ASSERT_TRUE(f.Write(bytes.data(), bytes.size()) == bytes.size());
    }
    m_model->closeDatabase();
    const CliResult r = runCli("import " + m_path + " " + csv);
    EXPECT_EQ(r.status, 0) << r.output;
    EXPECT_THAT(r.output, HasSubstr(std::string(u8("Importováno záznamů: 6").utf8_str())));
}

TEST_F(ImportCompany, HeadingNamesTheColumnsInAnyOrder) {
    const DenikImport r = import(u8("kurz;MĚNA;predkontace;Pokladna/Účet;Částka;popis;Protistrana;Datum;Číslo\n"
                                    "25;EUR;V002;POKE;10;Káva;;15.1.2024;\n")
                                     .utf8_str()
                                     .data());
    // The heading's first field is not "datum", so this is no heading: the row count is wrong.
    EXPECT_FALSE(r.ok);
    const DenikImport heading = import(u8("Datum;kurz;MĚNA;predkontace;Pokladna/Účet;Částka;popis;Protistrana;Cislo\n"
                                          "15.1.2024;25;EUR;V002;POKE;10;Káva;;\n")
                                           .utf8_str()
                                           .data());
    ASSERT_TRUE(heading.ok) << heading.zprava;
    const Denik d = m_model->getDenik(1);
    EXPECT_EQ(d.popis(), u8("Káva"));
    EXPECT_EQ(d.castkacizi(), 10);
    EXPECT_EQ(d.kurz(), 25);
    EXPECT_EQ(d.castka(), 250);
    EXPECT_EQ(d.cislo(), "PV0001");
}

// ---------------------------------------------------------------- foreign-currency registers

TEST_F(ImportCompany, EuroRegisterRowIsInEurosAtTheStoredRate) {
    ASSERT_TRUE(m_model->addKurz(Kurz(m_model->getLastId("kurz"), day("2024-03-01"), 25.3, "EUR", false)));
    ASSERT_TRUE(m_model->addKurz(Kurz(m_model->getLastId("kurz"), day("2024-03-05"), 25.9, "EUR", false)));
    // Sunday takes Friday's rate; the euro account's income likewise.
    const DenikImport r = import("2024-03-03;;Nákup;100;POKE;V002;\n2024-03-04;;Platba;12,34;BUE;P002;\n");
    ASSERT_TRUE(r.ok) << r.zprava;
    const Denik cash = m_model->getDenik(1), bank = m_model->getDenik(2);
    EXPECT_EQ(cash.menaid(), EUR);
    EXPECT_EQ(cash.castkacizi(), 100);
    EXPECT_EQ(cash.kurz(), 25.3);
    EXPECT_EQ(cash.castka(), 100 * 25.3);
    EXPECT_EQ(bank.castkacizi(), 12.34);
    EXPECT_EQ(bank.castka(), 12.34 * 25.3) << "unrounded";
    EXPECT_DOUBLE_EQ(m_model->getPokladnaStav(2), -100);
    EXPECT_DOUBLE_EQ(m_model->getBankaStav(2), 12.34);

    m_model->closeDatabase();
    const CliResult stav = runCli("stav " + m_path);
    EXPECT_EQ(stav.status, 0);
    EXPECT_THAT(stav.output, HasSubstr(std::string(u8("POKE (Eurová pokladna): -100,00 EUR").utf8_str())));
    EXPECT_THAT(stav.output, HasSubstr(std::string(u8("BUE (Eurový účet): 12,34 EUR").utf8_str())));
}

struct CurrencyCase {
    const char* name;
    const char* csv;
    const char* message;  // null: stored with these values
    int menaid;
    double castka;
    double castkacizi;
    double kurz;
};

class RowCurrency : public ImportCompany, public ::testing::WithParamInterface<CurrencyCase> {};

TEST_P(RowCurrency, IsTheRegistersUnlessTheRowNamesOne) {
    const CurrencyCase c = GetParam();
    // Only this rate: a new company comes with older ones of its own.
    m_model->db().ExecuteUpdate("DELETE FROM kurz");
    ASSERT_TRUE(m_model->addKurz(Kurz(m_model->getLastId("kurz"), day("2024-03-01"), 25.5, "EUR", false)));
    const DenikImport r = import(c.csv);
    if (c.message) {
        EXPECT_FALSE(r.ok);
        EXPECT_EQ(r.zprava, u8(c.message));
        EXPECT_EQ(m_model->tableRows("denik"), 0);
        return;
    }
    ASSERT_TRUE(r.ok) << r.zprava;
    const Denik d = m_model->getDenik(1);
    EXPECT_EQ(d.menaid(), c.menaid);
    EXPECT_EQ(d.castka(), c.castka);
    EXPECT_EQ(d.castkacizi(), c.castkacizi);
    EXPECT_EQ(d.kurz(), c.kurz);
}

const char* const HEAD = "Datum;Číslo;Popis;Částka;Pokladna/účet;Předkontace;Protistrana;Měna;Částka v měně;Kurz\n";

INSTANTIATE_TEST_SUITE_P(
    Rows, RowCurrency,
    ::testing::Values(CurrencyCase{"rate_not_stored_for_the_day", "2024-02-29;;x;10;POKE;V002;\n",
                                   "Řádek 1: kurz měny EUR ke dni 29.02.2024 není uložen", 0, 0, 0, 0},
                      CurrencyCase{"rate_of_the_row",
                                   "Datum;Číslo;Popis;Částka;Pokladna/účet;Předkontace;Protistrana;Kurz\n"
                                   "2024-02-29;;x;10;POKE;V002;;24,125\n",
                                   nullptr, 2, 241.25, 10, 24.125},
                      CurrencyCase{"bad_rate_of_the_row",
                                   "Datum;Číslo;Popis;Částka;Pokladna/účet;Předkontace;Protistrana;Kurz\n"
                                   "2024-03-04;;x;10;POKE;V002;;0\n",
                                   "Řádek 2: Kurz: kurz „0“ musí být větší než nula a menší než milion", 0, 0, 0, 0},
                      CurrencyCase{"crown_row_in_euro_register",
                                   "Datum;Číslo;Popis;Částka;Pokladna/účet;Předkontace;Protistrana;"
                                   "Měna\n2024-03-04;;x;10;POKE;V002;;CZK\n",
                                   nullptr, 1, 10, 0, 1},
                      CurrencyCase{"euro_row_in_crown_register_at_stored_rate",
                                   "Datum;Číslo;Popis;Částka;Pokladna/účet;"
                                   "Předkontace;Protistrana;Měna\n"
                                   "2024-03-04;;x;10;POK1;V002;;eur\n",
                                   nullptr, 2, 255, 10, 25.5},
                      CurrencyCase{"unknown_currency",
                                   "Datum;Číslo;Popis;Částka;Pokladna/účet;Předkontace;Protistrana;Měna\n"
                                   "2024-03-04;;x;10;POK1;V002;;XYZ\n",
                                   "Řádek 2: neznámá měna XYZ", 0, 0, 0, 0},
                      CurrencyCase{"foreign_amount_beside_home_amount",
                                   "Datum;Číslo;Popis;Částka;Pokladna/účet;Předkontace;"
                                   "Protistrana;Měna;Částka v měně;Kurz\n"
                                   "2024-03-04;;x;250,01;POKE;V002;;EUR;10;25\n",
                                   nullptr, 2, 250.01, 10, 25},
                      CurrencyCase{"home_amount_disagreeing_with_rate",
                                   "Datum;Číslo;Popis;Částka;Pokladna/účet;Předkontace;"
                                   "Protistrana;Měna;Částka v měně;Kurz\n"
                                   "2024-03-04;;x;260;POKE;V002;;EUR;10;25\n",
                                   "Řádek 2: částka 260,00 Kč neodpovídá částce 10,00 EUR při kurzu 25", 0, 0, 0, 0},
                      CurrencyCase{"foreign_amount_in_a_crown_row",
                                   "Datum;Číslo;Popis;Částka;Pokladna/účet;Předkontace;"
                                   "Protistrana;Měna;Částka v měně;Kurz\n"
                                   "2024-03-04;;x;250;POK1;V002;;CZK;10;25\n",
                                   "Řádek 2: částka v měně 10 u záznamu v korunách", 0, 0, 0, 0},
                      CurrencyCase{"product_beyond_the_largest_amount",
                                   "Datum;Číslo;Popis;Částka;Pokladna/účet;Předkontace;"
                                   "Protistrana;Kurz\n"
                                   "2024-03-04;;x;999 999 999 999;POKE;V002;;999999\n",
                                   "Řádek 2: Částka v Kč: částka „999998999999000064,00“ je mimo povolený rozsah", 0, 0,
                                   0, 0}),
    [](const auto& i) { return std::string(i.param.name); });

// ---------------------------------------------------------------- number series

TEST_F(ImportCompany, ExplicitNumberMovesTheSeriesPastIt) {
    ASSERT_TRUE(import("2024-01-10;PP0003;a;1;POK1;P001;\n").ok);
    ASSERT_TRUE(import("2024-01-11;;b;1;POK1;P001;\n2024-01-12;;c;1;POK1;P001;\n").ok);
    DenikForm form;
    form.datum = day("2024-01-13");
    form.registr = "POK1";
    form.predkontace = "P001";
    ASSERT_TRUE(ulozitDenik(*m_model, form).empty());
    EXPECT_EQ(cisla(), (std::vector<wxString>{"PP0003", "PP0004", "PP0005", "PP0006"}));
    EXPECT_EQ(m_model->getRadaCislo("PP"), 7);
}

TEST_F(ImportCompany, RowsWithoutNumberSkipNumbersTheFileAndTheYearHold) {
    // Stored past the counter, as files from before this rule may hold.
    ASSERT_TRUE(m_model->addDenik(Denik(1, day("2024-01-02"), "PP0002", "", 1, 0, 1, "", 1, 1, 1, -1, 0, 0, 0, 2024)));
    ASSERT_TRUE(
        import("2024-01-10;;a;1;POK1;P001;\n2024-01-11;;b;1;POK1;P001;\n2024-01-12;PP0001;c;1;POK1;P001;\n").ok);
    EXPECT_EQ(cisla(), (std::vector<wxString>{"PP0002", "PP0003", "PP0004", "PP0001"}));
    EXPECT_EQ(m_model->getCisloDokladu("PP"), "PP0005");
}

TEST_F(ImportCompany, NumberOfAnotherSeriesOrPrefixMovesThatSeries) {
    Rada rada = m_model->getRada("BV");
    rada.setPrefix("B-");
    rada.setZnaku(8);
    ASSERT_TRUE(m_model->editRada(rada));
    ASSERT_TRUE(import("2024-01-10;PV0007;a;1;POK1;P001;\n2024-01-11;B-000041;b;1;BU1;V001;\n"
                       "2024-01-12;BV0090;c;1;BU1;V001;\n")
                    .ok);
    EXPECT_EQ(m_model->getRadaCislo("PP"), 1);
    EXPECT_EQ(m_model->getRadaCislo("PV"), 8);
    EXPECT_EQ(m_model->getRadaCislo("BV"), 42) << "BV0090 does not carry the series' prefix B-";
}

TEST_F(ImportCompany, SameNumberTwiceInOneSeriesIsRefusedAtTheSecondLine) {
    const DenikImport twice = import(
        "2024-01-10;PP0005;a;1;POK1;P001;\n2024-01-11;;b;1;POK1;P001;\n\n"
        "2024-01-12;PP0005;c;1;POK1;P002;\n");
    EXPECT_FALSE(twice.ok);
    EXPECT_EQ(twice.radek, 4);
    EXPECT_EQ(twice.zprava, u8("Řádek 4: číslo dokladu PP0005 už má řádek 1"));
    EXPECT_EQ(m_model->tableRows("denik"), 0);
    EXPECT_EQ(m_model->getRadaCislo("PP"), 1);

    // A number the series could not continue after.
    const DenikImport last = import("2024-01-10;PP2147483647;a;1;POK1;P001;\n");
    EXPECT_FALSE(last.ok);
    EXPECT_EQ(last.zprava, u8("Řádek 1: číslo dokladu PP2147483647 je mimo rozsah číselné řady PP"));

    // The same plain number in two series is two documents.
    const DenikImport series = import("2024-01-10;100;a;1;POK1;P001;\n2024-01-11;100;b;1;BU1;V001;\n");
    EXPECT_TRUE(series.ok) << series.zprava;
}
