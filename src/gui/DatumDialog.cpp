#include "DatumDialog.h"

#include <wx/button.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include "clock.h"
#include "controls/lxdatectrl.h"
#include "lxformat.h"
#include "prompts.h"

DatumDialog::DatumDialog(wxWindow* parent, const wxDateTime& datum)
    : wxDialog(parent, wxID_ANY, wxString::FromUTF8("Datum aplikace")) {
    const wxDateTime start = datum.IsValid() ? datum : lxutils::today();
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(new wxStaticText(this, wxID_ANY, wxString::FromUTF8("Datum aplikace:")),
             wxSizerFlags().CenterVertical().Border(wxRIGHT, 8));
    m_datum = new lxDateCtrl(this, "datum", start);
    // "15.10." is a day of the year the working date is in.
    m_datum->setRok(start.GetYear());
    row->Add(m_datum);
    auto* top = new wxBoxSizer(wxVERTICAL);
    top->Add(row, wxSizerFlags().Border(wxALL, 12));
    top->Add(CreateSeparatedButtonSizer(wxOK | wxCANCEL), wxSizerFlags().Expand().Border(wxALL, 8));
    // The stock label follows the system language; the program speaks Czech.
    if (wxWindow* cancel = FindWindow(wxID_CANCEL)) cancel->SetLabel(wxString::FromUTF8("Zrušit"));
    SetSizerAndFit(top);
    CentreOnParent();
    Bind(
        wxEVT_BUTTON,
        [this](wxCommandEvent&) {
            if (validate()) EndModal(wxID_OK);
        },
        wxID_OK);
    m_datum->focusText();
}

bool DatumDialog::validate() {
    if (m_datum->GetValue().IsValid()) return true;
    prompts().info(lxformat::datumZprava(wxString::FromUTF8("Datum aplikace"), m_datum->text()),
                   wxString::FromUTF8("Informace"), this);
    m_datum->focusText();
    return false;
}

wxDateTime DatumDialog::datum() const { return m_datum->GetValue(); }
