// The application object: the single-instance guard, the settings, the message catalogues
// and the main window.
#pragma once

#include <wx/app.h>
#include <wx/snglinst.h>

#include <memory>

class Prompts;
class wxLocale;

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
};

wxDECLARE_APP(evidaApp);
