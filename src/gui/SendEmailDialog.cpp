#include "SendEmailDialog.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/filefn.h>
#include <wx/sizer.h>
#include <wx/spinctrl.h>
#include <wx/textctrl.h>
#include <wx/utils.h>

#include "dbmodel.h"
#include "documentprint.h"
#include "fakturatisk.h"
#include "prompts.h"
#include "smtpfields.h"
#include "wxemailmessage.h"
#include "wxmailer.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

wxString trimmed(const wxTextCtrl* field) { return wxString(field->GetValue()).Trim(true).Trim(false); }

DbModel* openModel() {
    DbModel* model = DbModel::instance();
    return model && model->isOpen() ? model : nullptr;
}

}  // namespace

SendEmailDialog::SendEmailDialog(wxWindow* parent, const Faktura& faktura)
    : wxDialog(parent, wxID_ANY, u8("Odeslat fakturu"), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
      m_faktura(faktura) {
    auto* grid = new wxFlexGridSizer(2, FromDIP(wxSize(8, 6)));
    m_fields = std::make_unique<SmtpFields>(this, grid, true);
    if (DbModel* model = openModel()) {
        m_fields->fill(model->smtp());
        if (faktura.protistranaid() > 0 && model->hasKontakt(faktura.protistranaid()))
            m_fields->prijemce->ChangeValue(model->getKontakt(faktura.protistranaid()).email());
    }
    // Without a stored default subject the invoice names itself.
    if (m_fields->predmet->IsEmpty())
        m_fields->predmet->ChangeValue(wxString::Format(u8("Faktura č. %s"), faktura.cislo()));

    auto* buttons = new wxBoxSizer(wxHORIZONTAL);
    auto* nahledButton =
        new wxButton(this, wxID_ANY, u8("Náhled"), wxDefaultPosition, wxDefaultSize, 0, wxDefaultValidator, "nahled");
    auto* odeslat =
        new wxButton(this, wxID_OK, u8("Odeslat"), wxDefaultPosition, wxDefaultSize, 0, wxDefaultValidator, "odeslat");
    auto* zrusit = new wxButton(this, wxID_CANCEL, u8("Zrušit"));
    buttons->Add(nahledButton);
    buttons->AddStretchSpacer();
    buttons->Add(zrusit);
    buttons->Add(odeslat, wxSizerFlags().Border(wxLEFT, 6));
    odeslat->SetDefault();

    auto* top = new wxBoxSizer(wxVERTICAL);
    top->Add(grid, wxSizerFlags(1).Expand().Border(wxALL, 10));
    top->Add(buttons, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, 10));
    SetSizerAndFit(top);
    CentreOnParent();

    nahledButton->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { nahled(); });
    odeslat->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { OnOk(); });
}

SendEmailDialog::~SendEmailDialog() = default;

void SendEmailDialog::nahled() {
    if (std::unique_ptr<DocumentPrint> print = vyberTiskFaktury(this, m_faktura.id())) print->Preview();
}

wxString SendEmailDialog::createPdf() { return fakturaPdf(this, m_faktura.id()); }

void SendEmailDialog::OnOk() {
    const wxString varovani = u8("Varování");
    struct Povinne {
        wxTextCtrl* field;
        const char* zprava;
    } povinne[] = {
        {m_fields->server, "Adresa serveru nemůže být prázdná"},
        {m_fields->odesilatel, "Odesílatel nemůže být prázdný"},
        {m_fields->prijemce, "Příjemce nemůže být prázdný"},
    };
    for (const Povinne& p : povinne) {
        if (trimmed(p.field).empty()) {
            prompts().info(u8(p.zprava), varovani, this);
            p.field->SetFocus();
            return;
        }
    }

    const wxString pdf = createPdf();
    if (pdf.empty()) return;
    const wxString prijemce = trimmed(m_fields->prijemce);
    const bool secure = m_fields->secure();
    const wxString url = smtpUrl(trimmed(m_fields->server), m_fields->port->GetValue(), secure);
    wxEmailMessage message(trimmed(m_fields->odesilatel), prijemce, m_fields->predmet->GetValue(),
                           m_fields->text->GetValue());
    message.AddAttachment(pdf);
    const bool ready = message.Finalize();
    wxMailer mailer(m_fields->uzivatel->GetValue(), m_fields->heslo->GetValue(), url,
                    m_fields->autentifikace->GetValue(), secure);
    bool sent = false;
    if (ready) {
        wxBusyCursor busy;
        sent = mailer.Send(message);
    }
    // The PDF was made for this message only.
    wxRemoveFile(pdf);
    if (!ready) {
        prompts().error(wxString::Format(u8("Soubor %s se nepodařilo přečíst"), pdf), u8("Email Error!"), this);
        return;
    }
    if (!sent) {
        prompts().error(mailer.GetError(), u8("Email Error!"), this);
        return;
    }
    prompts().info(u8("Email úspěšně odeslán"), u8("Informace"), this);
    if (DbModel* model = openModel()) {
        // The connection that worked is kept for the next invoice; the default subject and
        // text stay as the preferences have them.
        Smtp pouzite = m_fields->smtp();
        pouzite.setSubject(model->smtp().subject());
        pouzite.setText(model->smtp().text());
        model->setSmtp(pouzite);
        const Odeslany odeslany(model->getLastId("odeslany"), wxDateTime::Now(), m_faktura.cislo(), prijemce);
        if (!model->addOdeslany(odeslany))
            prompts().info(u8("Odeslání se nepodařilo zapsat do seznamu odeslaných faktur"), u8("Informace"), this);
    }
    EndModal(wxID_OK);
}

void odeslatFakturu(wxWindow* parent, int fakturaId) {
    DbModel* model = openModel();
    if (!model || !model->hasFaktura(fakturaId)) return;
    SendEmailDialog dialog(parent, model->getFaktura(fakturaId));
    dialog.ShowModal();
}
