// Cash registers and bank accounts: balances over the journal in home and foreign currency,
// the balances message, the rules for deleting them, their dialogs' checks and bank codes.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include "denikform.h"
#include "testcompany.h"

using ::testing::Contains;

namespace {

wxDateTime iso(const char* text) {
    wxDateTime d;
    d.ParseISODate(text);
    return d;
}

}  // namespace

class Balances : public TestCompany {
 protected:
    void SetUp() override {
        TestCompany::SetUp();
        createCompany();
        ASSERT_TRUE(m_model->setCurrentRok(2024));
        ASSERT_TRUE(m_model->addObdobi(Obdobi(2023, false)));
        ASSERT_TRUE(m_model->addPokladna(Pokladna(2, "USD1", "Dolary", 3)));
        ASSERT_TRUE(m_model->addPokladna(Pokladna(3, "OLD", u8("Stará"), 1)));
        ASSERT_TRUE(m_model->addPokladna(Pokladna(4, "ZERO", "Nula", 1)));
        ASSERT_TRUE(m_model->addBanka(Banka(2, "EURB", "Eura", "", "", "", "", 2)));
        // register, pre-posting, home amount, foreign amount, date (its year is the period)
        add(1, "P001", 1000, 0, "2023-05-01");
        add(1, "V001", 300, 0, "2023-06-01");
        add(1, "P001", 50, 0, "2024-02-01");
        add(2, "P001", 2300, 100, "2024-01-10");
        add(2, "V001", 460, 20, "2024-02-01");
        add(3, "P003", 200, 0, "2023-12-31");
        // Sums that are zero only up to rounding.
        add(4, "V001", 0.1, 0, "2024-03-01");
        add(4, "V001", 0.2, 0, "2024-03-01");
        add(4, "P001", 0.3, 0, "2024-03-01");
        add(-1, "P002", 500, 0, "2024-03-01");
        add(-2, "P001", 250, 10, "2023-03-01");
        add(-2, "V002", 125, 5, "2024-03-01");
    }
    // An entry of cash register `r` (r > 0) or bank account -r.
    void add(int r, const char* predkontace, double castka, double cizi, const char* datum) {
        const wxDateTime d = iso(datum);
        ASSERT_TRUE(m_model->addDenik(Denik(m_model->getLastId("denik"), d, "", "", castka, cizi, 1, "", 0, 1,
                                            m_model->getPredkontaceIdByZkratka(predkontace), r > 0 ? r : -1,
                                            r < 0 ? -r : -1, 0, 0, d.GetYear())));
    }
};

TEST_F(Balances, SignedSumsPerRegisterInItsOwnCurrency) {
    DbModel& m = *m_model;
    struct Case {
        const char* name;
        std::function<double()> value;
        double expected;
    };
    const Case cases[] = {
        {"all years of POK1", [&] { return m.getPokladnaStav(1); }, 750},
        {"before 2024 of POK1", [&] { return m.getPokladnaZustatek(1); }, 700},
        {"USD register sums dollars", [&] { return m.getPokladnaStav(2); }, 80},
        {"USD register opened this year", [&] { return m.getPokladnaZustatek(2); }, 0},
        {"register of earlier years only: opening equals all", [&] { return m.getPokladnaZustatek(3); }, 200},
        {"... and its all-years balance", [&] { return m.getPokladnaStav(3); }, 200},
        {"registers before a day count home amounts", [&] { return m.getPokladnyStav(iso("2024-02-01")); }, 3200},
        {"entries of that day are not before it", [&] { return m.getPokladnyStav(iso("2024-02-02")); }, 2790},
        {"EUR account sums euros", [&] { return m.getBankaStav(2); }, 5},
        {"EUR account before 2024", [&] { return m.getBankaZustatek(2); }, 10},
        {"accounts before a day", [&] { return m.getBankyStav(iso("2025-01-01")); }, 625},
        {"no entries", [&] { return m.getBankaStav(99); }, 0},
    };
    for (const Case& c : cases) EXPECT_NEAR(c.value(), c.expected, 1e-9) << c.name;
}

TEST_F(Balances, DeletedRegisterLeavesTheDayTotal) {
    m_model->db().EnableForeignKeySupport(false);
    m_model->db().ExecuteUpdate("DELETE FROM pokladna WHERE id=3");
    m_model->db().EnableForeignKeySupport(true);
    EXPECT_NEAR(m_model->getPokladnyStav(iso("2024-02-01")), 3000, 1e-9);
}

TEST_F(Balances, AllBalancesAgreeWithEachRegisterAndFormTheMessage) {
    for (const DbModel::StavUctu& s : m_model->stavyUctu()) {
        EXPECT_NEAR(s.stav, s.banka ? m_model->getBankaStav(s.id) : m_model->getPokladnaStav(s.id), 1e-9) << s.zkratka;
    }
    EXPECT_EQ(m_model->stavUctuAPokladen(), u8("Pokladny:\n"
                                               "OLD (Stará): 200,00 CZK\n"
                                               "POK1 (Výchozí pokladna): 750,00 CZK\n"
                                               "USD1 (Dolary): 80,00 USD\n"
                                               "ZERO (Nula): 0,00 CZK\n"
                                               "Banky:\n"
                                               "BU1 (Výchozí bankovní účet): 500,00 CZK\n"
                                               "EURB (Eura): 5,00 EUR\n"));
}

class Registers : public TestCompany {
 protected:
    void SetUp() override {
        TestCompany::SetUp();
        createCompany();
    }
};

TEST_F(Registers, LastOrUsedRegisterOrAccountIsNotDeleted) {
    wxString duvod;
    EXPECT_FALSE(m_model->deleteBanka(1, &duvod));
    EXPECT_EQ(duvod, u8("Nelze smazat poslední bankovní účet,\nv programu musí alespoň jeden existovat"));
    EXPECT_FALSE(m_model->deletePokladna(1, &duvod));
    EXPECT_EQ(duvod, u8("Nelze smazat poslední pokladnu,\nv programu musí alespoň jedna existovat"));

    ASSERT_TRUE(m_model->addPokladna(Pokladna(2, "POK2", "", 1)));
    ASSERT_TRUE(m_model->addBanka(Banka(2, "BU2", "", "", "", "", "", 1)));
    const int rok = m_model->currentRok();
    ASSERT_TRUE(m_model->addDenik(Denik(1, wxDateTime::Today(), "", "", 1, 0, 1, "", 0, 1, 1, 1, -1, 0, 0, rok)));
    ASSERT_TRUE(m_model->addZavPoh(ZavPoh(1, 0, "", 1, "Z1", "", 1, -1, 1, 1, 1, rok, true, false, wxDateTime(),
                                          wxDateTime(), wxDateTime(), wxDateTime(), -1, 1, 0)));
    EXPECT_FALSE(m_model->deletePokladna(1, &duvod));
    EXPECT_EQ(duvod, u8("Nelze smazat pokladnu\nPOK1\nVýchozí pokladna\nprotože je použita v dokladech"));
    EXPECT_FALSE(m_model->deleteBanka(1, &duvod));
    EXPECT_EQ(duvod, u8("Nelze smazat bankovní účet\nBU1\nVýchozí bankovní účet\nprotože je použit v dokladech"));

    m_events.updates.clear();
    EXPECT_TRUE(m_model->deletePokladna(2, &duvod));
    EXPECT_TRUE(duvod.empty());
    EXPECT_TRUE(m_model->deleteBanka(2));
    EXPECT_EQ(m_events.updates, (std::vector<int>{NAV_POKLADNA, NAV_BANKA}));
    EXPECT_FALSE(m_model->deleteBanka(2, &duvod));
    EXPECT_TRUE(duvod.empty());
    EXPECT_EQ(m_model->tableRows("pokladna"), 1);
    EXPECT_EQ(m_model->tableRows("banka"), 1);
}

TEST_F(Registers, LookupsByCodeAndBankCodes) {
    EXPECT_EQ(m_model->getPokladna("POK1").id(), 1);
    EXPECT_FALSE(m_model->getBanka("POK1").isValid());
    EXPECT_FALSE(m_model->hasPokladna("O'Brien"));
    EXPECT_EQ(m_model->getBankaZkratka(1), "BU1");

    const wxArrayString kody = m_model->kodyBank(true);
    EXPECT_THAT(kody, Contains(wxString("0800")));
    EXPECT_EQ(m_model->kodyBankSNazvem(true)[kody.Index("0800")], u8("0800 Česká spořitelna, a.s."));
    EXPECT_EQ(m_model->bicByKod("0800"), "GIBACZPX");
}

TEST_F(Registers, DialogChecksOfCodesAndIban) {
    struct CodeCase {
        Ciselnik ciselnik;
        const char* zkratka;
        int id;
        const char* message;
    };
    const CodeCase codes[] = {
        {Ciselnik::POKLADNA, " ", -1, "Zkratka nemůže být prázdná"},
        {Ciselnik::POKLADNA, "POK1", -1, "Zkratka 'POK1' už existuje\nZvolte jinou"},
        {Ciselnik::POKLADNA, "POK1", 1, ""},
        {Ciselnik::PREDKONTACE, "V201", 1, "Zkratka 'V201' už existuje\nZvolte jinou"},
    };
    for (const CodeCase& c : codes) {
        EXPECT_EQ(zkratkaValidation(*m_model, c.ciselnik, c.zkratka, c.id), u8(c.message)) << c.zkratka;
    }

    struct IbanCase {
        const char* ucet;
        const char* kod;
        const char* message;
        const char* iban;
    };
    const IbanCase ibans[] = {
        {"19-2000145399", "0800", "", "CZ6508000000192000145399"},
        {"19-2000145399", "", "Kód banky nemůže být prázdný", ""},
        {"", "0800", "Číslo účtu nemůže být prázdné", ""},
        {"19-2000145398", "0800", "Číslo účtu 19-2000145398 není platné", ""},
        {"19-2000145399", "08", "Kód banky 08 není platný", ""},
    };
    for (const IbanCase& c : ibans) {
        wxString iban = "old";
        EXPECT_EQ(spocitatIban(c.ucet, c.kod, &iban), u8(c.message)) << c.ucet << "/" << c.kod;
        EXPECT_EQ(iban, c.iban);
    }
}
