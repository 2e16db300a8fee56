#include "table.h"

#include <algorithm>
#include <cmath>

#include "textmeasure.h"

namespace {

// Horizontal padding inside a cell, each side.
constexpr double CELL_PADDING_MM = 2.0;
// Text wraps at this share of its column's width.
constexpr double WRAP_SHARE = 0.9;

}  // namespace

TableTitle::TableTitle() { style.font = printFont(12); }

int TableTitle::lineCount() const { return static_cast<int>(title.Freq('\n')) + 1; }

Table::Table() = default;

void Table::setColumns(int columns) {
    m_columns = std::max(0, columns);
    m_fixedWidths.resize(m_columns, 0.0);
    m_columnWidths.resize(m_columns, 0.0);
}

void Table::widenTo(size_t columns) {
    if (static_cast<int>(columns) > m_columns) setColumns(static_cast<int>(columns));
}

void Table::addRow() { rows.emplace_back(); }

void Table::addCell(const wxString& value) { addCell(value, wxTEXT_ALIGNMENT_LEFT, style); }

void Table::addCell(const wxString& value, wxTextAttrAlignment alignment) { addCell(value, alignment, style); }

void Table::addCell(const wxString& value, wxTextAttrAlignment alignment, const TextStyle& cellStyle) {
    if (rows.empty()) addRow();
    rows.back().emplace_back(value, alignment, cellStyle);
    widenTo(rows.back().size());
}

void Table::addCellToHeader(const wxString& value) { addCellToHeader(value, wxTEXT_ALIGNMENT_LEFT); }

void Table::addCellToHeader(const wxString& value, wxTextAttrAlignment alignment) {
    header.emplace_back(value, alignment, style);
    widenTo(header.size());
}

void Table::setColumnWidth(int column, double mm) {
    if (column < 0) return;
    widenTo(column + 1);
    m_fixedWidths[column] = std::max(0.0, mm);
    m_columnWidths[column] = m_fixedWidths[column];
}

double Table::columnWidth(int column) const { return column >= 0 && column < m_columns ? m_columnWidths[column] : 0.0; }

double Table::cellWidth(const TableCell& cell) {
    return lxTextMeasure::pxToMm(lxTextMeasure::widestLinePx(cell.style.font, cell.value)) + 2 * CELL_PADDING_MM;
}

double Table::cellLineHeight(const TableCell& cell) {
    return std::trunc(cell.style.font.GetFractionalPointSize() * LINE_SPACING * MM_PER_POINT);
}

double Table::calculateColumnWidth(int column) const {
    if (column < 0 || column >= m_columns) return 0;
    if (m_fixedWidths[column] > 0) return m_fixedWidths[column];
    double width = 0;
    if (column < static_cast<int>(header.size())) width = cellWidth(header[column]);
    for (const auto& row : rows)
        if (column < static_cast<int>(row.size())) width = std::max(width, cellWidth(row[column]));
    return width;
}

double Table::wrapLimitPx(int column) const { return lxTextMeasure::mmToPx(columnWidth(column) * WRAP_SHARE); }

int Table::numberOfWrappedLines(const lxTableCellArray& row) const {
    int lines = 1;
    const int n = std::min(static_cast<int>(row.size()), m_columns);
    for (int c = 0; c < n; ++c)
        lines = std::max(lines, lxTextMeasure::wrappedLineCount(row[c].style.font, row[c].value, wrapLimitPx(c)));
    return lines;
}

double Table::calculateRowHeight(const lxTableCellArray& row) const {
    const int lines = numberOfWrappedLines(row);
    double height = 0;
    for (const auto& cell : row) height = std::max(height, cellLineHeight(cell) * lines);
    // A row without cells (or an empty header) still takes the line of the table's style.
    if (row.empty()) height = cellLineHeight(TableCell(wxEmptyString, wxTEXT_ALIGNMENT_LEFT, style));
    return height;
}

void Table::refreshCellsSize() {
    for (int c = 0; c < m_columns; ++c) m_columnWidths[c] = calculateColumnWidth(c);
    m_headerHeight = header.empty() ? 0 : calculateRowHeight(header);
    m_rowHeights.resize(rows.size());
    for (size_t r = 0; r < rows.size(); ++r) m_rowHeights[r] = calculateRowHeight(rows[r]);
}

double Table::rowHeight(int row) const {
    return row >= 0 && row < static_cast<int>(m_rowHeights.size()) ? m_rowHeights[row] : 0.0;
}

double Table::tableWidth() const {
    double width = 0;
    for (double w : m_columnWidths) width += w;
    return width;
}

double Table::tableWidthForSplit(int split) const {
    if (split < 0 || split >= numberOfColumnsSplit()) return tableWidth();
    double width = 0;
    for (int c = std::max(0, columnsSplit[split].columnStart); c <= columnsSplit[split].columnEnd && c < m_columns; ++c)
        width += m_columnWidths[c];
    return width;
}

double Table::titleHeight() const {
    if (!tableTitle.isValid()) return 0;
    return std::round(tableTitle.style.font.GetFractionalPointSize() * tableTitle.lineCount() * LINE_SPACING *
                      MM_PER_POINT);
}

int Table::calculatePages(double top, double bottom, double pageHeight) {
    if (m_rowHeights.size() != rows.size()) refreshCellsSize();
    m_rowsPerPage.clear();
    const double title = titleHeight();
    const int n = static_cast<int>(rows.size());
    int start = 0;
    double h = m_headerHeight;
    for (int i = 0; i < n; ++i) {
        h += m_rowHeights[i];
        const double room = pageHeight - (top + bottom) - (start == 0 ? title : 0);
        // A first row taller than the whole page stays on it rather than leaving the page
        // empty. The row that opens a later page is not counted on it, as the layout has
        // always done: such a page may hold one row more than its sum shows.
        if (room - h < 0 && i > start) {
            m_rowsPerPage.push_back({start, i - 1});
            start = i;
            h = m_headerHeight;
        }
    }
    m_rowsPerPage.push_back({start, n - 1});
    m_pages = static_cast<int>(m_rowsPerPage.size());
    return m_pages;
}

int Table::pages() const { return m_pages * std::max(1, numberOfColumnsSplit()); }
