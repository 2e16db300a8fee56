// The program's language is Czech whatever the system's: its own message catalogue and the
// one of wxWidgets (the preview frame, the help viewer, the standard dialogs) are loaded in
// Czech even when the system locale is C or English.
#pragma once

#include <wx/arrstr.h>
#include <wx/intl.h>

#include <memory>

// Sets up the locale of the process and the Czech translations: `prefixes` are added to the
// catalogue search path (before the system's own /usr/share/locale), then wxWidgets'
// catalogue ("wxstd-3.2", else "wxstd") and the program's ("evida") are loaded in Czech.
// The returned locale must live as long as the program. A catalogue that cannot be found is
// not an error: its texts stay in English.
std::unique_ptr<wxLocale> initCzechLocale(const wxArrayString& prefixes);
