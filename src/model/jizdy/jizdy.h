// The rules of the vehicle log, free of the database and of the user interface: reading the
// typed time of day and odometer state, the checks of a trip before it is saved, the
// continuity of a vehicle's odometer over its trips, and the monthly reimbursement of a
// vehicle's business trips.
#pragma once

#include <wx/datetime.h>
#include <wx/string.h>

#include <vector>

#include "records.h"

namespace jizdy {

// The fuel kind of electric vehicles among the seeded fuels: measured in kWh, not litres.
constexpr int PHM_ELEKTRINA = 5;

// --- typed values ---------------------------------------------------------------------------

// A time of day as people type it: "8:30", "08:30", "8.30", "8" (whole hour), "" is midnight.
// Gives the minutes since midnight, or -1 when the text is not a time.
int parseCas(const wxString& text);
// "8:05" for 485 minutes.
wxString formatCas(int minuty);
// A day and a time of day as one moment; invalid when either is.
wxDateTime spojDatumCas(const wxDateTime& den, int minuty);
// The odometer state in whole kilometres: typed like an amount ("1 250", "1250"), a whole
// number, not negative. False when the text is not one.
bool parseKm(const wxString& text, int* km);
wxString formatKm(int km);
// "15.10.2026 8:30", the way trips are shown in messages and prints.
wxString formatCasJizdy(const wxDateTime& cas);

// --- a trip before it is saved --------------------------------------------------------------

// The refusal of a trip that cannot be saved, empty when it can: a vehicle and a driver must be
// chosen, the end may not come before the start, the odometer may not go down during the trip.
wxString jizdaValidation(const Jizda& jizda);

// The warnings about a trip that is otherwise fine, for the user to confirm. `ostatni` are other
// trips (the saved version of the trip itself, when edited, is skipped by its id): those of the
// same vehicle or driver whose times overlap the trip's, and the vehicle's trips just before and
// after it, whose odometer states it must continue. Trips that only touch (one ends when the
// other starts) do not overlap, and a start equal to the previous end is continuous.
std::vector<wxString> varovaniJizdy(const Jizda& jizda, const lxJizdaArray& ostatni);

// --- the code lists ------------------------------------------------------------------------

// A fuel price: not negative, valid from a day to a day not before it, and not overlapping
// another price of the same fuel, so that each day has one price. Empty when fine.
wxString cenaPhmValidation(const CenaPhm& cena, const lxCenaPhmArray& ostatni);
// A per-km allowance: a year between 2000 and 2100, more than zero, one per kind and year.
wxString nahradaKmValidation(const NahradaKm& nahrada, const lxNahradaKmArray& ostatni);

// --- a vehicle's odometer over its trips ----------------------------------------------------

struct Navaznost {
    int jizdaid = -1;  // the later trip of the pair the text is about
    wxString text;
};
// Goes through a vehicle's trips in the order they started and reports every place where the
// odometer goes backwards, where two trips overlap in time, and where kilometres are missing
// between two trips (driven and not written down). Sorting makes it n log n; no trip is compared
// with more than its predecessor.
std::vector<Navaznost> kontrolaNavaznosti(const lxJizdaArray& jizdy);

// --- the monthly reimbursement of a vehicle -------------------------------------------------

struct NahradaRadek {
    int jizdaid = -1;
    wxDateTime startcas;
    wxString cesta;
    wxString ucel;
    int km = 0;
    double sazba = 0;      // the basic allowance per km (0 for a company vehicle)
    double cenaPhm = 0;    // the average fuel price valid on the day of the trip
    double castka = 0;     // rounded to hellers
};

struct Nahrada {
    bool soukrome = false;  // a private vehicle: the allowance is due; otherwise information only
    double spotreba = 0;
    std::vector<NahradaRadek> radky;
    int km = 0;
    double celkem = 0;      // the sum of the rounded lines
    wxString chyba;         // why it cannot be computed (a missing rate or price); then no lines
};

// One hundredth of a crown, half away from zero.
double zaokrouhliNaHalere(double castka);

// The reimbursement of `vozidlo` for its trips `jizdy` (all counted as business trips: the log
// holds the business use of the vehicle). `sazby` are the per-km allowances of the trips' year,
// `ceny` the average prices of the vehicle's fuel.
//
// A private vehicle used for business earns the basic allowance per km of its kind and year,
// plus the fuel: average price valid on the day of the trip × consumption per 100 km × km / 100.
// A company vehicle earns no allowance: its fuel is an expense of the business on the receipts
// of its purchase, so the computed fuel value is only for comparing with those receipts and is
// shown as information.
//
// Each line is one trip's claim and is stated in crowns and hellers as travel expenses are
// paid, so the line is rounded to hellers when complete (allowance and fuel together, never the
// parts separately), and the total is the sum of the rounded lines: the printed lines then add
// up exactly to the printed total.
Nahrada vypocetNahrady(const Vozidlo& vozidlo, const lxJizdaArray& jizdy, const lxNahradaKmArray& sazby,
                       const lxCenaPhmArray& ceny, const wxString& druhVozidla = wxString(),
                       const wxString& phm = wxString());

}  // namespace jizdy
