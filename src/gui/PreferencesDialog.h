// The preferences editor: the page "Fakturace" (default number of days to the due date,
// per accounting year) and the page "Číselné řady" (the number series).
#pragma once

#include <wx/propdlg.h>

class RadyPanel;
class wxSpinCtrl;

class PreferencesDialog : public wxPropertySheetDialog {
 public:
    explicit PreferencesDialog(wxWindow* parent);

    // Stores the default due days of the current year (OK does this).
    bool save();
    RadyPanel* radyPanel() const { return m_rady; }

 private:
    wxSpinCtrl* m_splatnost = nullptr;
    RadyPanel* m_rady = nullptr;
};
