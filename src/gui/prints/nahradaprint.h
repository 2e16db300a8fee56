// The monthly reimbursement for the use of a vehicle, the sheet a sole trader keeps with the
// books: the vehicle and its data, each business trip with its kilometres, allowance per km,
// fuel price and amount, and the total. For a company vehicle the sheet states the fuel value of
// its trips for information only.
#pragma once

#include <wx/datetime.h>

#include <vector>

#include "table.h"
#include "tableprint.h"

struct NahradaTiskRadek {
    wxDateTime datum;
    wxString cesta;
    wxString ucel;
    int km = 0;
    double sazba = 0;
    double cenaPhm = 0;
    double castka = 0;
};

struct NahradaTisk {
    wxString firma;
    wxString vozidlo;   // the vehicle's name
    wxString rz;
    wxString druh;      // the kind of vehicle
    wxString phm;       // the fuel
    double spotreba = 0;
    wxString jednotka = "l";  // of the fuel: "l", or "kWh" for electricity
    bool soukrome = true;
    wxString obdobi;    // "říjen 2026"
    std::vector<NahradaTiskRadek> radky;
    int km = 0;
    double celkem = 0;
};

class NahradaPrint : public TablePrint {
 public:
    NahradaPrint(wxWindow* parent, const NahradaTisk& nahrada);

 private:
    Table m_nahrada;
};
