// The bank book of a year: one table per bank account, starting from the account's opening
// balance of the year, with the running balance after each movement.
#pragma once

#include <vector>

#include "multitableprint.h"
#include "pokladniknihaprint.h"
#include "table.h"

// One account's movements of the year; `pohyby` use the cash book's movement rows.
struct BankovniUcet {
    wxString nazev;  // code and description of the account
    wxString mena = "CZK";
    double pocatecniStav = 0;
    std::vector<PokladniPohyb> pohyby;
};

class BankaKnihaPrint : public MultiTablePrint {
 public:
    BankaKnihaPrint(wxWindow* parent, const wxString& firma, int rok, const std::vector<BankovniUcet>& ucty);

 private:
    lxTableArray m_tabulky;
};
