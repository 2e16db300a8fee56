#include "shelltest.h"

#include <stdlib.h>
#include <wx/app.h>
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/filename.h>
#include <wx/spinctrl.h>
#include <wx/statusbr.h>
#include <wx/textctrl.h>
#include <wx/utils.h>

#include "clock.h"
#include "dbmodel.h"
#include "lxsettings.h"
#include "lxutils.h"

wxDateTime isoDay(const char* iso) {
    wxDateTime d;
    d.ParseISODate(iso);
    return d;
}

int DialogScript::Enter(wxDialog* dialog) {
    titles.push_back(dialog->GetTitle());
    if (m_actions.empty()) return wxID_CANCEL;
    Action action = std::move(m_actions.front());
    m_actions.pop_front();
    // Acts once the dialog runs its own event loop, as a person at the screen would.
    wxTheApp->CallAfter([action, dialog] { action(dialog); });
    return wxID_NONE;
}

void setText(wxWindow* root, const char* name, const wxString& value) {
    auto* text = dynamic_cast<wxTextCtrl*>(wxWindow::FindWindowByName(name, root));
    ASSERT_NE(text, nullptr) << name;
    text->ChangeValue(value);
}

void setCheck(wxWindow* root, const char* name, bool value) {
    auto* check = dynamic_cast<wxCheckBox*>(wxWindow::FindWindowByName(name, root));
    ASSERT_NE(check, nullptr) << name;
    check->SetValue(value);
}

void click(wxWindow* root, int id) {
    auto* button = dynamic_cast<wxButton*>(root->FindWindow(id));
    ASSERT_NE(button, nullptr) << id;
    wxCommandEvent event(wxEVT_BUTTON, id);
    event.SetEventObject(button);
    button->ProcessWindowEvent(event);
}

DialogScript::Action createCompany(const wxString& nazev, const wxString& ic, bool platce, int rok) {
    return [=](wxDialog* wizard) {
        setText(wizard, "nazev", nazev);
        setText(wizard, "ic", ic);
        setCheck(wizard, "platce", platce);
        setText(wizard, "misto", "Praha");
        if (rok) dynamic_cast<wxSpinCtrl*>(wxWindow::FindWindowByName("rok", wizard))->SetValue(rok);
        for (int page = 0; page < 3 && wizard->IsModal(); ++page) click(wizard, wxID_FORWARD);
        if (wizard->IsModal()) wizard->EndModal(wxID_CANCEL);  // refused: do not hang
    };
}

DialogScript::Action cancelDialog() {
    return [](wxDialog* dialog) { dialog->EndModal(wxID_CANCEL); };
}

void ShellTest::SetUp() {
    char tmpl[] = "/tmp/evida-gui-XXXXXX";
    ASSERT_NE(mkdtemp(tmpl), nullptr);
    m_home = wxString::FromUTF8(tmpl);
    wxSetEnv("HOME", m_home);
    lxSettings::reset();
    lxutils::setToday(isoDay("2025-06-20"));
    setPrompts(&m_prompts);
    m_dialogs.Register();
}

void ShellTest::TearDown() {
    closeFrame();
    m_dialogs.Unregister();
    setPrompts(nullptr);
    lxSettings::reset();
    lxutils::setToday(wxDateTime());
    wxFileName::Rmdir(m_home, wxPATH_RMDIR_RECURSIVE);
}

void ShellTest::addCompany(const wxString& dbname, const wxString& nazev, const wxString& ic, std::vector<int> roky,
                           bool platce, bool pausal) {
    DbModel model;
    ASSERT_TRUE(model.newDatabase(lxutils::dataDir() + "/" + dbname));
    model.addAdresa(Adresa(1, "", "", "", "", ""));
    model.setFirma(Firma(nazev, ic, "", "", platce, pausal, "", "", "", "", "", 1));
    for (size_t i = 0; i < roky.size(); ++i) model.addObdobi(Obdobi(roky[i], i + 1 == roky.size()));
    model.closeDatabase();
    lxSettings* settings = lxSettings::instance();
    settings->addDbnamePair(dbname, nazev + "_" + ic);
    if (settings->dbname().empty()) settings->setDbname(dbname);
    settings->save();
}

evidaFrame* ShellTest::start() {
    lxSettings::reset();
    lxSettings::instance()->load();
    m_frame = new evidaFrame("Evida");
    if (m_frame->isLoaded()) m_frame->Show();
    return m_frame;
}

void ShellTest::command(int id, bool fromMenu) {
    wxCommandEvent event(wxEVT_MENU, id);
    event.SetInt(fromMenu ? -1 : 0);
    event.SetEventObject(m_frame);
    m_frame->ProcessWindowEvent(event);
}

bool ShellTest::ended() const { return m_frame && wxTheApp->IsScheduledForDestruction(m_frame); }

void ShellTest::closeFrame() {
    if (!m_frame) return;
    if (!wxTheApp->IsScheduledForDestruction(m_frame)) m_frame->Destroy();
    wxTheApp->ProcessIdle();
    m_frame = nullptr;
}

wxString ShellTest::statusText(int field) const { return m_frame->GetStatusBar()->GetStatusText(field); }

wxString ShellTest::dataFile(const wxString& dbname) const { return lxutils::dataDir() + "/" + dbname; }
