// Reader of the ABO/GPC statement that Czech banks export: fixed-width text lines, a "074"
// header per statement followed by its "075" movements, amounts in hellers with the sign
// given by the accounting code. The bytes may be Windows-1250 or UTF-8.
#pragma once

#include <string>

#include "pohyb.h"

namespace vypis {

// Whether the bytes look like an ABO/GPC file: the first line is a "074" header.
bool jeGpc(const std::string& bytes);

// Reads every statement of the file. A line that cannot be read refuses the whole file with a
// message naming the line: "Řádek 3: neplatné datum „310299“".
CteniVypisu cistGpc(const std::string& bytes);

}  // namespace vypis
