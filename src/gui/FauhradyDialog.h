// "Úhrady": the payment forms of invoices and whether each pays in cash.
#pragma once

#include "CiselnikDialog.h"
#include "FauhradaDialog.h"

class FauhradyDialog : public FormCiselnikDialog<FauhradaDialog> {
 public:
    // As a chooser it has "Vybrat", which closes it with the chosen row (chosenId).
    explicit FauhradyDialog(wxWindow* parent, bool chooser = false);
    void deleteRow(int id) override;

 protected:
    std::vector<Row> rows() override;
};
