// RadaDialog ("Číselná řada"): one number series: "Popis", "Prefix", "Počet znaků" and
// "Aktuální číslo". The width can never be set so small that a number would not fit: its
// lower bound follows the prefix and the current number as they change.
#pragma once

#include <wx/dialog.h>

#include "records.h"

class wxSpinCtrl;
class wxTextCtrl;

class RadaDialog : public wxDialog {
 public:
    RadaDialog(wxWindow* parent, const Rada& rada);

    // The smallest width of a series: the prefix and at least four digits, more when the
    // current number has more.
    static int minZnaku(const wxString& prefix, long cislo);
    static constexpr int MAX_ZNAKU = 100;

    // The series as the form holds it.
    Rada rada() const;
    // Writes the series; false when the database refused it.
    bool save();

 private:
    void updateZnakuRange();

    Rada m_rada;
    wxTextCtrl* m_popis = nullptr;
    wxTextCtrl* m_prefix = nullptr;
    wxSpinCtrl* m_znaku = nullptr;
    wxSpinCtrl* m_cislo = nullptr;
};
