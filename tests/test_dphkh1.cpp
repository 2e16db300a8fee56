// The control statement computed from the books: which section a document lands in (the
// classification's code and the 10 000 limit), the rows and summaries, section C, the zero
// statement, the normalisation of A.4/B.2 rows, and the XML the tax administration accepts.
#include <gtest/gtest.h>
#include <wx/ffile.h>

#include "dph/dic.h"
#include "dph/dphkh1fill.h"
#include "dphfixture.h"

namespace {

class Kh1 : public DphFixture {
 protected:
    void SetUp() override {
        DphFixture::SetUp();
        nastavPlatce();
        m_model->addKontaktSAdresou(Kontakt(-1, u8("Gamma GmbH"), "", "", "DE123456789", "", true, -1),
                                    Adresa(-1, "", "", "", "", ""));
    }
    Dphkh1 vypocet(const char* forma = "B", const char* vyzva = "") {
        Kh1Zadani z;
        z.obdobi = DphObdobi::zMesice(2024, 3);
        z.forma = forma;
        z.datumPodani = isoDatum("2024-04-20");
        z.vyzvaOdp = vyzva;
        if (*vyzva) z.cjVyzvy = "12345678/24/2001-12345-123456";
        Dphkh1 p;
        kh1::fillData(*m_model, p, z);
        return p;
    }
    DokladForm prodej(const char* den, double cena, bool sDic = true, int menaid = 1, double kurz = 1) {
        return doklad(DruhDokladu::FAKTURA_VYDANA, den, den, "R1,2", {{21, cena}}, 2024, menaid, kurz, sDic);
    }
};

TEST_F(Kh1, DocumentsRoutedBySectionAndLimit) {
    const int eur = m_model->getMena("EUR").id() > 0 ? m_model->getMena("EUR").id() : 2;
    ASSERT_GT(eur, 0);
    struct Pripad {
        const char* nazev;
        std::function<DokladForm()> doklad;
        std::vector<kh1::Sekce> sekce;
    };
    using S = kh1::Sekce;
    const std::vector<Pripad> pripady = {
        {"exactly 10 000 with a DIČ: a row in A.4 and counted in A.5", [&] { return prodej("2024-03-01", 10000); },
         {S::A4, S::A5}},
        {"12 000 without a DIČ: A.5 only", [&] { return prodej("2024-03-02", 12000, false); }, {S::A5}},
        {"9 999.99 with a DIČ: A.5 only", [&] { return prodej("2024-03-03", 9999.99); }, {S::A5}},
        {"500 EUR is below the limit whatever its value in crowns", [&] { return prodej("2024-03-04", 500, true, eur, 25); },
         {S::A5}},
        {"a credit note of −15 000 goes on its own row like the invoice it reduces",
         [&] { return prodej("2024-03-05", -15000); }, {S::A4}},
        {"a credit note of −4 000 is summed", [&] { return prodej("2024-03-06", -4000); }, {S::A5}},
        {"an EU acquisition is in A.2 and never in B.2",
         [&] {
             return dphDoklad(*m_model, DruhDokladu::FAKTURA_PRIJATA, "2024-03-07", "2024-03-07", "R3,4", {{21, 36300}},
                              wxString(), u8("Gamma GmbH"), 1, 1, 2024);
         },
         {S::A2}},
        {"a purchase of 20 000 from a payer: B.2",
         [&] { return doklad(DruhDokladu::FAKTURA_PRIJATA, "2024-03-08", "2024-03-08", "R40,41", {{21, 20000}}); },
         {S::B2}},
        {"a liability of 3 000: B.3",
         [&] { return doklad(DruhDokladu::ZAVAZEK, "2024-03-09", "2024-03-09", "R40,41", {{12, 3000}}); }, {S::B3}},
        {"reverse charge supplied: A.1",
         [&] { return doklad(DruhDokladu::FAKTURA_VYDANA, "2024-03-10", "2024-03-10", "R25-4", {{0, 50000}}); },
         {S::A1}},
        {"reverse charge received: B.1",
         [&] { return doklad(DruhDokladu::FAKTURA_PRIJATA, "2024-03-11", "2024-03-11", "R10,11-4", {{21, 1210}}); },
         {S::B1}},
        {"goods to another member state: no section", [&] {
             return doklad(DruhDokladu::FAKTURA_VYDANA, "2024-03-12", "2024-03-12", "R20", {{0, 5000}});
         }, {}},
    };
    const wxDateTime od = isoDatum("2024-03-01"), doDne = isoDatum("2024-03-31");
    for (const Pripad& p : pripady) {
        const DokladForm d = p.doklad();
        for (S s : kh1::sekce()) {
            int pocet = 0;
            for (const DphDoklad& v : kh1::doklady(*m_model, s, od, doDne)) pocet += v.cislo == d.cislo;
            const bool ceka = std::find(p.sekce.begin(), p.sekce.end(), s) != p.sekce.end();
            EXPECT_EQ(pocet, ceka ? 1 : 0) << p.nazev << " in " << kh1::kod(s);
        }
    }
}

TEST_F(Kh1, RowsSummariesSectionCAndGoldenXml) {
    prodej("2024-03-01", 12100);                                                                  // A.4
    doklad(DruhDokladu::FAKTURA_VYDANA, "2024-03-02", "2024-03-02", "R1,2", {{21, 1210}, {12, 560}, {0, 100}});  // A.5
    prodej("2024-03-03", -12100);                                                                 // A.4 credit note
    doklad(DruhDokladu::FAKTURA_PRIJATA, "2024-03-04", "2024-03-05", "R40,41", {{21, 24200}, {12, 1120}});  // B.2
    doklad(DruhDokladu::FAKTURA_PRIJATA, "2024-03-06", "2024-03-06", "R10,11-4", {{21, 1210}});  // B.1
    doklad(DruhDokladu::FAKTURA_VYDANA, "2024-03-07", "2024-03-07", "R25-4", {{0, 50000}});      // A.1
    dphDoklad(*m_model, DruhDokladu::FAKTURA_PRIJATA, "2024-03-08", "2024-03-09", "R3,4", {{21, 1210}}, wxString(),
              u8("Gamma GmbH"), 1, 1, 2024);                                                      // A.2
    const Dphkh1 p = vypocet();
    EXPECT_EQ(p.pocetVet("VetaA4"), 2);
    EXPECT_EQ(p.atributValue("VetaA4", "dic_odb"), "27082440");
    EXPECT_EQ(p.atributValue("VetaA4", "zakl_dane1", 1), "-10000");
    EXPECT_EQ(p.atributValue("VetaA4", "zdph_44"), "N");
    EXPECT_EQ(p.atributValue("VetaA4", "kod_rezim_pl"), "0");
    // The zero-rate line of the A.5 document is an exempt supply: not in the rate positions.
    EXPECT_EQ(p.atributValue("VetaA5", "zakl_dane1"), "1000");
    EXPECT_EQ(p.atributValue("VetaA5", "zakl_dane2"), "500");
    EXPECT_EQ(p.atributValue("VetaA5", "dan2"), "60");
    EXPECT_EQ(p.atributValue("VetaA5", "zakl_dane3"), "");
    EXPECT_EQ(p.atributValue("VetaB2", "pomer"), "N");
    EXPECT_EQ(p.atributValue("VetaB2", "dppd"), "05.03.2024");
    EXPECT_EQ(p.atributValue("VetaB1", "kod_pred_pl"), "4");
    EXPECT_EQ(p.atributValue("VetaA1", "zakl_dane1"), "50000");
    EXPECT_EQ(p.atributValue("VetaA2", "k_stat"), "DE");
    EXPECT_EQ(p.atributValue("VetaA2", "vatid_dod"), "123456789");
    struct { const char* atribut; const char* hodnota; } vetaC[] = {
        {"obrat23", "1000"}, {"obrat5", "500"}, {"pln23", "20000"}, {"pln5", "1000"},
        {"pln_rez_pren", "50000"}, {"rez_pren23", "1000"}, {"rez_pren5", ""}, {"celk_zd_a2", "1000"}};
    for (const auto& c : vetaC) EXPECT_EQ(p.atributValue("VetaC", c.atribut), c.hodnota) << c.atribut;
    EXPECT_FALSE(p.isNulove());

    const std::string xml = p.createXml();
    EXPECT_EQ(lxutils::validateXml(xml, lxutils::xsdDir() + "/dphkh1_epo2.xsd"), "");
    const wxString golden = wxString(EVIDA_TEST_DATA) + "/dphkh1/brezen.xml";
    if (wxGetenv("EVIDA_UPDATE_GOLDEN")) wxFFile(golden, "wb").Write(xml.data(), xml.size());
    wxString expected;
    ASSERT_TRUE(wxFFile(golden, "rb").ReadAll(&expected, wxConvUTF8));
    EXPECT_EQ(wxString::FromUTF8(xml), expected);

    Dphkh1 zpet;
    ASSERT_TRUE(zpet.readFromString(p.saveToString()));
    EXPECT_EQ(zpet.createXml(), xml);
}

TEST_F(Kh1, ZeroStatementQuickAnswerAndSaving) {
    EXPECT_TRUE(vypocet().isNulove());
    prodej("2024-03-01", 500);
    EXPECT_FALSE(vypocet().isNulove());
    // A quick answer carries the header and the taxpayer only, and is valid as it is.
    const Dphkh1 odpoved = vypocet("N", Dphkh1::VYZVA_NULOVE);
    EXPECT_EQ(odpoved.pocetVet("VetaA5"), 1);
    EXPECT_TRUE(odpoved.isNulove());
    EXPECT_EQ(odpoved.atributValue("VetaD", "vyzva_odp"), "B");
    EXPECT_EQ(odpoved.atributValue("VetaD", "khdph_forma"), "N");
    EXPECT_EQ(odpoved.validate(), "");

    Kh1Zadani z;
    z.obdobi = DphObdobi::zCtvrtleti(2024, 1);
    z.forma = Dphkh1::RADNE_OPRAVNE;
    Dphkh1 p;
    kh1::fillData(*m_model, p, z);
    EXPECT_EQ(p.atributValue("VetaD", "ctvrt"), "1");
    EXPECT_EQ(p.atributValue("VetaD", "mesic"), "");
    const Ulozene u = kh1::ulozene(p, z);
    EXPECT_EQ(u.typ(), 2);
    EXPECT_EQ(u.forma(), "O");
    EXPECT_EQ(u.popis(), u8("Řádné opravné kontrolní hlášení 1. čtvrtletí/2024"));
    const int id = m_model->ulozitPodani(u);
    ASSERT_GT(id, 0);
    Dphkh1 nactene;
    ASSERT_TRUE(nactene.readFromString(m_model->ulozeneXml(id)));
    EXPECT_EQ(nactene.soucet("VetaA5", "zakl_dane1"), p.soucet("VetaA5", "zakl_dane1"));
}

TEST_F(Kh1, RowNormalisationOfA4AndB2) {
    struct {
        const char* veta;
        const char* zdph;
        const char* obdobi;
        const char* pomer;
        const char* zdphPo;
        const char* pomerPo;
    } cases[] = {
        {"VetaA4", "", "2024-03-01", "", "N", ""},
        {"VetaA4", "a", "2019-03-01", "", "A", ""},  // the old § 44 mark stays in its time
        {"VetaA4", "A", "2019-04-01", "", "P", ""},  // and becomes the current law's after
        {"VetaA4", "X", "2024-03-01", "", "N", ""},
        {"VetaB2", "P", "2024-03-01", "", "P", "N"},
        {"VetaB2", "N", "2024-03-01", "a", "N", "A"},
    };
    for (const auto& c : cases) {
        Dphkh1 p;
        const int i = p.addVeta(c.veta);
        p.setAtributValue(c.veta, "zdph_44", wxString(c.zdph), i);
        p.setAtributValue(c.veta, "pomer", wxString(c.pomer), i);
        p.setCastka(c.veta, "zakl_dane2", 100.004, i);
        p.setCastka(c.veta, "dan2", 12, i);
        p.fixVetaA4B2(c.veta, i, isoDatum(c.obdobi));
        EXPECT_EQ(p.atributValue(c.veta, "zdph_44", i), c.zdphPo) << c.veta << c.zdph << c.obdobi;
        EXPECT_EQ(p.atributValue(c.veta, "pomer", i), c.pomerPo) << c.veta;
        // The empty first pair is written as zeros, the empty third one not at all.
        EXPECT_EQ(p.atributValue(c.veta, "zakl_dane1", i), "0");
        EXPECT_EQ(p.atributValue(c.veta, "zakl_dane2", i), "100");
        EXPECT_EQ(p.atributValue(c.veta, "zakl_dane3", i), "");
    }
}

TEST(Dic, SplitAndFormats) {
    struct {
        const char* text;
        const char* stat;
        const char* cislo;
        bool platnaEu;
    } cases[] = {
        {"CZ 270 824 40", "CZ", "27082440", true}, {"27082440", "CZ", "27082440", true},
        {"cz7001011234", "CZ", "7001011234", true}, {"CZ1234567", "CZ", "1234567", false},
        {"GR123456789", "EL", "123456789", true},  {"EL123456789", "EL", "123456789", true},
        {"DE 123.456.789", "DE", "123456789", true}, {"DE12345678", "DE", "12345678", false},
        {"ATU12345678", "AT", "U12345678", true},   {"NL123456789B01", "NL", "123456789B01", true},
        {"US123456789", "US", "123456789", false},  {"SK2020123456", "SK", "2020123456", true},
    };
    for (const auto& c : cases) {
        const RozdelenaDic d = dic::rozdel(c.text);
        EXPECT_EQ(d.stat, c.stat) << c.text;
        EXPECT_EQ(d.cislo, c.cislo) << c.text;
        EXPECT_EQ(dic::isPlatnaEu(d), c.platnaEu) << c.text;
    }
}

}  // namespace
