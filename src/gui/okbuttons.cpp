#include "okbuttons.h"

#include <wx/button.h>
#include <wx/dialog.h>
#include <wx/sizer.h>

void addOkZrusit(wxDialog* dialog, wxSizer* top, std::function<bool()> save) {
    auto* buttons = new wxStdDialogButtonSizer();
    auto* ok = new wxButton(dialog, wxID_OK, "OK");
    buttons->AddButton(ok);
    buttons->AddButton(new wxButton(dialog, wxID_CANCEL, wxString::FromUTF8("Zrušit")));
    buttons->Realize();
    ok->SetDefault();
    top->Add(buttons, wxSizerFlags().Expand().Border(wxALL, 10));
    dialog->Bind(
        wxEVT_BUTTON,
        [dialog, save](wxCommandEvent&) {
            if (save()) dialog->EndModal(wxID_OK);
        },
        wxID_OK);
}
