#include "evidaapp.h"

#include <wx/image.h>
#include <wx/msgdlg.h>
#include <wx/sysopt.h>

#include "evidaframe.h"
#include "lxsettings.h"

wxIMPLEMENT_APP(evidaApp);

bool evidaApp::OnInit() {
    SetAppName("evida");
    m_checker = std::make_unique<wxSingleInstanceChecker>("evida");
    if (m_checker->IsAnotherRunning()) {
        wxMessageBox(wxString::FromUTF8("Evida už běží"), "Evida", wxOK | wxICON_ERROR);
        m_checker.reset();
        return false;
    }
    wxInitAllImageHandlers();
    lxSettings::instance()->load();
    wxSystemOptions::SetOption("mac.listctrl.always_use_generic", 1);

    auto* frame = new evidaFrame("Evida");
    if (!frame->loadDatabase()) {
        frame->Destroy();
        return false;
    }
    frame->Show();
    return true;
}

int evidaApp::OnExit() {
    m_checker.reset();
    return 0;
}
