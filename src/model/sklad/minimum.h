// The minimum stock a user sets for an item, below which the stock page marks it. It is a
// preference of this computer rather than a fact of the books, so it lives beside the
// program's settings in the data directory ("zasoby.ini"), under the open company's database
// name, keyed by the item's id.
#pragma once

namespace skladminimum {

// 0 when none is set.
double minimum(int zasobaid);
// 0 removes it.
void setMinimum(int zasobaid, double minimum);

}  // namespace skladminimum
