#include "majetekpage.h"

#include "lxbookpage.h"

namespace majetekpage {

void setup(lxBookPage*) {}

}  // namespace majetekpage
