// The checks of a contact's registration number (IČ), VAT number (DIČ) and e-mail address.
// A failed check is a warning, not a refusal: foreign partners and old records do not always
// fit, so the contact dialog asks whether to save anyway.
#pragma once

#include <wx/string.h>

#include "records.h"

namespace kontaktcheck {

// An IČ of eight digits whose last digit is the check digit: the first seven weighted 8..2,
// summed, the remainder modulo 11 gives 1 for remainder 0, 0 for remainder 1, else 11 minus
// the remainder. Spaces are ignored.
bool isIcValid(const wxString& ic);
// A Czech DIČ "CZ" followed by 8 to 10 digits, or another EU member's VAT number: its two-letter
// prefix followed by 2 to 12 letters and digits. Spaces are ignored, letters may be lower case.
bool isDicValid(const wxString& dic);
// An address with "@" between a non-empty local part and a domain, without spaces.
bool isEmailValid(const wxString& email);

// What is wrong with the contact's IČ, DIČ and e-mail, one line each ("IČ 12345678 nemá
// platný kontrolní součet"); empty fields are not checked. Empty when all is well.
wxString warnings(const Kontakt& kontakt);

}  // namespace kontaktcheck
