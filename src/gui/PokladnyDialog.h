// "Pokladny": the cash registers with their all-years balance and currency.
#pragma once

#include "CiselnikDialog.h"
#include "PokladnaDialog.h"

class PokladnyDialog : public FormCiselnikDialog<PokladnaDialog> {
 public:
    // As a chooser it has "Vybrat", which closes it with the chosen row (chosenId).
    explicit PokladnyDialog(wxWindow* parent, bool chooser = false);
    void deleteRow(int id) override;

 protected:
    std::vector<Row> rows() override;
};
