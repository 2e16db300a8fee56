// "Přehled majetku a závázků": the year, the amounts at its beginning and end computed from the
// books and editable, "Znovu načíst data z evidence" and "Vytisknout přehled". Open foreign
// receivables and debts need the year's single rates, which are downloaded first when missing.
#pragma once

#include <wx/dialog.h>

#include <vector>

#include "dane/majetekzavazky.h"

class lxAmountCtrl;
class wxChoice;

class MajetekZavazkyDialog : public wxDialog {
 public:
    explicit MajetekZavazkyDialog(wxWindow* parent);
    // Computes the amounts of the chosen year from the books and shows them.
    void nacist();
    // The amounts as the fields say; false with the message shown when one does not read.
    bool hodnoty(MajetekZavazky* m);
    void tisk();

 private:
    int rok() const;

    wxChoice* m_rok = nullptr;
    struct Pole {
        const MajetekZavazkyRadek* radek;
        lxAmountCtrl* zacatek;
        lxAmountCtrl* konec;  // null for a row with one value
    };
    std::vector<Pole> m_pole;
};
