// "Sklady": the warehouses with their valuation method and number of items.
#pragma once

#include "CiselnikDialog.h"
#include "SkladDialog.h"

class SkladyDialog : public FormCiselnikDialog<SkladDialog> {
 public:
    explicit SkladyDialog(wxWindow* parent, bool chooser = false);
    // Refused while the warehouse holds items or stock-takings.
    void deleteRow(int id) override;

 protected:
    std::vector<Row> rows() override;
};
