// The printed control statement: marked as a check print on every page, the office, kind and
// its details, title and period, the taxpayer, every section under its heading with each
// row's amounts in its columns, the summaries and section C; a long section goes on over the
// page, and a quick answer to a summons prints no sections.
#include <wx/ffile.h>

#include <set>

#include "dph/dphkh1fill.h"
#include "dphfixture.h"
#include "dphkh1print.h"
#include "podaniprinttest.h"

namespace {

using podanitest::radek;

class Dphkh1PrintTest : public DphFixture {
 protected:
    // A follow-up statement of March 2024 by a natural person.
    static Dphkh1 hlaseni() {
        Dphkh1 p;
        p.setAtributValue("VetaD", "dokument", wxString("KH1"));
        p.setAtributValue("VetaD", "k_uladis", wxString("DPH"));
        p.setAtributValue("VetaD", "khdph_forma", wxString(Dphkh1::NASLEDNE));
        p.setAtributValue("VetaD", "mesic", 3);
        p.setAtributValue("VetaD", "rok", 2024);
        p.setAtributValue("VetaD", "d_poddp", isoDatum("2024-04-20"));
        p.setAtributValue("VetaD", "d_zjist", isoDatum("2024-04-15"));
        p.setAtributValue("VetaP", "typ_ds", wxString("F"));
        p.setAtributValue("VetaP", "prijmeni", u8("Novák"));
        p.setAtributValue("VetaP", "jmeno", u8("Jan"));
        p.setAtributValue("VetaP", "dic", wxString("7001011234"));
        p.setAtributValue("VetaP", "c_ufo", 451);
        return p;
    }
    static void a4(Dphkh1& p, int i, const wxString& doklad, double zaklad, double dan) {
        p.setAtributValue("VetaA4", "c_radku", i + 1, i);
        p.setAtributValue("VetaA4", "dic_odb", wxString("27082440"), i);
        p.setAtributValue("VetaA4", "c_evid_dd", doklad, i);
        p.setAtributValue("VetaA4", "dppd", isoDatum("2024-03-05"), i);
        p.setCastka("VetaA4", "zakl_dane1", zaklad, i);
        p.setCastka("VetaA4", "dan1", dan, i);
        p.setAtributValue("VetaA4", "kod_rezim_pl", wxString("0"), i);
        p.setAtributValue("VetaA4", "zdph_44", wxString("N"), i);
    }
};

TEST_F(Dphkh1PrintTest, SectionsPrintTheirRowsSummariesAndTotals) {
    podanitest::instalovatCiselniky();
    Dphkh1 p = hlaseni();
    a4(p, 0, "FV2024001", 10000, 2100);
    p.setCastka("VetaA5", "zakl_dane1", 826.45);
    p.setCastka("VetaA5", "dan1", 173.55);
    p.setAtributValue("VetaB2", "c_radku", 1);
    p.setAtributValue("VetaB2", "dic_dod", wxString("27082440"));
    p.setAtributValue("VetaB2", "c_evid_dd", wxString("FP-77"));
    p.setAtributValue("VetaB2", "dppd", isoDatum("2024-03-02"));
    p.setCastka("VetaB2", "zakl_dane2", 1000);
    p.setCastka("VetaB2", "dan2", 120);
    p.setAtributValue("VetaB2", "pomer", wxString("N"));
    p.setAtributValue("VetaB2", "zdph_44", wxString("N"));
    p.fillVetaC();
    ASSERT_DOUBLE_EQ(p.castka("VetaC", "obrat23"), 10826.45);

    const wxString file = podanitest::pdf<Dphkh1Print>(p, m_home, "dphkh1");
    EXPECT_EQ(PrintTest::pdfInfo(file)["Title"], u8("Kontrolní hlášení DPH"));
    const int stran = PrintTest::pdfPages(file);
    for (int s = 1; s <= stran; ++s)
        EXPECT_NE(PrintTest::pdfText(file, s).Find(u8("Kontrolní tisk, neslouží k podání")), wxNOT_FOUND) << s;
    const wxString text = PrintTest::pdfText(file);
    for (const char* expected : {"Finanční úřad pro hlavní město Prahu", "Územní pracoviště v, ve, pro", "CZ7001011234",
                                 "Druh kontrolního hlášení", "následné", "15.04.2024", "KONTROLNÍ HLÁŠENÍ",
                                 "podle § 101c a násl. zákona č. 235/2004 Sb., o dani z přidané hodnoty,",
                                 "ve znění pozdějších předpisů (ZDPH)", "za kalendářní měsíc", "Březen 2024",
                                 "20.04.2024", "Fyzická osoba:", "Novák", "C. Kontrolní řádky"})
        EXPECT_NE(text.Find(u8(expected)), wxNOT_FOUND) << expected;
    wxString bezZalomeni = text;
    bezZalomeni.Replace("\n", " ");
    for (kh1::Sekce s : kh1::sekce()) {
        wxString nadpis = kh1::nadpis(s, isoDatum("2024-03-01"));
        nadpis.Replace("\n", " ");
        EXPECT_NE(bezZalomeni.Find(nadpis.Left(40)), wxNOT_FOUND) << kh1::kod(s);
    }

    const std::vector<PdfWord> words = PrintTest::pdfWords(file);
    EXPECT_EQ(radek(words, "FV2024001").utf8_string(), "1 27082440 FV2024001 05.03.2024 10 000,00 2 100,00 0 N");
    EXPECT_EQ(radek(words, "FP-77").utf8_string(), "1 27082440 FP-77 02.03.2024 1 000,00 120,00 N N");
    EXPECT_EQ(radek(words, "826,45").utf8_string(), "826,45 173,55");  // A.5: the reduced rates stay empty
    wxString c = text;
    c.Replace(wxString(wxUniChar(0x00A0)), " ");
    EXPECT_NE(c.Find("10 826,45"), wxNOT_FOUND);  // section C's basic-rate turnover
}

TEST_F(Dphkh1PrintTest, LongSectionGoesOnOverThePageAndAQuickAnswerHasNoSections) {
    Dphkh1 p = hlaseni();
    constexpr int POCET = 120;
    for (int i = 0; i < POCET; ++i) a4(p, i, wxString::Format("FV%05d", i), 20000 + i, 4200);
    p.fillVetaC();
    const wxString file = podanitest::pdf<Dphkh1Print>(p, m_home, "dphkh1-dlouhe");
    const int stran = PrintTest::pdfPages(file);
    ASSERT_GE(stran, 3);
    std::set<wxString> doklady;
    int pocet = 0;
    for (const PdfWord& w : PrintTest::pdfWords(file)) {
        if (!w.text.StartsWith("FV") || w.text.length() != 7) continue;
        ++pocet;
        doklady.insert(w.text);
    }
    EXPECT_EQ(pocet, POCET);
    EXPECT_EQ(doklady.size(), static_cast<size_t>(POCET));
    const wxString druha = PrintTest::pdfText(file, 2);
    EXPECT_NE(druha.Find(u8("Ev. číslo")), wxNOT_FOUND);  // the section's heading again
    EXPECT_NE(druha.Find(u8("Kontrolní tisk, neslouží k podání")), wxNOT_FOUND);

    p.setAtributValue("VetaD", "vyzva_odp", wxString(Dphkh1::VYZVA_POTVRZUJI));
    p.setAtributValue("VetaD", "c_jed_vyzvy", wxString("12345/24/2001"));
    const wxString odpoved = podanitest::pdf<Dphkh1Print>(p, m_home, "dphkh1-odpoved");
    EXPECT_EQ(PrintTest::pdfPages(odpoved), 1);
    const wxString text = PrintTest::pdfText(odpoved);
    for (const char* expected : {"Potvrzuji správnost naposledy podaného KH", "12345/24/2001", "KONTROLNÍ HLÁŠENÍ"})
        EXPECT_NE(text.Find(u8(expected)), wxNOT_FOUND) << expected;
    for (const char* absent : {"FV00000", "C. Kontrolní řádky"})
        EXPECT_EQ(text.Find(u8(absent)), wxNOT_FOUND) << absent;
}

}  // namespace
