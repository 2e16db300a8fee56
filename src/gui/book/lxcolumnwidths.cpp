#include "lxcolumnwidths.h"

#include <wx/fileconf.h>

#include "lxutils.h"

namespace lxcolumnwidths {

namespace {

// Widths outside this range come from a damaged or hand-edited file and are ignored.
constexpr long MIN_WIDTH = 10;
constexpr long MAX_WIDTH = 3000;

wxString entry(const wxString& list, size_t column) {
    return wxString::Format("/Sloupce/%s/sloupec%d", list, static_cast<int>(column));
}

// The settings file is opened for each read or write and closed at once, so that the
// program's other settings written in between are never overwritten with stale values.
wxString iniPath() { return lxutils::dataDir() + "/evida.ini"; }

}  // namespace

std::vector<int> load(const wxString& list, const std::vector<int>& defaults) {
    std::vector<int> widths = defaults;
    if (list.empty()) return widths;
    wxFileConfig cfg("APPNAME", "COMPANYNAME", iniPath(), wxEmptyString, wxCONFIG_USE_LOCAL_FILE);
    for (size_t i = 0; i < widths.size(); ++i) {
        long width = 0;
        if (cfg.Read(entry(list, i), &width) && width >= MIN_WIDTH && width <= MAX_WIDTH)
            widths[i] = static_cast<int>(width);
    }
    return widths;
}

void save(const wxString& list, const std::vector<int>& widths) {
    if (list.empty()) return;
    wxFileConfig cfg("APPNAME", "COMPANYNAME", iniPath(), wxEmptyString, wxCONFIG_USE_LOCAL_FILE);
    for (size_t i = 0; i < widths.size(); ++i) cfg.Write(entry(list, i), static_cast<long>(widths[i]));
    cfg.Flush();
}

}  // namespace lxcolumnwidths
