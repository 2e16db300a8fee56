// Reader of the ISO 20022 bank-to-customer statement (camt.053) in any of its versions: one
// or more statements per file, each with its booked entries; an entry that is a batch gives
// one movement per transaction so that every payment in it can be paired on its own.
#pragma once

#include <string>

#include "pohyb.h"

namespace vypis {

// Whether the bytes look like a camt.053 document.
bool jeCamt053(const std::string& bytes);

// Reads every statement. Pending entries are left out. A file that is not XML, or an element
// without what it must hold, refuses the whole file with a message naming the element and
// its line: "Element Ntry (řádek 12): chybí CdtDbtInd".
CteniVypisu cistCamt053(const std::string& bytes);

}  // namespace vypis
