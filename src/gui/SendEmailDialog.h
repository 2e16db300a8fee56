// "Odeslat fakturu": sends an issued invoice as a PDF attachment of an e-mail. The fields
// start from the company's SMTP settings, the recipient from the customer's e-mail; "Náhled"
// previews the invoice in the layout chosen, "Odeslat" makes the PDF, sends it and logs the
// sending in the list of sent invoices.
#pragma once

#include <wx/dialog.h>

#include <memory>

#include "records.h"

class SmtpFields;

class SendEmailDialog : public wxDialog {
 public:
    SendEmailDialog(wxWindow* parent, const Faktura& faktura);
    ~SendEmailDialog() override;

    // "Odeslat": checks the server, sender and recipient, makes the PDF and sends it; on
    // success tells so, logs it and closes the dialog.
    void OnOk();
    // "Náhled": the invoice's preview in the layout the user chooses.
    void nahled();
    // The PDF of the invoice in the layout chosen, without a file dialog; empty when cancelled.
    wxString createPdf();

 private:
    Faktura m_faktura;
    std::unique_ptr<SmtpFields> m_fields;
};

// Runs "Odeslat fakturu" modally over the issued invoice `fakturaId`.
void odeslatFakturu(wxWindow* parent, int fakturaId);
