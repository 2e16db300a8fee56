// "Upravit firmu": the open company's identity, address, contacts, VAT payer and flat-rate
// flags, and the logo and stamp images used by prints.
#pragma once

#include <wx/dialog.h>

class FirmaPanel;

class FirmaDialog : public wxDialog {
 public:
    explicit FirmaDialog(wxWindow* parent);

 private:
    void onOK(wxCommandEvent& event);

    FirmaPanel* m_panel;
};
