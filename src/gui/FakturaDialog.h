// An issued or received invoice, ordinary or advance ("Faktura", "Zálohová faktura"), with its
// variable, specific and constant symbols, in the shared document dialog.
#pragma once

#include "DokladDialog.h"

class FakturaDialog : public DokladDialog {
 public:
    // `id` -1 opens a new invoice; with `kopie` the id is a copy made by DbModel::copyFaktura,
    // finished as a new invoice.
    FakturaDialog(wxWindow* parent, bool vydana, int id = -1, bool kopie = false);
};
