// The preferences page "E-mail": the company's SMTP server and login, the sender and the
// default subject and text of invoice e-mails. The password is stored enciphered.
#pragma once

#include <wx/panel.h>

#include <memory>

class SmtpFields;

class EmailPanel : public wxPanel {
 public:
    explicit EmailPanel(wxWindow* parent);
    ~EmailPanel() override;

    // Stores the fields as the company's SMTP settings; false (told) when that fails.
    bool save();

 private:
    std::unique_ptr<SmtpFields> m_fields;
};
