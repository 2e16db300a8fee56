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
// Horizontal padding inside a table cell, each side.
constexpr double CELL_PADDING_MM = 2.0;
// Room above and below the lines of every table row, so that the rules between rows never
// touch accents above capitals or descenders.
constexpr double ROW_PADDING_MM = 0.6;

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
    // Narrows the columns so that the table is at most `width` mm wide, then recomputes the
    // heights. The widest columns give way first, down to the width of their longest word;
    // only when even that is too wide do all columns shrink alike and long words are cut
    // between characters. A table that fits is left alone. Needs the computed widths.
    void fitToWidth(double width);
    double calculateColumnWidth(int column) const;
    int numberOfWrappedLines(const lxTableCellArray& row) const;
    double calculateRowHeight(const lxTableCellArray& row) const;
    // Width of one cell's widest line plus 2 mm padding on each side.
    static double cellWidth(const TableCell& cell);
    // The narrowest column in which no word of the cell has to be cut.
    static double narrowestWidth(const TableCell& cell);
    // Height of one line of the cell, whole millimetres.
    static double cellLineHeight(const TableCell& cell);
    // Wrapping limit of a column in screen pixels: 90 % of its width, but never past the
    // padding (which narrow columns would otherwise reach).
    double wrapLimitPx(int column) const;
    static double wrapLimitPx(double columnWidthMm);
    // The lines of a cell's text in a column `columnWidthMm` wide: what is drawn and counted.
    static std::vector<wxString> wrapCell(const TableCell& cell, double columnWidthMm);

    double headerHeight() const { return m_headerHeight; }
    double rowHeight(int row) const;
    double tableWidth() const;
    double tableWidthForSplit(int split) const;
    // The columns printed with column group `split`: the repeated columns, then the group's.
    // Without groups, every column.
    std::vector<int> columnsForSplit(int split) const;
    double columnsWidth(const std::vector<int>& columns) const;
    // Height the title takes on the first page, 0 without a title.
    double titleHeight() const;

    // Cuts the rows into pages of `pageHeight` less the margins; the first page also holds
    // the title. Fills rowsPerPage() and returns the number of pages.
    int calculatePages(double top, double bottom, double pageHeight);
    const lxTableRowsPerPageArray& rowsPerPage() const { return m_rowsPerPage; }
    // Pages cut by the caller, for prints that add rows of their own to every page.
    void setRowsPerPage(const lxTableRowsPerPageArray& pages);
    int pagesWithoutSplit() const { return m_pages; }
    int numberOfColumnsSplit() const { return static_cast<int>(columnsSplit.size()); }
    // Pages including the column groups (a table without groups counts as one group).
    int pages() const;

    TableTitle tableTitle;
    lxTableCellArray header;
    lxTableRowArray rows;
    lxTableColumnsSplitArray columnsSplit;
    // The first `repeatedColumns` columns (a date, a document number) are printed with every
    // column group of a split table, left of the group; groups hold only later columns.
    int repeatedColumns = 0;
    TextStyle style;

 private:
    void widenTo(size_t columns);
    void refreshHeights();

    int m_columns = 0;
    std::vector<double> m_fixedWidths;   // 0: from the contents
    std::vector<double> m_columnWidths;  // as computed by refreshCellsSize
    std::vector<double> m_rowHeights;
    double m_headerHeight = 0;
    lxTableRowsPerPageArray m_rowsPerPage;
    int m_pages = 0;
};

using lxTableArray = std::vector<Table>;
