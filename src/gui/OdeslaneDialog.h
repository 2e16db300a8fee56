// "Seznam odeslaných faktur": the log of invoices sent by e-mail (time, invoice number,
// recipient), with its export to a CSV file.
#pragma once

#include "SeznamDialog.h"

class OdeslaneDialog : public SeznamDialog {
 public:
    explicit OdeslaneDialog(wxWindow* parent);

    // Asks for the file ("Exportovat seznam do") and writes the list there; the path written,
    // empty when cancelled or failed (told).
    wxString exportovat();

 protected:
    std::vector<Row> rows() override;
};
