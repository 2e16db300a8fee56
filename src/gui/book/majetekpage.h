// The commands of the page "Kniha majetku": add, edit, copy, delete, print and export.
#pragma once

class lxBookPage;

namespace majetekpage {

void setup(lxBookPage* page);

}  // namespace majetekpage
