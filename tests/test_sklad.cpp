// Stock: valuation by FIFO and weighted average, the state of items at a date, movements with
// their checks and numbers, stock-takings and their corrections, and the invoice lines that
// move stock, on the year 2024.
#include <gtest/gtest.h>

#include "fakturace/dokladform.h"
#include "fakturace/polozkaform.h"
#include "lxsettings.h"
#include "sklad/ocenovani.h"
#include "sklad/skladform.h"
#include "testcompany.h"

namespace {

using ocenovani::FIFO;
using ocenovani::PRUMER;

ocenovani::Pohyb prijem(double pocet, double cena) { return {pocet, cena, true}; }
ocenovani::Pohyb vydej(double pocet) { return {pocet, 0, false}; }

}  // namespace

TEST(Ocenovani, MethodsOverTheSameMovements) {
    struct Case {
        const char* name;
        int metoda;
        std::vector<ocenovani::Pohyb> pohyby;
        double pocet, celkem;
    } cases[] = {
        {"average_after_issue", PRUMER, {prijem(10, 100), prijem(10, 200), vydej(5)}, 15, 2250},
        {"fifo_after_issue", FIFO, {prijem(10, 100), prijem(10, 200), vydej(5)}, 15, 5 * 100 + 10 * 200},
        {"fifo_issue_beyond_stock", FIFO, {prijem(10, 100), prijem(10, 200), vydej(30)}, 0, 0},
        {"fifo_first_issue_takes_nothing", FIFO, {vydej(5), prijem(10, 100)}, 10, 1000},
        {"fifo_across_receipts", FIFO, {prijem(5, 10), prijem(5, 20), prijem(5, 30), vydej(7)}, 8, 3 * 20 + 5 * 30},
        {"fifo_issue_then_receipt", FIFO, {prijem(5, 10), vydej(5), prijem(2, 40)}, 2, 80},
        {"average_emptied", PRUMER, {prijem(3, 7), vydej(3)}, 0, 0},
        {"average_refilled", PRUMER, {prijem(10, 100), vydej(5), prijem(5, 400)}, 10, 500 + 2000},
        {"nothing", FIFO, {}, 0, 0},
    };
    for (const Case& c : cases) {
        const ocenovani::Stav s = ocenovani::stav(c.metoda, c.pohyby);
        EXPECT_NEAR(s.pocet, c.pocet, 1e-9) << c.name;
        EXPECT_NEAR(s.celkem, c.celkem, 1e-9) << c.name;
    }
}

TEST(Ocenovani, IssueValueByMethod) {
    ocenovani::Prubeh fifo(FIFO), prumer(PRUMER);
    for (auto* p : {&fifo, &prumer}) {
        p->pridat(prijem(5, 10));
        p->pridat(prijem(5, 20));
    }
    EXPECT_DOUBLE_EQ(fifo.hodnotaVydeje(7), 5 * 10 + 2 * 20);
    EXPECT_DOUBLE_EQ(prumer.hodnotaVydeje(7), 7 * 15);
    EXPECT_DOUBLE_EQ(fifo.hodnotaVydeje(50), 150);  // only what is there
    EXPECT_DOUBLE_EQ(fifo.stav().pocet, 10);        // asking takes nothing
}

class Sklad2024 : public TestCompany {
   protected:
    void SetUp() override {
        TestCompany::SetUp();
        createPlatce2024("2024-06-10");
        m_sklad = Sklad(m_model->getLastId("sklad"), u8("Hlavní"), "", 0);
        ASSERT_TRUE(m_model->addSklad(m_sklad));
    }

    int zasoba(const char* nazev, int metoda, double cenamj = 50) {
        Zasoba z(-1, "", u8(nazev), "", metoda, "ks", 0, 0, m_sklad.id(), cenamj, true, 21);
        const int id = skladform::ulozitZasobu(*m_model, z);
        EXPECT_GT(id, 0);
        return id;
    }
    wxString pohyb(int zasobaid, bool prijemka, const char* datum, double pocet, double cenamj = 0) {
        skladform::PohybForm f;
        f.zasobaid = zasobaid;
        f.prijemka = prijemka;
        f.datum = isoDatum(datum);
        f.pocet = pocet;
        f.cenamj = cenamj;
        return skladform::ulozitPohyb(*m_model, f);
    }
    DbModel::StavZasoby stav(int id, const char* datum) {
        return m_model->stavZasobyToDate(id, datum ? isoDatum(datum) : wxDateTime());
    }
    int inventura(const char* datum, int zasobaid, double zjisteno) {
        Inventura iv(-1, isoDatum(datum), "", u8("Roční"), u8("Novák"), m_sklad.id(), 2024);
        auto radky = skladform::radkyInventury(*m_model, m_sklad.id(), iv.datum());
        for (auto& r : radky)
            if (r.zasobaid == zasobaid) r.zjisteno = zjisteno;
        return skladform::ulozitInventuru(*m_model, iv, radky);
    }
    // A stored invoice of 2024-04-01 (an issued one, or a received one).
    DokladForm faktura(bool vydana) {
        DokladForm f = novyDoklad(*m_model, vydana ? DruhDokladu::FAKTURA_VYDANA : DruhDokladu::FAKTURA_PRIJATA);
        f.vystaveni = f.duzp = f.dppd = isoDatum("2024-04-01");
        EXPECT_EQ(ulozitDoklad(*m_model, f), wxString());
        f.novy = false;
        return f;
    }
    PolozkaForm radek(int zasobaid, double pocet, double cena) {
        PolozkaForm p;
        p.popis = u8("Zboží");
        p.mj = "ks";
        p.pocet = pocet;
        p.cenamj = cena;
        p.sazba = 21;
        p.bezdph = true;
        p.zasobaid = zasobaid;
        return p;
    }

    Sklad m_sklad;
};

TEST_F(Sklad2024, StateAtDateCountsOnlyEarlierMovements) {
    const int fifo = zasoba("Šroub", FIFO), prumer = zasoba("Matice", PRUMER), prazdna = zasoba("Podložka", FIFO);
    for (int id : {fifo, prumer}) {
        ASSERT_EQ(pohyb(id, true, "2024-01-10", 10, 100), wxString());
        ASSERT_EQ(pohyb(id, true, "2024-02-10", 10, 200), wxString());
        ASSERT_EQ(pohyb(id, false, "2024-03-10", 5), wxString());
    }
    struct Case {
        int id;
        const char* datum;
        double pocet, celkem;
    } cases[] = {
        {fifo, "2024-01-10", 0, 0},  // a movement exactly at the date is not counted
        {fifo, "2024-01-11", 10, 1000},
        {fifo, "2024-03-10", 20, 3000},
        {fifo, "2024-03-11", 15, 2500},
        {prumer, "2024-03-11", 15, 2250},
        {prumer, nullptr, 15, 2250},  // no date: every movement
        {prazdna, "2024-12-31", 0, 0},
    };
    for (const Case& c : cases) {
        const DbModel::StavZasoby s = stav(c.id, c.datum);
        EXPECT_NEAR(s.pocet, c.pocet, 1e-9) << c.id << " " << (c.datum ? c.datum : "-");
        EXPECT_NEAR(s.celkem, c.celkem, 1e-9) << c.id << " " << (c.datum ? c.datum : "-");
    }
    // All items in one pass give the same as one by one, and the cache holds the state now.
    const auto vse = m_model->getZasobyStav(isoDatum("2024-03-11"));
    ASSERT_EQ(vse.size(), 3u);
    for (const auto& s : vse) {
        EXPECT_DOUBLE_EQ(s.celkem, stav(s.zasobaid, "2024-03-11").celkem);
        EXPECT_DOUBLE_EQ(m_model->getZasoba(s.zasobaid).celkem(), stav(s.zasobaid, nullptr).celkem);
    }
    // Changing the method revalues the cached state.
    ASSERT_TRUE(m_model->changeZasobaOcenovani(prumer, FIFO));
    EXPECT_DOUBLE_EQ(m_model->getZasoba(prumer).celkem(), 2500);
}

TEST_F(Sklad2024, MovementChecksNumbersAndDeletion) {
    const int id = zasoba("Šroub", PRUMER);
    EXPECT_EQ(m_model->getZasoba(id).cislo(), "ZB0001");
    struct Case {
        bool prijemka;
        double pocet, cena;
        const char* zprava;
    } cases[] = {
        {true, 0, 100, "Nulový příjem na sklad"},
        {false, 0, 0, "Nulový výdej ze skladu"},
        {true, 5, 0, "Nulová cena za měrnou jednotku"},
        {false, 1, 0, "Stav zásoby 0.000 na skladě je nižší než požadovaný výdej 1.000"},  // nothing in stock
    };
    for (const Case& c : cases) EXPECT_EQ(pohyb(id, c.prijemka, "2024-02-01", c.pocet, c.cena), u8(c.zprava));
    EXPECT_EQ(scalar("SELECT count(*) FROM pohybzasob"), 0);

    ASSERT_EQ(pohyb(id, true, "2024-02-01", 10, 100), wxString());
    ASSERT_EQ(pohyb(id, true, "2024-02-02", 10, 200), wxString());
    EXPECT_EQ(pohyb(id, false, "2024-02-03", 30), u8("Stav zásoby 20.000 na skladě je nižší než požadovaný výdej 30.000"));
    // Stock that arrives later does not cover an earlier issue; stock of the same day does.
    EXPECT_EQ(pohyb(id, false, "2024-01-31", 1), u8("Stav zásoby 0.000 na skladě je nižší než požadovaný výdej 1.000"));
    EXPECT_EQ(pohyb(id, false, "2024-02-01", 15), u8("Stav zásoby 10.000 na skladě je nižší než požadovaný výdej 15.000"));
    // The refused issues changed nothing: the average still stands at 150.
    EXPECT_DOUBLE_EQ(m_model->getZasoba(id).celkem(), 3000);
    ASSERT_EQ(pohyb(id, false, "2024-02-03", 5), wxString());
    EXPECT_DOUBLE_EQ(m_model->getZasoba(id).celkem(), 2250);

    const auto pohyby = m_model->pohybyzasobByZasobaId(id);
    ASSERT_EQ(pohyby.size(), 3u);
    EXPECT_EQ(pohyby[0]->cislo(), "PR0001");
    EXPECT_EQ(pohyby[2]->cislo(), "VY0001");
    EXPECT_DOUBLE_EQ(pohyby[2]->cenamj(), 150);  // an issue costs what the method says
    EXPECT_EQ(skladform::smazatPohybDotaz(*pohyby[0], "ks"),
              u8("Opravdu smazat pohyb:\nPR0001\n10.000 ks\nz 01.02.2024 00:00:00?"));
    ASSERT_EQ(skladform::smazatPohyb(*m_model, pohyby[0]->id()), wxString());
    EXPECT_DOUBLE_EQ(m_model->getZasoba(id).pocet(), 5);
    EXPECT_DOUBLE_EQ(m_model->zasobaNakupniCena(id), 200);
    // The database does not cascade; deleting the item takes its movements itself.
    ASSERT_TRUE(skladform::smazatZasobu(*m_model, id));
    EXPECT_EQ(scalar("SELECT count(*) FROM pohybzasob"), 0);
}

TEST_F(Sklad2024, WarehouseNamesAndQuestions) {
    Sklad novy(-1, "  ", "", 0);
    EXPECT_EQ(skladform::skladValidation(*m_model, novy), u8("Název nemůže být prázdný"));
    novy.setNazev(u8("Hlavní"));
    EXPECT_EQ(skladform::skladValidation(*m_model, novy), u8("Název 'Hlavní' už existuje\nZvolte jiný"));
    EXPECT_EQ(skladform::skladValidation(*m_model, m_sklad), wxString());  // its own name
    EXPECT_EQ(skladform::smazatSkladDotaz(m_sklad), u8("Opravdu smazat sklad Hlavní?"));
    EXPECT_EQ(m_model->firstSklad(), m_sklad.id());
    zasoba("Šroub", FIFO);
    EXPECT_EQ(m_model->getZasobyCountBySkladId(m_sklad.id()), 1);
    EXPECT_TRUE(m_model->isSkladUsed(m_sklad.id()));
}

TEST_F(Sklad2024, StockTakingCorrectsByMethodAndPurchasePrice) {
    const int id = zasoba("Šroub", FIFO);
    ASSERT_EQ(pohyb(id, true, "2024-01-10", 10, 100), wxString());
    ASSERT_EQ(pohyb(id, true, "2024-02-10", 10, 200), wxString());
    // 8 missing: an issue that takes the oldest receipt first.
    const int prvni = inventura("2024-03-01", id, 12);
    ASSERT_GT(prvni, 0);
    EXPECT_EQ(m_model->getInventura(prvni).cislo(), "IV0001");
    const Pohybzasob manko = m_model->getPohybzasobByInventura(id, prvni);
    ASSERT_TRUE(manko.isValid());
    EXPECT_FALSE(manko.prijemka());
    EXPECT_TRUE(manko.inventura());
    EXPECT_DOUBLE_EQ(manko.pocet(), 8);
    EXPECT_DOUBLE_EQ(stav(id, nullptr).celkem, 2 * 100 + 10 * 200);
    // 3 more than recorded: a receipt at the latest purchase price.
    const int druha = inventura("2024-04-01", id, 15);
    const Pohybzasob prebytek = m_model->getPohybzasobByInventura(id, druha);
    EXPECT_TRUE(prebytek.prijemka());
    EXPECT_DOUBLE_EQ(prebytek.cenamj(), 200);
    EXPECT_DOUBLE_EQ(stav(id, nullptr).pocet, 15);
    EXPECT_DOUBLE_EQ(m_model->getZasoba(id).celkem(), 2200 + 600);
    const auto radky = m_model->ivpolozkyByInventuraId(druha);
    ASSERT_EQ(radky.size(), 1u);
    EXPECT_DOUBLE_EQ(radky[0]->evidovano(), 12);
    EXPECT_TRUE(m_model->inventuraIncludedZasoba(druha, id));
    EXPECT_EQ(m_model->getInventuraLastDateForZasoba(id), isoDatum("2024-04-01"));
    EXPECT_EQ(m_model->getInventuraLastDateForSklad(m_sklad.id()), isoDatum("2024-04-01"));
    // Saving again with the same count makes no second correction.
    Inventura iv = m_model->getInventura(druha);
    ASSERT_EQ(skladform::ulozitInventuru(*m_model, iv, skladform::radkyInventury(*m_model, m_sklad.id(), iv.datum(), druha)),
              druha);
    EXPECT_EQ(scalar(wxString::Format("SELECT count(*) FROM pohybzasob WHERE inventuraid=%d", druha)), 1);
    EXPECT_DOUBLE_EQ(stav(id, nullptr).pocet, 15);
    ASSERT_TRUE(skladform::smazatInventuru(*m_model, druha));
    ASSERT_TRUE(skladform::smazatInventuru(*m_model, prvni));
    EXPECT_DOUBLE_EQ(m_model->getZasoba(id).pocet(), 20);
    EXPECT_DOUBLE_EQ(m_model->getZasoba(id).celkem(), 3000);
}

TEST_F(Sklad2024, InvoiceLinesMoveStock) {
    const int id = zasoba("Šroub", PRUMER);
    ASSERT_EQ(pohyb(id, true, "2024-01-10", 10, 100), wxString());
    DokladForm vydana = faktura(true);
    EXPECT_EQ(ulozitPolozku(*m_model, vydana, radek(id, 11, 150)),
              u8("Stav zásoby 10.000 na skladě je nižší než požadovaný výdej 11.000"));
    int polozka = -1;
    ASSERT_EQ(ulozitPolozku(*m_model, vydana, radek(id, 4, 150), &polozka), wxString());
    EXPECT_EQ(ulozitPolozku(*m_model, vydana, radek(id, 1, 150)),
              u8("Položku nelze přidat, faktura už obsahuje položku pro vybranou zásobu"));
    Pohybzasob vy = m_model->getPohybzasobByFaktura(id, vydana.id);
    ASSERT_TRUE(vy.isValid());
    EXPECT_FALSE(vy.prijemka());
    EXPECT_EQ(vy.cislo(), "VY0001");
    EXPECT_EQ(vy.datum(), isoDatum("2024-04-01"));
    EXPECT_DOUBLE_EQ(m_model->getZasoba(id).pocet(), 6);
    // Editing the line rewrites its movement; its own issue does not count against it.
    PolozkaForm upravena = radek(id, 10, 150);
    upravena.id = polozka;
    ASSERT_EQ(ulozitPolozku(*m_model, vydana, upravena), wxString());
    EXPECT_EQ(scalar("SELECT count(*) FROM pohybzasob WHERE fakturaid IS NOT NULL"), 1);
    EXPECT_DOUBLE_EQ(m_model->getZasoba(id).pocet(), 0);

    // A received invoice brings goods in at the price without VAT.
    DokladForm prijata = faktura(false);
    ASSERT_EQ(ulozitPolozku(*m_model, prijata, radek(id, 5, 300)), wxString());
    Pohybzasob pr = m_model->getPohybzasobByFaktura(id, prijata.id);
    EXPECT_TRUE(pr.prijemka());
    EXPECT_DOUBLE_EQ(pr.cenamj(), 300);
    EXPECT_DOUBLE_EQ(m_model->getZasoba(id).pocet(), 5);

    // Deleting the invoice takes its movement and puts the stock back.
    ASSERT_TRUE(m_model->deleteFaktura(vydana.id));
    EXPECT_FALSE(m_model->getPohybzasobByFaktura(id, vydana.id).isValid());
    EXPECT_DOUBLE_EQ(m_model->getZasoba(id).pocet(), 15);
    EXPECT_DOUBLE_EQ(m_model->getZasoba(id).celkem(), 2500);
}

TEST_F(Sklad2024, StockTakingLocksEarlierInvoiceLines) {
    const int id = zasoba("Šroub", FIFO);
    ASSERT_EQ(pohyb(id, true, "2024-01-10", 10, 100), wxString());
    DokladForm vydana = faktura(true);
    int polozka = -1;
    ASSERT_EQ(ulozitPolozku(*m_model, vydana, radek(id, 2, 150), &polozka), wxString());
    ASSERT_GT(inventura("2024-05-01", id, 8), 0);
    const lxPohybzasobArray pred = pohybyDokladu(*m_model, vydana);

    PolozkaForm upravena = radek(id, 3, 150);
    upravena.id = polozka;
    const char* konec = ",\nprotože datum poslední inventury\nje později než datum vystavení faktury";
    EXPECT_EQ(ulozitPolozku(*m_model, vydana, upravena), u8("Položku nelze upravit") + u8(konec));
    EXPECT_EQ(smazatPolozku(*m_model, vydana, polozka), u8("Položku nelze smazat") + u8(konec));
    DokladForm jina = faktura(true);
    EXPECT_EQ(ulozitPolozku(*m_model, jina, radek(id, 1, 150)), u8("Položku nelze přidat") + u8(konec));
    // Nothing moved.
    EXPECT_EQ(pohybyDokladu(*m_model, vydana).size(), pred.size());
    EXPECT_DOUBLE_EQ(m_model->getZasoba(id).pocet(), 8);
    // A line without stock is not locked.
    EXPECT_EQ(ulozitPolozku(*m_model, jina, radek(-1, 1, 150)), wxString());
}

// A receipt that later issues need cannot be cut, moved after them or deleted, and an
// invoice whose new date would put its issue before the goods came is not saved; what was
// stored stays as it was.
TEST_F(Sklad2024, ChangesThatUncoverALaterIssueAreRefused) {
    const int id = zasoba("Matice", FIFO);
    ASSERT_EQ(pohyb(id, true, "2024-02-01", 10, 100), wxString());
    const int prijem = m_model->pohybyzasobByZasobaId(id).front()->id();
    DokladForm vydana = faktura(true);  // dated 2024-04-01
    ASSERT_EQ(ulozitPolozku(*m_model, vydana, radek(id, 8, 150)), wxString());
    const wxString nekryto = u8("Stav zásoby %s na skladě je nižší než požadovaný výdej 8.000");

    const struct {
        const char* nazev;
        const char* datum;
        double pocet;
        const char* stav;
    } upravy[] = {{"less than the issue takes", "2024-02-01", 5, "5.000"},
                  {"after the issue", "2024-05-01", 10, "0.000"}};
    for (const auto& u : upravy) {
        skladform::PohybForm f;
        f.id = prijem;
        f.zasobaid = id;
        f.prijemka = true;
        f.datum = isoDatum(u.datum);
        f.pocet = u.pocet;
        f.cenamj = 100;
        EXPECT_EQ(skladform::ulozitPohyb(*m_model, f), wxString::Format(nekryto, u.stav)) << u.nazev;
    }
    EXPECT_EQ(skladform::smazatPohyb(*m_model, prijem), wxString::Format(nekryto, "0.000"));
    const Pohybzasob ulozeny = m_model->getPohybzasob(prijem);
    EXPECT_DOUBLE_EQ(ulozeny.pocet(), 10);
    EXPECT_EQ(ulozeny.datum(), isoDatum("2024-02-01"));
    EXPECT_DOUBLE_EQ(m_model->getZasoba(id).pocet(), 2);

    vydana.vystaveni = vydana.duzp = vydana.dppd = isoDatum("2024-01-15");
    EXPECT_EQ(ulozitDoklad(*m_model, vydana), wxString::Format(nekryto, "0.000"));
    EXPECT_EQ(m_model->getFaktura(vydana.id).vystaveni(), isoDatum("2024-04-01"));
    EXPECT_EQ(m_model->getPohybzasobByFaktura(id, vydana.id).datum(), isoDatum("2024-04-01"));
    // A later date keeps the issue covered and is saved with its movement.
    vydana.vystaveni = vydana.duzp = vydana.dppd = isoDatum("2024-03-01");
    EXPECT_EQ(ulozitDoklad(*m_model, vydana), wxString());
    EXPECT_EQ(m_model->getPohybzasobByFaktura(id, vydana.id).datum(), isoDatum("2024-03-01"));
    // A receipt that is not needed still goes.
    ASSERT_EQ(pohyb(id, true, "2024-03-10", 3, 120), wxString());
    EXPECT_EQ(skladform::smazatPohyb(*m_model, m_model->pohybyzasobByZasobaId(id).back()->id()), wxString());
}
