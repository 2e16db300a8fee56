// Fixture of the GUI tests: a fresh HOME per test (so evida.ini and the company files are
// private to it), a fixed "today", scripted answers to every prompt, and scripted actions
// on every modal dialog (wizard, company dialog, date dialog, backup reminder).
#pragma once

#include <gtest/gtest.h>
#include <wx/dialog.h>
#include <wx/modalhook.h>

#include <deque>
#include <functional>
#include <vector>

#include "evidaframe.h"
#include "prompts.h"

inline wxString u8(const char* text) { return wxString::FromUTF8(text); }
wxDateTime isoDay(const char* iso);

// Runs the next queued action on each modal dialog once it is shown. A dialog without an
// action is not shown at all and returns Cancel.
class DialogScript : public wxModalDialogHook {
 public:
    using Action = std::function<void(wxDialog*)>;
    void then(Action action) { m_actions.push_back(std::move(action)); }
    size_t unused() const { return m_actions.size(); }
    std::vector<wxString> titles;  // of every dialog shown, in order

 protected:
    int Enter(wxDialog* dialog) override;

 private:
    std::deque<Action> m_actions;
};

// Actions on dialogs.
void setText(wxWindow* root, const char* name, const wxString& value);
void setCheck(wxWindow* root, const char* name, bool value);
void click(wxWindow* root, int id);
// Fills the new-company wizard and finishes it.
DialogScript::Action createCompany(const wxString& nazev, const wxString& ic, bool platce = false, int rok = 0);
DialogScript::Action cancelDialog();

class ShellTest : public ::testing::Test {
 protected:
    void SetUp() override;
    void TearDown() override;

    // Writes a company file `dbname` with the given name, IČ and periods (the last one is
    // current) and lists it in the settings, as a previous run would have left it.
    void addCompany(const wxString& dbname, const wxString& nazev, const wxString& ic, std::vector<int> roky = {2025},
                    bool platce = false, bool pausal = false);
    // Starts the main window as the program does, over the settings file as it is.
    evidaFrame* start();
    // Runs a menu command; `fromMenu` false runs it as another command would.
    void command(int id, bool fromMenu = true);
    // Whether the main window closed itself (the program would end).
    bool ended() const;
    void closeFrame();
    wxString statusText(int field) const;
    wxString dataFile(const wxString& dbname) const;

    wxString m_home;
    ScriptedPrompts m_prompts;
    DialogScript m_dialogs;
    evidaFrame* m_frame = nullptr;
};
