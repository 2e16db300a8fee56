// The first start's choice between a new company and the demo company.
#include <wx/filename.h>
#include <wx/radiobut.h>
#include <wx/utils.h>

#include "book/lxbook.h"
#include "dbmodel.h"
#include "lxsettings.h"
#include "lxutils.h"
#include "shelltest.h"

namespace {

// Chooses a radio button as a click does.
void choose(wxWindow* root, const char* name) {
    auto* radio = dynamic_cast<wxRadioButton*>(wxWindow::FindWindowByName(name, root));
    ASSERT_NE(radio, nullptr) << name;
    radio->SetValue(true);
    wxCommandEvent event(wxEVT_RADIOBUTTON, radio->GetId());
    event.SetEventObject(radio);
    event.SetInt(1);
    radio->ProcessWindowEvent(event);
}

// The screen into EVIDA_SCREENSHOTS/<name>.png, when that directory is given.
void screenshot(wxWindow* window, const char* name) {
    wxString dir;
    if (!wxGetEnv("EVIDA_SCREENSHOTS", &dir) || dir.empty()) return;
    window->Raise();
    for (int i = 0; i < 20; ++i) {
        wxYield();
        wxMilliSleep(25);
    }
    wxExecute("import -window root " + dir + "/" + name + ".png", wxEXEC_SYNC);
}

using FirstStartDemo = ShellTest;

TEST_F(FirstStartDemo, DemoChoiceCreatesTheDemoCompanyAndOpensIt) {
    wxString forward;
    bool nazevEnabled = true;
    m_dialogs.then([&](wxDialog* wizard) {
        wizard->Show();
        screenshot(wizard, "pruvodce-volba");
        choose(wizard, "ukazka");
        forward = wizard->FindWindow(wxID_FORWARD)->GetLabel();
        nazevEnabled = wxWindow::FindWindowByName("nazev", wizard)->IsEnabled();
        click(wizard, wxID_FORWARD);
        if (wizard->IsModal()) wizard->EndModal(wxID_CANCEL);  // not finished: do not hang
    });
    ASSERT_TRUE(start()->isLoaded());
    EXPECT_EQ(m_dialogs.unused(), 0u);
    EXPECT_EQ(m_prompts.shown().size(), 0u) << m_prompts.transcript();
    // The only step is the last one; the new company's fields are not needed.
    EXPECT_EQ(forward, wxGetTranslation("&Finish"));
    EXPECT_FALSE(nazevEnabled);

    // The demo is a company of the program like any other: its file in the data directory,
    // listed in the settings and open, in the current year with last year beside it.
    lxSettings* s = lxSettings::instance();
    EXPECT_EQ(s->dbname(), "evida1.db");
    EXPECT_TRUE(wxFileName::FileExists(dataFile("evida1.db")));
    EXPECT_EQ(s->dbnameByFirma(u8("Ukázková firma s.r.o._26082942")), "evida1.db");
    EXPECT_EQ(statusText(0), u8("Ukázková firma s.r.o., IČ: 26082942"));
    EXPECT_EQ(statusText(1), "2025");
    DbModel* model = DbModel::instance();
    const wxArrayString roky = model->getObdobiAsStrings(-1);
    EXPECT_NE(roky.Index("2024"), wxNOT_FOUND);
    EXPECT_NE(roky.Index("2025"), wxNOT_FOUND);
    EXPECT_FALSE(model->vystavene().empty());
    EXPECT_EQ(m_frame->book()->currentNavigation(), NAV_HOME);

    screenshot(m_frame, "ukazka-domovska");
    m_frame->book()->selectPage(NAV_FAKTURY_VYDANE);
    screenshot(m_frame, "ukazka-vydane-faktury");
}

TEST_F(FirstStartDemo, ChoosingNewCompanyAgainGoesThroughTheWizard) {
    m_dialogs.then([](wxDialog* wizard) {
        choose(wizard, "ukazka");
        choose(wizard, "nova");
        EXPECT_TRUE(wxWindow::FindWindowByName("nazev", wizard)->IsEnabled());
        createCompany("Alfa", "27074358")(wizard);
    });
    ASSERT_TRUE(start()->isLoaded());
    EXPECT_EQ(statusText(0), u8("Alfa, IČ: 27074358"));
    EXPECT_TRUE(DbModel::instance()->vystavene().empty());
}

}  // namespace
