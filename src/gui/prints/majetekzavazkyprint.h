// "Přehled majetku a závázků za rok …": the company line and a table of the rows with their
// amounts at the beginning and at the end of the year.
#pragma once

#include <vector>

#include "table.h"
#include "tableprint.h"

struct MajetekZavazkyTiskRadek {
    wxString popis;
    double zacatek = 0;
    double konec = 0;
    bool jednaHodnota = false;  // a row with one value (wages) leaves the end column empty
};

class MajetekZavazkyPrint : public TablePrint {
 public:
    MajetekZavazkyPrint(wxWindow* parent, const wxString& firma, int rok,
                        const std::vector<MajetekZavazkyTiskRadek>& radky);

 private:
    Table m_prehled;
};
