#include "PreferencesDialog.h"

#include <wx/bookctrl.h>
#include <wx/panel.h>
#include <wx/sizer.h>
#include <wx/spinctrl.h>
#include <wx/stattext.h>

#include "EmailPanel.h"
#include "RadyPanel.h"
#include "dbmodel.h"
#include "lxsettings.h"
#include "prompts.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

DbModel* openModel() {
    DbModel* model = DbModel::instance();
    return model && model->isOpen() ? model : nullptr;
}

}  // namespace

PreferencesDialog::PreferencesDialog(wxWindow* parent) {
    Create(parent, wxID_ANY, u8("Nastavení"), wxDefaultPosition, wxSize(640, 480),
           wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER);
    CreateButtons(wxOK | wxCANCEL);
    DbModel* model = openModel();
    const int rok = model ? model->currentRok() : -1;

    auto* fakturace = new wxPanel(GetBookCtrl());
    auto* grid = new wxFlexGridSizer(2, wxSize(8, 6));
    m_splatnost =
        new wxSpinCtrl(fakturace, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize, wxSP_ARROW_KEYS, 0, 365,
                       model ? model->getSplatnost(rok) : lxSettings::instance()->splatnost(), "splatnost");
    grid->Add(new wxStaticText(fakturace, wxID_ANY, u8("Splatnost (dní):")), wxSizerFlags().CentreVertical());
    grid->Add(m_splatnost);
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(new wxStaticText(fakturace, wxID_ANY,
                                wxString::Format(u8("Výchozí počet dní do splatnosti nových faktur v roce %d"), rok)),
               wxSizerFlags().Border(wxALL, 10));
    sizer->Add(grid, wxSizerFlags().Border(wxLEFT | wxRIGHT | wxBOTTOM, 10));
    fakturace->SetSizer(sizer);
    GetBookCtrl()->AddPage(fakturace, u8("Fakturace"));

    m_rady = new RadyPanel(GetBookCtrl());
    GetBookCtrl()->AddPage(m_rady, u8("Číselné řady"));

    m_email = new EmailPanel(GetBookCtrl());
    GetBookCtrl()->AddPage(m_email, u8("E-mail"));

    // The standard buttons speak Czech whatever catalogue is loaded.
    if (wxWindow* cancel = FindWindow(wxID_CANCEL)) cancel->SetLabel(u8("Zrušit"));
    LayoutDialog();
    SetSize(FromDIP(wxSize(640, 480)));
    Bind(
        wxEVT_BUTTON,
        [this](wxCommandEvent&) {
            if (save()) EndModal(wxID_OK);
        },
        wxID_OK);
}

bool PreferencesDialog::save() {
    DbModel* model = openModel();
    if (!model) return true;  // no company, nothing to store
    const Settings settings(model->currentRok(), m_splatnost->GetValue());
    const bool ok = model->hasSettings(settings.rok()) ? model->editSettings(settings) : model->addSettings(settings);
    if (!ok) {
        prompts().info(u8("Nastavení se nepodařilo uložit"), wxString(), this);
        return false;
    }
    // New invoices of this run take the new default at once.
    lxSettings::instance()->setSplatnost(settings.splatnost());
    return m_email->save();
}
