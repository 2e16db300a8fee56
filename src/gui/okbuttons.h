// The OK and "Zrušit" row under a dialog's form. OK is the default button (Enter in a
// single-line field presses it, as in any native dialog) and closes the dialog only when
// `save` succeeds; "Zrušit" ends it with wxID_CANCEL.
#pragma once

#include <functional>

class wxDialog;
class wxSizer;

void addOkZrusit(wxDialog* dialog, wxSizer* top, std::function<bool()> save);
