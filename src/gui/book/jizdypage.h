// The commands of the page "Kniha jízd": add, edit, copy, delete, print and export.
#pragma once

class lxBookPage;

namespace jizdypage {

void setup(lxBookPage* page);

}  // namespace jizdypage
