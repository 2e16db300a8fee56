// The preferences editor: the page "Fakturace" (default number of days to the due date,
// per accounting year), the page "Číselné řady" (the number series) and the page "E-mail"
// (the SMTP settings of invoice e-mails).
#pragma once

#include <wx/propdlg.h>

class EmailPanel;
class RadyPanel;
class wxSpinCtrl;

class PreferencesDialog : public wxPropertySheetDialog {
 public:
    explicit PreferencesDialog(wxWindow* parent);

    // Stores the default due days of the current year and the e-mail settings (OK does this).
    bool save();
    RadyPanel* radyPanel() const { return m_rady; }
    EmailPanel* emailPanel() const { return m_email; }

 private:
    wxSpinCtrl* m_splatnost = nullptr;
    RadyPanel* m_rady = nullptr;
    EmailPanel* m_email = nullptr;
};
