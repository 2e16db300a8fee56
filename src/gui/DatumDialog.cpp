#include "DatumDialog.h"

#include <wx/datectrl.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

DatumDialog::DatumDialog(wxWindow* parent, const wxDateTime& datum)
    : wxDialog(parent, wxID_ANY, wxString::FromUTF8("Datum aplikace")) {
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(new wxStaticText(this, wxID_ANY, wxString::FromUTF8("Datum aplikace:")),
             wxSizerFlags().CenterVertical().Border(wxRIGHT, 8));
    m_datum = new wxDatePickerCtrl(this, wxID_ANY, datum.IsValid() ? datum : wxDateTime::Today(), wxDefaultPosition,
                                   wxDefaultSize, wxDP_DROPDOWN | wxDP_SHOWCENTURY, wxDefaultValidator, "datum");
    row->Add(m_datum);
    auto* top = new wxBoxSizer(wxVERTICAL);
    top->Add(row, wxSizerFlags().Border(wxALL, 12));
    top->Add(CreateSeparatedButtonSizer(wxOK | wxCANCEL), wxSizerFlags().Expand().Border(wxALL, 8));
    // The stock label follows the system language; the program speaks Czech.
    if (wxWindow* cancel = FindWindow(wxID_CANCEL)) cancel->SetLabel(wxString::FromUTF8("Zrušit"));
    SetSizerAndFit(top);
    CentreOnParent();
}

wxDateTime DatumDialog::datum() const { return m_datum->GetValue().GetDateOnly(); }
