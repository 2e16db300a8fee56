// Where the files installed with the program are found at run time: the help book, the
// official filing schemas, the Czech message catalogue and the icon. One lookup serves the
// application, evida-cli and the About dialog, so they never disagree.
//
// The places tried, in order, relative to the directory of the running executable:
//   ../Resources       an application bundle
//   ../share/evida     an installation under a prefix (/usr, /usr/local, an unpacked package)
// and, in a development build only, the source tree's data directory and the build tree's
// compiled catalogue.
#pragma once

#include <wx/string.h>

#include <vector>

namespace zdroje {

// The resource directories tried for an executable in `exeDir`, best first.
std::vector<wxString> candidateDirs(const wxString& exeDir);
// The first of candidateDirs(exeDir) that holds the help book ("help/evida.hhp"); empty
// when none does.
wxString resourcesDirFor(const wxString& exeDir);
// The same for the running program.
wxString resourcesDir();

// The help book file, empty when it is not installed.
wxString helpBook();
// The directory of the filing schemas: EVIDA_XSD_DIR when set, else the first candidate
// holding the schemas, else empty.
wxString xsdDir();
// The directories that hold "cs/LC_MESSAGES/evida.mo" catalogues, as wxTranslations
// prefixes, best first (only those that exist).
std::vector<wxString> catalogueDirs();
// The Czech catalogue the program loads, empty when there is none.
wxString catalogue();
// The program's icon, empty when it is not installed.
wxString icon();

}  // namespace zdroje
