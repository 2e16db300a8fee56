// Small helpers shared by many parts of the program: version numbers, comparison of
// amounts, the data directory and Czech bank account numbers.
#pragma once

#include <wx/string.h>

namespace lxutils {

// The version of the program and of the database files it writes.
inline const char* const EVIDA_VERSION = "1.40.14";

// "a.b.c" -> a*1000 + b*10 + c; any text without exactly three parts gives 0.
int versionToInt(const wxString& version);

// Doubles are equal when they differ by at most the absolute tolerance, or by at most the
// relative tolerance of the larger magnitude. The program calls it with 1e-12 and 1e-8.
bool isSameDouble(double a, double b, double absTolerance = 1e-12, double relTolerance = 1e-8);

// The per-user directory that holds evida.ini and every company database. Created on demand.
wxString dataDir();

// "evida1.db", or the first "evida%d.db" not yet in the data directory; empty when the
// storage model is not one file per company.
wxString getUniqueDbName();

// Checks a Czech account number "[prefix-]number" with the national weighted checksums
// (weights 10,5,8,4,2,1 for the prefix and 6,3,7,9,10,5,8,4,2,1 for the number, mod 11).
bool isCzechAccountValid(const wxString& cisloUctu);

// Builds the Czech IBAN "CZkk BBBB PPPPPP NNNNNNNNNN" (printed without blanks) from an
// account number "[prefix-]number" and a four-digit bank code, with ISO 7064 mod-97 check
// digits. Returns an empty text when the parts are not numbers of the allowed length.
wxString ibanFromUcet(const wxString& cisloUctu, const wxString& kodBanky);

} // namespace lxutils
