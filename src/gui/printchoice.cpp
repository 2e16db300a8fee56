#include "printchoice.h"

#include <wx/filename.h>
#include <wx/utils.h>

#include "printcontroller.h"
#include "prompts.h"

wxString nahledNeboPdf(lxPrintController& print, const wxString& fileName, wxWindow* parent) {
    wxArrayString choices;
    choices.push_back(wxString::FromUTF8("Náhled"));
    choices.push_back(wxString::FromUTF8("Uložit do PDF"));
    const int choice =
        prompts().singleChoice(wxString::FromUTF8("Jak chcete tisknout?"), print.printTitle(), choices, 0, parent);
    if (choice == 0) print.Preview();
    if (choice != 1) return wxString();

    wxString name = fileName;
    for (wxUniChar bad : wxFileName::GetForbiddenChars()) name.Replace(wxString(bad), "_");
    name.Replace("/", "_");
    const wxString path = prompts().chooseFile(wxString::FromUTF8("Uložit jako PDF"), wxGetHomeDir(), name + ".pdf",
                                               "PDF soubor (*.pdf)|*.pdf", true, parent);
    if (path.empty()) return wxString();
    wxString error;
    bool written = false;
    if (!print.writePdf(path, print.printTitle(), &error, &written)) {
        prompts().error(error.empty() ? wxString::FromUTF8("PDF se nepodařilo uložit") : error, wxString(), parent);
        // A page that failed ends the file early; the pages before it are still worth having.
        if (!written) return wxString();
    }
    return path;
}
