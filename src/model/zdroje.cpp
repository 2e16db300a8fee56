#include "zdroje.h"

#include <wx/filename.h>
#include <wx/stdpaths.h>
#include <wx/utils.h>

namespace zdroje {

namespace {

const char* const HELP_BOOK = "/help/evida.hhp";
const char* const SCHEMA_PROBE = "/dphdp3_epo2.xsd";
const char* const CATALOGUE = "/cs/LC_MESSAGES/evida.mo";

wxString exeDir() { return wxFileName(wxStandardPaths::Get().GetExecutablePath()).GetPath(); }

// "/usr/bin/../share/evida" as "/usr/share/evida", without a trailing separator.
wxString absolute(const wxString& dir) {
    wxFileName name = wxFileName::DirName(dir);
    name.Normalize(wxPATH_NORM_DOTS | wxPATH_NORM_ABSOLUTE);
    return name.GetPath();
}

}  // namespace

std::vector<wxString> candidateDirs(const wxString& exeDir) {
    std::vector<wxString> dirs = {exeDir + "/../Resources", exeDir + "/../share/evida"};
#ifdef EVIDA_SOURCE_DATA_DIR
    dirs.push_back(EVIDA_SOURCE_DATA_DIR);
#endif
    return dirs;
}

wxString resourcesDirFor(const wxString& exeDir) {
    for (const wxString& dir : candidateDirs(exeDir)) {
        if (wxFileName::FileExists(dir + HELP_BOOK)) return absolute(dir);
    }
    return wxString();
}

wxString resourcesDir() { return resourcesDirFor(exeDir()); }

wxString helpBook() {
    const wxString dir = resourcesDir();
    return dir.empty() ? wxString() : dir + HELP_BOOK;
}

wxString xsdDir() {
    wxString env;
    if (wxGetEnv("EVIDA_XSD_DIR", &env) && !env.empty()) return env;
    for (const wxString& dir : candidateDirs(exeDir())) {
        if (wxFileName::FileExists(dir + "/xsd" + SCHEMA_PROBE)) return absolute(dir + "/xsd");
    }
    return wxString();
}

std::vector<wxString> catalogueDirs() {
    std::vector<wxString> prefixes;
    for (const wxString& dir : candidateDirs(exeDir())) prefixes.push_back(dir + "/locale");
#ifdef EVIDA_BUILD_LOCALE_DIR
    prefixes.push_back(EVIDA_BUILD_LOCALE_DIR);
#endif
    std::vector<wxString> found;
    for (const wxString& prefix : prefixes) {
        if (wxFileName::FileExists(prefix + CATALOGUE)) found.push_back(absolute(prefix));
    }
    return found;
}

wxString catalogue() {
    const std::vector<wxString> dirs = catalogueDirs();
    return dirs.empty() ? wxString() : dirs.front() + CATALOGUE;
}

wxString icon() {
    for (const wxString& dir : candidateDirs(exeDir())) {
        if (wxFileName::FileExists(dir + "/evida.png")) return absolute(dir) + "/evida.png";
    }
    return wxString();
}

}  // namespace zdroje
