// Prints of the vehicle log: the book of a vehicle's trips, one trip, and the monthly
// reimbursement of a vehicle. Each gathers its rows from the open company and hands the print
// to the preview or a PDF (printchoice.h); the gathering is separate so that tests can check it.
#pragma once

#include <wx/string.h>

#include <vector>

class DbModel;
class wxWindow;
struct NahradaTisk;

// The trips `ids` (in that order) of vehicle `vozidloid` as the book of that vehicle for the
// year; trips of other vehicles among them are left out.
void tiskKnihyJizd(wxWindow* parent, int vozidloid, const std::vector<int>& ids);
// Trip `id` on a sheet of its own.
void tiskJizdy(wxWindow* parent, int id);
// The reimbursement of the vehicle in the month of the year as the print shows it; an empty
// sheet with the reason in `chyba` when it cannot be computed.
NahradaTisk nahradaTisk(DbModel& model, int vozidloid, int rok, int mesic, wxString* chyba = nullptr);
// To the preview or a PDF; returns the written PDF's path, or empty.
wxString tiskNahrady(wxWindow* parent, int vozidloid, int rok, int mesic);
