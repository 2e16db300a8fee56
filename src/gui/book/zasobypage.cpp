#include "zasobypage.h"

#include "lxbookpage.h"

namespace zasobypage {

void setup(lxBookPage*) {}

}  // namespace zasobypage
