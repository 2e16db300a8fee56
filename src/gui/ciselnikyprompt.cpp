#include "ciselnikyprompt.h"

#include <wx/progdlg.h>
#include <wx/utils.h>

#include <memory>

#include "dph/ciselniky.h"
#include "prompts.h"

bool ensureCiselniky(wxWindow* parent, bool priznani) {
    if (lxutils::haveCiselniky()) return true;
    const wxString otazka =
        wxString::FromUTF8(priznani ? "Je třeba stáhnout číselníky potřebné pro přiznání.\nStáhnout teď?"
                                    : "Je třeba stáhnout číselníky potřebné pro hlášení.\nStáhnout teď?");
    if (!prompts().question(otazka, wxString::FromUTF8("Dotaz"), parent)) return false;

    const wxString title = wxString::FromUTF8("Stahování číselníků");
    std::unique_ptr<wxProgressDialog> progress;
    bool ok = false;
    {
        wxBusyCursor busy;
        ok = lxutils::downloadCiselniky([&](size_t index, size_t count, const wxString& file) {
            const wxString text = wxString::Format(wxString::FromUTF8("Stahuje se číselník %s (%zu z %zu)"),
                                                   file.BeforeLast('.'), index + 1, count);
            if (!progress) {
                progress = std::make_unique<wxProgressDialog>(title, text, static_cast<int>(count), parent,
                                                              wxPD_APP_MODAL | wxPD_AUTO_HIDE | wxPD_SMOOTH);
            }
            progress->Update(static_cast<int>(index), text);
        });
    }
    progress.reset();
    if (!ok || !lxutils::haveCiselniky()) {
        prompts().error(wxString::FromUTF8("Číselníky se nepodařilo stáhnout.\n"
                                           "Zkontrolujte připojení k internetu a zkuste to znovu."),
                        wxString::FromUTF8("Chyba"), parent);
        return false;
    }
    return true;
}
