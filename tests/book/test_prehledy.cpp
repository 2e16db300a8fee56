// The overview of income and expenses as a person uses it: the year and the flat-rate choice
// change the list, the print reads back from its PDF, and the CSV holds the same rows.
#include <gmock/gmock.h>
#include <wx/checkbox.h>
#include <wx/ffile.h>
#include <wx/filefn.h>
#include <wx/listctrl.h>
#include <wx/utils.h>

#include "MajetekZavazkyDialog.h"
#include "PrijmyVydajeDialog.h"
#include "controls/lxamountctrl.h"
#include "booktest.h"
#include "printtest.h"
#include "recordio.h"

using ::testing::HasSubstr;

class Prehledy : public BookTest {
 protected:
    void zapsat(int predkontace, double castka, int pausal) {
        const int rok = m_model->currentRok();
        const int id = m_model->getLastId("denik");
        ASSERT_TRUE(recordio::insert(m_model->db(), Denik(id, wxDateTime(15, wxDateTime::Mar, rok), "D", "", castka,
                                                          0, 1, "", pausal, 1, predkontace, 1, -1, 0, 0, rok)));
    }
    wxString pdf(PrijmyVydajeDialog& dialog, const char* name) {
        const wxString path = m_home + "/" + name;
        m_prompts.answerChoice(1);
        m_prompts.answerPath(path);
        dialog.tisk();
        return path;
    }
};

TEST_F(Prehledy, EmptyYearSaysSoInTheListAndThePrint) {
    PrijmyVydajeDialog dialog(m_frame);
    ASSERT_EQ(dialog.list()->GetItemCount(), 1);
    EXPECT_EQ(dialog.list()->GetItemText(0, 0), u8("Žádné daňové příjmy a výdaje"));
    const std::string text = PrintTest::pdfText(pdf(dialog, "prazdny.pdf"), 0).utf8_string();
    EXPECT_THAT(text, HasSubstr(u8("Žádné daňové příjmy a výdaje").utf8_string()));
    EXPECT_THAT(text, HasSubstr(wxString::Format(u8("Přehled daňových příjmů a výdajů za rok %d"),
                                                 m_model->currentRok()).utf8_string()));
}

TEST_F(Prehledy, FlatRateChoiceChangesTheExpensesAndThePrint) {
    ASSERT_TRUE(m_model->addPredkontace(Predkontace(901, "SL", "Služby", true, 11)));
    ASSERT_TRUE(m_model->addPredkontace(Predkontace(902, "MAT", u8("Materiál"), false, 13)));
    zapsat(901, 100000, 60);
    zapsat(902, 30000.5, 0);
    PrijmyVydajeDialog dialog(m_frame);
    field<wxCheckBox>(&dialog, "pausal")->SetValue(false);
    wxCommandEvent event(wxEVT_CHECKBOX, field<wxCheckBox>(&dialog, "pausal")->GetId());
    field<wxCheckBox>(&dialog, "pausal")->GetEventHandler()->ProcessEvent(event);
    screenshot(dialog, "prijmyvydaje");
    EXPECT_EQ(dialog.prehled().zisk(), 69999.5);
    std::string text = PrintTest::pdfText(pdf(dialog, "skutecne.pdf"), 0).utf8_string();
    EXPECT_THAT(text, HasSubstr(u8("Daňové výdaje").utf8_string()));
    EXPECT_THAT(text, HasSubstr("Zisk: 69999.50"));

    field<wxCheckBox>(&dialog, "pausal")->SetValue(true);
    field<wxCheckBox>(&dialog, "pausal")->GetEventHandler()->ProcessEvent(event);
    EXPECT_EQ(dialog.prehled().zisk(), 40000);
    const wxString pausal = pdf(dialog, "pausal.pdf");
    wxString shots;
    if (wxGetEnv("EVIDA_SCREENSHOTS", &shots) && !shots.empty()) wxCopyFile(pausal, shots + "/prijmyvydaje.pdf");
    text = PrintTest::pdfText(pausal, 0).utf8_string();
    EXPECT_THAT(text, HasSubstr(u8("Paušální výdaje 60%").utf8_string()));
    EXPECT_THAT(text, HasSubstr("Zisk: 40000.00"));

    m_prompts.answerPath(m_home + "/prehled");
    const wxString csv = dialog.exportCsv();
    EXPECT_EQ(csv, m_home + "/prehled.csv");
    wxString obsah;
    ASSERT_TRUE(wxFFile(csv).ReadAll(&obsah));
    EXPECT_THAT(obsah.utf8_string(), HasSubstr(u8("\"Paušální výdaje\";\"60 %\";\"60000,00\"").utf8_string()));
}

TEST_F(Prehledy, AssetsAndLiabilitiesAreEditedAndPrinted) {
    ASSERT_TRUE(m_model->addPredkontace(Predkontace(903, "MZ", "Mzdy", false, 16)));
    zapsat(903, 12000, 0);
    MajetekZavazkyDialog dialog(m_frame);
    screenshot(dialog, "majetekzavazky");
    MajetekZavazky m;
    ASSERT_TRUE(dialog.hodnoty(&m));
    EXPECT_EQ(m.hodnota("kc_dpfmz18"), 12000);  // wages of the year from the journal
    EXPECT_EQ(m.hodnota("kc_z_dpfmz05a"), -12000);

    typeText(&dialog, "kc_z_dpfmz11", "12.500");
    EXPECT_FALSE(dialog.hodnoty(&m));
    EXPECT_THAT(m_prompts.transcript().utf8_string(), HasSubstr(u8("Rezervy: „12.500“ je nejednoznačné").utf8_string()));
    typeText(&dialog, "kc_z_dpfmz11", "1 250,50");
    ASSERT_TRUE(dialog.hodnoty(&m));
    EXPECT_EQ(m.hodnota("kc_z_dpfmz11"), 1250.5);

    const wxString path = m_home + "/mz.pdf";
    m_prompts.answerChoice(1);
    m_prompts.answerPath(path);
    dialog.tisk();
    wxString shots;
    if (wxGetEnv("EVIDA_SCREENSHOTS", &shots) && !shots.empty()) wxCopyFile(path, shots + "/majetekzavazky.pdf");
    const std::string text = PrintTest::pdfText(path, 0).utf8_string();
    EXPECT_THAT(text, HasSubstr(wxString::Format(u8("Přehled majetku a závázků za rok %d"), m_model->currentRok())
                                    .utf8_string()));
    EXPECT_THAT(text, HasSubstr("1 250,50"));
    EXPECT_THAT(text, HasSubstr("12 000,00"));
}
