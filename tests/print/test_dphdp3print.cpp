// The printed VAT return: a return computed from the books prints its title, kind, taxpayer,
// and each amount in its row and column; empty attributes leave their cells empty, and what
// does not fit on one page goes on to the next.
#include <wx/filename.h>
#include <wx/filefn.h>
#include <wx/utils.h>

#include <cmath>

#include "dph/dphdp3fill.h"
#include "dphdp3print.h"
#include "dphfixture.h"
#include "printtest.h"

namespace {

// The form's columns in PDF points from the sheet's left edge: the 10 mm margin, then the row
// number (8 mm), the row text and the value columns of 28 mm at the right.
constexpr double LEFT_MM = 10, WIDTH_MM = 190, VALUE_MM = 28;

class Dphdp3PrintTest : public DphFixture {
 protected:
    void SetUp() override {
        DphFixture::SetUp();
        nastavPlatce();
        // Without the e-mail line, so that a short attachment still fits the first page.
        Priznani p = m_model->priznani();
        p.setEmail(wxString());
        p.setId_dats("ab12cd3");
        ASSERT_TRUE(m_model->setPriznani(p));
    }

    // The return of March 2024 over a few documents, with the coefficient 60 % on row 52.
    Dphdp3 vypocet() {
        doklad(DruhDokladu::FAKTURA_VYDANA, "2024-03-05", "2024-03-05", "R1,2", {{21, 1210}, {12, 112}});
        doklad(DruhDokladu::FAKTURA_VYDANA, "2024-03-06", "2024-03-06", "R1,2", {{21, 2.42}});
        doklad(DruhDokladu::FAKTURA_VYDANA, "2024-03-08", "2024-03-08", "R20", {{0, 5000}});
        doklad(DruhDokladu::FAKTURA_PRIJATA, "2024-02-25", "2024-03-02", "R40,41", {{21, 242}});
        doklad(DruhDokladu::ZAVAZEK, "2024-03-10", "2024-03-10", "R40,41-K", {{21, 605}});
        Dp3Zadani z;
        z.obdobi = DphObdobi::zMesice(2024, 3);
        z.datumPodani = isoDatum("2024-04-20");
        z.koefP20Nov = 60;
        Dphdp3 p;
        wxString error;
        EXPECT_TRUE(dp3::fillData(*m_model, p, z, &error)) << error;
        return p;
    }

    wxString pdf(const Dphdp3& p, const char* name) {
        Dphdp3Print print(nullptr, p);
        const wxString path = m_home + "/" + name + ".pdf";
        EXPECT_TRUE(print.writePdf(path, print.printTitle()));
        wxString dir;
        if (wxGetEnv("EVIDA_SCREENSHOTS", &dir) && !dir.empty()) wxCopyFile(path, dir + "/" + name + ".pdf");
        return path;
    }

    // The texts of a form row's value cells, left to right; the row is found by its number.
    static std::vector<wxString> cells(const std::vector<PdfWord>& words, const char* cislo, int columns,
                                       int occurrence = 0) {
        const double cisloEnd = (LEFT_MM + 8) * PT_PER_MM;
        const PdfWord* row = nullptr;
        for (const PdfWord& w : words) {
            if (w.xMax <= cisloEnd && w.text == cislo && occurrence-- == 0) {
                row = &w;
                break;
            }
        }
        std::vector<wxString> out(columns);
        if (!row) {
            ADD_FAILURE() << "row " << cislo;
            return out;
        }
        const double start = (LEFT_MM + WIDTH_MM - VALUE_MM * columns) * PT_PER_MM;
        for (const PdfWord& w : words) {
            if (w.page != row->page || std::abs(w.yMin - row->yMin) > 2 || w.xMin < start) continue;
            const int c = static_cast<int>((w.xMin - start) / (VALUE_MM * PT_PER_MM));
            if (c < 0 || c >= columns) continue;
            wxString text = w.text;
            text.Replace(wxString(wxUniChar(0x00A0)), " ");
            out[c] += (out[c].empty() ? "" : " ") + text;
        }
        return out;
    }
};

using Cells = std::vector<wxString>;

TEST_F(Dphdp3PrintTest, ComputedReturnPrintsEachAmountInItsRowAndColumn) {
    Dphdp3 p = vypocet();
    ASSERT_DOUBLE_EQ(p.castka("dano_da"), 117);
    const wxString file = pdf(p, "priznani");
    EXPECT_EQ(PrintTest::pdfPages(file), 1);
    EXPECT_EQ(PrintTest::pdfInfo(file)["Title"], u8("Přiznání k DPH"));
    const wxString text = PrintTest::pdfText(file);
    for (const char* expected : {"Přiznání k dani z přidané hodnoty", "Řádné přiznání", "Jan Novák", "CZ7001011234",
                                 "Dlouhá 12, 110 00 Praha", "Březen 2024", "20.04.2024",
                                 "Finanční úřad 451, územní pracoviště", "IV. Nárok na odpočet daně",
                                 "Krácený odpočet", "Koeficient (%)"})
        EXPECT_NE(text.Find(u8(expected)), wxNOT_FOUND) << expected;
    EXPECT_EQ(text.Find(u8("Přílohy")), wxNOT_FOUND);

    const std::vector<PdfWord> words = PrintTest::pdfWords(file);
    EXPECT_EQ(cells(words, "1", 2), (Cells{"1 002", "210"}));
    EXPECT_EQ(cells(words, "2", 2), (Cells{"100", "12"}));
    EXPECT_EQ(cells(words, "7", 2), (Cells{"", ""}));  // no import: empty cells, not zeros
    EXPECT_EQ(cells(words, "20", 1), (Cells{"5 000"}));
    EXPECT_EQ(cells(words, "40", 3), (Cells{"700", "42", "105"}));
    EXPECT_EQ(cells(words, "46", 3), (Cells{"", "42", "105"}));
    EXPECT_EQ(cells(words, "52", 3), (Cells{"", "60,00", "63"}));
    EXPECT_EQ(cells(words, "62", 1), (Cells{"222"}));
    EXPECT_EQ(cells(words, "63", 1), (Cells{"105"}));
    EXPECT_EQ(cells(words, "64", 1), (Cells{"117"}));
    EXPECT_EQ(cells(words, "65", 1), (Cells{""}));
}

TEST_F(Dphdp3PrintTest, AttachmentsCloseTheReturnAndLongOnesGoOnOverThePage) {
    Dphdp3 p = vypocet();
    p.addVetaR(u8("Opravný daňový doklad č. 7 nebyl zahrnut."));
    const wxString kratka = pdf(p, "priloha");
    EXPECT_EQ(PrintTest::pdfPages(kratka), 1);
    EXPECT_NE(PrintTest::pdfText(kratka).Find(u8("Přílohy")), wxNOT_FOUND);
    EXPECT_NE(PrintTest::pdfText(kratka).Find(u8("Opravný daňový doklad č. 7 nebyl zahrnut.")), wxNOT_FOUND);

    wxString dlouhy;
    for (int i = 1; i <= 60; ++i) dlouhy += wxString::Format(u8("Důvod číslo %d\n"), i);
    p.addVetaR(dlouhy);
    const wxString file = pdf(p, "dlouha");
    ASSERT_EQ(PrintTest::pdfPages(file), 2);
    const wxString prvni = PrintTest::pdfText(file, 1), druha = PrintTest::pdfText(file, 2);
    EXPECT_NE(prvni.Find(u8("Přiznání k dani z přidané hodnoty")), wxNOT_FOUND);
    EXPECT_NE(prvni.Find(u8("Vlastní daňová povinnost")), wxNOT_FOUND);
    EXPECT_NE(druha.Find(u8("Důvod číslo 60")), wxNOT_FOUND);
    EXPECT_NE(druha.Find(u8("Stránka 2 z 2")), wxNOT_FOUND);
    // Each paragraph printed once: none lost or repeated at the page break.
    wxString vse = prvni + druha;
    EXPECT_EQ(vse.Replace(u8("Důvod číslo "), ""), 60u);
}

}  // namespace
