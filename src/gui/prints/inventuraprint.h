// Prints of stock-takings. InventuraPrint: one stock-taking with its lines (recorded, found,
// difference). KnihaInventurPrint: the stock-takings of the year. Both take plain rows.
#pragma once

#include <wx/datetime.h>

#include <vector>

#include "table.h"
#include "tableprint.h"

struct InventuraHlavicka {
    wxString cislo;
    wxDateTime datum;
    wxString sklad;
    wxString popis;
    wxString provedl;
};

struct InventuraTiskRadek {
    wxString cislo;
    wxString nazev;
    wxString mj;
    double evidovano = 0;
    double zjisteno = 0;
};

class InventuraPrint : public TablePrint {
 public:
    InventuraPrint(wxWindow* parent, const wxString& firma, const InventuraHlavicka& inventura,
                   const std::vector<InventuraTiskRadek>& radky);

 private:
    Table m_inventura;
};

class KnihaInventurPrint : public TablePrint {
 public:
    KnihaInventurPrint(wxWindow* parent, const wxString& firma, int rok, const std::vector<InventuraHlavicka>& radky);

 private:
    Table m_kniha;
};
