// The application object: the single-instance guard, the settings, the message catalogues
// and the main window.
#pragma once

#include <wx/app.h>
#include <wx/snglinst.h>

#include <memory>

class Prompts;
class wxLocale;
namespace lxhelp {
class lxHelpKey;
}

class evidaApp : public wxApp {
 public:
    evidaApp();
    ~evidaApp() override;
    bool OnInit() override;
    int OnExit() override;

 private:
    void initLocale();

    wxSingleInstanceChecker* m_checker = nullptr;
    std::unique_ptr<wxLocale> m_locale;
    std::unique_ptr<Prompts> m_prompts;
    // F1 in every dialog.
    std::unique_ptr<lxhelp::lxHelpKey> m_helpKey;
};

wxDECLARE_APP(evidaApp);
