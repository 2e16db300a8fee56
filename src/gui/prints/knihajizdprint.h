// The vehicle log of one vehicle over a period: every trip with its times, driver, route,
// purpose and odometer states, and a last row with the number of trips and the kilometres.
#pragma once

#include <wx/datetime.h>

#include <vector>

#include "table.h"
#include "tableprint.h"

// One trip as the prints show it.
struct JizdaRadek {
    wxDateTime startcas;
    wxDateTime endcas;
    wxString ridic;
    wxString cesta;
    wxString ucel;
    int startkm = 0;
    int endkm = 0;
};

class KnihaJizdPrint : public TablePrint {
 public:
    // `vozidlo` names the vehicle ("1AB 2345, Škoda Octavia"), `obdobi` the period printed.
    KnihaJizdPrint(wxWindow* parent, const wxString& firma, const wxString& vozidlo, const wxString& obdobi,
                   const std::vector<JizdaRadek>& jizdy);

 private:
    Table m_kniha;
};

// "15.10.2026 8:05" and "1 250" as the vehicle log's prints write them.
wxString jizdaCas(const wxDateTime& cas);
wxString jizdaKm(int km);
