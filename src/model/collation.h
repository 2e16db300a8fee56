// Czech order and Czech search of names: "Čapek" after "Cyril", "Chrudim" after "Hradec",
// "Řepa" after "Rum", with case and accents deciding only between otherwise equal names.
// Lists of contacts and every text column of the book pages sort through these, and the
// contact search matches regardless of case and accents.
#pragma once

#include <wx/string.h>

#include <string>

namespace collation {

// Negative when `a` goes before `b` in Czech order, zero when they are the same text for
// the collation, positive after.
int czechCompare(const wxString& a, const wxString& b);
// A byte string whose plain comparison gives czechCompare's order; made once per row, it
// lets a long list sort without collating every pair again.
std::string czechSortKey(const wxString& text);
// The text lower-cased and without accents ("Čeněk Říha" → "cenek riha"), for matching a
// typed search against names.
wxString searchFold(const wxString& text);
// Whether `needle` occurs in `text` regardless of case and accents; an empty needle matches.
bool containsFolded(const wxString& text, const wxString& needle);

}  // namespace collation
