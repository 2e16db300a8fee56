// "Pokladny": the cash registers with their all-years balance and currency.
#pragma once

#include "CiselnikDialog.h"

class PokladnyDialog : public CiselnikDialog {
 public:
    // As a chooser it has "Vybrat", which closes it with the chosen row (chosenId).
    explicit PokladnyDialog(wxWindow* parent, bool chooser = false);

    void addRow() override;
    void editRow(int id) override;
    void copyRow(int id) override;
    void deleteRow(int id) override;

 protected:
    std::vector<Row> rows() override;
};
