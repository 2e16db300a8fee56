#include "RadaDialog.h"

#include <wx/button.h>
#include <wx/sizer.h>
#include <wx/spinctrl.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <algorithm>
#include <climits>

#include "dbmodel.h"
#include "prompts.h"
#include "rada.h"

RadaDialog::RadaDialog(wxWindow* parent, const Rada& rada)
    : wxDialog(parent, wxID_ANY, wxString::FromUTF8("Číselná řada")), m_rada(rada) {
    m_popis = new wxTextCtrl(this, wxID_ANY, rada.popis(), wxDefaultPosition, wxSize(280, -1), 0, wxDefaultValidator,
                             "popis");
    m_prefix = new wxTextCtrl(this, wxID_ANY, rada.prefix(), wxDefaultPosition, wxSize(120, -1), 0, wxDefaultValidator,
                              "prefix");
    // The width's bounds move only when the prefix or the number changes; a stored width
    // below them stays as it is until then.
    m_znaku = new wxSpinCtrl(this, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize, wxSP_ARROW_KEYS,
                             std::min(1, rada.znaku()), MAX_ZNAKU, rada.znaku(), "znaku");
    m_cislo = new wxSpinCtrl(this, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize, wxSP_ARROW_KEYS, 0, INT_MAX,
                             std::max(0, rada.cislo()), "cislo");

    auto* grid = new wxFlexGridSizer(2, wxSize(8, 6));
    grid->AddGrowableCol(1);
    const auto row = [this, grid](const char* label, wxWindow* control) {
        grid->Add(new wxStaticText(this, wxID_ANY, wxString::FromUTF8(label)), wxSizerFlags().CentreVertical());
        grid->Add(control, wxSizerFlags().Expand());
    };
    row("Popis:", m_popis);
    row("Prefix:", m_prefix);
    row("Počet znaků:", m_znaku);
    row("Aktuální číslo:", m_cislo);
    auto* top = new wxBoxSizer(wxVERTICAL);
    top->Add(grid, wxSizerFlags(1).Expand().Border(wxALL, 10));
    auto* buttons = new wxStdDialogButtonSizer();
    buttons->AddButton(new wxButton(this, wxID_OK, "OK"));
    buttons->AddButton(new wxButton(this, wxID_CANCEL, wxString::FromUTF8("Zrušit")));
    buttons->Realize();
    top->Add(buttons, wxSizerFlags().Expand().Border(wxALL, 10));
    SetSizerAndFit(top);

    m_prefix->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { updateZnakuRange(); });
    m_cislo->Bind(wxEVT_SPINCTRL, [this](wxSpinEvent&) { updateZnakuRange(); });
    m_cislo->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { updateZnakuRange(); });
    Bind(
        wxEVT_BUTTON,
        [this](wxCommandEvent&) {
            if (save()) EndModal(wxID_OK);
        },
        wxID_OK);
}

int RadaDialog::minZnaku(const wxString& prefix, long cislo) {
    return std::min(MAX_ZNAKU, static_cast<int>(prefix.length()) + std::max(4, lxutils::pocetCislic(cislo)));
}

void RadaDialog::updateZnakuRange() {
    const int min = minZnaku(m_prefix->GetValue(), m_cislo->GetValue());
    const int value = std::clamp(m_znaku->GetValue(), min, MAX_ZNAKU);
    m_znaku->SetRange(min, MAX_ZNAKU);
    m_znaku->SetValue(value);
}

Rada RadaDialog::rada() const {
    return Rada(m_rada.id(), m_popis->GetValue(), m_prefix->GetValue(), m_znaku->GetValue(), m_cislo->GetValue());
}

bool RadaDialog::save() {
    DbModel* model = DbModel::instance();
    if (model && model->isOpen() && model->editRada(rada())) return true;
    prompts().info(wxString::FromUTF8("Číselnou řadu se nepodařilo uložit"), wxString(), this);
    return false;
}
