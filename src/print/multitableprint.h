// Several tables one after another: each is paginated by itself and starts on a new page.
#pragma once

#include "tableprint.h"

class MultiTablePrintout : public TablePrintout {
 public:
    // The printout draws `tables` (not owned), already paginated.
    MultiTablePrintout(const lxTableArray* tables, const wxString& title);
    // The printout keeps the tables it draws.
    MultiTablePrintout(std::shared_ptr<const lxTableArray> tables, const wxString& title);

    // Index of the table whose pages hold page `page` (1-based), -1 past the end.
    int getTableForPage(int page) const;
    // First page (1-based) of table `table`.
    int pageForTable(int table) const;

 protected:
    bool printPage(wxDC* dc, int page, double mmFactor) override;

 private:
    const lxTableArray* m_tables;
    std::shared_ptr<const lxTableArray> m_keptTables;
};

class MultiTablePrint : public lxPrintController {
 public:
    MultiTablePrint(wxWindow* parent, const wxString& title);

    // The tables to print, owned by the caller.
    void setTables(lxTableArray* tables) { m_tables = tables; }
    lxTableArray* tables() const { return m_tables; }

    int paginate() override;

 protected:
    std::unique_ptr<lxPrint> createPrintout(bool snapshot) override;

 private:
    lxTableArray* m_tables = nullptr;
};
