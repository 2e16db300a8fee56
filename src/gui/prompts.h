// Prompts: every message box, question, text entry, number entry, choice and file or
// directory chooser that the program shows goes through this one small interface, so that
// tests can answer them and read what was shown without a person at the screen.
#pragma once

#include <wx/arrstr.h>
#include <wx/dynarray.h>
#include <wx/string.h>

#include <deque>
#include <memory>
#include <vector>

class wxWindow;

class Prompts {
   public:
    virtual ~Prompts() = default;

    // An information box with OK (caption "Informace" unless given).
    virtual void info(const wxString& text, const wxString& caption = wxString(), wxWindow* parent = nullptr) = 0;
    // An error box with OK.
    virtual void error(const wxString& text, const wxString& caption = wxString(), wxWindow* parent = nullptr) = 0;
    // A Yes/No question (caption "Dotaz" unless given); true for Yes.
    virtual bool question(const wxString& text, const wxString& caption = wxString(), wxWindow* parent = nullptr) = 0;
    // A text entry; false on Cancel, else the typed text in *value (which also holds the default).
    virtual bool textEntry(const wxString& message, const wxString& caption, wxString* value,
                           wxWindow* parent = nullptr) = 0;
    // A number entry within [min, max]; false on Cancel.
    virtual bool numberEntry(const wxString& message, const wxString& prompt, const wxString& caption, long* value,
                             long min, long max, wxWindow* parent = nullptr) = 0;
    // A single choice; the chosen index, or -1 on Cancel.
    virtual int singleChoice(const wxString& message, const wxString& caption, const wxArrayString& choices,
                             int initial = 0, wxWindow* parent = nullptr) = 0;
    // A directory chooser; empty on Cancel.
    // Several of the choices; false on Cancel. *selections holds the chosen indexes.
    virtual bool multiChoice(const wxString& message, const wxString& caption, const wxArrayString& choices,
                             wxArrayInt* selections, wxWindow* parent = nullptr) = 0;
    virtual wxString chooseDirectory(const wxString& message, const wxString& start, wxWindow* parent = nullptr) = 0;
    // A file chooser for opening (save = false) or saving; empty on Cancel.
    virtual wxString chooseFile(const wxString& message, const wxString& start, const wxString& defaultName,
                                const wxString& wildcard, bool save, wxWindow* parent = nullptr) = 0;
    // A save chooser offering several file types (a wildcard of several "text|pattern" pairs);
    // *type receives the index of the chosen one. Empty on Cancel.
    virtual wxString chooseSaveFile(const wxString& message, const wxString& start, const wxString& defaultName,
                                    const wxString& wildcard, int* type, wxWindow* parent = nullptr);
};

// The prompts in use: the real dialogs unless a test installed others.
Prompts& prompts();
// Installs other prompts (tests); null restores the real dialogs. The caller keeps ownership.
void setPrompts(Prompts* prompts);

// Prompts answered from a script, for tests: each shown prompt is recorded and answered
// by the next queued answer of its kind (or by Cancel / No when none is queued).
class ScriptedPrompts : public Prompts {
   public:
    struct Shown {
        wxString kind;  // "info", "error", "question", "text", "number", "choice", "choices", "directory", "file"
        wxString text;
        wxString caption;
    };

    void answerQuestion(bool yes) { m_questions.push_back(yes); }
    void answerText(const wxString& text) { m_texts.push_back(text); }  // an empty text is Cancel only if cancelText()
    void cancelText() { m_texts.push_back(CANCEL); }
    void answerNumber(long number) { m_numbers.push_back(number); }
    void answerChoice(int index) { m_choices.push_back(index); }
    // The indexes chosen in the next multiple choice (an unqueued one is cancelled).
    void answerChoices(const wxArrayInt& indexes) { m_multi.push_back(indexes); }
    void answerPath(const wxString& path) { m_paths.push_back(path); }
    // The file type chosen with the next saved path (0 when none is queued).
    void answerFileType(int type) { m_types.push_back(type); }

    const std::vector<Shown>& shown() const { return m_shown; }
    // The texts shown so far, each followed by a line break, for quick assertions.
    wxString transcript() const;
    void clear() { m_shown.clear(); }

    void info(const wxString& text, const wxString& caption, wxWindow*) override;
    void error(const wxString& text, const wxString& caption, wxWindow*) override;
    bool question(const wxString& text, const wxString& caption, wxWindow*) override;
    bool textEntry(const wxString& message, const wxString& caption, wxString* value, wxWindow*) override;
    bool numberEntry(const wxString& message, const wxString& prompt, const wxString& caption, long* value, long min,
                     long max, wxWindow*) override;
    int singleChoice(const wxString& message, const wxString& caption, const wxArrayString& choices, int initial,
                     wxWindow*) override;
    bool multiChoice(const wxString& message, const wxString& caption, const wxArrayString& choices,
                     wxArrayInt* selections, wxWindow*) override;
    wxString chooseDirectory(const wxString& message, const wxString& start, wxWindow*) override;
    wxString chooseFile(const wxString& message, const wxString& start, const wxString& defaultName,
                        const wxString& wildcard, bool save, wxWindow*) override;
    wxString chooseSaveFile(const wxString& message, const wxString& start, const wxString& defaultName,
                            const wxString& wildcard, int* type, wxWindow*) override;

    // The limits of the last number entry, so tests can check the offered range.
    long lastMin = 0, lastMax = 0;
    // The choices of the last single choice.
    wxArrayString lastChoices;

   private:
    static const wxString CANCEL;
    std::vector<Shown> m_shown;
    std::deque<bool> m_questions;
    std::deque<wxString> m_texts;
    std::deque<long> m_numbers;
    std::deque<int> m_choices;
    std::deque<wxArrayInt> m_multi;
    std::deque<wxString> m_paths;
    std::deque<int> m_types;
};
