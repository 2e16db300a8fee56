// Fixture of the book tests: a private HOME with a new company for the year 2024, the model
// sending its changes to a frame that refreshes the book as the main window does, and
// scripted prompts. Builders add rows through the model.
#pragma once

#include <gtest/gtest.h>
#include <wx/frame.h>
#include <wx/choice.h>
#include <wx/dialog.h>

#include <functional>
#include <string>
#include <memory>

#include "dbmodel.h"
#include "prompts.h"

class lxBook;
class lxListCtrl;
class wxListCtrl;

// Shared by the test headers, which a test may include together.
#ifndef EVIDA_TEST_U8
#define EVIDA_TEST_U8
inline wxString u8(const char* text) { return wxString::FromUTF8(text); }
#endif
wxDateTime iso(const char* text);

// The control called `name` inside `parent`; a failed expectation when there is none of that class.
template <class Control>
Control* field(wxWindow* parent, const char* name) {
    auto* control = dynamic_cast<Control*>(wxWindow::FindWindowByName(name, parent));
    EXPECT_NE(control, nullptr) << name;
    return control;
}
// Types into a text field as a person does: the field gets the focus, its text is selected and
// the typed text replaces it, sending the change events the dialog listens to.
void typeText(wxWindow* dialog, const char* name, const wxString& text);
// The texts of one column of a dialog's report list, top to bottom.
wxArrayString listTexts(wxListCtrl* list, int column);
// Picks an item of a choice as the user would: the choice tells the dialog.
void choose(wxChoice* choice, int index);
// The index of the currency `kod` in a currency choice, -1 when it is not offered.
int menaIndex(wxChoice* mena, const char* kod);
// Presses the dialog's OK button as a click does.
void pressOk(wxDialog* dialog);
// Clicks the button called `name` inside `parent`.
void pressButton(wxWindow* parent, const char* name);
// Selects the radio button called `name` inside `parent`; its page hears of it.
void selectRadio(wxWindow* parent, const char* name);
// Presses a wizard's "Další" (or "Dokončit") as its own button does.
void wizardNext(wxDialog& wizard);
// Types a date into a date field as a person does and leaves the field.
void typeDate(wxWindow* parent, const char* name, const char* text);
// What happened when OK was pressed: whether the dialog closed, and where the focus was
// left when it stayed open.
struct Outcome {
    bool closed = false;
    wxWindow* focus = nullptr;
};
// Runs the dialog modally, as a book page does; once its own event loop runs, `person`
// fills it in and OK is pressed. A dialog that stays open is cancelled afterwards, so the
// test goes on.
Outcome fillAndOk(wxDialog& dialog, const std::function<void(wxDialog*)>& person);
// With EVIDA_SCREENSHOTS naming a directory, the dialog is shown and the screen saved there
// as `name`.png, for a person to look at.
void screenshot(wxDialog& dialog, const char* name);
// The bytes of a file; empty when it cannot be read.
std::string fileBytes(const wxString& path);
// Lets the windows work (about 20 ms a round) until `done` or about `rounds` rounds.
void waitFor(const std::function<bool()>& done, int rounds = 150);
class wxPreviewFrame;
// The print preview frame on screen, or null.
wxPreviewFrame* shownPreview();

class BookTest : public ::testing::Test {
 protected:
    void SetUp() override;
    void TearDown() override;

    // A journal entry of cash register 1, or of bank account 1 when `banka`.
    int denik(const char* predkontace, double castka, const char* datum, const char* popis, bool banka = false);
    int kontakt(const char* nazev, const char* misto = "");
    int faktura(bool vydana, double celkem, const char* splatnost, int kontaktId = 0);
    // The texts of one column of a list, top to bottom.
    static wxArrayString column(const lxListCtrl* list, int column);
    // Makes the company a VAT payer with a natural person's taxpayer record and a tax
    // office: what the VAT filings' wizards need.
    void nastavPlatceDph();

    wxString m_home;
    wxFrame* m_frame = nullptr;  // receives the model's changes
    lxBook* m_book = nullptr;
    std::unique_ptr<DbModel> m_model;
    ScriptedPrompts m_prompts;
};
