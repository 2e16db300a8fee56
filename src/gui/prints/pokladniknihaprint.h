// The cash book of one cash register for a year: the movements with a running balance, and
// a second table with the totals.
#pragma once

#include <vector>

#include "multitableprint.h"
#include "table.h"

// One cash movement; an income has `prijem` set, an expense `vydej`.
struct PokladniPohyb {
    wxString datum;
    wxString doklad;
    wxString popis;
    double prijem = 0;
    double vydej = 0;
};

// The movements of a cash register or account as a table: date, document, description,
// income, expense and the running balance from `pocatecniStav`. *prijmy, *vydaje and *stav
// receive the totals and the closing balance.
Table tabulkaPohybu(const wxString& nadpis, double pocatecniStav, const std::vector<PokladniPohyb>& pohyby,
                    double* prijmy, double* vydaje, double* stav);

class PokladniKnihaPrint : public MultiTablePrint {
 public:
    PokladniKnihaPrint(wxWindow* parent, const wxString& firma, const wxString& pokladna, int rok, double pocatecniStav,
                       const std::vector<PokladniPohyb>& pohyby);

 private:
    lxTableArray m_tabulky;
};
