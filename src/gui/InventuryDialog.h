// "Inventury": the stock-takings of the current year with add, edit, delete and print.
#pragma once

#include "SeznamDialog.h"

class InventuryDialog : public SeznamDialog {
 public:
    explicit InventuryDialog(wxWindow* parent);

    void addRow();
    void editRow(int id);
    void deleteRow(int id);
    void printRow(int id);
    void printAll();

 protected:
    std::vector<Row> rows() override;
};
