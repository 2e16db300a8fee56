// The printed VAT return: the title and kind of the return, the taxpayer and the return's
// header data, then the form's sections with their numbered rows and amounts, and the
// attachment texts at the end. One A4 portrait page holds it when it can; otherwise the rows
// continue on the next page under their section's heading.
#pragma once

#include "document.h"
#include "documentprint.h"
#include "dph/dphdp3.h"

class Dphdp3Print : public DocumentPrint {
 public:
    Dphdp3Print(wxWindow* parent, const Dphdp3& priznani);

 private:
    Document m_doc;
};
