// The money journal with all its columns ("Peněžní deník se všemi sloupci"): one amount column
// per journal column of the company, far too many for one sheet. The amount columns are cut
// into groups that fill landscape pages; the date and the document number are repeated left
// of every group, the description goes with the first. Each page ends with the running totals
// of its columns ("Převod"), which the next page opens with, and the last one with the
// totals of the year ("Celkem").
#pragma once

#include <wx/datetime.h>

#include <vector>

#include "splittableprint.h"
#include "table.h"

class FullDenikPrint : public SplitTablePrint {
 public:
    // A journal column: its number and its description.
    struct Sloupec {
        int cislo;
        wxString popis;
    };
    // An entry: its amount goes into the journal column `sloupec`.
    struct Radek {
        wxDateTime datum;
        wxString cislo;
        wxString popis;
        int sloupec;
        double castka;
    };

    FullDenikPrint(wxWindow* parent, const wxString& firma, int rok, const std::vector<Sloupec>& sloupce,
                   const std::vector<Radek>& radky);

    // Builds the table with its carried and final totals, cuts its rows into pages and its
    // columns into groups; returns row pages times groups.
    int paginate() override;

    // A journal column's header: its number and its description, the long qualifier
    // "(příjem ovlivňující základ daně)" said in two words ("daňový příjem").
    static wxString zahlavi(const Sloupec& sloupec);

 private:
    // Fixes the widths of the amount columns and decides whether their amounts are grouped.
    void sirkySloupcu(const std::vector<std::vector<double>>& castky);
    wxString castka(double value, int sloupec) const;
    void addRadekSouctu(const wxString& nazev, const std::vector<double>& soucty);

    std::vector<Sloupec> m_sloupce;
    std::vector<Radek> m_radky;
    std::vector<bool> m_skupiny;  // per amount column: thousands grouped
    Table m_denik;
};
