// The commands of the page "Kniha zásob": add, edit, copy, delete, print and export.
#pragma once

class lxBookPage;

namespace zasobypage {

void setup(lxBookPage* page);

}  // namespace zasobypage
