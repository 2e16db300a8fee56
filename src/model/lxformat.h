// How the program reads and writes the numbers and dates a person sees: one parser for amounts,
// one for exchange rates, one for dates, and the Czech forms they are shown in. Every dialog,
// list, print and import goes through these, whatever the system locale, so that "1 250,50"
// means the same everywhere and a shown value is never read back as the stored one.
#pragma once

#include <wx/arrstr.h>
#include <wx/datetime.h>
#include <wx/string.h>

namespace lxformat {

// The largest magnitude an amount may have: far beyond any small business, well short of
// where doubles stop holding hellers exactly.
constexpr double MAX_CASTKA = 1e12;
// Rates are home units per one foreign unit; nothing real comes near these bounds.
constexpr double MAX_KURZ = 1e6;

enum class Chyba {
    ZADNA,           // read
    PRAZDNE,         // nothing typed
    SYNTAXE,         // not a number in any form we read
    NEJEDNOZNACNE,   // "12.500": twelve and a half, or twelve thousand five hundred?
    ROZSAH,          // beyond MAX_CASTKA / MAX_KURZ, or a rate not above zero
};

// An amount as Czech users type it: "1250", "-1250", "1250,5", "1 250,50" (a space, a no-break
// space or a narrow no-break space between groups of three), "1250.50", "1.250,00" (dots
// between groups when a decimal comma follows), optionally followed by "Kč". Exponents,
// hexadecimal, "inf" and "nan" are refused, so is a lone dot before exactly three digits
// ("1.250"), which could mean either. The value is finite and |value| < MAX_CASTKA.
Chyba parseCastka(const wxString& text, double* value);
// An exchange rate: the same forms, without the currency suffix; greater than zero and below
// MAX_KURZ. A dot is always a decimal point here ("0.125").
Chyba parseKurz(const wxString& text, double* value);

// A date as typed: "15.10.2026", "15. 10. 2026", "5.3.26" (20xx), "15.10." (in `rokBezRoku`),
// "2026-10-15". Days the month does not have are refused. Invalid when not read.
wxDateTime parseDatum(const wxString& text, int rokBezRoku);

// The message for a field whose text could not be read, naming the field by its label
// (without the colon): "Částka v Kč: „12,5x“ není platná částka".
wxString castkaZprava(const wxString& pole, const wxString& text, Chyba chyba);
wxString kurzZprava(const wxString& pole, const wxString& text, Chyba chyba);
wxString datumZprava(const wxString& pole, const wxString& text);

// Money as people read it: a decimal comma and two decimals, "-1 250,50". With `skupiny`
// the thousands are separated by a no-break space (lists and prints); without, "1250,50"
// (narrow fields, CSV for spreadsheets).
wxString formatCastka(double value, bool skupiny = true);
// The same followed by a currency code, "1 250,50 Kč" or "100,00 EUR".
wxString formatCastka(double value, const wxString& mena, bool skupiny = true);
// A rate with as many decimals as it needs, up to eight: "25,345", "0,001547", "1".
wxString formatKurz(double value);
// A stock quantity: three decimals, "12,500".
wxString formatMnozstvi(double value);
// "23.11.2026"; empty for an invalid date.
wxString formatDatum(const wxDateTime& date);

}  // namespace lxformat
