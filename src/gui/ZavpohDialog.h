// A receivable ("Pohledávka") or a liability ("Závazek"): a document like an invoice without
// its type and with the variable symbol only, in the shared document dialog.
#pragma once

#include "DokladDialog.h"

class ZavpohDialog : public DokladDialog {
 public:
    // `id` -1 opens a new document; with `kopie` the id is a copy made by DbModel::copyZavPoh,
    // finished as a new document.
    ZavpohDialog(wxWindow* parent, bool zavazek, int id = -1, bool kopie = false);
};
