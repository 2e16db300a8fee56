#include "smtpfields.h"

#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/sizer.h>
#include <wx/spinctrl.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "wxemailmessageid.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

wxTextCtrl* addText(wxWindow* parent, wxFlexGridSizer* grid, const char* label, const char* name, long style = 0) {
    const bool multi = (style & wxTE_MULTILINE) != 0;
    auto* text =
        new wxTextCtrl(parent, wxID_ANY, "", wxDefaultPosition,
                       parent->FromDIP(multi ? wxSize(360, 110) : wxSize(360, -1)), style, wxDefaultValidator, name);
    grid->Add(new wxStaticText(parent, wxID_ANY, u8(label)),
              multi ? wxSizerFlags().Top().Border(wxTOP, 4) : wxSizerFlags().CentreVertical());
    grid->Add(text, wxSizerFlags(multi ? 1 : 0).Expand());
    if (multi) grid->AddGrowableRow(grid->GetEffectiveRowsCount() - 1);
    return text;
}

}  // namespace

SmtpFields::SmtpFields(wxWindow* parent, wxFlexGridSizer* grid, bool sPrijemcem) {
    grid->AddGrowableCol(1);
    server = addText(parent, grid, "SMTP server:", "server");

    port = new wxSpinCtrl(parent, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize, wxSP_ARROW_KEYS, 1, 65535,
                          SMTP_PORT, "port");
    grid->Add(new wxStaticText(parent, wxID_ANY, u8("Port:")), wxSizerFlags().CentreVertical());
    grid->Add(port);

    ssl = new wxCheckBox(parent, wxID_ANY, "SSL", wxDefaultPosition, wxDefaultSize, 0, wxDefaultValidator, "ssl");
    wxArrayString typy;
    typy.Add(u8("Žádné"));
    typy.Add("SSL/TLS");
    typ = new wxChoice(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, typy, 0, wxDefaultValidator, "zabezpeceni");
    typ->SetSelection(0);
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(ssl, wxSizerFlags().CentreVertical());
    row->Add(typ, wxSizerFlags().CentreVertical().Border(wxLEFT, 12));
    grid->Add(new wxStaticText(parent, wxID_ANY, u8("Zabezpečení:")), wxSizerFlags().CentreVertical());
    grid->Add(row);

    autentifikace = new wxCheckBox(parent, wxID_ANY, u8("Použít autentifikaci"), wxDefaultPosition, wxDefaultSize, 0,
                                   wxDefaultValidator, "autentifikace");
    grid->AddSpacer(0);
    grid->Add(autentifikace);
    uzivatel = addText(parent, grid, "Uživatelské jméno:", "uzivatel");
    heslo = addText(parent, grid, "Heslo:", "heslo", wxTE_PASSWORD);
    odesilatel = addText(parent, grid, "Odesílatel:", "odesilatel");
    if (sPrijemcem) prijemce = addText(parent, grid, "Příjemce:", "prijemce");
    predmet = addText(parent, grid, "Předmět:", "predmet");
    text = addText(parent, grid, "Text:", "text", wxTE_MULTILINE);

    ssl->Bind(wxEVT_CHECKBOX, [this](wxCommandEvent&) { enable(); });
    autentifikace->Bind(wxEVT_CHECKBOX, [this](wxCommandEvent&) { enable(); });
    enable();
}

void SmtpFields::enable() {
    typ->Enable(ssl->GetValue());
    uzivatel->Enable(autentifikace->GetValue());
    heslo->Enable(autentifikace->GetValue());
}

void SmtpFields::fill(const Smtp& s) {
    server->ChangeValue(s.server());
    port->SetValue(s.port() > 0 ? s.port() : SMTP_PORT);
    ssl->SetValue(s.ssl());
    typ->SetSelection(s.ssl() ? 1 : 0);
    autentifikace->SetValue(s.autentifikace());
    uzivatel->ChangeValue(s.username());
    heslo->ChangeValue(wxEmailMessageID().Decrypt(s.password()));
    odesilatel->ChangeValue(s.sender());
    predmet->ChangeValue(s.subject());
    text->ChangeValue(s.text());
    enable();
}

bool SmtpFields::secure() const { return ssl->GetValue() && typ->GetSelection() > 0; }

Smtp SmtpFields::smtp() const {
    return Smtp(wxString(server->GetValue()).Trim(true).Trim(false), port->GetValue(), secure(),
                autentifikace->GetValue(), uzivatel->GetValue(), wxEmailMessageID().Encrypt(heslo->GetValue()),
                wxString(odesilatel->GetValue()).Trim(true).Trim(false), predmet->GetValue(), text->GetValue());
}
