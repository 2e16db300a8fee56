#include "booktest.h"

#include <wx/app.h>
#include <wx/ffile.h>
#include <wx/prntbase.h>
#include <wx/button.h>
#include <wx/listctrl.h>
#include <wx/radiobut.h>
#include <wx/textctrl.h>
#include <wx/filename.h>
#include <wx/utils.h>

#include <cstdlib>

#include "book/lxbook.h"
#include "controls/lxdatectrl.h"
#include "book/lxlistctrl.h"
#include "companysetup.h"
#include "lxsettings.h"
#include "lxutils.h"

wxDateTime iso(const char* text) {
    wxDateTime d;
    d.ParseISODate(text);
    return d;
}

void BookTest::SetUp() {
    char tmpl[] = "/tmp/evida-book-XXXXXX";
    ASSERT_NE(mkdtemp(tmpl), nullptr);
    m_home = wxString::FromUTF8(tmpl);
    wxSetEnv("HOME", m_home);
    lxSettings::reset();
    lxSettings::instance()->setDatum(iso("2024-06-01"));
    setPrompts(&m_prompts);

    m_frame = new wxFrame(nullptr, wxID_ANY, "Evida");
    m_book = new lxBook(m_frame);
    m_frame->Bind(MODEL_UPDATED, [this](wxCommandEvent& e) { m_book->refresh(e.GetInt()); });
    m_model = std::make_unique<DbModel>(m_frame);
    m_model->initModel();
    ASSERT_TRUE(companysetup::createPlaceholderCompany(*m_model, lxutils::dataDir() + "/firma.db"));
    ASSERT_TRUE(m_model->setCurrentRok(2024));
}

void BookTest::TearDown() {
    m_model.reset();
    m_frame->Destroy();
    wxTheApp->ProcessIdle();  // deletes the frame
    setPrompts(nullptr);
    lxSettings::reset();
    wxFileName::Rmdir(m_home, wxPATH_RMDIR_RECURSIVE);
}

int BookTest::denik(const char* predkontace, double castka, const char* datum, const char* popis, bool banka) {
    const int id = m_model->getLastId("denik");
    EXPECT_TRUE(m_model->addDenik(Denik(id, iso(datum), wxString::Format("D%03d", id), u8(popis), castka, 0, 1, "", 0,
                                        1, m_model->getPredkontaceIdByZkratka(predkontace), banka ? -1 : 1,
                                        banka ? 1 : -1, banka ? 7 : 0, 0, 2024)));
    return id;
}

int BookTest::kontakt(const char* nazev, const char* misto) {
    return m_model->addKontaktSAdresou(Kontakt(-1, u8(nazev), "", "", "", "", true, -1),
                                       Adresa(-1, "", "", u8(misto), "", ""));
}

int BookTest::faktura(bool vydana, double celkem, const char* splatnost, int kontaktId) {
    const int id = m_model->getLastId("faktura");
    EXPECT_TRUE(m_model->addFaktura(Faktura(id, kontaktId, "", celkem, wxString::Format("FV%04d", id), "", "", "", 1, 1,
                                            1, -1, 1, 1, 2024, vydana, false, iso("2024-01-10"), wxDateTime(),
                                            wxDateTime(), iso(splatnost), -1, 1, 0)));
    return id;
}

wxArrayString BookTest::column(const lxListCtrl* list, int column) {
    wxArrayString texts;
    for (long i = 0; i < list->GetItemCount(); ++i) texts.Add(list->GetItemText(i, column));
    return texts;
}

void typeText(wxWindow* dialog, const char* name, const wxString& text) {
    auto* control = field<wxTextCtrl>(dialog, name);
    if (!control) return;
    control->SetFocus();
    control->SelectAll();
    if (text.empty())
        control->Remove(0, control->GetLastPosition());  // Delete over the selection
    else
        control->WriteText(text);
}

void choose(wxChoice* choice, int index) {
    choice->SetSelection(index);
    wxCommandEvent event(wxEVT_CHOICE, choice->GetId());
    event.SetEventObject(choice);
    event.SetInt(index);
    choice->GetEventHandler()->ProcessEvent(event);
}

void screenshot(wxDialog& dialog, const char* name) {
    wxString dir;
    if (!wxGetEnv("EVIDA_SCREENSHOTS", &dir) || dir.empty()) return;
    dialog.Move(0, 0);
    dialog.Show();
    for (int i = 0; i < 20; ++i) {
        wxYield();
        wxMilliSleep(25);
    }
    wxExecute("import -window root " + dir + "/" + name + ".png", wxEXEC_SYNC);
    dialog.Hide();
}

void pressOk(wxDialog* dialog) {
    auto* ok = dynamic_cast<wxButton*>(dialog->FindWindow(wxID_OK));
    ASSERT_NE(ok, nullptr);
    wxCommandEvent event(wxEVT_BUTTON, wxID_OK);
    event.SetEventObject(ok);
    ok->ProcessWindowEvent(event);
}

void pressButton(wxWindow* parent, const char* name) {
    auto* button = field<wxButton>(parent, name);
    ASSERT_TRUE(button) << name;
    wxCommandEvent event(wxEVT_BUTTON, button->GetId());
    event.SetEventObject(button);
    button->ProcessWindowEvent(event);
}

void selectRadio(wxWindow* parent, const char* name) {
    auto* radio = field<wxRadioButton>(parent, name);
    ASSERT_TRUE(radio) << name;
    radio->SetValue(true);
    wxCommandEvent event(wxEVT_RADIOBUTTON, radio->GetId());
    event.SetEventObject(radio);
    radio->ProcessWindowEvent(event);
}

void wizardNext(wxDialog& wizard) {
    wxWindow* button = wizard.FindWindow(wxID_FORWARD);
    ASSERT_TRUE(button);
    wxCommandEvent event(wxEVT_BUTTON, wxID_FORWARD);
    event.SetEventObject(button);
    button->ProcessWindowEvent(event);
}

void BookTest::nastavPlatceDph() {
    Firma firma = m_model->firma();
    firma.setPlatce(true);
    ASSERT_TRUE(m_model->setFirma(firma));
    Priznani p = m_model->priznani();
    p.setJmeno(wxString::FromUTF8("Jan"));
    p.setPrijmeni(wxString::FromUTF8("Novák"));
    p.setDic("CZ7001011234");
    p.setC_ufo(451);
    ASSERT_TRUE(m_model->setPriznani(p));
}

void typeDate(wxWindow* parent, const char* name, const char* text) {
    typeText(parent, (std::string(name) + "Text").c_str(), wxString::FromUTF8(text));
    if (auto* date = field<lxDateCtrl>(parent, name)) date->commitText();
}

Outcome fillAndOk(wxDialog& dialog, const std::function<void(wxDialog*)>& person) {
    Outcome outcome;
    wxTheApp->CallAfter([&] {
        person(&dialog);
        pressOk(&dialog);
        if (dialog.IsModal()) {
            outcome.focus = wxWindow::FindFocus();
            dialog.EndModal(wxID_CANCEL);
        }
    });
    outcome.closed = dialog.ShowModal() == wxID_OK;
    return outcome;
}

int menaIndex(wxChoice* mena, const char* kod) {
    for (unsigned i = 0; i < mena->GetCount(); ++i)
        if (mena->GetString(i).StartsWith(kod)) return static_cast<int>(i);
    return -1;
}

wxArrayString listTexts(wxListCtrl* list, int column) {
    wxArrayString texts;
    for (long i = 0; i < list->GetItemCount(); ++i) texts.Add(list->GetItemText(i, column));
    return texts;
}

std::string fileBytes(const wxString& path) {
    wxFFile file(path, "rb");
    std::string out;
    if (!file.IsOpened()) return out;
    out.resize(static_cast<size_t>(file.Length()));
    if (!out.empty()) file.Read(out.data(), out.size());
    return out;
}

void waitFor(const std::function<bool()>& done, int rounds) {
    for (int i = 0; i < rounds && !done(); ++i) {
        wxYield();
        wxMilliSleep(20);
    }
}

wxPreviewFrame* shownPreview() {
    for (wxWindow* t : wxTopLevelWindows)
        if (auto* f = dynamic_cast<wxPreviewFrame*>(t); f && f->IsShown() && !f->IsBeingDeleted()) return f;
    return nullptr;
}
