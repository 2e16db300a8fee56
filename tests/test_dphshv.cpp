// The EC sales list computed from the books: rows per customer's VAT id and code of supply,
// values in crowns rounded up, the follow-up list started from a saved one, and the XML.
#include <gtest/gtest.h>
#include <wx/ffile.h>

#include "dph/dphshvfill.h"
#include "dphfixture.h"

namespace {

class Shv : public DphFixture {
 protected:
    void SetUp() override {
        DphFixture::SetUp();
        nastavPlatce();
        for (const auto& [nazev, dic] : {std::pair<const char*, const char*>{"Gamma GmbH", "DE123456789"},
                                         {"Delta AE", "GR987654321"}, {"Epsilon", ""}})
            m_model->addKontaktSAdresou(Kontakt(-1, u8(nazev), "", "", dic, "", true, -1), Adresa(-1, "", "", "", "", ""));
    }
    DokladForm prodej(const char* den, const char* druh, double cena, const char* komu, int menaid = 1, double kurz = 1) {
        return dphDoklad(*m_model, DruhDokladu::FAKTURA_VYDANA, den, den, druh, {{0, cena}}, wxString(), u8(komu), menaid,
                         kurz, 2024);
    }
    Dphshv vypocet(const char* forma = "R", int ulozeneId = 0) {
        ShZadani z;
        z.obdobi = DphObdobi::zMesice(2024, 3);
        z.forma = forma;
        z.datumPodani = isoDatum("2024-04-20");
        z.ulozeneId = ulozeneId;
        Dphshv p;
        wxString error;
        EXPECT_TRUE(shv::fillData(*m_model, p, z, &error)) << error;
        return p;
    }
};

TEST_F(Shv, RowsPerCustomerAndCodeInCrownsRoundedUp) {
    const int eur = m_model->getMena("EUR").id() > 0 ? m_model->getMena("EUR").id() : 2;
    prodej("2024-03-01", "R20", 1000.05, "Gamma GmbH");
    prodej("2024-03-02", "R20", 234.05, "Gamma GmbH");           // 1234.10 together → 1235
    prodej("2024-03-03", "R21", 1234.00, "Gamma GmbH");          // services: a second row, code 3
    prodej("2024-03-04", "R20", 100, "Delta AE", eur, 25.125);   // EUR reported in crowns: 2512.50 → 2513
    prodej("2024-03-05", "R31", 50, "Delta AE");                 // triangular trade, code 2
    prodej("2024-03-06", "R20", 999, "Epsilon");                 // no VAT id: no row
    prodej("2024-04-01", "R20", 999, "Gamma GmbH");              // another month
    const Dphshv p = vypocet();
    ASSERT_EQ(p.pocetVet("VetaR"), 4);
    struct { const char* stat; const char* cvat; const char* kod; const char* pocet; const char* hodnota; } rows[] = {
        {"DE", "123456789", "0", "2", "1235"}, {"EL", "987654321", "0", "1", "2513"},
        {"DE", "123456789", "3", "1", "1234"}, {"EL", "987654321", "2", "1", "50"}};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(p.atributValue("VetaR", "c_rad", i), wxString::Format("%d", i + 1));
        EXPECT_EQ(p.atributValue("VetaR", "k_stat", i), rows[i].stat) << i;
        EXPECT_EQ(p.atributValue("VetaR", "c_vat", i), rows[i].cvat) << i;
        EXPECT_EQ(p.atributValue("VetaR", "k_pln_eu", i), rows[i].kod) << i;
        EXPECT_EQ(p.atributValue("VetaR", "pln_pocet", i), rows[i].pocet) << i;
        EXPECT_EQ(p.atributValue("VetaR", "pln_hodnota", i), rows[i].hodnota) << i;
    }
    const std::string xml = p.createXml();
    // The unrounded running total stays inside the program.
    EXPECT_EQ(xml.find("pln_hodnotad"), std::string::npos);
    EXPECT_EQ(lxutils::validateXml(xml, lxutils::xsdDir() + "/dphshv_epo2.xsd"), "");
    const wxString golden = wxString(EVIDA_TEST_DATA) + "/dphshv/brezen.xml";
    if (wxGetenv("EVIDA_UPDATE_GOLDEN")) wxFFile(golden, "wb").Write(xml.data(), xml.size());
    wxString expected;
    ASSERT_TRUE(wxFFile(golden, "rb").ReadAll(&expected, wxConvUTF8));
    EXPECT_EQ(wxString::FromUTF8(xml), expected);
}

TEST_F(Shv, RoundingUpToWholeCrowns) {
    struct { double value; double rounded; } cases[] = {
        {1234.10, 1235}, {1234.00, 1234}, {1234.001, 1234}, {0.01, 1}, {-1234.10, -1234}, {1000.05 + 234.05, 1235}};
    for (const auto& c : cases) EXPECT_EQ(Dphshv::zaokrouhlitNahoru(c.value), c.rounded) << c.value;
}

TEST_F(Shv, FollowUpListStartsFromTheSavedOneAndKeepsCancellations) {
    prodej("2024-03-01", "R20", 1000, "Gamma GmbH");
    Dphshv radne = vypocet();
    ShZadani z;
    z.obdobi = DphObdobi::zMesice(2024, 3);
    const Ulozene u = shv::ulozene(radne, z);
    EXPECT_EQ(u.typ(), 1);
    EXPECT_EQ(u.popis(), u8("Souhrnné hlášení Březen/2024"));
    const int id = m_model->ulozitPodani(u);
    ASSERT_GT(id, 0);

    Dphshv nasledne = vypocet("N", id);
    ASSERT_EQ(nasledne.pocetVet("VetaR"), 1);
    Dphshv::Radek r = nasledne.radek(0);
    EXPECT_EQ(r.hodnota, 1000);
    r.storno = true;
    nasledne.setRadek(0, r);
    nasledne.addVetaR("DE", "123456789", 0, false, 1500.2);
    nasledne.fillVety();
    EXPECT_EQ(nasledne.atributValue("VetaR", "k_storno", 0), "A");
    EXPECT_EQ(nasledne.atributValue("VetaR", "pln_hodnota", 0), "");
    EXPECT_EQ(nasledne.atributValue("VetaR", "pln_hodnota", 1), "1501");
    EXPECT_EQ(nasledne.validate(), "");
    EXPECT_EQ(shv::popis("N", z.obdobi), u8("Následné souhrnné hlášení Březen/2024"));
    // A regular list never carries a cancellation.
    radne.setRadek(0, r);
    radne.fillVety();
    EXPECT_EQ(radne.atributValue("VetaR", "k_storno", 0), "");

    // A saved list that no longer reads is refused with a message, not used half.
    Dphshv p;
    wxString error;
    EXPECT_FALSE(shv::nacistUlozene(*m_model, p, id + 100, &error));
    EXPECT_FALSE(error.empty());
}

TEST_F(Shv, ManyRowsAreNumberedWithinPages) {
    Dphshv p;
    p.setAtributValue("VetaD", "shvies_forma", wxString("R"));
    for (int i = 0; i < 45; ++i) p.addVetaR("DE", wxString::Format("1000000%02d", i), 0, false, 10);
    p.fillVety();
    EXPECT_EQ(p.atributValue("VetaR", "por_c_stran", 0), "1");
    EXPECT_EQ(p.atributValue("VetaR", "c_rad", 19), "20");
    EXPECT_EQ(p.atributValue("VetaR", "por_c_stran", 20), "2");
    EXPECT_EQ(p.atributValue("VetaR", "c_rad", 20), "1");
    EXPECT_EQ(p.atributValue("VetaR", "por_c_stran", 44), "3");
}

}  // namespace
