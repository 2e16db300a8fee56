// The tabular print model: cells, a title, a header row and rows, with the sizes computed
// from the text and the rows cut into pages. All sizes are millimetres.
#pragma once

#include <wx/string.h>
#include <wx/textctrl.h>

#include <vector>

#include "textstyle.h"

// Millimetres per typographic point.
constexpr double MM_PER_POINT = 0.35277777777777775;
// Line spacing of printed text, as a multiple of the font size.
constexpr double LINE_SPACING = 1.2;

class TableCell {
 public:
    TableCell() = default;
    explicit TableCell(const wxString& value_, wxTextAttrAlignment alignment_ = wxTEXT_ALIGNMENT_LEFT,
                       const TextStyle& style_ = TextStyle())
        : value(value_), style(style_), alignment(alignment_) {}

    // Line feeds start new lines inside the cell.
    wxString value;
    TextStyle style;
    wxTextAttrAlignment alignment = wxTEXT_ALIGNMENT_LEFT;
};

class TableTitle {
 public:
    TableTitle();
    bool isValid() const { return !title.empty(); }
    // Lines of the title, separated by line feeds.
    int lineCount() const;

    wxString title;
    wxTextAttrAlignment alignment = wxTEXT_ALIGNMENT_LEFT;
    TextStyle style;  // 12 pt by default
};

// Inclusive row indices printed on one page; an empty table has the page 0 ... -1.
struct TableRowsPerPage {
    int rowStart;
    int rowEnd;
};

// Inclusive column indices of one group of columns printed together.
struct TableColumnsSplit {
    int columnStart;
    int columnEnd;
};

using lxTableCellArray = std::vector<TableCell>;
using lxTableRowArray = std::vector<lxTableCellArray>;
using lxTableRowsPerPageArray = std::vector<TableRowsPerPage>;
using lxTableColumnsSplitArray = std::vector<TableColumnsSplit>;

class Table {
 public:
    Table();

    int columns() const { return m_columns; }
    void setColumns(int columns);

    // Building: a new row, then its cells in column order. Cells take the table's style
    // unless given one. A row or header longer than `columns` widens the table.
    void addRow();
    void addCell(const wxString& value);
    void addCell(const wxString& value, wxTextAttrAlignment alignment);
    void addCell(const wxString& value, wxTextAttrAlignment alignment, const TextStyle& style);
    void addCellToHeader(const wxString& value);
    void addCellToHeader(const wxString& value, wxTextAttrAlignment alignment);

    // A fixed width in mm; 0 returns the column to the width of its contents.
    void setColumnWidth(int column, double mm);
    double columnWidth(int column) const;

    // Recomputes every column width, the header height and every row height.
    void refreshCellsSize();
    double calculateColumnWidth(int column) const;
    int numberOfWrappedLines(const lxTableCellArray& row) const;
    double calculateRowHeight(const lxTableCellArray& row) const;
    // Width of one cell's widest line plus 2 mm padding on each side.
    static double cellWidth(const TableCell& cell);
    // Height of one line of the cell, whole millimetres.
    static double cellLineHeight(const TableCell& cell);
    // Wrapping limit of a column in screen pixels: 90 % of its width.
    double wrapLimitPx(int column) const;

    double headerHeight() const { return m_headerHeight; }
    double rowHeight(int row) const;
    double tableWidth() const;
    double tableWidthForSplit(int split) const;
    // Height the title takes on the first page, 0 without a title.
    double titleHeight() const;

    // Cuts the rows into pages of `pageHeight` less the margins; the first page also holds
    // the title. Fills rowsPerPage() and returns the number of pages.
    int calculatePages(double top, double bottom, double pageHeight);
    const lxTableRowsPerPageArray& rowsPerPage() const { return m_rowsPerPage; }
    int pagesWithoutSplit() const { return m_pages; }
    int numberOfColumnsSplit() const { return static_cast<int>(columnsSplit.size()); }
    // Pages including the column groups (a table without groups counts as one group).
    int pages() const;

    TableTitle tableTitle;
    lxTableCellArray header;
    lxTableRowArray rows;
    lxTableColumnsSplitArray columnsSplit;
    TextStyle style;

 private:
    void widenTo(size_t columns);

    int m_columns = 0;
    std::vector<double> m_fixedWidths;   // 0: from the contents
    std::vector<double> m_columnWidths;  // as computed by refreshCellsSize
    std::vector<double> m_rowHeights;
    double m_headerHeight = 0;
    lxTableRowsPerPageArray m_rowsPerPage;
    int m_pages = 0;
};

using lxTableArray = std::vector<Table>;
