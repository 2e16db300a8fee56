#include "prompts.h"

#include <wx/choicdlg.h>
#include <wx/dirdlg.h>
#include <wx/filedlg.h>
#include <wx/msgdlg.h>
#include <wx/numdlg.h>
#include <wx/textdlg.h>

namespace {

wxString orDefault(const wxString& caption, const char* fallback) {
    return caption.empty() ? wxString::FromUTF8(fallback) : caption;
}

// The real dialogs.
class DialogPrompts : public Prompts {
   public:
    void info(const wxString& text, const wxString& caption, wxWindow* parent) override {
        wxMessageBox(text, orDefault(caption, "Informace"), wxOK | wxICON_INFORMATION | wxCENTRE, parent);
    }
    void error(const wxString& text, const wxString& caption, wxWindow* parent) override {
        wxMessageBox(text, orDefault(caption, "Chyba"), wxOK | wxICON_ERROR | wxCENTRE, parent);
    }
    bool question(const wxString& text, const wxString& caption, wxWindow* parent) override {
        return wxMessageBox(text, orDefault(caption, "Dotaz"), wxYES_NO | wxICON_QUESTION | wxCENTRE, parent) == wxYES;
    }
    bool textEntry(const wxString& message, const wxString& caption, wxString* value, wxWindow* parent) override {
        wxTextEntryDialog dlg(parent, message, caption, *value);
        if (dlg.ShowModal() != wxID_OK) return false;
        *value = dlg.GetValue();
        return true;
    }
    bool numberEntry(const wxString& message, const wxString& prompt, const wxString& caption, long* value, long min,
                     long max, wxWindow* parent) override {
        const long n = wxGetNumberFromUser(message, prompt, caption, *value, min, max, parent);
        if (n < 0 && min >= 0) return false;
        *value = n;
        return true;
    }
    int singleChoice(const wxString& message, const wxString& caption, const wxArrayString& choices, int initial,
                     wxWindow* parent) override {
        wxSingleChoiceDialog dlg(parent, message, caption, choices);
        if (initial >= 0 && initial < static_cast<int>(choices.size())) dlg.SetSelection(initial);
        return dlg.ShowModal() == wxID_OK ? dlg.GetSelection() : -1;
    }
    bool multiChoice(const wxString& message, const wxString& caption, const wxArrayString& choices,
                     wxArrayInt* selections, wxWindow* parent) override {
        wxMultiChoiceDialog dlg(parent, message, caption, choices);
        dlg.SetSelections(*selections);
        if (dlg.ShowModal() != wxID_OK) return false;
        *selections = dlg.GetSelections();
        return true;
    }
    wxString chooseDirectory(const wxString& message, const wxString& start, wxWindow* parent) override {
        wxDirDialog dlg(parent, message, start);
        return dlg.ShowModal() == wxID_OK ? dlg.GetPath() : wxString();
    }
    wxString chooseFile(const wxString& message, const wxString& start, const wxString& defaultName,
                        const wxString& wildcard, bool save, wxWindow* parent) override {
        wxFileDialog dlg(parent, message, start, defaultName, wildcard,
                         save ? wxFD_SAVE | wxFD_OVERWRITE_PROMPT : wxFD_OPEN | wxFD_FILE_MUST_EXIST);
        return dlg.ShowModal() == wxID_OK ? dlg.GetPath() : wxString();
    }
    wxString chooseSaveFile(const wxString& message, const wxString& start, const wxString& defaultName,
                            const wxString& wildcard, int* type, wxWindow* parent) override {
        wxFileDialog dlg(parent, message, start, defaultName, wildcard, wxFD_SAVE | wxFD_OVERWRITE_PROMPT);
        if (dlg.ShowModal() != wxID_OK) return wxString();
        if (type) *type = dlg.GetFilterIndex();
        return dlg.GetPath();
    }
};

DialogPrompts& dialogPrompts() {
    static DialogPrompts prompts;
    return prompts;
}

Prompts* g_prompts = nullptr;

} // namespace

wxString Prompts::chooseSaveFile(const wxString& message, const wxString& start, const wxString& defaultName,
                                const wxString& wildcard, int* type, wxWindow* parent) {
    if (type) *type = 0;
    return chooseFile(message, start, defaultName, wildcard, true, parent);
}

Prompts& prompts() { return g_prompts ? *g_prompts : dialogPrompts(); }

void setPrompts(Prompts* p) { g_prompts = p; }

const wxString ScriptedPrompts::CANCEL = "\x01" "cancel";

wxString ScriptedPrompts::transcript() const {
    wxString all;
    for (const Shown& s : m_shown) all += s.text + "\n";
    return all;
}

void ScriptedPrompts::info(const wxString& text, const wxString& caption, wxWindow*) {
    m_shown.push_back({"info", text, orDefault(caption, "Informace")});
}

void ScriptedPrompts::error(const wxString& text, const wxString& caption, wxWindow*) {
    m_shown.push_back({"error", text, orDefault(caption, "Chyba")});
}

bool ScriptedPrompts::question(const wxString& text, const wxString& caption, wxWindow*) {
    m_shown.push_back({"question", text, orDefault(caption, "Dotaz")});
    if (m_questions.empty()) return false;
    const bool yes = m_questions.front();
    m_questions.pop_front();
    return yes;
}

bool ScriptedPrompts::textEntry(const wxString& message, const wxString& caption, wxString* value, wxWindow*) {
    m_shown.push_back({"text", message, caption});
    if (m_texts.empty() || m_texts.front() == CANCEL) {
        if (!m_texts.empty()) m_texts.pop_front();
        return false;
    }
    *value = m_texts.front();
    m_texts.pop_front();
    return true;
}

bool ScriptedPrompts::numberEntry(const wxString& message, const wxString&, const wxString& caption, long* value,
                                  long min, long max, wxWindow*) {
    m_shown.push_back({"number", message, caption});
    lastMin = min;
    lastMax = max;
    if (m_numbers.empty()) return false;
    const long n = m_numbers.front();
    m_numbers.pop_front();
    if (n < min || n > max) return false;  // the real dialog refuses numbers out of range
    *value = n;
    return true;
}

int ScriptedPrompts::singleChoice(const wxString& message, const wxString& caption, const wxArrayString& choices, int,
                                  wxWindow*) {
    m_shown.push_back({"choice", message, caption});
    lastChoices = choices;
    if (m_choices.empty()) return -1;
    const int index = m_choices.front();
    m_choices.pop_front();
    return index < static_cast<int>(choices.size()) ? index : -1;
}

bool ScriptedPrompts::multiChoice(const wxString& message, const wxString& caption, const wxArrayString& choices,
                                  wxArrayInt* selections, wxWindow*) {
    m_shown.push_back({"choices", message, caption});
    lastChoices = choices;
    if (m_multi.empty()) return false;
    *selections = m_multi.front();
    m_multi.pop_front();
    return true;
}

wxString ScriptedPrompts::chooseDirectory(const wxString& message, const wxString&, wxWindow*) {
    m_shown.push_back({"directory", message, wxString()});
    if (m_paths.empty()) return wxString();
    const wxString path = m_paths.front();
    m_paths.pop_front();
    return path;
}

wxString ScriptedPrompts::chooseFile(const wxString& message, const wxString&, const wxString&, const wxString&, bool,
                                     wxWindow*) {
    m_shown.push_back({"file", message, wxString()});
    if (m_paths.empty()) return wxString();
    const wxString path = m_paths.front();
    m_paths.pop_front();
    return path;
}

wxString ScriptedPrompts::chooseSaveFile(const wxString& message, const wxString& start, const wxString& defaultName,
                                         const wxString& wildcard, int* type, wxWindow* parent) {
    const int chosen = m_types.empty() ? 0 : m_types.front();
    if (!m_types.empty()) m_types.pop_front();
    const wxString path = chooseFile(message, start, defaultName, wildcard, true, parent);
    if (type) *type = chosen;
    return path;
}
