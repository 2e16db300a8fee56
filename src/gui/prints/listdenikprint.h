// The journal list as a table: one row per entry with income and expense in separate
// columns and their totals in the last row. SimpleDenikPrint is the short form with one
// amount column for a quick overview.
#pragma once

#include <vector>

#include "table.h"
#include "tableprint.h"

// One journal entry as the journal prints show it.
struct DenikRadek {
    wxString datum;
    wxString cislo;
    wxString popis;
    wxString predkontace;
    wxString registr;  // the cash register's or bank account's code
    int vypis = 0;     // bank statement, 0 for none
    bool prijem = true;
    double castka = 0;
};

class ListDenikPrint : public TablePrint {
 public:
    ListDenikPrint(wxWindow* parent, const wxString& nadpis, const wxString& firma, int rok,
                   const std::vector<DenikRadek>& radky);

 private:
    Table m_denik;
};
