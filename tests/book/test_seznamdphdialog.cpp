// The VAT document list dialog driven through its controls: the period chosen as a person
// does, the export to the chosen CSV file and the print to a PDF, and the refusals.
#include <gmock/gmock.h>
#include <wx/button.h>
#include <wx/ffile.h>
#include <wx/filefn.h>
#include <wx/utils.h>
#include <wx/radiobut.h>
#include <wx/textctrl.h>

#include <clocale>

#include "ObdobiPanel.h"
#include "SeznamDphDialog.h"
#include "booktest.h"
#include "controls/lxdatectrl.h"
#include "dphdoklady.h"
#include "printtest.h"

using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

namespace {

}  // namespace

class SeznamDphDialogTest : public BookTest {
 protected:
    void SetUp() override {
        BookTest::SetUp();
        nastavPlatceDph();
        m_model->addKontaktSAdresou(Kontakt(-1, u8("Beta s.r.o."), "", "27082440", "CZ27082440", "", true, -1),
                                    Adresa(-1, "", "", "", "", ""));
        const int eur = m_model->getMena("EUR").id() > 0 ? m_model->getMena("EUR").id() : 2;
        dphDoklad(*m_model, DruhDokladu::FAKTURA_VYDANA, "2024-03-10", "2024-03-10", "R1,2", {{21, 121}},
                  u8("Služby \"A\""), "Beta s.r.o.", eur, 25.0);
        dphDoklad(*m_model, DruhDokladu::FAKTURA_PRIJATA, "2024-02-10", "2024-02-12", "R3,4,43,44-K", {{21, 605}},
                  u8("Stroj"));
        m_prompts.clear();
    }
    const ScriptedPrompts::Shown* shown(const char* kind) const {
        for (const auto& s : m_prompts.shown())
            if (s.kind == kind) return &s;
        return nullptr;
    }
};

TEST_F(SeznamDphDialogTest, PanelStartsOnTheWorkingMonthAndGivesTheChosenPeriod) {
    SeznamDphDialog dialog(m_frame);
    ObdobiPanel* panel = dialog.obdobiPanel();
    EXPECT_EQ(panel->obdobi().text(), u8("Červen/2024"));
    selectRadio(&dialog, "volbaCtvrtleti");
    choose(field<wxChoice>(&dialog, "ctvrtleti"), 1);
    EXPECT_EQ(panel->obdobi().od, iso("2024-04-01"));
    EXPECT_EQ(panel->obdobi().doDne, iso("2024-06-30"));
    EXPECT_FALSE(field<wxChoice>(&dialog, "mesic")->IsEnabled());
    selectRadio(&dialog, "volbaObdobi");
    EXPECT_TRUE(field<lxDateCtrl>(&dialog, "od")->IsEnabled());
    EXPECT_EQ(panel->obdobi().doDne, iso("2024-12-31"));  // the whole year until dates are typed
    typeDate(&dialog, "do", "31.3.2024");
    typeDate(&dialog, "od", "15.4.");  // after "do": "do" follows it
    EXPECT_EQ(field<wxTextCtrl>(&dialog, "doText")->GetValue(), "15.04.2024");
    typeDate(&dialog, "do", "1.4.2024");  // before "od": "od" follows it
    EXPECT_EQ(panel->obdobi().od, iso("2024-04-01"));
    EXPECT_EQ(panel->obdobi().doDne, iso("2024-04-01"));
}

TEST_F(SeznamDphDialogTest, ExportWritesTheChosenCsvWithDecimalPointsUnderTheCzechLocale) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    ASSERT_NE(std::setlocale(LC_ALL, "cs_CZ.UTF-8"), nullptr) << "scripts/setup.sh generates the Czech locale";
    SeznamDphDialog dialog(m_frame);
    selectRadio(&dialog, "volbaObdobi");
    typeDate(&dialog, "od", "1.2.2024");
    typeDate(&dialog, "do", "31.3.2024");
    m_prompts.answerPath(m_home + "/seznam");  // the extension is added
    pressButton(&dialog, "exportSeznamu");
    std::setlocale(LC_ALL, before.c_str());

    ASSERT_NE(shown("file"), nullptr);
    EXPECT_EQ(shown("file")->text, u8("Exportovat seznam dokladů DPH do"));
    EXPECT_EQ(shown("info"), nullptr);
    const std::string csv = fileBytes(m_home + "/seznam.csv");
    EXPECT_THAT(csv, StartsWith("\"Dodání zboží nebo poskytnutí služby s místem plnění v tuzemsku"));
    EXPECT_THAT(csv, HasSubstr("\"Služby \"\"A\"\"\",\"FV\",\"CZ27082440\",2500.00,525.00,\"21%\","));
    EXPECT_THAT(csv, HasSubstr("\"Řádky v přiznání: 43,44\"\r\n\"Uskutečněné plnění\"\r\n"));
    EXPECT_THAT(csv, HasSubstr("\"Stroj\""));
    EXPECT_THAT(csv, Not(HasSubstr(",00")));
    EXPECT_EQ(csv.substr(csv.size() - 2), "\r\n");
    screenshot(dialog, "seznamdph");
}

TEST_F(SeznamDphDialogTest, EmptyPeriodOrUnreadableDateIsToldAndNothingIsMade) {
    SeznamDphDialog dialog(m_frame);
    selectRadio(&dialog, "volbaCtvrtleti");
    choose(field<wxChoice>(&dialog, "ctvrtleti"), 2);
    m_prompts.answerPath(m_home + "/prazdny.csv");
    m_prompts.answerChoice(1);
    pressButton(&dialog, "exportSeznamu");
    pressButton(&dialog, "tiskSeznamu");
    ASSERT_EQ(m_prompts.shown().size(), 2u);
    for (const auto& s : m_prompts.shown()) {
        EXPECT_EQ(s.kind, "info");
        EXPECT_EQ(s.text, u8("Nejsou žádné doklady pro vybrané období"));
        EXPECT_EQ(s.caption, "Informace");
    }
    EXPECT_FALSE(wxFileExists(m_home + "/prazdny.csv"));

    m_prompts.clear();
    selectRadio(&dialog, "volbaObdobi");
    typeDate(&dialog, "od", "31.2.2024");
    pressButton(&dialog, "exportSeznamu");
    ASSERT_EQ(m_prompts.shown().size(), 1u);
    EXPECT_THAT(m_prompts.shown()[0].text.utf8_string(), HasSubstr("31.2.2024"));
    EXPECT_FALSE(wxFileExists(m_home + "/prazdny.csv"));
}

TEST_F(SeznamDphDialogTest, PrintOfAQuarterHasItsSectionsColumnsAndTotals) {
    SeznamDphDialog dialog(m_frame);
    selectRadio(&dialog, "volbaCtvrtleti");
    choose(field<wxChoice>(&dialog, "ctvrtleti"), 0);
    const wxString pdf = m_home + "/seznam.pdf";
    m_prompts.answerChoice(1);
    m_prompts.answerPath(pdf);
    EXPECT_EQ(dialog.tiskSeznamu(), pdf);
    // Rows 1,2, rows 3,4 and rows 43,44: one table each, each starting a page.
    ASSERT_EQ(PrintTest::pdfPages(pdf), 3);
    const std::string prvni = PrintTest::pdfText(pdf, 1).utf8_string();
    for (const char* expected : {"Seznam dokladů DPH", "1. čtvrtletí/2024", "Řádky v přiznání: 1,2",
                                 "Uskutečněné plnění", "Základ DPH 0%", "Doklad", "DUZP", "DPPD", "Zdroj", "DIČ",
                                 "2500.00", "525.00", "21%", "12%", "Celkem", "121.00"})
        EXPECT_THAT(prvni, HasSubstr(expected)) << expected;
    const std::string treti = PrintTest::pdfText(pdf, 3).utf8_string();
    EXPECT_THAT(treti, HasSubstr("Ze zdanitelných plnění vykázaných na řádcích 3 až 13"));
    EXPECT_THAT(treti, HasSubstr("500.00"));
    EXPECT_EQ(PrintTest::pdfInfo(pdf)["Title"], u8("Seznam dokladů DPH"));
    wxString shots;  // kept for a person to look at, as the screenshots are
    if (wxGetEnv("EVIDA_SCREENSHOTS", &shots) && !shots.empty()) wxCopyFile(pdf, shots + "/seznamdph.pdf");
}
