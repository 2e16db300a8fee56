#include "czechlocale.h"

#include <wx/log.h>
#include <wx/translation.h>

std::unique_ptr<wxLocale> initCzechLocale(const wxArrayString& prefixes) {
    for (const wxString& prefix : prefixes) wxFileTranslationsLoader::AddCatalogLookupPathPrefix(prefix);
    // A language the system cannot set (no generated locale) is not worth a message box.
    wxLogNull quiet;
    auto locale = std::make_unique<wxLocale>();
    // The C library keeps the system's locale; numbers and dates are formatted by lxformat.
    locale->Init(wxLANGUAGE_DEFAULT, wxLOCALE_DONT_LOAD_DEFAULT);
    // wxLocale has made the translations object; it is told the language explicitly, since
    // under C.UTF-8 it would otherwise stay English and find no catalogue at all.
    wxTranslations* translations = wxTranslations::Get();
    if (!translations) {
        translations = new wxTranslations;
        wxTranslations::Set(translations);
    }
    translations->SetLanguage(wxLANGUAGE_CZECH);
    translations->AddStdCatalog();
    translations->AddCatalog("evida");
    return locale;
}
