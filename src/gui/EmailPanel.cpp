#include "EmailPanel.h"

#include <wx/sizer.h>
#include <wx/stattext.h>

#include "dbmodel.h"
#include "prompts.h"
#include "smtpfields.h"

EmailPanel::EmailPanel(wxWindow* parent) : wxPanel(parent, wxID_ANY) {
    auto* grid = new wxFlexGridSizer(2, FromDIP(wxSize(8, 6)));
    m_fields = std::make_unique<SmtpFields>(this, grid, false);
    DbModel* model = DbModel::instance();
    if (model && model->isOpen()) m_fields->fill(model->smtp());
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(new wxStaticText(this, wxID_ANY, wxString::FromUTF8("Odesílání faktur e-mailem")),
               wxSizerFlags().Border(wxALL, 10));
    sizer->Add(grid, wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, 10));
    SetSizer(sizer);
}

EmailPanel::~EmailPanel() = default;

bool EmailPanel::save() {
    DbModel* model = DbModel::instance();
    if (!model || !model->isOpen()) return true;  // no company, nothing to store
    if (model->setSmtp(m_fields->smtp())) return true;
    prompts().info(wxString::FromUTF8("Nastavení e-mailu se nepodařilo uložit"), wxString(), this);
    return false;
}
