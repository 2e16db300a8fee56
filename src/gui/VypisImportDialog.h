// "Import bankovního výpisu": the user picks the account and the statement file; every
// movement is listed with the document proposed for it and why. Ticked rows are written when
// the dialog is confirmed, all in one transaction; the user may choose another document for
// a row, book it as a plain income or expense with a pre-posting, or leave it out. Rows
// imported before are shown and cannot be ticked.
#pragma once

#include <wx/dialog.h>

#include <vector>

#include "vypis/importvypisu.h"

class wxChoice;
class wxListCtrl;
class wxListEvent;
class wxStaticText;
class wxTextCtrl;
class lxBookPage;

class VypisImportDialog : public wxDialog {
 public:
    // `bankaid` preselects an account (-1: the first one).
    VypisImportDialog(wxWindow* parent, int bankaid = -1);

    // Reads the file in the "Soubor" field for the chosen account and lists its movements;
    // false with the message shown when it cannot be read.
    bool nacist();
    // "Mapování CSV…": the column mapping of the chosen account; true when saved.
    bool upravitMapovani();
    // "Vybrat doklad…", "Příjem/výdaj…" and "Nezapisovat" on the selected row.
    void vybratDoklad();
    void prijemVydej();
    void nezapisovat();
    // OK: writes the ticked rows; false with the message shown.
    bool zapsat();

    wxListCtrl* list() const { return m_list; }
    const vypis::Import& import() const { return m_import; }

 private:
    int bankaId() const;
    wxString klicMapovani() const;
    void zobrazitRadek(long row);
    void onCheck(wxListEvent& event, bool checked);
    long selectedRow() const;

    std::vector<int> m_bankaIds;
    wxChoice* m_banka = nullptr;
    wxTextCtrl* m_soubor = nullptr;
    wxStaticText* m_stav = nullptr;
    wxListCtrl* m_list = nullptr;
    vypis::Import m_import;
    bool m_nacteno = false;
    bool m_plneni = false;  // rows being filled: check events come from the program
};

// The bank page's command "Import výpisu".
void addVypisImportCommand(lxBookPage* page);
