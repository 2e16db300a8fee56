// "Bankovní účty": the bank accounts with their all-years balance and currency.
#pragma once

#include "CiselnikDialog.h"
#include "BankaDialog.h"

class BankyDialog : public FormCiselnikDialog<BankaDialog> {
 public:
    // As a chooser it has "Vybrat", which closes it with the chosen row (chosenId).
    explicit BankyDialog(wxWindow* parent, bool chooser = false);
    void deleteRow(int id) override;

 protected:
    std::vector<Row> rows() override;
};
