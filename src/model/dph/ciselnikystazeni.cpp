// Downloading the code lists from the tax administration's code-list service.
#include <wx/filefn.h>
#include <wx/filename.h>
#include <wx/log.h>
#include <wx/utils.h>

#include "ciselniky.h"
#include "clock.h"
#include "download.h"
#include "lxutils.h"

namespace lxutils {

namespace {

const char* const DEFAULT_CISELNIKY_URL = "https://adisspr.mfcr.cz";
const char* const CISELNIKY_PATH = "/adistc/epo_ciselnik?";

constexpr size_t KB = 1024;
constexpr size_t MB = 1024 * KB;

// One download: the query of the service ("%s" is the day the list is valid on), the file it
// is saved as and the most it can believably weigh. The municipalities and their parts are
// the long lists (thousands of rows); the others hold tens to a few thousand rows.
struct Stazeni {
    const char* dotaz;
    const char* soubor;
    size_t maxBytes;
};

const Stazeni STAZENI[] = {
    {"C=okec", "okec.xml", 8 * MB},
    {"C=ufo&PL=%s", "ufo.xml", 2 * MB},
    {"C=pracufo&PL=%s", "pracufo.xml", 2 * MB},
    {"C=zeme&PL=%s", "zeme.xml", 2 * MB},
    {"C=obce&PL=%s", "obce.xml", 16 * MB},
    {"C=dp_fu", "dp_fu.xml", 2 * MB},
    {"C=pbucelur", "pbucelur.xml", 8 * MB},
    {"C=ucelur", "ucelur.xml", 8 * MB},
    {"C=obcezujzko&PL=%s", "obcezujzko.xml", 32 * MB},
};

// Fetches one list beside its file and puts it in place only when it reads as a list: an error
// answer (root "Chyby") or a page of some proxy must not replace a good older list.
bool stahni(const wxString& url, const wxString& directory, const Stazeni& s) {
    const wxString novy = wxString(s.soubor) + ".novy";
    if (!downloadFileFromNet(url, directory, novy, s.maxBytes)) return false;
    const wxString path = wxFileName(directory, novy).GetFullPath();
    if (readCiselnik(path).empty()) {
        wxLogVerbose(wxString::FromUTF8("Soubor %s z %s není číselník"), s.soubor, url);
        wxRemoveFile(path);
        return false;
    }
    if (!wxRenameFile(path, wxFileName(directory, s.soubor).GetFullPath(), true)) {
        wxRemoveFile(path);
        return false;
    }
    return true;
}

}  // namespace

wxString ciselnikyUrl() {
    wxString url;
    if (!wxGetEnv("EVIDA_CISELNIKY_URL", &url) || url.empty()) url = DEFAULT_CISELNIKY_URL;
    while (url.EndsWith("/")) url.RemoveLast();
    return url;
}

bool downloadCiselniky(const CiselnikyProgress& progress) {
    const wxString directory = dataDir();
    const wxString den = today().Format("%Y-%m-%d");
    const wxString base = ciselnikyUrl() + CISELNIKY_PATH;
    const size_t count = sizeof STAZENI / sizeof STAZENI[0];
    for (size_t i = 0; i < count; ++i) {
        const Stazeni& s = STAZENI[i];
        if (progress) progress(i, count, s.soubor);
        wxString dotaz(s.dotaz);
        dotaz.Replace("%s", den);
        if (!stahni(base + dotaz, directory, s)) return false;
    }
    return true;
}

}  // namespace lxutils
