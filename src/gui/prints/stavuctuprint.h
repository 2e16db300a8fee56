// The balances of the cash registers and bank accounts: one table of each, one after the other.
#pragma once

#include <vector>

#include "multitableprint.h"
#include "table.h"

// A register or account with its balance in its own currency.
struct StavUctuRadek {
    wxString zkratka;
    wxString popis;
    wxString mena;
    double stav = 0;
};

class StavUctuPrint : public MultiTablePrint {
 public:
    StavUctuPrint(wxWindow* parent, const wxString& firma, const std::vector<StavUctuRadek>& pokladny,
                  const std::vector<StavUctuRadek>& banky);

 private:
    lxTableArray m_tabulky;
};
