// The amounts of invoices and receivables/liabilities that the document dialogs compute: an
// item's VAT and total, the rounding line of a document, and how a payment splits into its
// base and VAT parts. Plain functions without a database, so that every rule is checked
// without a window.
#pragma once

#include <wx/datetime.h>

#include <vector>

namespace castky {

// The share of VAT in a price that includes it: rate / (rate + 100). For a tax date up to
// 31 March 2019 the law had the coefficient rounded to four decimal places (half away from
// zero); since 1 April 2019 it is used as it is. `datumDane` is the date of taxable supply
// (DUZP) for issued and for received documents alike: the tax of a supply follows the law
// on the day the supply was made, and the supplier computed it by that day.
double koeficient(int sazba, const wxDateTime& datumDane);

struct Polozka {
    double dph = 0;
    double celkem = 0;  // including VAT
};
// An item's VAT and total from its quantity, unit price and rate. A non-payer's item has no
// VAT; a payer's price is either without VAT (`bezDph`, VAT added on top) or with VAT (VAT
// taken out by the coefficient). Nothing is rounded: the doubles keep full precision.
Polozka polozka(bool platce, bool bezDph, double pocet, double cenaMj, int sazba, const wxDateTime& datumDane);

// The rounding of a document's total up to a whole unit. `soucet` is the sum of the items'
// totals without a rounding line. `potreba` is false when the sum is already whole (within
// a billionth, so that 33.33 + 33.33 + 33.34 counts as whole despite binary fractions).
struct Zaokrouhleni {
    bool potreba = false;
    double rozdil = 0;
};
Zaokrouhleni zaokrouhleni(double soucet);
// The VAT rate of a payer's rounding line: 0 when paid in cash (rounding of cash payments is
// outside VAT), otherwise the highest rate among the items, or the basic rate `zakladni`
// when every item is at 0 %.
int sazbaZaokrouhleni(bool pokladnou, const std::vector<int>& sazbyPolozek, int zakladni);

// A payment P of a document with total T and VAT D: the base part (T − D) × P / T and the VAT
// part D × P / T. A document without VAT (D zero within 1e-12 absolute or 1e-8 relative) or
// with a zero total is paid by one entry of the whole amount (`rozdelit` false).
struct Rozdeleni {
    bool rozdelit = false;
    double zaklad = 0;
    double dph = 0;
};
Rozdeleni rozdelUhradu(double celkem, double dph, double zaplaceno);

}  // namespace castky
