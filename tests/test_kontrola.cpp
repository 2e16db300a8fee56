// The check before filing: the return and the control statement of a period compared in the
// tax office's pairs, the documents behind a difference, and the documents the statement
// cannot place.
#include <gtest/gtest.h>

#include "dph/kontrola.h"
#include "dphfixture.h"

namespace {

class Kontrola : public DphFixture {
 protected:
    kontrola::Vysledek zkontrolovat() { return kontrola::zkontrolovat(*m_model, DphObdobi::zMesice(2024, 3)); }
    DokladForm prodej(const char* den, double cena, const char* druh = "R1,2", const char* komu = "Beta s.r.o.") {
        return dphDoklad(*m_model, DruhDokladu::FAKTURA_VYDANA, den, den, druh, {{21, cena}}, wxString(), u8(komu), 1, 1,
                         2024);
    }
    void kontakt(const char* nazev, const char* dic) {
        m_model->addKontaktSAdresou(Kontakt(-1, u8(nazev), "", "", dic, "", true, -1), Adresa(-1, "", "", "", "", ""));
    }
};

TEST_F(Kontrola, AgreeingPeriodSaysSoInOneLine) {
    prodej("2024-03-01", 12100);
    prodej("2024-03-02", 1210);
    doklad(DruhDokladu::FAKTURA_PRIJATA, "2024-03-03", "2024-03-03", "R40,41", {{21, 24200}, {12, 1120}});
    const kontrola::Vysledek v = zkontrolovat();
    EXPECT_TRUE(v.vPoradku()) << v.text();
    EXPECT_EQ(v.text(), u8("Přiznání a kontrolní hlášení za Březen/2024 se shodují."));
}

TEST_F(Kontrola, DifferenceListsTheDocumentsBehindIt) {
    // A sale entered as a non-payer's while the company is a payer: the return leaves a row
    // without any payer's document out, the statement lists every document of its sections.
    const DokladForm d = prodej("2024-03-01", 1210);
    Faktura f = m_model->getFaktura(d.id);
    f.setPlatce(false);
    ASSERT_TRUE(m_model->editFaktura(f));
    const kontrola::Vysledek v = zkontrolovat();
    ASSERT_EQ(v.rozdily.size(), 2u) << v.text();
    EXPECT_EQ(v.rozdily[0].nazev, u8("Řádek 1 – základ daně × A.4 + A.5"));
    EXPECT_EQ(v.rozdily[0].priznani, 0);
    EXPECT_DOUBLE_EQ(v.rozdily[0].hlaseni, 1000);
    ASSERT_EQ(v.rozdily[0].doklady.size(), 1u);
    EXPECT_EQ(v.rozdily[0].doklady[0].doklad.cislo, d.cislo);
    EXPECT_EQ(v.rozdily[0].doklady[0].id, d.id);
    EXPECT_DOUBLE_EQ(v.rozdily[0].doklady[0].zaklad, 1000);
    EXPECT_DOUBLE_EQ(v.rozdily[1].hlaseni, 210);  // the tax of row 1
    EXPECT_NE(v.text().Find(d.cislo), wxNOT_FOUND);
    EXPECT_NE(v.text().Find(u8("rozdíl")), wxNOT_FOUND);
}

TEST_F(Kontrola, DocumentOfExactlyTheLimitIsCountedTwiceByTheStatement) {
    const DokladForm d = prodej("2024-03-01", 10000);
    const kontrola::Vysledek v = zkontrolovat();
    ASSERT_FALSE(v.rozdily.empty());
    EXPECT_EQ(v.rozdily[0].doklady.at(0).doklad.cislo, d.cislo);
    EXPECT_EQ(v.rozdily[0].doklady.at(0).vHlaseniKrat, 2);
}

TEST_F(Kontrola, DocumentsTheStatementCannotPlace) {
    kontakt("Bez DIC", "");
    kontakt("Spatne DIC", "CZ123");
    kontakt("Gamma GmbH", "DE12345");
    prodej("2024-03-01", 15000, "R1,2", "Bez DIC");
    prodej("2024-03-02", 15000, "R1,2", "Spatne DIC");
    dphDoklad(*m_model, DruhDokladu::FAKTURA_PRIJATA, "2024-03-03", "2024-03-03", "R3,4", {{21, 1210}}, wxString(),
              u8("Gamma GmbH"), 1, 1, 2024);
    dphDoklad(*m_model, DruhDokladu::FAKTURA_PRIJATA, "2024-03-04", "2024-03-04", "R10,11-4", {{21, 1210}}, wxString(),
              u8("Bez DIC"), 1, 1, 2024);
    const kontrola::Vysledek v = zkontrolovat();
    std::vector<std::pair<wxString, wxString>> nalezene;
    for (const auto& n : v.nezarazene) nalezene.emplace_back(n.sekce, n.duvod);
    const std::vector<std::pair<wxString, wxString>> ocekavane = {
        {"A.2", u8("DIČ „DE12345“ nemá tvar DIČ členského státu EU")},
        {"A.4", u8("DIČ „CZ123“ není platné české DIČ")},
        {"A.4", u8("Doklad nad 10 000 Kč bez DIČ odběratele, kontrolní hlášení ho uvede jen v souhrnu A.5")},
        {"B.1", u8("Chybí DIČ dodavatele")},
    };
    EXPECT_EQ(nalezene, ocekavane) << v.text();
    EXPECT_FALSE(v.vPoradku());
}

}  // namespace

namespace {

// evida-cli writes the same control statement and EC sales list as the wizards, checks the
// period, and refuses what the tax office would not take.
TEST_F(Kontrola, CliExportsAndChecks) {
    nastavPlatce();
    kontakt("Gamma GmbH", "DE123456789");
    prodej("2024-03-01", 12100);
    dphDoklad(*m_model, DruhDokladu::FAKTURA_VYDANA, "2024-03-02", "2024-03-02", "R20", {{0, 1000}}, wxString(),
              u8("Gamma GmbH"), 1, 1, 2024);
    const wxString path = m_model->databasePath();
    m_model->closeDatabase();
    struct {
        const char* args;
        int status;
        const char* output;
    } cases[] = {
        {"export dphkh1 %s --rok 2024 --mesic 3 --datum 20.4.2024", 0, "dic_odb=\"27082440\""},
        {"export dphkh1 %s --rok 2024 --ctvrtleti 1 --forma N", 0, "khdph_forma=\"N\""},
        {"export dphkh1 %s --rok 2024 --mesic 4", 1, "Nulové kontrolní hlášení se nepodává."},
        {"export dphkh1 %s --rok 2024 --mesic 3 --forma D", 1, "Forma kontrolního hlášení musí být B, O, N nebo E"},
        {"export dphshv %s --rok 2024 --mesic 3", 0, "pln_hodnota=\"1000\""},
        {"export dphshv %s --rok 2024 --mesic 4", 1, "Nejsou žádné doklady pro vybrané období"},
        {"export dphshv %s --rok 2024 --mesic 3 --forma N", 1, "Následné hlášení potřebuje uložené souhrnné hlášení"},
        {"export dphshv %s --rok 2024 --od 1.3.2024 --do 5.3.2024", 1, "za měsíc nebo čtvrtletí"},
        {"kontrola %s --rok 2024 --mesic 3", 0, "Přiznání a kontrolní hlášení za Březen/2024 se shodují."},
        {"kontrola %s --rok 2024 --mesic 13", 1, "Neplatný rok nebo měsíc"},
        {"kontrola %s --rok 2024 --forma B", 2, "Použití"},
    };
    for (const auto& c : cases) {
        const CliResult r = runCli(wxString::Format(c.args, path));
        EXPECT_EQ(r.status, c.status) << c.args << "\n" << r.output;
        EXPECT_NE(r.output.find(u8(c.output).utf8_str().data()), std::string::npos) << c.args << "\n" << r.output;
    }
    // A statement from before 2016 does not exist.
    const CliResult r = runCli("export dphkh1 " + path + " --rok 2015 --mesic 3");
    EXPECT_EQ(r.status, 1);
    EXPECT_NE(r.output.find(u8("Kontrolní hlášení se podává až od roku 2016.").utf8_str().data()), std::string::npos);
}

}  // namespace
