// The application object: single-instance guard, settings, then the main window.
#pragma once

#include <wx/app.h>
#include <wx/snglinst.h>

#include <memory>

class evidaApp : public wxApp {
   public:
    bool OnInit() override;
    int OnExit() override;

   private:
    std::unique_ptr<wxSingleInstanceChecker> m_checker;
};

wxDECLARE_APP(evidaApp);
