// Invoices, receivables and liabilities with their items and payments: the amounts the
// dialogs compute, the document form (new row on open, Cancel, checks, rounding, saving) and
// the payment writers with the paid, overdue and open-balance rules, on the year 2024.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "clock.h"
#include "fakturace/castky.h"
#include "fakturace/dokladform.h"
#include "fakturace/uhradaform.h"
#include "lxsettings.h"
#include "testcompany.h"

TEST(Castky, ItemAmounts) {
    struct Case {
        bool platce, bezDph;
        double pocet, cena;
        int sazba;
        const char* datum;
        double dph, celkem;
    } cases[] = {
        {true, false, 1, 121, 21, "2019-03-31", 121 * 0.1736, 121},  // coefficient rounded to 0.1736: 21.0056
        {true, false, 1, 121, 21, "2019-04-01", 21.0, 121},          // unrounded from April 2019
        {true, true, 3, 100, 21, "2024-05-01", 63.0, 363},            // VAT added on top
        {false, true, 3, 100, 21, "2024-05-01", 0.0, 300},            // a non-payer charges no VAT
        {true, false, 2, 56, 12, "2024-05-01", 112 * 12 / 112.0, 112},
    };
    for (const Case& c : cases) {
        const castky::Polozka p = castky::polozka(c.platce, c.bezDph, c.pocet, c.cena, c.sazba, isoDatum(c.datum));
        EXPECT_NEAR(p.dph, c.dph, 1e-9) << c.datum << " " << c.sazba;
        EXPECT_DOUBLE_EQ(p.celkem, c.celkem) << c.datum;
    }
    EXPECT_NEAR(castky::polozka(true, false, 1, 121, 21, isoDatum("2019-03-31")).dph, 21.0056, 1e-9);
}

TEST(Castky, RoundingAndSplit) {
    const castky::Zaokrouhleni z = castky::zaokrouhleni(100.40);
    EXPECT_TRUE(z.potreba);
    EXPECT_NEAR(z.rozdil, 0.60, 1e-9);
    EXPECT_FALSE(castky::zaokrouhleni(33.33 + 33.33 + 33.34).potreba);
    EXPECT_NEAR(castky::zaokrouhleni(-10.25).rozdil, 0.25, 1e-9);  // towards positive infinity

    EXPECT_EQ(castky::sazbaZaokrouhleni(true, {21, 12}, 21), 0);   // cash: outside VAT
    EXPECT_EQ(castky::sazbaZaokrouhleni(false, {12, 21}, 21), 21);  // the highest of the items
    EXPECT_EQ(castky::sazbaZaokrouhleni(false, {0, 0}, 21), 21);    // all at zero: the basic rate

    const castky::Rozdeleni r = castky::rozdelUhradu(1210, 210, 605);
    EXPECT_TRUE(r.rozdelit);
    EXPECT_DOUBLE_EQ(r.zaklad, 500);
    EXPECT_DOUBLE_EQ(r.dph, 105);
    EXPECT_FALSE(castky::rozdelUhradu(1000, 1e-13, 500).rozdelit);
    EXPECT_FALSE(castky::rozdelUhradu(0, 10, 500).rozdelit);
}

class Fakturace : public TestCompany {
 protected:
    void SetUp() override {
        TestCompany::SetUp();
        createPlatce2024("2024-06-10");
    }

    // A stored issued invoice (or another kind) with items of the given rates and prices
    // with VAT.
    DokladForm doklad(DruhDokladu druh, std::vector<std::pair<int, double>> polozky) {
        DokladForm form = novyDoklad(*m_model, druh);
        EXPECT_GT(form.id, 0);
        for (const auto& [sazba, cena] : polozky) addPolozka(form, sazba, cena);
        EXPECT_EQ(ulozitDoklad(*m_model, form), wxString());
        form.novy = false;
        return form;
    }
    void addPolozka(const DokladForm& form, int sazba, double cena) {
        const castky::Polozka c = castky::polozka(true, false, 1, cena, sazba, form.duzp);
        FaPolozka p;
        p.setId(m_model->getLastId("fapolozka"));
        p.setPopis("Práce");
        p.setPocet(1);
        p.setCenamj(cena);
        p.setSazbaid(m_model->getDphSazbaId(sazba, 2024));
        p.setDph(c.dph);
        p.setCelkem(c.celkem);
        p.setFakturaid(form.faktura() ? form.id : -1);
        p.setZavpohid(form.faktura() ? -1 : form.id);
        p.setZasobaid(-1);
        p.setValid(true);
        ASSERT_TRUE(m_model->addFaPolozka(p));
    }
    wxString zaplatit(const PlacenyDoklad& doklad, double castka) {
        UhradaForm form = novaUhrada(*m_model, doklad);
        form.castka = castka;
        return ulozitUhradu(*m_model, doklad, form);
    }
};

TEST_F(Fakturace, NewDocumentCancelLeavesNothing) {
    const int rada = m_model->getRadaCislo("FV");
    const int faktur = scalar("SELECT count(*) FROM faktura");
    DokladForm form = novyDoklad(*m_model, DruhDokladu::FAKTURA_VYDANA);
    ASSERT_GT(form.id, 0);
    EXPECT_EQ(form.vs, wxString::Format("%d", rada));
    EXPECT_EQ(form.splatnost, isoDatum("2024-06-10") + wxDateSpan::Days(lxSettings::instance()->splatnost()));
    addPolozka(form, 21, 100);
    EXPECT_TRUE(zrusitNovyDoklad(*m_model, form));
    EXPECT_EQ(scalar("SELECT count(*) FROM faktura"), faktur);
    EXPECT_EQ(scalar("SELECT count(*) FROM fapolozka"), 0);
    EXPECT_EQ(m_model->getRadaCislo("FV"), rada);
}

TEST_F(Fakturace, SaveAdvancesSeriesAndSumsItems) {
    const int rada = m_model->getRadaCislo("FV");
    DokladForm form = novyDoklad(*m_model, DruhDokladu::FAKTURA_VYDANA);
    addPolozka(form, 21, 1210);
    addPolozka(form, 12, 112);
    form.protistrana = u8("Nový odběratel s.r.o.");
    ASSERT_EQ(ulozitDoklad(*m_model, form), wxString());
    EXPECT_EQ(m_model->getRadaCislo("FV"), rada + 1);
    const Faktura f = m_model->getFaktura(form.id);
    EXPECT_DOUBLE_EQ(f.celkem(), 1322);
    EXPECT_EQ(m_model->getKontakt(f.protistranaid()).nazev(), u8("Nový odběratel s.r.o."));
    EXPECT_NEAR(m_model->dphFaktury(form.id), 222, 1e-9);
    // The summary lists 21 % before 12 %.
    const auto souhrn = m_model->dphFakturaSouhrn(form.id, false);
    ASSERT_EQ(souhrn.size(), 2u);
    EXPECT_EQ(souhrn[0].sazba, 21);
    EXPECT_NEAR(souhrn[0].zaklad, 1000, 1e-9);
    EXPECT_EQ(souhrn[1].sazba, 12);
    EXPECT_NEAR(souhrn[1].dph, 12, 1e-9);
}

TEST_F(Fakturace, ChecksInOrder) {
    DokladForm form = novyDoklad(*m_model, DruhDokladu::FAKTURA_VYDANA);
    struct Case {
        std::function<void(DokladForm&)> zmena;
        const char* zprava;
        DokladPole pole;
    } cases[] = {
        {[](DokladForm& f) { f.uhradaid = 99; }, "Úhrada nemůže být prázdná", DokladPole::UHRADA},
        {[](DokladForm& f) { f.registr = "XX"; }, "Pokladna XX neexistuje", DokladPole::REGISTR},
        {[](DokladForm& f) { f.predkontace = ""; }, "Předkontace nemůže být prázdná", DokladPole::PREDKONTACE},
        {[](DokladForm& f) { f.predkontace = "V001"; }, "Předkontace V001 je výdajová, zadejte příjmovou",
         DokladPole::PREDKONTACE},
        {[](DokladForm& f) { f.dphdruh = ""; }, "Členění DPH nemůže být prázdné", DokladPole::DPHDRUH},
        {[](DokladForm& f) { f.dphdruh = "R99"; }, "Členění DPH R99 neexistuje", DokladPole::DPHDRUH},
        {[](DokladForm& f) {
             f.dphdruh = "R24";
             f.duzp = isoDatum("2021-10-01");
             f.dppd = isoDatum("2021-09-30");
         },
         "", DokladPole::ZADNE},  // one of the two R24 rows is valid on either day
        {[](DokladForm& f) {
             f.dphdruh = "R1,2-C";
             f.duzp = isoDatum("2015-12-31");
         },
         "Členění DPH R1,2-C není platné pro DUZP 31.12.2015", DokladPole::DUZP},
        {[](DokladForm& f) {
             f.dphdruh = "R1,2-C";
             f.dppd = isoDatum("2015-12-31");
         },
         "Členění DPH R1,2-C není platné pro DPPD 31.12.2015", DokladPole::DPPD},
    };
    for (const Case& c : cases) {
        DokladForm f = form;
        c.zmena(f);
        DokladPole pole = DokladPole::ZADNE;
        EXPECT_EQ(dokladValidation(*m_model, f, &pole), u8(c.zprava));
        EXPECT_EQ(pole, c.pole) << c.zprava;
    }
}

TEST_F(Fakturace, RoundingLineFollowsPaymentForm) {
    DokladForm form = doklad(DruhDokladu::FAKTURA_VYDANA, {{21, 100.40}});
    wxString zprava;
    // Transfer: the rounding carries the items' highest rate.
    form.uhradaid = 2;
    form.registr = m_model->getBankaZkratka(1);
    ASSERT_TRUE(zaokrouhlitDoklad(*m_model, form, &zprava));
    EXPECT_TRUE(zprava.empty());
    FaPolozka radek;
    for (const auto& p : polozkyDokladu(*m_model, form))
        if (p->zaokrouhleni()) radek = *p;
    ASSERT_TRUE(radek.isValid());
    EXPECT_NEAR(radek.celkem(), 0.60, 1e-9);
    EXPECT_EQ(m_model->getDphSazbaValue(radek.sazbaid()), 21);
    EXPECT_NEAR(radek.dph(), 0.60 * 21 / 121, 1e-12);
    // Cash: no VAT on the rounding; saving follows a changed item.
    form.uhradaid = 1;
    form.registr = m_model->getPokladnaZkratka(1);
    addPolozka(form, 21, 0.30);
    ASSERT_EQ(ulozitDoklad(*m_model, form), wxString());
    EXPECT_DOUBLE_EQ(m_model->getFaktura(form.id).celkem(), 101);
    // Whole already: the line goes and the user is told.
    addPolozka(form, 21, 0.30);
    ASSERT_TRUE(zaokrouhlitDoklad(*m_model, form, &zprava));
    EXPECT_EQ(zprava, u8("Zaokrouhlení není potřeba"));
    EXPECT_FALSE(hasZaokrouhleni(*m_model, form));
}

TEST_F(Fakturace, NonPayerRoundingHasNoVat) {
    Firma firma = m_model->firma();
    firma.setPlatce(false);
    ASSERT_TRUE(m_model->setFirma(firma));
    DokladForm form = novyDoklad(*m_model, DruhDokladu::FAKTURA_VYDANA);
    EXPECT_FALSE(form.platce);
    addPolozka(form, 0, 100.40);
    ASSERT_TRUE(zaokrouhlitDoklad(*m_model, form));
    EXPECT_NEAR(celkemDokladu(*m_model, form), 101, 1e-9);
    EXPECT_EQ(scalar("SELECT count(*) FROM fapolozka WHERE zaokrouhleni=1 AND dph=0 AND sazbaid=0"), 1);
}

TEST_F(Fakturace, PaymentSplitsBaseAndVat) {
    const DokladForm form = doklad(DruhDokladu::FAKTURA_VYDANA, {{21, 1210}});
    const int rada = m_model->getRadaCislo("PP");
    ASSERT_EQ(zaplatit(placenyFaktura(*m_model, form.id), 605), wxString());
    const lxDenikArray zapisy = m_model->denikUhradForFaktura(form.id);
    ASSERT_EQ(zapisy.size(), 2u);
    EXPECT_DOUBLE_EQ(zapisy[0]->castka(), 500);
    EXPECT_EQ(m_model->getPredkontace(zapisy[0]->predkontaceid()).zkratka(), m_model->getPredkontace(
                                                                                 m_model->getFaktura(form.id).predkontaceid()).zkratka());
    EXPECT_DOUBLE_EQ(zapisy[1]->castka(), 105);
    EXPECT_EQ(m_model->getPredkontace(zapisy[1]->predkontaceid()).zkratka(), "P102");
    EXPECT_EQ(zapisy[1]->popis(), u8("DPH příjem"));
    EXPECT_EQ(m_model->getRadaCislo("PP"), rada + 2);
    EXPECT_FALSE(m_model->isFakturaUhrazena(form.id));
    ASSERT_EQ(zaplatit(placenyFaktura(*m_model, form.id), 605), wxString());
    EXPECT_TRUE(m_model->isFakturaUhrazena(form.id));
    // Deleting a payment's entry in the journal opens the invoice again.
    ASSERT_TRUE(m_model->deleteDenik(zapisy[0]->id()));
    EXPECT_FALSE(m_model->isFakturaUhrazena(form.id));
    EXPECT_DOUBLE_EQ(m_model->uhrazenoByFakturaId(form.id), 710);
}

TEST_F(Fakturace, PaidExactlyAndOverdue) {
    const DokladForm form = doklad(DruhDokladu::ZAVAZEK, {{0, 1000}});
    ZavPoh z = m_model->getZavPoh(form.id);
    z.setSplatnost(isoDatum("2024-06-10"));
    ASSERT_TRUE(m_model->editZavPoh(z));
    EXPECT_FALSE(m_model->isZavpohPosplatnosti(form.id));  // due today is not overdue
    lxSettings::instance()->setDatum(isoDatum("2024-06-11"));
    EXPECT_TRUE(m_model->isZavpohPosplatnosti(form.id));
    ASSERT_EQ(zaplatit(placenyZavPoh(*m_model, form.id), 999.999), wxString());
    EXPECT_FALSE(m_model->isZavpohUhrazena(form.id));  // short by a thousandth
    EXPECT_EQ(m_model->neuhrazeneZavpohyView().size(), 1u);
    ASSERT_EQ(zaplatit(placenyZavPoh(*m_model, form.id), 0.001), wxString());
    EXPECT_TRUE(m_model->isZavpohUhrazena(form.id));
    EXPECT_FALSE(m_model->isZavpohPosplatnosti(form.id));
    EXPECT_TRUE(m_model->neuhrazeneZavpohyView().empty());
    // An expense of a payer's document without VAT is one entry.
    EXPECT_EQ(scalar("SELECT count(*) FROM denik d JOIN predkontace p ON d.predkontaceid=p.id WHERE p.zkratka='V102'"),
              0);
}

TEST_F(Fakturace, ChangedPaidDocumentLosesPaymentsWhenAsked) {
    DokladForm form = doklad(DruhDokladu::FAKTURA_PRIJATA, {{21, 242}});
    ASSERT_EQ(zaplatit(placenyFaktura(*m_model, form.id), 242), wxString());
    EXPECT_EQ(m_model->denikUhradForFaktura(form.id).size(), 2u);
    EXPECT_FALSE(dokladZmenen(*m_model, form));
    form.duzp = isoDatum("2024-06-01");
    EXPECT_TRUE(dokladZmenen(*m_model, form));
    EXPECT_EQ(dotazZmenenyDoklad(form), u8("Faktura byla změněna\nPoužít nové hodnoty?\n(Úhrady budou smazány)"));
    ASSERT_EQ(ulozitDoklad(*m_model, form, true), wxString());
    EXPECT_FALSE(m_model->someUhradaForFaktura(form.id));
    EXPECT_EQ(scalar("SELECT count(*) FROM denik"), 0);
}

TEST_F(Fakturace, DeleteTakesPaymentsEntriesAndItems) {
    const DokladForm form = doklad(DruhDokladu::FAKTURA_VYDANA, {{21, 121}, {12, 112}});
    ASSERT_EQ(zaplatit(placenyFaktura(*m_model, form.id), 100), wxString());
    ASSERT_TRUE(m_model->deleteFaktura(form.id));
    EXPECT_EQ(scalar("SELECT count(*) FROM denik") + scalar("SELECT count(*) FROM uhrada") +
                  scalar("SELECT count(*) FROM fapolozka"),
              0);
}

TEST_F(Fakturace, CopyTakesFreshNumberAndItems) {
    const DokladForm form = doklad(DruhDokladu::FAKTURA_VYDANA, {{21, 121}, {12, 112}});
    lxSettings::instance()->setDatum(isoDatum("2024-07-01"));
    const int kopie = m_model->copyFaktura(form.id);
    ASSERT_GT(kopie, 0);
    const Faktura k = m_model->getFaktura(kopie);
    EXPECT_EQ(k.cislo(), m_model->getCisloDokladu("FV"));
    EXPECT_NE(k.cislo(), m_model->getFaktura(form.id).cislo());
    EXPECT_EQ(k.vystaveni(), isoDatum("2024-07-01"));
    EXPECT_EQ(m_model->fapolozkyByFakturaId(kopie).size(), 2u);
}

TEST_F(Fakturace, OpenBalancesInEuroTakeTheYearlyRate) {
    // Today is in 2025: the single rate of 2024 exists and values the 2024 balance.
    lxutils::setToday(isoDatum("2025-02-01"));
    DokladForm form = novyDoklad(*m_model, DruhDokladu::FAKTURA_VYDANA);
    form.menaid = m_model->getMena("EUR").id() > 0 ? m_model->getMena("EUR").id() : 2;
    addPolozka(form, 21, 1000);
    form.kurz = 25.0;
    ASSERT_EQ(ulozitDoklad(*m_model, form), wxString());
    const wxString eur = m_model->kodMena(form.menaid);
    ASSERT_TRUE(m_model->addKurz(Kurz(m_model->getLastId("kurz"), isoDatum("2024-12-31"), 24.0, eur, true)));
    ASSERT_TRUE(m_model->addKurz(Kurz(m_model->getLastId("kurz"), isoDatum("2023-12-31"), 23.0, eur, true)));
    EXPECT_TRUE(m_model->hasPohledavkyDluhyCizi(2024));
    EXPECT_TRUE(m_model->hasJednotneKurzyForPohledavkyDluhy(2024));
    EXPECT_DOUBLE_EQ(m_model->getPohledavkyStav(2024), 1000 * 24.0);
    // While 2024 is the running year its own single rate does not exist yet: 2023's counts.
    lxutils::setToday(isoDatum("2024-06-10"));
    EXPECT_DOUBLE_EQ(m_model->getPohledavkyStav(2024), 1000 * 23.0);
    EXPECT_DOUBLE_EQ(m_model->getZavazkyStav(2024), 0);
    lxutils::setToday(wxDateTime());
}
