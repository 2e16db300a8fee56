// The printed EC sales list: the office names from the code lists (or the codes without
// them), the declarant as a legal or a natural person, the kind and period, each row with
// its whole crowns, and a long list going on over the page with its heading and page count.
#include <wx/ffile.h>

#include <set>

#include "dphfixture.h"
#include "dphshprint.h"
#include "podaniprinttest.h"

namespace {

using podanitest::radek;

class DphshPrintTest : public DphFixture {
 protected:
    // A list of the first quarter of 2024 by a company, or of March by a person.
    static Dphshv hlaseni(bool pravnicka, const wxString& forma) {
        Dphshv p;
        p.setAtributValue("VetaD", "dokument", wxString("SHV"));
        p.setAtributValue("VetaD", "k_uladis", wxString("DPH"));
        p.setAtributValue("VetaD", pravnicka ? "ctvrt" : "mesic", pravnicka ? 1 : 3);
        p.setAtributValue("VetaD", "rok", 2024);
        p.setAtributValue("VetaD", "d_poddp", isoDatum("2024-04-10"));
        p.setAtributValue("VetaD", "shvies_forma", forma);
        p.setAtributValue("VetaP", "typ_ds", wxString(pravnicka ? "P" : "F"));
        if (pravnicka) {
            p.setAtributValue("VetaP", "zkrobchjm", u8("Alfa Trade s.r.o."));
        } else {
            p.setAtributValue("VetaP", "prijmeni", u8("Novák"));
            p.setAtributValue("VetaP", "jmeno", u8("Jan"));
            p.setAtributValue("VetaP", "titul", u8("Ing."));
        }
        p.setAtributValue("VetaP", "dic", wxString("12345678"));
        p.setAtributValue("VetaP", "c_ufo", 451);
        p.setAtributValue("VetaP", "c_pracufo", 2001);
        return p;
    }
};

TEST_F(DphshPrintTest, CompanyListPrintsHeaderDeclarantAndRowsInWholeCrowns) {
    podanitest::instalovatCiselniky();
    Dphshv p = hlaseni(true, Dphshv::RADNE);
    p.addVetaR("DE", "123456789", 0, false, 1000);
    p.editVetaR(0, 234.10);
    p.addVetaR("FR", "12345678901", 3, false, 2512.5);
    p.fillVety();
    const wxString file = podanitest::pdf<DphshPrint>(p, m_home, "dphsh");
    EXPECT_EQ(PrintTest::pdfPages(file), 1);
    EXPECT_EQ(PrintTest::pdfInfo(file)["Title"], u8("Souhrnné hlášení VIES"));
    // The office's label wraps in its cell, beside the office's name.
    const wxString text = PrintTest::pdfText(file);
    for (const char* expected :
         {"Finančnímu úřadu pro /", "Specializovanému finančnímu", "Finanční úřad pro hlavní město Prahu",
          "Územní pracoviště v, ve, pro", "Územní pracoviště pro Prahu 1", "Daňové identifikační číslo", "CZ12345678",
          "otisk podacího razítka finančního úřadu", "SOUHRNNÉ HLÁŠENÍ", "k dani z přidané hodnoty",
          "podle § 102 zákona č. 235/2004 Sb., o dani z přidané hodnoty", "za kalendářní čtvrtletí",
          "1. čtvrtletí 2024", "10.04.2024", "Právnická osoba:", "Obchodní jméno", "Alfa Trade s.r.o.", "A. ODDÍL"})
        EXPECT_NE(text.Find(u8(expected)), wxNOT_FOUND) << expected;
    for (const char* absent : {"Fyzická osoba:", "Příjmení", "Následné"})
        EXPECT_EQ(text.Find(u8(absent)), wxNOT_FOUND) << absent;

    const std::vector<PdfWord> words = PrintTest::pdfWords(file);
    const wxString strany = radek(words, "strany");
    EXPECT_TRUE(strany.EndsWith(u8("Pořadové číslo strany / Celkový počet stran 1/1"))) << strany.utf8_string();
    EXPECT_EQ(radek(words, "123456789").utf8_string(), "1 DE 123456789 0 2 1 235");  // 1 234,10 rounded up
    EXPECT_EQ(radek(words, "12345678901").utf8_string(), "2 FR 12345678901 3 1 2 513");
}

TEST_F(DphshPrintTest, LongFollowUpListPrintsEachPageOfTheFormOnItsOwnSheet) {
    Dphshv p = hlaseni(false, Dphshv::NASLEDNE);
    constexpr int POCET = 90;
    for (int i = 0; i < POCET; ++i) p.addVetaR("SK", wxString::Format("20%08d", i), 0, false, 100 + i);
    p.addVetaR("AT", "U12345678", 2, true, 0);
    p.fillVety();
    ASSERT_EQ(p.atributValue("VetaR", "por_c_stran", POCET), "5");  // 20 rows a page of the form
    const wxString file = podanitest::pdf<DphshPrint>(p, m_home, "dphsh-dlouhe");
    ASSERT_EQ(PrintTest::pdfPages(file), 5);
    const wxString prvni = PrintTest::pdfText(file, 1);
    for (const char* expected : {"Následné souhrnné hlášení", "za kalendářní měsíc", "Březen 2024",
                                 "Fyzická osoba:", "Příjmení", "Novák", "Jméno", "Titul", "Ing.", "451"})
        EXPECT_NE(prvni.Find(u8(expected)), wxNOT_FOUND) << expected;
    EXPECT_EQ(prvni.Find(u8("Obchodní jméno")), wxNOT_FOUND);
    const std::vector<PdfWord> words = PrintTest::pdfWords(file);
    for (int strana = 1; strana <= 5; ++strana) {
        const wxString cislo = radek(words, "strany", strana - 1);
        EXPECT_TRUE(cislo.EndsWith(wxString::Format(u8("Celkový počet stran %d/5"), strana))) << cislo.utf8_string();
        const wxString text = PrintTest::pdfText(file, strana);
        for (const char* expected : {"CZ12345678", "DIČ pořizovatele zboží"})
            EXPECT_NE(text.Find(u8(expected)), wxNOT_FOUND) << strana << expected;
        // The title and the office's stamp only on the first sheet.
        EXPECT_EQ(text.Find(u8("SOUHRNNÉ HLÁŠENÍ")) != wxNOT_FOUND, strana == 1) << strana;
        EXPECT_EQ(text.Find(u8("otisk podacího")) != wxNOT_FOUND, strana == 1) << strana;
    }
    // The cancelling row, the 11th of the fifth page: no count, no value.
    EXPECT_EQ(radek(words, "U12345678").utf8_string(), "11 AT U12345678 2 ano");
    // Each customer printed once: none lost or repeated at the page breaks.
    std::set<wxString> cisla;
    int pocet = 0;
    for (const PdfWord& w : words) {
        if (w.text.length() != 10 || !w.text.StartsWith("20")) continue;
        ++pocet;
        cisla.insert(w.text);
    }
    EXPECT_EQ(pocet, POCET);
    EXPECT_EQ(cisla.size(), static_cast<size_t>(POCET));
}

}  // namespace
