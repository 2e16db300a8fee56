// The rows of the VAT return as people read them: every amount of the filing has exactly one
// place on the form, cells show whole crowns or percentages, and the header and taxpayer texts
// come from the filing's own records.
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "dph/dp3radky.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

TEST(Dp3Radky, EveryAmountOfTheFilingHasExactlyOneCell) {
    std::map<wxString, int> mist;
    for (const auto& oddil : dp3::formOddily()) {
        for (const auto& radek : oddil.radky) {
            EXPECT_EQ(radek.atributy.size(), oddil.sloupce.size()) << radek.cislo;
            for (const char* a : radek.atributy) {
                if (*a) ++mist[a];
            }
        }
    }
    const Dphdp3 vzor;
    size_t vsech = 0;
    for (const char* veta : {"Veta1", "Veta2", "Veta3", "Veta4", "Veta5", "Veta6"}) {
        for (const wxString& a : vzor.atributy(veta)) {
            EXPECT_EQ(mist[a], 1) << a;
            ++vsech;
        }
    }
    EXPECT_EQ(mist.size(), vsech);  // nothing that the filing does not have
}

TEST(Dp3Radky, CellsShowWholeCrownsAndPercentages) {
    const wxString nbsp(wxUniChar(0x00A0));
    struct Pripad {
        const char* atribut;
        double hodnota;
        wxString text;
    };
    const Pripad pripady[] = {
        {"obrat23", 1002, "1" + nbsp + "002"},
        {"dan23", -500, "-500"},
        {"dod_zb", 1234567, "1" + nbsp + "234" + nbsp + "567"},
        {"dano_no", 0, "0"},  // stored although zero: the form shows it
        {"koef_p20_nov", 95.5, "95,50"},
        {"koef_p20_vypor", 60, "60,00"},
        {"vypor_odp", 12.34, "12,34"},  // the settlement change is not rounded
    };
    for (const Pripad& c : pripady) {
        Dphdp3 p;
        EXPECT_EQ(dp3::formHodnota(p, c.atribut), "") << c.atribut;  // empty attribute, empty cell
        p.setAtributValue(Dphdp3::vetaOf(c.atribut), c.atribut, c.hodnota);
        EXPECT_EQ(dp3::formHodnota(p, c.atribut), c.text) << c.atribut;
    }
    EXPECT_EQ(dp3::formHodnota(Dphdp3(), ""), "");
}

TEST(Dp3Radky, PeriodOfTheReturn) {
    Dphdp3 mesic;
    mesic.setAtributValue("VetaD", "rok", 2024);
    mesic.setAtributValue("VetaD", "mesic", 3);
    EXPECT_EQ(dp3::obdobiText(mesic), u8("Březen 2024"));
    Dphdp3 ctvrtleti;
    ctvrtleti.setAtributValue("VetaD", "rok", 2024);
    ctvrtleti.setAtributValue("VetaD", "ctvrt", 2);
    EXPECT_EQ(dp3::obdobiText(ctvrtleti), u8("2. čtvrtletí 2024"));
    Dphdp3 datumy;
    datumy.setAtributValue("VetaD", "zdobd_od", wxDateTime(1, wxDateTime::Jan, 2024));
    datumy.setAtributValue("VetaD", "zdobd_do", wxDateTime(15, wxDateTime::Mar, 2024));
    EXPECT_EQ(dp3::obdobiText(datumy), u8("01.01.2024 – 15.03.2024"));
}

TEST(Dp3Radky, TaxpayerBlockFromTheFilingRecords) {
    Dphdp3 p;
    const std::pair<const char*, const char*> texty[] = {
        {"titul", "Ing."},       {"jmeno", "Jan"},      {"prijmeni", "Novák"},          {"typ_ds", "F"},
        {"dic", "7001011234"},   {"ulice", "Dlouhá"},   {"c_orient", "3a"},             {"psc", "11000"},
        {"naz_obce", "Praha"},   {"stat", "ČESKÁ REPUBLIKA"}, {"email", "jan@example.cz"}};
    for (const auto& [a, v] : texty) p.setAtributValue("VetaP", a, u8(v));
    p.setAtributValue("VetaP", "c_pop", 12);
    p.setAtributValue("VetaP", "c_ufo", 451);
    p.setAtributValue("VetaP", "c_pracufo", 2001);
    std::vector<wxString> radky;
    for (const auto& u : dp3::udajePlatce(p)) radky.push_back(u.popisek + ": " + u.hodnota);
    EXPECT_EQ(radky, (std::vector<wxString>{u8("Jméno a příjmení: Ing. Jan Novák"), u8("DIČ: CZ7001011234"),
                                            u8("Adresa: Dlouhá 12/3a, 110 00 Praha, ČESKÁ REPUBLIKA"),
                                            u8("Správce daně: Finanční úřad 451, územní pracoviště 2001"),
                                            u8("E-mail: jan@example.cz")}));

    // A legal person by its business name; an office without a workplace.
    Dphdp3 firma;
    firma.setAtributValue("VetaP", "typ_ds", wxString("P"));
    firma.setAtributValue("VetaP", "zkrobchjm", u8("Alfa s.r.o."));
    firma.setAtributValue("VetaP", "c_ufo", 451);
    const auto udaje = dp3::udajePlatce(firma);
    ASSERT_EQ(udaje.size(), 3u);
    EXPECT_EQ(udaje[0].popisek + ": " + udaje[0].hodnota, u8("Obchodní firma: Alfa s.r.o."));
    EXPECT_EQ(udaje[1].hodnota, "");  // the DIČ line stays, empty
    EXPECT_EQ(dp3::uradText(firma), u8("Finanční úřad 451"));
}

TEST(Dp3Radky, AttachmentsInTheirOrderWithoutEmptyOnes) {
    Dphdp3 p;
    EXPECT_TRUE(dp3::prilohy(p).empty());
    p.addVetaR(u8("Oprava základu"));
    p.addVetaR(wxString());
    p.addVetaR(u8("Dobropis č. 5"));
    EXPECT_EQ(dp3::prilohy(p), (std::vector<wxString>{u8("Oprava základu"), u8("Dobropis č. 5")}));
}

}  // namespace
