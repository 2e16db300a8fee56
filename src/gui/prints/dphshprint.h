// The printed EC sales list in the layout of the official form: the tax office, the DIČ and
// the page count, the title, kind and period, the declarant, and section A with a row per
// customer and code of supply. A list of more rows than a page of the form holds prints each
// further page of the form on a sheet of its own, headed by the DIČ and its page number.
#pragma once

#include "document.h"
#include "documentprint.h"
#include "dph/dphshv.h"

class DphshPrint : public DocumentPrint {
 public:
    DphshPrint(wxWindow* parent, const Dphshv& hlaseni);

 private:
    Document m_doc;
};

// Opens the preview of the list.
void nahledDphsh(wxWindow* parent, const Dphshv& hlaseni);
