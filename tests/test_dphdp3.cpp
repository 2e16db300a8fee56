// The VAT return computed from the books: form rows per classification, rounding at storing,
// the derived rows, supplementary returns, the settlement coefficient, the XML the tax
// administration accepts (checked against its schema) and the saved filings.
#include <gtest/gtest.h>
#include <wx/ffile.h>
#include <wx/filename.h>

#include <clocale>

#include "dph/dphdp3fill.h"
#include "dphfixture.h"

namespace {

class Dp3 : public DphFixture {
 protected:
    void SetUp() override {
        DphFixture::SetUp();
        nastavPlatce();
    }
    Dphdp3 vypocet(int mesic, const char* forma = "B", double koef = 0) {
        Dp3Zadani z;
        z.obdobi = DphObdobi::zMesice(2024, mesic);
        z.forma = forma;
        z.datumPodani = isoDatum("2024-04-20");
        z.koefP20Nov = koef;
        Dphdp3 p;
        wxString error;
        EXPECT_TRUE(dp3::fillData(*m_model, p, z, &error)) << error;
        return p;
    }
};

TEST_F(Dp3, RowsFromClassificationsRoundedOnceAndDerived) {
    // Two sales of 0.26 crowns of VAT each: 0.52 in the sum, counted as 1 crown, not 0 + 0.
    doklad(DruhDokladu::FAKTURA_VYDANA, "2024-03-05", "2024-03-05", "R1,2", {{21, 1210}, {12, 112}});
    doklad(DruhDokladu::FAKTURA_VYDANA, "2024-03-06", "2024-03-06", "R1,2", {{21, 1.50}});
    doklad(DruhDokladu::FAKTURA_VYDANA, "2024-03-07", "2024-03-07", "R1,2", {{21, 1.50}});
    doklad(DruhDokladu::FAKTURA_VYDANA, "2024-03-08", "2024-03-08", "R20", {{0, 5000}});
    doklad(DruhDokladu::FAKTURA_PRIJATA, "2024-02-25", "2024-03-02", "R40,41", {{21, 242}});
    doklad(DruhDokladu::ZAVAZEK, "2024-03-10", "2024-03-10", "R40,41-K", {{21, 605}});
    doklad(DruhDokladu::FAKTURA_PRIJATA, "2024-03-11", "2024-03-11", "R3,4,43,44", {{21, 121}});
    const Dphdp3 p = vypocet(3, "B", 60);
    struct { const char* atribut; double castka; } ocekavane[] = {
        {"obrat23", 1002}, {"dan23", 211}, {"obrat5", 100}, {"dan5", 12},
        {"dod_zb", 5000}, {"pln23", 700}, {"odp_tuz23_nar", 42}, {"odp_tuz23", 105},
        {"p_zb23", 100}, {"dan_pzb23", 21}, {"nar_zdp23", 100}, {"od_zdp23", 21},
        {"odp_sum_nar", 63}, {"odp_sum_kr", 105}, {"odp_uprav_kf", 63}, {"koef_p20_nov", 60},
        {"dan_zocelk", 244}, {"odp_zocelk", 126}, {"dano_da", 118},
    };
    for (const auto& o : ocekavane) EXPECT_DOUBLE_EQ(p.castka(o.atribut), o.castka) << o.atribut;
    EXPECT_EQ(p.atributValue("Veta6", "dano_no"), "");
    EXPECT_EQ(p.atributValue("Veta1", "obrat23"), "1002");
    EXPECT_EQ(p.atributValue("Veta4", "odp_tuz5"), "");  // zero sums are not stored
    EXPECT_EQ(p.atributValue("VetaD", "mesic"), "3");
    EXPECT_EQ(p.atributValue("VetaD", "trans"), "A");
    EXPECT_EQ(p.atributValue("VetaP", "dic"), "7001011234");
    EXPECT_EQ(p.atributValue("VetaP", "typ_ds"), "F");
    EXPECT_EQ(p.atributValue("VetaP", "psc"), "11000");
    EXPECT_EQ(p.validate(), "");
}

TEST_F(Dp3, RoundingHalfAwayFromZeroAndEqualTotals) {
    struct { double sum; const char* stored; } cases[] = {{0.5, "1"}, {-0.5, "-1"}, {2.5, "3"}, {-2.5, "-3"},
                                                          {0.49, ""}, {-0.4, ""}, {1234.5, "1235"}};
    for (const auto& c : cases) {
        Dphdp3 p;
        p.setCastka("dan23", c.sum);
        EXPECT_EQ(p.atributValue("Veta1", "dan23"), c.stored) << c.sum;
    }
    Dphdp3 p;
    p.setCastka("dan23", 1000);
    p.setCastka("odp_tuz23_nar", 1000);
    p.fillRadek46();
    p.fillVeta6();
    EXPECT_EQ(p.atributValue("Veta6", "dano_no"), "0");
    EXPECT_EQ(p.atributValue("Veta6", "dano_da"), "");
}

TEST_F(Dp3, ReducedRatesOf2015AreBothInRowOne) {
    ASSERT_TRUE(m_model->addObdobi(Obdobi(2015, false)));
    ASSERT_TRUE(m_model->setCurrentRok(2015));
    doklad(DruhDokladu::FAKTURA_VYDANA, "2015-05-05", "2015-05-05", "R1,2", {{15, 115}, {10, 110}}, 2015);
    Dp3Zadani z;
    z.obdobi = DphObdobi::zCtvrtleti(2015, 2);
    Dphdp3 p;
    ASSERT_TRUE(dp3::fillData(*m_model, p, z));
    EXPECT_DOUBLE_EQ(p.castka("obrat5"), 200);
    EXPECT_DOUBLE_EQ(p.castka("dan5"), 25);
    EXPECT_EQ(p.atributValue("VetaD", "ctvrt"), "2");
    EXPECT_EQ(p.atributValue("VetaD", "mesic"), "");
}

TEST_F(Dp3, EmptyPeriodHasHeaderAndTaxpayerOnly) {
    const Dphdp3 p = vypocet(7);
    EXPECT_EQ(p.atributValue("Veta6", "dano_no"), "0");
    EXPECT_EQ(p.atributValue("VetaD", "trans"), "N");
    for (const char* veta : {"Veta1", "Veta2", "Veta3", "Veta4", "Veta5"}) {
        for (const wxString& a : p.atributy(veta)) EXPECT_EQ(p.atributValue(veta, a), "") << a;
    }
    EXPECT_EQ(p.validate(), "");
}

TEST_F(Dp3, XmlRoundTripAndLocaleIndependentNumbers) {
    doklad(DruhDokladu::FAKTURA_VYDANA, "2024-03-05", "2024-03-05", "R1,2", {{21, 1210}});
    Dphdp3 p = vypocet(3, "B", 95.5);
    const char* stary = std::setlocale(LC_ALL, "cs_CZ.UTF-8");
    const std::string xml = p.createXml();
    if (stary) std::setlocale(LC_ALL, "C");
    EXPECT_NE(xml.find("<Pisemnost nazevSW=\"evida\" verzeSW=\"1.40.14\">"), std::string::npos);
    EXPECT_NE(xml.find("koef_p20_nov=\"95.5\""), std::string::npos) << xml;
    EXPECT_NE(xml.find("d_poddp=\"20.04.2024\""), std::string::npos);
    EXPECT_LT(xml.find("<VetaD"), xml.find("<VetaP"));
    EXPECT_LT(xml.find("<VetaP"), xml.find("<Veta1"));
    EXPECT_EQ(xml.find("dano_da=\"\""), std::string::npos);  // empty attributes are left out
    Dphdp3 nacteny;
    ASSERT_TRUE(nacteny.readFromString(p.saveToString()));
    EXPECT_EQ(nacteny.createXml(), xml);

    wxString error;
    EXPECT_FALSE(nacteny.readFromString("<Pisemnost><DPHKH1/></Pisemnost>", &error));
    EXPECT_FALSE(nacteny.readFromString("nesmysl <", &error));
    EXPECT_EQ(nacteny.createXml(), xml);  // a refused text changes nothing
}

TEST_F(Dp3, InvalidFilingIsNotWrittenAndSaysWhy) {
    Priznani bezUradu = m_model->priznani();
    bezUradu.setC_ufo(0);
    bezUradu.setJmeno(u8("Jméno, které je mnohem delší než třicet znaků"));
    ASSERT_TRUE(m_model->setPriznani(bezUradu));
    const Dphdp3 p = vypocet(3);
    const wxString path = wxFileName::GetTempDir() + "/evida-dp3-invalid.xml";
    wxRemoveFile(path);
    wxString error;
    EXPECT_FALSE(p.saveToXml(path, &error));
    EXPECT_FALSE(wxFileExists(path));
    EXPECT_NE(error.Find(u8("Věta VetaP, údaj c_ufo: chybí povinný údaj")), wxNOT_FOUND) << error;
    EXPECT_NE(error.Find(u8("Věta VetaP, údaj jmeno: text je delší než 30 znaků")), wxNOT_FOUND) << error;
}

TEST_F(Dp3, SupplementaryReturnHoldsDifferences) {
    doklad(DruhDokladu::FAKTURA_VYDANA, "2024-03-05", "2024-03-05", "R1,2", {{21, 1210}});
    Dphdp3 radne = vypocet(3, "B", 50);
    Dp3Zadani z;
    z.obdobi = DphObdobi::zMesice(2024, 3);
    const int id = m_model->ulozitPodani(dp3::ulozene(radne, z));
    ASSERT_GT(id, 0);
    doklad(DruhDokladu::FAKTURA_VYDANA, "2024-03-20", "2024-03-20", "R1,2", {{21, 363}});
    z.forma = "D";
    z.ulozeneId = id;
    z.koefP20Nov = 50;
    z.dzjist = isoDatum("2024-05-02");
    z.duvod = u8("Opomenutá faktura \"A&B\"");
    Dphdp3 dodatecne;
    ASSERT_TRUE(dp3::fillData(*m_model, dodatecne, z));
    EXPECT_DOUBLE_EQ(dodatecne.castka("obrat23"), 300);
    EXPECT_DOUBLE_EQ(dodatecne.castka("dan23"), 63);
    EXPECT_DOUBLE_EQ(dodatecne.castka("dano"), 63);
    EXPECT_EQ(dodatecne.atributValue("Veta5", "koef_p20_nov"), "50");
    EXPECT_EQ(dodatecne.atributValue("Veta6", "dano_da"), "");
    EXPECT_EQ(dodatecne.atributValue("VetaD", "d_zjist"), "02.05.2024");
    EXPECT_EQ(dodatecne.atributValue("VetaR", "t_prilohy"), u8("Opomenutá faktura \"A&B\""));
    EXPECT_EQ(dodatecne.validate(), "");
    z.ulozeneId = id + 100;
    wxString error;
    EXPECT_FALSE(dp3::fillData(*m_model, dodatecne, z, &error));
    EXPECT_FALSE(error.empty());
}

TEST_F(Dp3, SavedFilingsReplaceSameRegularAddSupplementary) {
    Dp3Zadani z;
    z.obdobi = DphObdobi::zMesice(2024, 3);
    const Dphdp3 p = vypocet(3);
    const int prvni = m_model->ulozitPodani(dp3::ulozene(p, z));
    EXPECT_EQ(m_model->ulozitPodani(dp3::ulozene(p, z)), prvni);
    EXPECT_EQ(m_model->getUlozeneCount(), 1);
    EXPECT_EQ(m_model->getUlozene(prvni).popis(), u8("Řádné přiznání Březen/2024"));
    z.forma = "D";
    const int d1 = m_model->ulozitPodani(dp3::ulozene(p, z));
    const int d2 = m_model->ulozitPodani(dp3::ulozene(p, z));
    EXPECT_NE(d1, d2);
    EXPECT_EQ(m_model->getUlozeneCount(), 3);
    EXPECT_EQ(m_model->ulozeneDphDp3(2024, true).size(), 1u);
    EXPECT_EQ(m_model->ulozeneDphDp3(2024, false).size(), 3u);
    EXPECT_FALSE(m_model->someUlozeneDphDp3(2023, false));
    EXPECT_TRUE(m_model->hasUlozene(0, "D", 0, z.obdobi.od, z.obdobi.doDne));
    EXPECT_EQ(m_model->ulozeneXml(prvni), p.saveToString());
}

TEST(Dp3Vyporadani, CoefficientAndChangeOfDeduction) {
    Dphdp3 leden, aktualni;
    leden.setCastka("obrat23", 800);
    leden.setCastka("plnosv_kf", 200);
    leden.setCastka("odp_sum_kr", 100);
    leden.setCastka("odp_uprav_kf", 70);
    aktualni.setCastka("obrat23", 700);
    aktualni.setCastka("plnosv_kf", 300);
    aktualni.setCastka("odp_sum_kr", 101);
    dp3::Vyporadani v;
    ASSERT_TRUE(dp3::vypocetVyporadani({leden}, aktualni, 70, &v));
    EXPECT_DOUBLE_EQ(v.koeficient, 75);  // 1500 / 2000
    // 201 × 0.75 − (70 + round(101 × 0.7 = 70.7) = 71)
    EXPECT_NEAR(v.zmenaOdpoctu, 150.75 - 141, 1e-9);
    EXPECT_FALSE(dp3::vypocetVyporadani({}, Dphdp3(), 70, &v));
}

}  // namespace

namespace {

// evida-cli computes the same return as the wizard and refuses what the tax office would.
TEST_F(Dp3, CliExportsTheSameValidReturn) {
    doklad(DruhDokladu::FAKTURA_VYDANA, "2024-03-05", "2024-03-05", "R1,2", {{21, 1210}});
    const wxString path = m_model->databasePath();
    const std::string expected = vypocet(3, "B").createXml();
    m_model->closeDatabase();
    const CliResult r = runCli("export dphdp3 " + path + " --rok 2024 --mesic 3 --datum 20.4.2024");
    EXPECT_EQ(r.status, 0) << r.output;
    EXPECT_EQ(r.output, expected);
    const CliResult q = runShell("LC_ALL=cs_CZ.UTF-8 EVIDA_CLI export dphdp3 " + path +
                                 " --rok 2024 --od 1.1.2024 --do 31.3.2024 --forma B");
    EXPECT_EQ(q.status, 0) << q.output;
    EXPECT_NE(q.output.find("zdobd_od=\"01.01.2024\""), std::string::npos) << q.output;
    EXPECT_NE(q.output.find("obrat23=\"1000\""), std::string::npos);

    struct { const char* args; int status; const char* message; } refused[] = {
        {" --rok 2024 --mesic 13", 1, "Neplatný rok nebo měsíc"},
        {" --rok 2024", 1, "Zadejte období"},
        {" --rok 2024 --mesic 3 --forma X", 1, "Forma přiznání musí být B, O, D nebo E"},
        {" --rok 2024 --mesic 3 --forma D", 1, "Dodatečné přiznání potřebuje uložené přiznání"},
        {" --rok 2024 --mesic", 2, "Použití"},
    };
    for (const auto& c : refused) {
        const CliResult bad = runCli("export dphdp3 " + path + c.args);
        EXPECT_EQ(bad.status, c.status) << c.args;
        EXPECT_NE(bad.output.find(u8(c.message).utf8_str().data()), std::string::npos) << bad.output;
    }
}

}  // namespace

namespace {

// The whole XML of small companies' returns against files checked by hand; each is valid by
// the official schema. EVIDA_UPDATE_GOLDEN=1 rewrites the files after a deliberate change.
void porovnejSeVzorem(const Dphdp3& p, const char* name) {
    const wxString path = wxString(EVIDA_TEST_DATA) + "/dphdp3/" + name;
    const std::string xml = p.createXml();
    EXPECT_EQ(lxutils::validateXml(xml, lxutils::xsdDir() + "/dphdp3_epo2.xsd"), "") << name;
    if (wxGetenv("EVIDA_UPDATE_GOLDEN")) {
        wxFFile out(path, "wb");
        out.Write(xml.data(), xml.size());
    }
    EXPECT_EQ(xml, fileBytes(path)) << name;
}

TEST_F(Dp3, GoldenReturnsOfSmallCompanies) {
    // A craftsman's March: sales at both rates, a purchase, a reduced-deduction car lease,
    // construction work under reverse charge received, goods to Germany, an exempt rent.
    doklad(DruhDokladu::FAKTURA_VYDANA, "2024-03-04", "2024-03-04", "R1,2", {{21, 24200}, {12, 5600}});
    doklad(DruhDokladu::FAKTURA_PRIJATA, "2024-02-28", "2024-03-01", "R40,41", {{21, 12100}});
    doklad(DruhDokladu::ZAVAZEK, "2024-03-15", "2024-03-15", "R40,41-K", {{21, 7260}});
    doklad(DruhDokladu::FAKTURA_PRIJATA, "2024-03-18", "2024-03-18", "R10,11,43,44-4", {{21, 36300}});
    doklad(DruhDokladu::FAKTURA_VYDANA, "2024-03-20", "2024-03-20", "R20", {{0, 48000}});
    doklad(DruhDokladu::POHLEDAVKA, "2024-03-31", "2024-03-31", "R50", {{0, 9000}});
    porovnejSeVzorem(vypocet(3, "B", 85), "brezen2024.xml");

    // The last quarter with nothing but a purchase: an excess deduction, and the payer goes
    // monthly next year.
    doklad(DruhDokladu::FAKTURA_PRIJATA, "2024-11-02", "2024-11-06", "R40,41", {{12, 1120}});
    Dp3Zadani z;
    z.obdobi = DphObdobi::zCtvrtleti(2024, 4);
    z.datumPodani = isoDatum("2025-01-20");
    z.kodZo = "M";
    Dphdp3 q;
    ASSERT_TRUE(dp3::fillData(*m_model, q, z));
    porovnejSeVzorem(q, "ctvrtleti4-2024.xml");
}

}  // namespace
