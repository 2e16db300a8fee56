#include "evidaapp.h"

#include <wx/filename.h>
#include <wx/icon.h>
#include <wx/image.h>
#include <wx/intl.h>
#include <wx/log.h>
#include <wx/stdpaths.h>
#include <wx/sysopt.h>
#include <wx/utils.h>

#include <cstdio>

#include "czechlocale.h"
#include "evidaframe.h"
#include "lxhelp.h"
#include "lxsettings.h"
#include "prompts.h"
#include "zdroje.h"

wxIMPLEMENT_APP(evidaApp);

namespace {

// For runs without a person at the screen (scripts, the tests that start the program as a
// process): with EVIDA_PROMPTS=stderr every message goes to standard error and every
// question is answered with Cancel or No.
class StderrPrompts : public ScriptedPrompts {
 public:
    void info(const wxString& text, const wxString& caption, wxWindow* parent) override {
        print(caption, text);
        ScriptedPrompts::info(text, caption, parent);
    }
    void error(const wxString& text, const wxString& caption, wxWindow* parent) override {
        print(caption, text);
        ScriptedPrompts::error(text, caption, parent);
    }
    bool question(const wxString& text, const wxString& caption, wxWindow* parent) override {
        print(caption, text);
        return ScriptedPrompts::question(text, caption, parent);
    }

 private:
    static void print(const wxString& caption, const wxString& text) {
        std::fprintf(stderr, "%s: %s\n", static_cast<const char*>(caption.utf8_str()),
                     static_cast<const char*>(text.utf8_str()));
        std::fflush(stderr);
    }
};

}  // namespace

evidaApp::evidaApp() = default;
evidaApp::~evidaApp() = default;

bool evidaApp::OnInit() {
    SetAppName("evida");
    wxString mode;
    if (wxGetEnv("EVIDA_PROMPTS", &mode) && mode == "stderr") {
        m_prompts = std::make_unique<StderrPrompts>();
        setPrompts(m_prompts.get());
    }

    m_checker = new wxSingleInstanceChecker("evida");
    if (m_checker->IsAnotherRunning()) {
        prompts().error(wxString::FromUTF8("Evida už běží"), "Evida");
        delete m_checker;
        m_checker = nullptr;
        return false;
    }
    wxInitAllImageHandlers();
    lxSettings::instance()->load();
    wxSystemOptions::SetOption("mac.listctrl.always_use_generic", 1);
    initLocale();
    m_helpKey = std::make_unique<lxhelp::lxHelpKey>();

    auto* frame = new evidaFrame("Evida");
    if (!frame->isLoaded()) {
        frame->Destroy();
        return false;
    }
    const wxString icon = zdroje::icon();
    if (!icon.empty()) frame->SetIcon(wxIcon(icon, wxBITMAP_TYPE_PNG));
    frame->Show();
    return true;
}

void evidaApp::initLocale() {
    wxArrayString prefixes;
    for (const wxString& dir : zdroje::catalogueDirs()) prefixes.Add(dir);
    m_locale = initCzechLocale(prefixes);
}

int evidaApp::OnExit() {
    m_helpKey.reset();
    delete m_checker;
    m_checker = nullptr;
    setPrompts(nullptr);
    return 0;
}
