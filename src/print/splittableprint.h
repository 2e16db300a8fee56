// One table too wide for a page: its columns are cut into groups (Table::columnsSplit, set
// by the caller) and each page of rows is printed once per group, groups in order.
#pragma once

#include "tableprint.h"

class SplitTablePrintout : public TablePrintout {
 public:
    SplitTablePrintout(const Table* table, const wxString& title);
    SplitTablePrintout(std::shared_ptr<const Table> table, const wxString& title);

    // Column group (0-based) shown on page `page` (1-based): (page - 1) mod groups.
    int splitFromPage(int page) const;
    // Row page (0-based) shown on page `page`: (page - 1) div groups.
    int rowPageFromPage(int page) const;

 protected:
    bool printPage(wxDC* dc, int page, double mmFactor) override;

 private:
    int groups() const;
};

class SplitTablePrint : public TablePrint {
 public:
    SplitTablePrint(wxWindow* parent, const wxString& title);

    // Groups of whole columns, in order, each as wide as possible but, with the table's
    // repeated columns beside it, at most `width` mm (a single column wider than that is a
    // group by itself). The repeated columns belong to no group. Needs the computed widths.
    static lxTableColumnsSplitArray splitColumns(const Table& table, double width);

    // Row pages times column groups.
    int paginate() override;
    // Left edge (mm) of the table on page `page`, after pagination.
    double tableLeftMm(int page) const;

 protected:
    std::unique_ptr<lxPrint> createPrintout(bool snapshot) override;
};
