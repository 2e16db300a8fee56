// Helpers of the number series shared by the model and the series dialog.
#pragma once

namespace lxutils {

// The number of decimal digits of a number, without its sign; 0 has one digit.
int pocetCislic(long number);

}  // namespace lxutils
