#include "minimum.h"

#include <wx/config.h>

#include "lxsettings.h"

namespace skladminimum {

namespace {

wxString klic(int zasobaid) {
    wxString firma = lxSettings::instance()->dbname();
    // A database name is a file name; the settings path must not take it for a group.
    firma.Replace("/", "_");
    return wxString::Format("/MinimumZasob/%s/%d", firma.empty() ? wxString("_") : firma, zasobaid);
}

}  // namespace

double minimum(int zasobaid) {
    wxConfigBase* cfg = wxConfigBase::Get(false);
    double value = 0;
    if (!cfg || !cfg->Read(klic(zasobaid), &value)) return 0;
    return value;
}

void setMinimum(int zasobaid, double minimum) {
    wxConfigBase* cfg = wxConfigBase::Get(false);
    if (!cfg) return;
    if (minimum == 0)
        cfg->DeleteEntry(klic(zasobaid));
    else
        cfg->Write(klic(zasobaid), minimum);
    cfg->Flush();
}

}  // namespace skladminimum
