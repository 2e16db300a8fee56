// One table over as many pages as its rows need; every column fits the page width.
#pragma once

#include "printcontroller.h"
#include "table.h"

class TablePrintout : public lxPrint {
 public:
    // The printout draws `table` (not owned), already paginated.
    TablePrintout(const Table* table, const wxString& title);
    // The printout keeps the table it draws.
    TablePrintout(std::shared_ptr<const Table> table, const wxString& title);

    // Draws one cell at (x, y) mm: its back colour, then its text wrapped as the layout
    // wrapped it, each line aligned in the cell.
    void drawCell(const TableCell& cell, wxDC* dc, double x, double y, double width, double height);
    // The borders of the header and of the rows of one page, columns first ... last, with
    // the table's top left corner at (x, y) mm.
    void drawGrid(const Table& table, const TableRowsPerPage& rows, int firstColumn, int lastColumn, wxDC* dc, double x,
                  double y);
    // The same for the given columns, left to right in that order.
    void drawGrid(const Table& table, const TableRowsPerPage& rows, const std::vector<int>& columns, wxDC* dc, double x,
                  double y);
    // Left edge of a table `tableWidthMm` wide, centred between the margins.
    static double tableLeftMm(const Layout& layout, double sheetWidthMm, double tableWidthMm);

 protected:
    bool printPage(wxDC* dc, int page, double mmFactor) override;
    // Draws row page `rowPage` of `table` with columns first ... last, centred between the
    // margins, with the title above it when asked.
    bool drawTablePage(wxDC* dc, const Table& table, int rowPage, int firstColumn, int lastColumn, bool withTitle);
    bool drawTablePage(wxDC* dc, const Table& table, int rowPage, const std::vector<int>& columns, bool withTitle);

    const Table* m_table;

 private:
    std::shared_ptr<const Table> m_keptTable;
    // Sets font and colour only when they change: on a PDF each change makes a new font.
    void useStyle(wxDC* dc, const TextStyle& style);
    void drawTitle(wxDC* dc, const TableTitle& title, double x, double y, double width, double height);

    wxDC* m_styledDc = nullptr;
    wxFont m_font;
    wxColour m_colour;
};

// Makes tables fit the sheet: a portrait layout turns to landscape when a table is wider than
// the portrait sheet's room, then each table still too wide is narrowed to the room (its
// long texts wrap). The tables' widths must have been computed.
void fitTablesToSheet(const std::vector<Table*>& tables, lxPrint::Layout& layout);

class TablePrint : public lxPrintController {
 public:
    TablePrint(wxWindow* parent, const wxString& title);

    // The table to print, owned by the caller.
    void setTable(Table* table) { m_table = table; }
    Table* table() const { return m_table; }

    // Measures the table, fits it to the sheet (see fitTablesToSheet) and cuts it into pages.
    int paginate() override;

 protected:
    std::unique_ptr<lxPrint> createPrintout(bool snapshot) override;
    // A copy of the table for a printout that keeps its own; null without a table.
    std::shared_ptr<const Table> tableSnapshot() const;

    Table* m_table = nullptr;
};
