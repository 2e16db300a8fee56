#include "minimum.h"

#include <wx/fileconf.h>

#include <memory>

#include "lxsettings.h"
#include "lxutils.h"

namespace skladminimum {

namespace {

// The file, read once and kept while the data directory stays the same (tests move it).
wxFileConfig& soubor() {
    static std::unique_ptr<wxFileConfig> config;
    static wxString cesta;
    const wxString path = lxutils::dataDir() + "/zasoby.ini";
    if (!config || cesta != path) {
        config = std::make_unique<wxFileConfig>("evida", wxEmptyString, path, wxEmptyString, wxCONFIG_USE_LOCAL_FILE);
        cesta = path;
    }
    return *config;
}

wxString klic(int zasobaid) {
    wxString firma = lxSettings::instance()->dbname();
    // A database name is a file name; the settings path must not take it for a group.
    firma.Replace("/", "_");
    return wxString::Format("/%s/minimum%d", firma.empty() ? wxString("_") : firma, zasobaid);
}

}  // namespace

double minimum(int zasobaid) {
    double value = 0;
    return soubor().Read(klic(zasobaid), &value) ? value : 0;
}

void setMinimum(int zasobaid, double minimum) {
    wxFileConfig& cfg = soubor();
    if (minimum == 0)
        cfg.DeleteEntry(klic(zasobaid));
    else
        cfg.Write(klic(zasobaid), minimum);
    cfg.Flush();
}

}  // namespace skladminimum
