// Helpers of the number series shared by the model and the series dialog.
#pragma once

#include <wx/string.h>

namespace lxutils {

// The number of decimal digits of a number, without its sign; 0 has one digit.
int pocetCislic(long number);

// A document number of a series: the prefix, zeros up to the width `znaku` (prefix included)
// and the number; a longer number is kept whole.
wxString cisloDokladu(const wxString& prefix, int znaku, long cislo);

}  // namespace lxutils
