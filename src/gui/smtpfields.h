// The SMTP settings as form fields, shared by the preferences page "E-mail" and the dialog
// that sends an invoice: server, port, SSL with the security type, login, sender, (recipient,)
// subject and text. The password is shown in plain text only inside its password field; the
// record carries it enciphered.
#pragma once

#include "records.h"

class wxCheckBox;
class wxChoice;
class wxFlexGridSizer;
class wxSpinCtrl;
class wxTextCtrl;
class wxWindow;

class SmtpFields {
 public:
    // Adds the rows to `grid` (two columns: label, control) with `parent` as their window;
    // `prijemce` adds the recipient row after the sender.
    SmtpFields(wxWindow* parent, wxFlexGridSizer* grid, bool prijemce);

    // Shows a stored record, its password deciphered.
    void fill(const Smtp& smtp);
    // The record the fields say, its password enciphered.
    Smtp smtp() const;
    // TLS is used when "SSL" is ticked and a security type other than "Žádné" is chosen.
    bool secure() const;

    wxTextCtrl* server = nullptr;
    wxSpinCtrl* port = nullptr;
    wxCheckBox* ssl = nullptr;
    wxChoice* typ = nullptr;
    wxCheckBox* autentifikace = nullptr;
    wxTextCtrl* uzivatel = nullptr;
    wxTextCtrl* heslo = nullptr;
    wxTextCtrl* odesilatel = nullptr;
    wxTextCtrl* prijemce = nullptr;  // null without the recipient row
    wxTextCtrl* predmet = nullptr;
    wxTextCtrl* text = nullptr;

 private:
    // The security type only with SSL, the login fields only with authentication.
    void enable();
};

// The standard SMTP port when none is stored.
constexpr int SMTP_PORT = 25;
