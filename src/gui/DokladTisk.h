// Prints of the invoice and receivable/liability pages: the book of the documents the page
// shows, and one receivable or liability as a document. Each gathers its rows from the open
// company and hands the print to the preview or a PDF (printchoice.h).
#pragma once

#include <wx/string.h>

#include <vector>

class DbModel;
class wxWindow;
struct KnihaCelkem;
struct KnihaRadek;
struct ZavpohDoklad;

// The book of the page `nav` (NAV_FAKTURY_VYDANE, NAV_FAKTURY_PRIJATE, NAV_POHLEDAVKY,
// NAV_ZAVAZKY) over the documents `ids`, in that order. Returns the written PDF's path or an
// empty text.
wxString tiskKnihyDokladu(wxWindow* parent, int nav, const std::vector<int>& ids);
// The rows and totals that book prints, read from `model`.
std::vector<KnihaRadek> knihaDokladu(DbModel& model, int nav, const std::vector<int>& ids, KnihaCelkem* celkem);

// Receivable or liability `id` as a document, to the preview or a PDF.
void tiskZavpoh(wxWindow* parent, int id);
// The document that print shows; an invalid id gives a document without number.
ZavpohDoklad zavpohDoklad(DbModel& model, int id);
