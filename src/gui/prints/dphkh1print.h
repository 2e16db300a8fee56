// The printed VAT control statement, a check print that is not filed (only the XML is): the
// tax office and DIČ, the kind of statement and its details, the title and period, the
// taxpayer, then every section as a table of its rows, the two summaries and section C.
// Long sections go on over the page under their heading.
#pragma once

#include "document.h"
#include "documentprint.h"
#include "dph/dphkh1.h"

class Dphkh1Print : public DocumentPrint {
 public:
    Dphkh1Print(wxWindow* parent, const Dphkh1& hlaseni);

 private:
    Document m_doc;
};

// Opens the preview of the statement.
void nahledDphkh1(wxWindow* parent, const Dphkh1& p);
