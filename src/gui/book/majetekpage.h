// The commands of the page "Kniha majetku": add, edit, copy, delete, the asset book and the
// asset card with the whole depreciation plan.
#pragma once

#include "majetekprint.h"

class DbModel;
class lxBookPage;
class wxWindow;

namespace majetekpage {

void setup(lxBookPage* page);
// The card of an asset: its data and the plan to the end, the stored years as they are.
KartaMajetku kartaMajetku(DbModel& model, int id);
// The card's preview (or PDF).
void tiskKarty(wxWindow* parent, int id);

}  // namespace majetekpage
