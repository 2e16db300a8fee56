// Prints of the stock: the item card, the stock book at a date, one stock-taking and the book
// of stock-takings. Each gathers its rows from the open company and hands the print to the
// preview or a PDF (printchoice.h); each returns the written PDF's path or an empty text.
#pragma once

#include <wx/datetime.h>
#include <wx/string.h>

#include <vector>

class DbModel;
class wxWindow;
struct KnihaZasobRadek;
struct KartaRadek;

wxString tiskKartyZasoby(wxWindow* parent, int zasobaid);
// The items `ids` in that order with their state at the end of the day `datum`.
wxString tiskKnihyZasob(wxWindow* parent, const std::vector<int>& ids, const wxDateTime& datum);
wxString tiskInventury(wxWindow* parent, int inventuraid);
wxString tiskKnihyInventur(wxWindow* parent);

// The rows those prints show, read from `model`.
std::vector<KartaRadek> kartaZasoby(DbModel& model, int zasobaid);
std::vector<KnihaZasobRadek> knihaZasob(DbModel& model, const std::vector<int>& ids, const wxDateTime& datum);
