// One stock-taking of a warehouse: its number from the IV series, date, description, who did
// it, and for each item of the warehouse the quantity on record before that day and the
// quantity found. A difference becomes a correction movement when it is stored.
#pragma once

#include <wx/dialog.h>

#include <vector>

#include "sklad/skladform.h"

class SkladChoice;
class lxAmountCtrl;
class lxDateCtrl;
class wxListCtrl;
class wxStaticText;
class wxTextCtrl;

class InventuraDialog : public wxDialog {
 public:
    // `id` of the edited stock-taking, -1 for a new one.
    InventuraDialog(wxWindow* parent, int id = -1);

    // OK: checks and stores; false with the message shown.
    bool save();
    int inventuraId() const { return m_id; }
    // Takes the quantity typed in "Zjištěno" for the selected line.
    bool nastavit();
    wxListCtrl* radky() const { return m_radky; }

 private:
    void build();
    // Reads the lines again for the warehouse and date, keeping the quantities found so far.
    void nacistRadky();
    void showRadky();
    void showRadek(long row);
    long selectedRow() const;

    int m_id;
    std::vector<skladform::InventuraRadek> m_data;

    wxStaticText* m_cislo = nullptr;
    lxDateCtrl* m_datum = nullptr;
    SkladChoice* m_sklad = nullptr;
    wxTextCtrl* m_popis = nullptr;
    wxTextCtrl* m_provedl = nullptr;
    wxListCtrl* m_radky = nullptr;
    lxAmountCtrl* m_zjisteno = nullptr;
};
