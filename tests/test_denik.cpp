// The money journal: its lists, row writes with their reference and payment rules, what an
// entry takes from its pre-posting, and the income/expense dialog's checks, arithmetic and
// saving, on the year 2024 with 2023 before it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wx/utils.h>

#include <functional>
#include <tuple>

#include "denikform.h"
#include "lxsettings.h"
#include "testcompany.h"

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;

namespace {

wxDateTime iso(const char* text) {
    wxDateTime d;
    d.ParseISODate(text);
    return d;
}

std::vector<int> idsOf(const lxDenikArray& rows) {
    std::vector<int> ids;
    for (const auto& r : rows) ids.push_back(r->id());
    return ids;
}

}  // namespace

class Journal : public TestCompany {
 protected:
    void SetUp() override {
        TestCompany::SetUp();
        createCompany();
        ASSERT_TRUE(m_model->setCurrentRok(2024));
        ASSERT_TRUE(m_model->addObdobi(Obdobi(2023, false)));
        ASSERT_TRUE(m_model->addPokladna(Pokladna(2, "POK2", "", 1)));
        ASSERT_TRUE(m_model->addBanka(Banka(2, "BU2", "", "", "", "", "", 1)));
        lxSettings::instance()->setDatum(iso("2024-06-01"));
        m_events.updates.clear();
    }
    // An entry of a cash register (pokladna > 0) or of bank account -pokladna.
    int entry(const char* predkontace, double castka, const char* datum = "2024-03-01", int pokladna = 1,
              int rok = 2024, int vypis = 0) {
        const int id = m_model->getLastId("denik");
        EXPECT_TRUE(
            m_model->addDenik(Denik(id, iso(datum), wxString::Format("D%d", id), "", castka, 0, 1, "", 0, 1,
                                    m_model->getPredkontaceIdByZkratka(predkontace), pokladna > 0 ? pokladna : -1,
                                    pokladna < 0 ? -pokladna : -1, vypis, 0, rok)));
        return id;
    }
    // A valid form for cash income into POK1.
    DenikForm form() const {
        DenikForm f;
        f.datum = iso("2024-05-02");
        f.cislo = "PP0001";
        f.popis = u8("Tržba");
        f.registr = "POK1";
        f.predkontace = "P001";
        f.castka = 121;
        return f;
    }
};

TEST_F(Journal, ListsTakeTheCurrentYearByDate) {
    const int cash = entry("P001", 10, "2024-03-01");
    const int bank = entry("V001", 20, "2024-01-05", -1);
    const int cash2 = entry("P001", 30, "2024-01-10", 2);
    const int bank2 = entry("P001", 40, "2024-02-10", -2);
    entry("P001", 50, "2023-01-01", 1, 2023);
    struct Case {
        const char* name;
        std::function<lxDenikArray()> list;
        std::vector<int> ids;
    };
    DbModel& m = *m_model;
    const Case cases[] = {
        {"denik", [&] { return m.denik(); }, {bank, cash2, bank2, cash}},
        {"denikPokladna", [&] { return m.denikPokladna(); }, {cash2, cash}},
        {"denikBanka", [&] { return m.denikBanka(); }, {bank, bank2}},
        {"denikPokladnaById", [&] { return m.denikPokladnaById(2); }, {cash2}},
        {"denikBankaById", [&] { return m.denikBankaById(1); }, {bank}},
    };
    for (const Case& c : cases) EXPECT_THAT(idsOf(c.list()), ElementsAreArray(c.ids)) << c.name;
}

TEST_F(Journal, RegistersThatDoNotExistAreStoredAsNone) {
    const int rok = 2024;
    ASSERT_TRUE(m_model->addDenik(Denik(1, iso("2024-01-02"), "X", "", 5, 0, 1, "", 0, 1, 1, 99, 1, 0, 0, rok)));
    EXPECT_EQ(scalar("SELECT count(*) FROM denik WHERE id=1 AND pokladnaid IS NULL AND bankaid=1"), 1);
    ASSERT_TRUE(m_model->editDenik(Denik(1, iso("2024-01-02"), "X", "", 5, 0, 1, "", 0, 1, 1, 2, 77, 0, 0, rok)));
    EXPECT_EQ(scalar("SELECT count(*) FROM denik WHERE id=1 AND pokladnaid=2 AND bankaid IS NULL"), 1);
}

TEST_F(Journal, EditedPaymentAmountReachesItsPaymentRows) {
    ASSERT_TRUE(
        m_model->addFaktura(Faktura(1, 0, "", 1210, "FV1", "", "", "", 1, 1, 1, -1, 1, 1, 2024, true, false,
                                    iso("2024-01-10"), wxDateTime(), wxDateTime(), iso("2024-01-24"), -1, 1, 0)));
    const int payment = entry("P002", 605);
    const int other = entry("P002", 300);
    ASSERT_TRUE(m_model->addUhrada(Uhrada(1, 605, payment, 1, -1, 2024)));
    ASSERT_TRUE(m_model->addUhrada(Uhrada(2, 300, other, 1, -1, 2024)));
    m_events.updates.clear();

    Denik d = m_model->getDenik(payment);
    d.setCastka(700);
    ASSERT_TRUE(m_model->editDenik(d));
    EXPECT_EQ(scalar("SELECT castka FROM uhrada WHERE id=1"), 700);
    EXPECT_EQ(scalar("SELECT castka FROM uhrada WHERE id=2"), 300);
    EXPECT_THAT(m_events.updates, ElementsAre(NAV_ALL));

    d.setId(999);
    EXPECT_FALSE(m_model->editDenik(d));
    EXPECT_EQ(m_model->tableRows("denik"), 2);

    // Deleting the payment entry takes its payment row with it.
    ASSERT_TRUE(m_model->deleteDenik(payment));
    EXPECT_EQ(scalar("SELECT count(*) FROM uhrada"), 1);
    EXPECT_TRUE(m_model->isDenikUhrada(other));
    EXPECT_FALSE(m_model->isDenikUhrada(payment));
}

TEST_F(Journal, DirectionColumnAndTaxEffectComeFromThePrePosting) {
    struct Case {
        const char* predkontace;
        bool prijem;
        bool danovy;
        int sloupec;
    };
    // The transit pre-postings book crosswise: P201 into column 32, V201 into column 31.
    const Case cases[] = {{"P001", true, true, 10},
                          {"V009", false, true, 21},
                          {"P201", true, false, 32},
                          {"V201", false, false, 31},
                          {"P102", true, false, 23}};
    for (const Case& c : cases) {
        const int id = entry(c.predkontace, 1);
        EXPECT_EQ(m_model->isDenikPrijem(id), c.prijem) << c.predkontace;
        EXPECT_EQ(m_model->isDenikDanovy(id), c.danovy) << c.predkontace;
        EXPECT_EQ(m_model->denikSloupecByDenikId(id), c.sloupec) << c.predkontace;
        EXPECT_EQ(m_model->isPredkontaceDanova(m_model->getPredkontaceIdByZkratka(c.predkontace)), c.danovy);
    }
    EXPECT_EQ(m_model->denikSloupecByDenikId(999), -1);
    EXPECT_EQ(m_model->deniksloupcePrijem().size(), 7u);
    EXPECT_EQ(m_model->deniksloupcePrijem().back()->sloupec(), 32);
    EXPECT_EQ(m_model->predkontacePrijem().back()->zkratka(), "P201");
    EXPECT_EQ(m_model->predkontaceVydaj().size(), 16u);
}

TEST_F(Journal, TaxableEntriesAndStatementNumbersOfAYear) {
    const int taxable = entry("P001", 1, "2024-01-01", -1, 2024, 3);
    entry("P101", 1, "2024-01-02", -1, 2024, 7);
    const int old = entry("V001", 1, "2023-01-02", -1, 2023, 9);
    entry("V001", 1, "2024-01-02", -2, 2024, 12);
    EXPECT_THAT(idsOf(m_model->danovePrijmyVydajeForRok(2024)), ElementsAre(taxable, taxable + 3));
    EXPECT_THAT(idsOf(m_model->danovePrijmyVydajeForRok(2023)), ElementsAre(old));
    EXPECT_EQ(m_model->getLastVypis(1), 7);
    EXPECT_EQ(m_model->getLastVypis(2), 12);
    EXPECT_EQ(m_model->getLastVypis(5), 0);
}

// ---------------------------------------------------------------- the income/expense dialog

TEST_F(Journal, ValidationReportsTheFirstFaultInFieldOrder) {
    struct Case {
        bool banka;
        const char* registr;
        const char* predkontace;
        const char* message;
        DenikPole pole;
    };
    const Case cases[] = {
        {false, "", "", "Pokladna nemůže být prázdná", DenikPole::REGISTR},
        {true, "  ", "P001", "Bankovní účet nemůže být prázdný", DenikPole::REGISTR},
        {false, "XX", "", "Pokladna XX neexistuje", DenikPole::REGISTR},
        {true, "POK1", "P001", "Bankovní účet POK1 neexistuje", DenikPole::REGISTR},
        {false, "POK2", "", "Předkontace nemůže být prázdná", DenikPole::PREDKONTACE},
        {true, "BU1", "Z'9", "Předkontace Z'9 neexistuje", DenikPole::PREDKONTACE},
        {true, "BU2", "P001", "", DenikPole::ZADNE},
    };
    for (const Case& c : cases) {
        DenikForm f = form();
        f.banka = c.banka;
        f.registr = c.registr;
        f.predkontace = c.predkontace;
        f.protistrana = "Nikdo";
        DenikPole pole = DenikPole::ZADNE;
        EXPECT_EQ(denikValidation(*m_model, f, &pole), u8(c.message)) << c.registr << "/" << c.predkontace;
        EXPECT_EQ(pole, c.pole) << c.registr << "/" << c.predkontace;
        if (*c.message) {
            int id = 0;
            EXPECT_EQ(ulozitDenik(*m_model, f, &id), u8(c.message));
            EXPECT_EQ(id, -1);
        }
    }
    // Failed saves changed nothing.
    EXPECT_EQ(m_model->tableRows("denik"), 0);
    EXPECT_EQ(m_model->getKontaktIdByNazev("Nikdo"), -1);
    EXPECT_EQ(m_model->getRadaCislo("PP"), 1);
    EXPECT_TRUE(m_events.updates.empty());
}

TEST_F(Journal, EntryMustFitItsDialogItsYearAndAFreeNumber) {
    entry("P001", 10, "2024-02-01");  // number D1 in 2024
    const int old = entry("P001", 10, "2023-02-01", 1, 2023);  // number D2 in 2023
    struct Case {
        const char* name;
        bool prijem;
        const char* predkontace;
        const char* datum;  // ISO; empty for no date
        const char* cislo;
        DenikForm::Mode mode;
        int id;
        const char* message;
        DenikPole pole;
    };
    const Case cases[] = {
        {"expense_code_in_income_dialog", true, "V001", "2024-05-02", "PP0001", DenikForm::ADD, -1,
         "Předkontace V001 je výdajová, zadejte příjmovou", DenikPole::PREDKONTACE},
        {"income_code_in_expense_dialog", false, "P003", "2024-05-02", "PV0001", DenikForm::ADD, -1,
         "Předkontace P003 je příjmová, zadejte výdajovou", DenikPole::PREDKONTACE},
        // The transit columns cross their labels; the pre-posting's own flag decides.
        {"transit_income_is_income", true, "P201", "2024-05-02", "PP0001", DenikForm::ADD, -1, "",
         DenikPole::ZADNE},
        {"transit_expense_in_income_dialog", true, "V201", "2024-05-02", "PP0001", DenikForm::ADD, -1,
         "Předkontace V201 je výdajová, zadejte příjmovou", DenikPole::PREDKONTACE},
        {"direction_before_date", true, "V001", "2026-11-23", "PP0001", DenikForm::ADD, -1,
         "Předkontace V001 je výdajová, zadejte příjmovou", DenikPole::PREDKONTACE},
        {"year_before", true, "P001", "2023-12-31", "PP0001", DenikForm::ADD, -1,
         "Datum 31.12.2023 není v účetním období 2024", DenikPole::DATUM},
        {"year_after", true, "P001", "2025-01-01", "PP0001", DenikForm::ADD, -1,
         "Datum 01.01.2025 není v účetním období 2024", DenikPole::DATUM},
        {"no_date", true, "P001", "", "PP0001", DenikForm::ADD, -1, "Datum: „“ není platné datum.\nZadejte "
         "například 15.10.2026.", DenikPole::DATUM},
        {"first_and_last_day", true, "P001", "2024-12-31", "PP0001", DenikForm::ADD, -1, "", DenikPole::ZADNE},
        {"number_taken", true, "P001", "2024-05-02", "D1", DenikForm::ADD, -1, "Doklad s číslem D1 už existuje",
         DenikPole::CISLO},
        {"number_taken_typed_with_blanks", true, "P001", "2024-05-02", " D1 ", DenikForm::ADD, -1,
         "Doklad s číslem D1 už existuje", DenikPole::CISLO},
        {"edit_keeps_its_number", true, "P001", "2024-05-02", "D1", DenikForm::EDIT, 1, "", DenikPole::ZADNE},
        {"edit_takes_anothers_number", true, "P001", "2024-05-02", "D1", DenikForm::EDIT, 5,
         "Doklad s číslem D1 už existuje", DenikPole::CISLO},
        {"empty_number_takes_the_series", true, "P001", "2024-05-02", "", DenikForm::ADD, -1, "", DenikPole::ZADNE},
    };
    for (const Case& c : cases) {
        DenikForm f = form();
        f.prijem = c.prijem;
        f.predkontace = c.predkontace;
        f.datum = *c.datum ? iso(c.datum) : wxDateTime();
        f.cislo = u8(c.cislo);
        f.mode = c.mode;
        f.id = c.id;
        DenikPole pole = DenikPole::ZADNE;
        EXPECT_EQ(denikValidation(*m_model, f, &pole), u8(c.message)) << c.name;
        EXPECT_EQ(pole, c.pole) << c.name;
    }
    // A number of an earlier year is free again in this one.
    DenikForm f = form();
    f.cislo = "D2";
    EXPECT_EQ(denikValidation(*m_model, f), "");
    EXPECT_TRUE(m_model->hasDenikCislo("D2", 2023, -1));
    EXPECT_FALSE(m_model->hasDenikCislo("D2", 2023, old));
}

TEST(CashBalance, LowestBalanceFromTheEntrysDayOn) {
    const auto day = [](const char* text) { return iso(text); };
    const std::vector<DbModel::DenniPohyb> pohyby = {
        {day("2023-12-30"), 100}, {day("2024-03-01"), 500}, {day("2024-03-10"), -450}, {day("2024-04-01"), 200}};
    struct Case {
        const char* name;
        const char* datum;
        double zmena;
        double nejnizsi;
    };
    const Case cases[] = {
        {"after_everything", "2024-05-01", -300, 50},
        {"before_an_income_that_saves_it", "2024-02-01", -150, -50},
        // 100 - 550 + 500 at the end of the day, then -450 on the 10th.
        {"same_day_as_an_income_counts_it", "2024-03-01", -550, -400},
        {"later_expense_shows_the_low_point", "2024-03-05", -200, -50},
        {"zero_is_not_below", "2024-04-02", -350, 0},
        {"into_an_empty_register", "2020-01-01", -10, -10},
    };
    for (const Case& c : cases) {
        EXPECT_DOUBLE_EQ(nejnizsiStav(pohyby, day(c.datum), c.zmena), c.nejnizsi) << c.name;
    }
    EXPECT_DOUBLE_EQ(nejnizsiStav({}, day("2024-01-01"), -5), -5);
}

TEST_F(Journal, CashExpenseBelowZeroAsksWithTheLowestBalance) {
    ASSERT_TRUE(m_model->addPokladna(Pokladna(3, "EUR1", "", 2)));  // a euro register
    entry("P001", 1000, "2024-03-01");
    const int vydaj = entry("V001", 300, "2024-03-05");
    DenikForm f = form();
    f.prijem = false;
    f.predkontace = "V001";
    f.cislo = "PV0001";
    struct Case {
        const char* name;
        bool banka;
        const char* registr;
        const char* datum;
        double castka;
        double castkacizi;
        DenikForm::Mode mode;
        int id;
        const char* dotaz;
    };
    const Case cases[] = {
        {"stays_at_zero", false, "POK1", "2024-05-02", 700, 0, DenikForm::ADD, -1, ""},
        {"goes_below", false, "POK1", "2024-05-02", 700.5, 0, DenikForm::ADD, -1,
         "Stav pokladny POK1 bude záporný (-0,50 Kč). Přesto uložit?"},
        {"before_the_income", false, "POK1", "2024-02-01", 10, 0, DenikForm::ADD, -1,
         "Stav pokladny POK1 bude záporný (-10,00 Kč). Přesto uložit?"},
        {"edit_replaces_its_old_amount", false, "POK1", "2024-03-05", 1000, 0, DenikForm::EDIT, vydaj, ""},
        {"edit_above_the_balance", false, "POK1", "2024-03-05", 1250.25, 0, DenikForm::EDIT, vydaj,
         "Stav pokladny POK1 bude záporný (-250,25 Kč). Přesto uložit?"},
        {"other_register", false, "POK2", "2024-05-02", 1000, 0, DenikForm::ADD, -1,
         "Stav pokladny POK2 bude záporný (-1 000,00 Kč). Přesto uložit?"},
        {"foreign_register_counts_foreign_amount", false, "EUR1", "2024-05-02", 2500, 100, DenikForm::ADD, -1,
         "Stav pokladny EUR1 bude záporný (-100,00 EUR). Přesto uložit?"},
        {"bank_never_asks", true, "BU1", "2024-05-02", 1e6, 0, DenikForm::ADD, -1, ""},
    };
    for (const Case& c : cases) {
        DenikForm x = f;
        x.banka = c.banka;
        x.registr = c.registr;
        x.datum = iso(c.datum);
        x.castka = c.castka;
        x.castkacizi = c.castkacizi;
        x.menaid = c.castkacizi > 0 ? 2 : 1;
        x.mode = c.mode;
        x.id = c.id;
        wxString expected = u8(c.dotaz);
        expected.Replace(" 000", wxString(wxUniChar(0x00A0)) + "000");  // groups as formatCastka writes them
        EXPECT_EQ(zapornaPokladnaDotaz(*m_model, x), expected) << c.name;
    }
    // An income never asks, however the register stands.
    DenikForm prijem = form();
    prijem.registr = "POK2";
    EXPECT_EQ(zapornaPokladnaDotaz(*m_model, prijem), "");
}

TEST_F(Journal, SavingANewEntryCreatesTheCounterpartyOnceAndAdvancesItsSeries) {
    DenikForm f = form();
    f.protistrana = u8("Firma \"Alfa\" O'Brien");
    f.menaid = 1;
    f.castkacizi = 55;  // left over in the hidden field
    f.vypis = 4;        // ignored for cash
    int first = 0;
    ASSERT_EQ(ulozitDenik(*m_model, f, &first), "");
    const int kontakt = m_model->getKontaktIdByNazev(f.protistrana);
    ASSERT_GT(kontakt, 0);
    EXPECT_EQ(m_model->getKontakt(kontakt).adresaid(), m_model->getLastId("adresa") - 1);
    const Denik d = m_model->getDenik(first);
    EXPECT_EQ(d.protistranaid(), kontakt);
    EXPECT_EQ(d.obdobirok(), 2024);
    EXPECT_EQ(d.cislo(), "PP0001");
    EXPECT_DOUBLE_EQ(d.castkacizi(), 0);
    EXPECT_EQ(d.vypis(), 0);
    EXPECT_EQ(m_model->getRadaCislo("PP"), 2);

    // A bank expense to the same counterparty without a number: the next of series BV.
    f.banka = true;
    f.prijem = false;
    f.registr = "BU2";
    f.predkontace = "V001";
    f.cislo = "";
    ASSERT_EQ(ulozitDenik(*m_model, f, &first), "");
    const Denik bank = m_model->getDenik(first);
    EXPECT_EQ(bank.protistranaid(), kontakt);
    EXPECT_EQ(bank.cislo(), "BV0001");
    EXPECT_EQ(bank.bankaid(), 2);
    EXPECT_EQ(bank.vypis(), 4);
    EXPECT_EQ(m_model->getRadaCislo("BV"), 2);
    EXPECT_EQ(scalar("SELECT count(*) FROM kontakt"), 2);  // contact 0 and the new one
}

TEST_F(Journal, EditKeepsTheSeriesWhileASavedCopyUsesItsNumber) {
    int id = 0;
    ASSERT_EQ(ulozitDenik(*m_model, form(), &id), "");
    ASSERT_EQ(m_model->getRadaCislo("PP"), 2);

    DenikForm edit = form();
    edit.mode = DenikForm::EDIT;
    edit.id = id;
    edit.castka = 99;
    ASSERT_EQ(ulozitDenik(*m_model, edit), "");
    EXPECT_DOUBLE_EQ(m_model->getDenik(id).castka(), 99);
    EXPECT_EQ(m_model->getRadaCislo("PP"), 2);

    DenikForm copy = form();
    copy.mode = DenikForm::COPY;
    copy.id = m_model->copyDenik(id);
    copy.cislo = m_model->getDenik(copy.id).cislo();
    int copied = 0;
    ASSERT_EQ(ulozitDenik(*m_model, copy, &copied), "");
    EXPECT_EQ(copied, copy.id);
    EXPECT_EQ(m_model->getDenik(copied).cislo(), "PP0002");
    EXPECT_EQ(m_model->getRadaCislo("PP"), 3);
    EXPECT_EQ(m_model->tableRows("denik"), 2);
}

TEST_F(Journal, FlatRatePercentageIsKeptForIncomeOfAFlatRateCompanyOnly) {
    // flat-rate company, income, stored percentage
    for (const auto& [pausalFirma, prijem, expected] :
         {std::tuple{true, true, 60}, {true, false, 0}, {false, true, 0}}) {
        Firma firma = m_model->firma();
        firma.setPausal(pausalFirma);
        ASSERT_TRUE(m_model->setFirma(firma));
        DenikForm f = form();
        f.prijem = prijem;
        f.pausal = 60;
        EXPECT_EQ(denikFromForm(*m_model, f, 0).pausal(), expected) << pausalFirma << prijem;
    }
}

TEST(DenikArithmetic, AmountsFollowTheFieldTheUserChanged) {
    struct Case {
        Castky in;
        ZmenaCastky zmena;
        double castka;
        double castkacizi;
    };
    const Case cases[] = {
        {{100, 0, 25}, ZmenaCastky::CASTKA, 100, 4},        {{100, 7, 0}, ZmenaCastky::CASTKA, 100, 0},
        {{100, 3, 3}, ZmenaCastky::CASTKA, 100, 100.0 / 3}, {{0, 4, 25.5}, ZmenaCastky::CASTKACIZI, 102, 4},
        {{999, 4, 0.333}, ZmenaCastky::KURZ, 4 * 0.333, 4},
    };
    for (const Case& c : cases) {
        const Castky out = calculateValues(c.in, c.zmena);
        EXPECT_EQ(out.castka, c.castka);
        EXPECT_EQ(out.castkacizi, c.castkacizi);
        EXPECT_EQ(out.kurz, c.in.kurz);
    }
}

TEST_F(Journal, StoredRateOfTheDayIsUsedBeforeAnyDownload) {
    // Nothing listens here: a download attempt fails at once.
    wxSetEnv("EVIDA_CNB_URL", "http://127.0.0.1:9");
    ASSERT_TRUE(m_model->addKurz(Kurz(m_model->getLastId("kurz"), iso("2024-03-01"), 25.1, "EUR", false)));
    double kurz = 0;
    EXPECT_TRUE(ulozenyKurz(*m_model, 2, iso("2024-03-01"), &kurz));
    EXPECT_DOUBLE_EQ(kurz, 25.1);
    EXPECT_FALSE(ulozenyKurz(*m_model, 2, iso("2024-03-02"), &kurz)) << "only a rate of that very day";
    kurz = 0;
    EXPECT_TRUE(stahnoutKurz(*m_model, 2, iso("2024-03-01"), &kurz));
    EXPECT_DOUBLE_EQ(kurz, 25.1);
    EXPECT_FALSE(stahnoutKurz(*m_model, 3, iso("2024-03-01"), &kurz));
    wxUnsetEnv("EVIDA_CNB_URL");
}
