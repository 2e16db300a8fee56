// The fields of a company and its address, shared by the new-company wizard (one page per
// part) and the company dialog (all parts at once).
#pragma once

#include <wx/panel.h>

#include "records.h"

class wxCheckBox;
class wxTextCtrl;

class FirmaPanel : public wxPanel {
 public:
    enum Parts {
        IDENTITY = 1,  // name, IČ, DIČ, registration, VAT payer and flat-rate flags
        ADDRESS = 2,   // address, telephone, e-mail, web
        IMAGES = 4     // logo and stamp files for prints
    };
    FirmaPanel(wxWindow* parent, int parts);

    // Shows the records in the fields of this panel's parts.
    void show(const Firma& firma, const Adresa& adresa);
    // Writes the fields of this panel's parts into the records; other fields stay.
    void fill(Firma* firma, Adresa* adresa) const;
    // Puts the cursor into the first field.
    void focusFirst();

 private:
    wxTextCtrl* addText(wxSizer* grid, const char* label, const char* name);
    wxTextCtrl* addImage(wxSizer* grid, const char* label, const char* name);

    wxTextCtrl *m_nazev = nullptr, *m_ic = nullptr, *m_dic = nullptr, *m_registrace = nullptr;
    wxCheckBox *m_platce = nullptr, *m_pausal = nullptr;
    wxTextCtrl *m_ulice = nullptr, *m_cp = nullptr, *m_misto = nullptr, *m_psc = nullptr, *m_zeme = nullptr;
    wxTextCtrl *m_telefon = nullptr, *m_email = nullptr, *m_www = nullptr;
    wxTextCtrl *m_logo = nullptr, *m_razitko = nullptr;
};
