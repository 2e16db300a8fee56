#include "ZalohaDialog.h"

#include <wx/artprov.h>
#include <wx/button.h>
#include <wx/sizer.h>
#include <wx/statbmp.h>
#include <wx/stattext.h>

ZalohaDialog::ZalohaDialog(wxWindow* parent, const wxDateTime& lastBackup)
    : wxDialog(parent, wxID_ANY, wxString::FromUTF8("Záloha dat")) {
    const wxString when = lastBackup.IsValid() ? lastBackup.Format("%x") : wxString("?");
    auto* text = new wxStaticText(
        this, wxID_ANY,
        wxString::Format(wxString::FromUTF8("Poslední záloha dat proběhla %s.\nDoporučujeme data zálohovat."), when));
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(new wxStaticBitmap(this, wxID_ANY, wxArtProvider::GetBitmap(wxART_WARNING, wxART_MESSAGE_BOX)),
             wxSizerFlags().Border(wxRIGHT, 12));
    row->Add(text, wxSizerFlags(1).CenterVertical());

    auto* buttons = new wxStdDialogButtonSizer();
    auto* ok = new wxButton(this, wxID_OK, wxString::FromUTF8("Zálohovat data"));
    buttons->AddButton(ok);
    buttons->AddButton(new wxButton(this, wxID_CANCEL, wxString::FromUTF8("Teď ne")));
    buttons->Realize();
    ok->SetDefault();

    auto* top = new wxBoxSizer(wxVERTICAL);
    top->Add(row, wxSizerFlags().Border(wxALL, 12));
    top->Add(buttons, wxSizerFlags().Expand().Border(wxALL, 8));
    SetSizerAndFit(top);
    CentreOnParent();
}
