// The QR payment code ("QR Platba") of an issued invoice: whether the invoice gets one, the
// payment string, and the symbol's modules. A code is printed only for an issued invoice paid
// other than in cash into an account with an IBAN.
#pragma once

#include <wx/datetime.h>
#include <wx/string.h>

#include <vector>

#include "dbmodel.h"

namespace qrplatba {

// What the payment string is made of.
struct Platba {
    wxString iban;
    wxString bic;
    double celkem = 0;
    wxString mena;
    wxDateTime splatnost;
    wxString vs;
    wxString ss;
    wxString ks;
};

// "SPD*1.0*ACC:…[+BIC]*AM:…*CC:…*DT:YYYYMMDD*X-VS:…[*X-SS:…][*X-KS:…]". The amount is written
// in the short C-locale form with six significant digits (336, 1250.5, 1.23457e+06); the
// variable symbol is always written, the other two only when not empty.
wxString qrtext(const Platba& platba);

// Whether the invoice qualifies: issued, a payment form other than cash, an account with IBAN.
bool isFakturaForQrPlatba(DbModel& model, const Faktura& faktura);
// The invoice's payment string; empty when it does not qualify.
wxString qrtext(DbModel& model, const Faktura& faktura);

// The symbol at error-correction level MEDIUM: `size` modules a side, row by row.
struct Symbol {
    int size = 0;
    std::vector<bool> tmave;
    bool tmavy(int x, int y) const { return tmave[static_cast<size_t>(y) * size + x]; }
};
Symbol symbol(const wxString& text);

}  // namespace qrplatba
