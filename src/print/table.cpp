#include "table.h"

#include <algorithm>
#include <cmath>

#include "textmeasure.h"

namespace {

// Text wraps at this share of its column's width.
constexpr double WRAP_SHARE = 0.9;

// The narrowest column in which a word of `wordMm` stays on one line.
double widthForWord(double wordMm) { return std::max(wordMm / WRAP_SHARE, wordMm + 2 * CELL_PADDING_MM); }

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

double Table::narrowestWidth(const TableCell& cell) {
    return widthForWord(lxTextMeasure::pxToMm(lxTextMeasure::longestWordPx(cell.style.font, cell.value)));
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

double Table::wrapLimitPx(double columnWidthMm) {
    // A column sized to its text gives back that text's width only up to rounding: allow for it.
    constexpr double ROUNDING_PX = 1e-6;
    return lxTextMeasure::mmToPx(std::min(columnWidthMm * WRAP_SHARE, columnWidthMm - 2 * CELL_PADDING_MM)) +
           ROUNDING_PX;
}

double Table::wrapLimitPx(int column) const { return wrapLimitPx(columnWidth(column)); }

std::vector<wxString> Table::wrapCell(const TableCell& cell, double columnWidthMm) {
    return lxTextMeasure::wrapText(cell.style.font, cell.value, wrapLimitPx(columnWidthMm), true);
}

int Table::numberOfWrappedLines(const lxTableCellArray& row) const {
    int lines = 1;
    const int n = std::min(static_cast<int>(row.size()), m_columns);
    for (int c = 0; c < n; ++c)
        lines = std::max(lines, lxTextMeasure::wrappedLineCount(row[c].style.font, row[c].value, wrapLimitPx(c), true));
    return lines;
}

double Table::calculateRowHeight(const lxTableCellArray& row) const {
    const int lines = numberOfWrappedLines(row);
    double height = 0;
    for (const auto& cell : row) height = std::max(height, cellLineHeight(cell) * lines);
    // A row without cells (or an empty header) still takes the line of the table's style.
    if (row.empty()) height = cellLineHeight(TableCell(wxEmptyString, wxTEXT_ALIGNMENT_LEFT, style));
    return height + 2 * ROW_PADDING_MM;
}

void Table::refreshCellsSize() {
    for (int c = 0; c < m_columns; ++c) m_columnWidths[c] = calculateColumnWidth(c);
    refreshHeights();
}

void Table::refreshHeights() {
    m_headerHeight = header.empty() ? 0 : calculateRowHeight(header);
    m_rowHeights.resize(rows.size());
    for (size_t r = 0; r < rows.size(); ++r) m_rowHeights[r] = calculateRowHeight(rows[r]);
}

void Table::fitToWidth(double width) {
    if (m_columns == 0 || tableWidth() <= width + 1e-9) return;
    // The narrowest each column can be without cutting a word; fixed columns keep their width.
    std::vector<double> minimum(m_columns);
    for (int c = 0; c < m_columns; ++c) {
        if (m_fixedWidths[c] > 0) {
            minimum[c] = m_columnWidths[c];
            continue;
        }
        double narrowest = 0;
        if (c < static_cast<int>(header.size())) narrowest = narrowestWidth(header[c]);
        for (const auto& row : rows)
            if (c < static_cast<int>(row.size())) narrowest = std::max(narrowest, narrowestWidth(row[c]));
        minimum[c] = std::min(m_columnWidths[c], narrowest);
    }
    double least = 0;
    for (double m : minimum) least += m;
    if (least > width) {
        for (int c = 0; c < m_columns; ++c) m_columnWidths[c] = minimum[c] * width / least;
    } else {
        // Every column wider than a common cap is cut down to it (not below its minimum);
        // the cap is found by halving the interval until the table just fits.
        const std::vector<double> natural = m_columnWidths;
        auto widthWithCap = [&](double cap) {
            double sum = 0;
            for (int c = 0; c < m_columns; ++c) sum += std::max(minimum[c], std::min(natural[c], cap));
            return sum;
        };
        double low = 0, high = *std::max_element(natural.begin(), natural.end());
        for (int i = 0; i < 60; ++i) {
            const double mid = (low + high) / 2;
            (widthWithCap(mid) > width ? high : low) = mid;
        }
        for (int c = 0; c < m_columns; ++c) m_columnWidths[c] = std::max(minimum[c], std::min(natural[c], low));
    }
    refreshHeights();
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
    return columnsWidth(columnsForSplit(split));
}

std::vector<int> Table::columnsForSplit(int split) const {
    std::vector<int> columns;
    if (split < 0 || split >= numberOfColumnsSplit()) {
        for (int c = 0; c < m_columns; ++c) columns.push_back(c);
        return columns;
    }
    const int repeated = std::clamp(repeatedColumns, 0, m_columns);
    for (int c = 0; c < repeated; ++c) columns.push_back(c);
    for (int c = std::max(repeated, columnsSplit[split].columnStart);
         c <= columnsSplit[split].columnEnd && c < m_columns; ++c)
        columns.push_back(c);
    return columns;
}

double Table::columnsWidth(const std::vector<int>& columns) const {
    double width = 0;
    for (int c : columns) width += columnWidth(c);
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

void Table::setRowsPerPage(const lxTableRowsPerPageArray& pages) {
    m_rowsPerPage = pages;
    m_pages = static_cast<int>(pages.size());
}

int Table::pages() const { return m_pages * std::max(1, numberOfColumnsSplit()); }
