// Pairing bank movements with open documents, and the import that writes the accepted ones:
// each rule and each case left to the user, payments through the payment writer (base and
// VAT for a payer), nothing written twice, and all or nothing.
#include <gtest/gtest.h>
#include <wx/ffile.h>

#include "fakturace/uhradaform.h"
#include "lxsettings.h"
#include "testcompany.h"
#include "vypis/gpc.h"
#include "vypis/importvypisu.h"
#include "vypis/parovani.h"

using namespace vypis;

namespace {

OtevrenyDoklad doklad(DruhDokladu druh, int id, const char* cislo, const char* vs, double zbyva, int kontakt,
                      int menaid = 1) {
    OtevrenyDoklad d;
    d.druh = druh;
    d.id = id;
    d.cislo = cislo;
    d.vs = vs;
    d.zbyva = zbyva;
    d.protistranaid = kontakt;
    d.menaid = menaid;
    return d;
}

Pohyb pohyb(bool prijem, double castka, const char* vs, const char* protiucet = "", bool storno = false) {
    Pohyb p;
    p.datum = wxDateTime(15, wxDateTime::Jan, 2026);
    p.prijem = prijem;
    p.castka = castka;
    p.vs = vs;
    p.protiucet = protiucet;
    p.storno = storno;
    return p;
}

const auto FV = DruhDokladu::FAKTURA_VYDANA;
const auto FP = DruhDokladu::FAKTURA_PRIJATA;
const auto ZA = DruhDokladu::ZAVAZEK;

}  // namespace

TEST(VypisParovani, ProposesByEachRuleAndLeavesDoubtfulCasesToTheUser) {
    const std::vector<OtevrenyDoklad> doklady = {
        doklad(FV, 1, "FV20260001", "20260001", 1210, 5),    // 0
        doklad(FV, 2, "FV20260002", "", 500, 6),             // 1: VS only from its number
        doklad(FV, 3, "FV20260003", "777", 300, 7),          // 2 and 3 share a VS
        doklad(FV, 4, "FV20260004", "777", 400, 7),          // 3
        doklad(FV, 5, "FV20260005", "888", 1000, 8),         // 4 with 5: one payment of both
        doklad(FV, 6, "FV20260006", "889", 250, 8),          // 5
        doklad(FV, 7, "FV20260007", "", 650, 9),             // 6: customer 9 paid from a known account
        doklad(FV, 8, "FV20260008", "", 650, 10),            // 7: same amount, another customer
        doklad(FP, 9, "FP20260001", "20260001", 1210, 11),   // 8: received, same VS as 0
        doklad(ZA, 10, "Z1", "4444", 99, 12),                // 9
        doklad(FV, 11, "FV20260009", "5555", 100, 13, 2),    // 10: in EUR, not for a crown account
    };
    const ZnameUcty ucty = {{"19-123/0800", {9}}};
    const Parovani parovani(doklady, ucty, 1);
    ASSERT_EQ(parovani.doklady().size(), 10u);  // the EUR invoice is left out

    struct Pripad {
        const char* nazev;
        Pohyb pohyb;
        DruhNavrhu druh;
        int doklad;                 // proposed id, -1 none
        std::vector<int> kandidati;  // ids
        const char* duvod;
    };
    const Pripad pripady[] = {
        {"VS and amount", pohyb(true, 1210, "20260001"), DruhNavrhu::PRESNY, 1, {1}, "VS a částka souhlasí"},
        {"VS from the number", pohyb(true, 500, "0020260002"), DruhNavrhu::PRESNY, 2, {2}, "VS a částka souhlasí"},
        {"partial payment", pohyb(true, 1000, "20260001"), DruhNavrhu::CASTECNY, 1, {1},
         "VS souhlasí, částka je nižší — částečná úhrada (zbývá 210,00)"},
        {"overpayment", pohyb(true, 1300, "20260001"), DruhNavrhu::PREPLATEK, 1, {1},
         "VS souhlasí, částka je vyšší — přeplatek 90,00"},
        {"two invoices with one VS", pohyb(true, 350, "777"), DruhNavrhu::NEJEDNOZNACNY, -1, {3, 4},
         "VS souhlasí u více dokladů (FV20260003, FV20260004) — vyberte doklad"},
        {"one payment of two invoices", pohyb(true, 1250, "888"), DruhNavrhu::NEJEDNOZNACNY, -1, {5, 6},
         "Částka odpovídá součtu dokladů FV20260005, FV20260006 — platba více dokladů najednou, zaúčtujte ručně"},
        {"known account and amount", pohyb(true, 650, "", "19-123/0800"), DruhNavrhu::UCET, 7, {7},
         "Částka souhlasí a účet protistrany je znám z dřívější úhrady"},
        {"amount only", pohyb(true, 650, "", "1-1/0100"), DruhNavrhu::ZADNY, -1, {7, 8},
         "Souhlasí jen částka (FV20260007, FV20260008) — vyberte doklad ručně"},
        {"outgoing with an issued invoice's VS", pohyb(false, 1210, "20260001"), DruhNavrhu::PRESNY, 9, {9},
         "VS a částka souhlasí"},
        {"liability", pohyb(false, 99, "4444"), DruhNavrhu::PRESNY, 10, {10}, "VS a částka souhlasí"},
        {"incoming with a liability's VS", pohyb(true, 99, "4444"), DruhNavrhu::ZADNY, -1, {},
         "Nenalezen žádný otevřený doklad"},
        {"foreign document on a crown account", pohyb(true, 100, "5555"), DruhNavrhu::ZADNY, -1, {},
         "Nenalezen žádný otevřený doklad"},
        {"reversal", pohyb(true, 1210, "20260001", "", true), DruhNavrhu::STORNO, -1, {},
         "Storno pohybu — zaúčtujte ručně"},
    };
    for (const Pripad& p : pripady) {
        const Navrh n = parovani.navrh(p.pohyb);
        EXPECT_EQ(n.druh, p.druh) << p.nazev;
        EXPECT_EQ(n.doklad < 0 ? -1 : parovani.doklady()[n.doklad].id, p.doklad) << p.nazev;
        std::vector<int> ids;
        for (int i : n.kandidati) ids.push_back(parovani.doklady()[i].id);
        EXPECT_EQ(ids, p.kandidati) << p.nazev;
        EXPECT_EQ(n.duvod, u8(p.duvod)) << p.nazev;
    }
}

TEST(VypisParovani, AForeignAccountPairsInItsCurrencyAndCountsWhatItPaid) {
    Parovani eur({doklad(FV, 1, "FV1", "11", 100, 1, 2), doklad(FV, 2, "FV2", "12", 100, 1, 1)}, {}, 2);
    EXPECT_EQ(eur.navrh(pohyb(true, 100, "11")).druh, DruhNavrhu::PRESNY);
    EXPECT_EQ(eur.navrh(pohyb(true, 100, "12")).druh, DruhNavrhu::ZADNY);
    // Two movements of one statement paying one invoice in halves: the second sees the rest.
    eur.zapocitat(0, 40);
    const Navrh druha = eur.navrh(pohyb(true, 60, "11"));
    EXPECT_EQ(druha.druh, DruhNavrhu::PRESNY);
    EXPECT_EQ(druha.doklad, 0);
    eur.zapocitat(0, 60);
    EXPECT_EQ(eur.navrh(pohyb(true, 60, "11")).druh, DruhNavrhu::ZADNY);
}

// --- the import against a real company file ------------------------------------------------

class VypisImport : public TestCompany {
   protected:
    void SetUp() override {
        TestCompany::SetUp();
        createCompany();
        ASSERT_TRUE(m_model->setCurrentRok(2026));
        lxSettings::instance()->setDatum(isoDatum("2026-01-31"));
        Banka b = m_model->getBanka(1);
        b.setCislouctu("19-2000145399");
        b.setKodbanky("0800");
        ASSERT_TRUE(m_model->editBanka(b));
    }
    void platce() {
        Firma firma = m_model->firma();
        firma.setPlatce(true);
        ASSERT_TRUE(m_model->setFirma(firma));
    }
    int kontakt(const char* nazev) {
        Kontakt k;
        k.setNazev(u8(nazev));
        k.setValid(true);
        Adresa a;
        a.setValid(true);
        return m_model->addKontaktSAdresou(k, a);
    }
    int faktura(const char* cislo, const char* vs, double celkem, double dph, int kontaktId, bool vydana = true) {
        const int id = m_model->getLastId("faktura");
        const int predkontace = m_model->getPredkontaceIdByZkratka(vydana ? "P002" : "V001");
        EXPECT_TRUE(m_model->addFaktura(Faktura(id, kontaktId, "", celkem, cislo, vs, "", "", 1, 2, -1, 1, 1,
                                                predkontace, 2026, vydana, dph > 0, isoDatum("2026-01-05"),
                                                isoDatum("2026-01-05"), wxDateTime(), isoDatum("2026-01-19"), -1, 1,
                                                0)));
        if (dph > 0) {
            EXPECT_TRUE(m_model->addFaPolozka(FaPolozka(m_model->getLastId("fapolozka"), "", "", 1, celkem - dph, 1, dph,
                                                        celkem, false, id, -1, -1, false)));
        }
        return id;
    }
    // A GPC statement of account 19-2000145399 with the given movements (amount in hellers,
    // accounting code, VS, counter-account, reference).
    std::string gpc(std::initializer_list<std::tuple<const char*, const char*, const char*, const char*, const char*>> pohyby,
                    const char* cislo = "003") {
        auto line = [](std::initializer_list<std::pair<size_t, std::string>> pole) {
            std::string l(128, ' ');
            for (const auto& [pos, text] : pole) l.replace(pos - 1, text.size(), text);
            return l + "\r\n";
        };
        std::string s = line({{1, "074"}, {4, "0000192000145399"}, {40, "010126"}, {46, "00000000000000"}, {60, "+"},
                              {61, "00000000000000"}, {75, "+"}, {76, "00000000000000"}, {90, "0"},
                              {91, "00000000000000"}, {105, "0"}, {106, cislo}, {109, "310126"}});
        for (const auto& [castka, kod, vs, ucet, ref] : pohyby)
            s += line({{1, "075"}, {4, "0000192000145399"}, {20, ucet}, {36, ref}, {49, castka}, {61, kod}, {62, vs},
                       {72, "0800000000"}, {82, "0000000000"}, {92, "150126"}, {98, "Platba"}, {119, "0203"},
                       {123, "150126"}});
        return s;
    }
    Import pripravit(const std::string& soubor) {
        const CteniVypisu c = cistVypis(soubor, CsvMapovani{});
        EXPECT_TRUE(c.ok) << c.zprava;
        return pripravitImport(*m_model, 1, c);
    }
};

TEST_F(VypisImport, PaysTheInvoiceOnceEvenWhenTheStatementComesTwice) {
    const int k = kontakt("Novák");
    const int fv = faktura("FV20260001", "20260001", 1210, 0, k);
    const std::string soubor = gpc({{"000000121000", "2", "0020260001", "0000000123456789", "0000000000001"},
                                    {"000000005000", "1", "0000000000", "0000000000000000", "0000000000002"}});
    Import imp = pripravit(soubor);
    ASSERT_EQ(imp.polozky.size(), 2u);
    EXPECT_EQ(imp.cisloVypisu, 3);
    EXPECT_EQ(imp.polozky[0].akce, Akce::UHRADA);
    EXPECT_EQ(imp.polozky[1].akce, Akce::PRESKOCIT);  // nothing fits: waits for the user
    // The user books the bank fee as an expense.
    imp.polozky[1].akce = Akce::PRIJEM_VYDEJ;
    imp.polozky[1].predkontace = "V008";
    int zapsano = 0;
    ASSERT_EQ(zapsatImport(*m_model, imp, &zapsano), "");
    EXPECT_EQ(zapsano, 2);
    EXPECT_TRUE(m_model->isFakturaUhrazena(fv));
    EXPECT_EQ(scalar("SELECT count(*) FROM denik"), 2);
    EXPECT_EQ(scalar("SELECT count(*) FROM uhrada"), 1);
    EXPECT_EQ(scalar("SELECT count(*) FROM denik WHERE vypis=3 AND bankaid=1"), 2);
    EXPECT_EQ(text("SELECT reference FROM denik d JOIN uhrada u ON u.denikid=d.id"),
              u8("FV20260001 [výpis 2026-01-15 +1210.00 VS:20260001 ref:0000000000001 účet:123456789/0800]"));
    EXPECT_EQ(text("SELECT p.zkratka FROM denik d JOIN predkontace p ON p.id=d.predkontaceid WHERE d.castka=50"),
              "V008");

    // The same file again: every movement is known, nothing is written.
    Import znovu = pripravit(soubor);
    for (const PolozkaImportu& p : znovu.polozky) {
        EXPECT_TRUE(p.importovano);
        EXPECT_EQ(p.navrh.duvod, u8("Už importováno"));
    }
    znovu.polozky[1].akce = Akce::PRIJEM_VYDEJ;  // even when asked, a known movement is skipped
    znovu.polozky[1].predkontace = "V008";
    ASSERT_EQ(zapsatImport(*m_model, znovu, &zapsano), "");
    EXPECT_EQ(zapsano, 0);
    EXPECT_EQ(scalar("SELECT count(*) FROM denik"), 2);
    EXPECT_EQ(scalar("SELECT count(*) FROM uhrada"), 1);
}

TEST_F(VypisImport, APayersInvoiceGetsBaseAndVatEntries) {
    platce();
    const int fv = faktura("FV20260001", "20260001", 1210, 210, kontakt("Novák"));
    // Half now, the rest in a later statement.
    Import imp = pripravit(gpc({{"000000060500", "2", "0020260001", "0000000123456789", "0000000000001"}}));
    ASSERT_EQ(imp.polozky[0].navrh.druh, DruhNavrhu::CASTECNY);
    EXPECT_EQ(imp.polozky[0].akce, Akce::PRESKOCIT);  // a partial payment waits for the user's tick
    imp.polozky[0].akce = Akce::UHRADA;
    imp.polozky[0].doklad = imp.polozky[0].navrh.doklad;
    ASSERT_EQ(zapsatImport(*m_model, imp), "");
    EXPECT_FALSE(m_model->isFakturaUhrazena(fv));
    EXPECT_DOUBLE_EQ(m_model->uhrazenoByFakturaId(fv), 605);
    EXPECT_EQ(text("SELECT group_concat(p.zkratka || '=' || d.castka, ' ') FROM denik d "
                   "JOIN predkontace p ON p.id=d.predkontaceid ORDER BY d.id"),
              "P002=500.0 P102=105.0");

    Import druhy = pripravit(gpc({{"000000060500", "2", "0020260001", "0000000123456789", "0000000000009"}}, "004"));
    ASSERT_EQ(druhy.polozky[0].navrh.druh, DruhNavrhu::PRESNY);
    ASSERT_EQ(zapsatImport(*m_model, druhy), "");
    EXPECT_TRUE(m_model->isFakturaUhrazena(fv));
    EXPECT_EQ(scalar("SELECT count(*) FROM uhrada WHERE fakturaid=" + wxString::Format("%d", fv)), 4);
    EXPECT_EQ(scalar("SELECT count(*) FROM denik WHERE vypis=4"), 2);
}

TEST_F(VypisImport, AnAccountThatPaidBeforeIdentifiesTheCustomer) {
    const int k = kontakt("Novák");
    faktura("FV20260001", "20260001", 1000, 0, k);
    const int druha = faktura("FV20260002", "20260002", 650, 0, k);
    faktura("FV20260003", "20260003", 650, 0, kontakt("Jiný"));
    ASSERT_EQ(zapsatImport(*m_model,
                           pripravit(gpc({{"000000100000", "2", "0020260001", "0000000123456789", "0000000000001"}}))),
              "");
    // No symbol this time; the account that paid Novák's first invoice settles the tie.
    Import imp = pripravit(gpc({{"000000065000", "2", "0000000000", "0000000123456789", "0000000000002"}}, "004"));
    ASSERT_EQ(imp.polozky[0].navrh.druh, DruhNavrhu::UCET);
    ASSERT_EQ(zapsatImport(*m_model, imp), "");
    EXPECT_TRUE(m_model->isFakturaUhrazena(druha));
}

TEST_F(VypisImport, OneBadMovementWritesNothingAndAnotherAccountIsRefused) {
    const int fv = faktura("FV20260001", "20260001", 1210, 0, kontakt("Novák"));
    Import imp = pripravit(gpc({{"000000121000", "2", "0020260001", "0000000123456789", "0000000000001"},
                                {"000000005000", "1", "0000000000", "0000000000000000", "0000000000002"}}));
    imp.polozky[1].akce = Akce::PRIJEM_VYDEJ;
    imp.polozky[1].predkontace = "P002";  // an income pre-posting for money going out
    const wxString chyba = zapsatImport(*m_model, imp);
    EXPECT_TRUE(chyba.StartsWith(u8("Pohyb 15.01.2026 50,00: Předkontace"))) << chyba;
    EXPECT_FALSE(m_model->isFakturaUhrazena(fv));
    EXPECT_EQ(scalar("SELECT count(*) FROM denik"), 0);
    EXPECT_EQ(scalar("SELECT count(*) FROM uhrada"), 0);

    Vypis cizi;
    cizi.ucet = "19-999/0800";
    EXPECT_EQ(kontrolaUctu(m_model->getBanka(1), cizi),
              u8("Výpis je pro účet 19-999/0800, ne pro účet BU1 (19-2000145399/0800)"));
    cizi.ucet = "19-2000145399";
    EXPECT_EQ(kontrolaUctu(m_model->getBanka(1), cizi, "CZK"), "");
    cizi.mena = "EUR";
    EXPECT_EQ(kontrolaUctu(m_model->getBanka(1), cizi, "CZK"), u8("Výpis je v měně EUR, účet BU1 je veden v CZK"));
}

TEST_F(VypisImport, CommandLineProposesWritesOnceAndRefusesABrokenStatement) {
    faktura("FV20260001", "20260001", 1210, 0, kontakt("Novák"));
    const wxString db = m_model->databasePath();
    m_model->closeDatabase();
    auto zapsat = [&](const char* nazev, const std::string& obsah) {
        const wxString path = m_home + "/" + nazev;
        wxFFile(path, "wb").Write(obsah.data(), obsah.size());
        return path;
    };
    const wxString dobry = zapsat("vypis.gpc", gpc({{"000000121000", "2", "0020260001", "0000000123456789",
                                                     "0000000000001"}}));
    std::string spatny = gpc({{"000000121000", "3", "0020260001", "0000000123456789", "0000000000001"}});
    const wxString vadny = zapsat("vadny.gpc", spatny);

    const CliResult navrh = runCli("import-vypis " + db + " " + dobry + " --jen-navrh");
    EXPECT_EQ(navrh.status, 0) << navrh.output;
    EXPECT_EQ(navrh.output, std::string(u8("15.01.2026  1\u00A0210,00  VS 20260001  123456789/0800  FV20260001  "
                                           "VS a částka souhlasí  [zapsat]\nJen návrh, nic nebylo zapsáno.\n")
                                            .utf8_str()));
    const CliResult zapis = runCli("import-vypis " + db + " " + dobry + " --ucet BU1");
    EXPECT_EQ(zapis.status, 0) << zapis.output;
    EXPECT_NE(zapis.output.find(u8("Zapsáno pohybů: 1, výpis č. 3 na účet BU1").utf8_str()), std::string::npos)
        << zapis.output;
    const CliResult znovu = runCli("import-vypis " + db + " " + dobry);
    EXPECT_NE(znovu.output.find(u8("[importováno]\nZapsáno pohybů: 0").utf8_str()), std::string::npos) << znovu.output;

    const CliResult chyba = runCli("import-vypis " + db + " " + vadny);
    EXPECT_EQ(chyba.status, 1);
    EXPECT_EQ(chyba.output, std::string(u8("Řádek 2: neznámý kód účtování „3“\n").utf8_str()));

    ASSERT_TRUE(m_model->openDatabase(db));
    EXPECT_EQ(scalar("SELECT count(*) FROM uhrada"), 1);
    EXPECT_EQ(scalar("SELECT count(*) FROM denik"), 1);
}
