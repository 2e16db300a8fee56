// The overview of a year's taxable income and expenses for the income tax return: the journal
// entries booked into tax-relevant columns, summed per column; with flat-rate expenses the
// expenses are not the booked ones but each income entry's percentage of its amount, summed per
// percentage. Amounts are in home currency as the journal keeps them.
#pragma once

#include <wx/string.h>

#include <vector>

class DbModel;

struct PrijmyVydaje {
    struct Radek {
        wxString popis;
        double castka = 0;
    };
    int rok = 0;
    bool pausal = false;
    std::vector<Radek> prijmy;   // per income column, in column order
    std::vector<Radek> vydaje;   // per expense column; empty with flat-rate expenses
    struct Pausal {
        int procento = 0;
        double castka = 0;
    };
    std::vector<Pausal> pausalni;  // per percentage, highest first

    double prijmyCelkem() const;
    double vydajeCelkem() const;  // the booked or the flat-rate expenses
    double zisk() const { return prijmyCelkem() - vydajeCelkem(); }
    bool prazdny() const { return prijmy.empty() && vydaje.empty(); }
};

PrijmyVydaje prijmyVydaje(DbModel& model, int rok, bool pausal);

// The overview as the rows of a list or CSV: section, description and amount, the totals and
// the profit or loss last.
struct PrehledRadek {
    wxString oddil;
    wxString popis;
    double castka = 0;
};
std::vector<PrehledRadek> prijmyVydajeRadky(const PrijmyVydaje& p);
