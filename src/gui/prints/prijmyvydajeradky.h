// The overview of income and expenses as the print takes it: plain rows, no model records.
#pragma once

#include <wx/string.h>

#include <vector>

struct PrijmyVydajeTisk {
    int rok = 0;
    wxString firma;   // name
    wxString adresa;  // one line
    wxString ic;
    struct Radek {
        wxString popis;
        double castka = 0;
    };
    std::vector<Radek> prijmy;
    std::vector<Radek> vydaje;  // the booked expenses, or one row per flat-rate percentage
    bool pausal = false;
    std::vector<int> procenta;  // the flat-rate percentage of each row of `vydaje`
};
