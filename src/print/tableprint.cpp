#include "tableprint.h"

#include <wx/graphics.h>

#include <algorithm>

#include "textmeasure.h"

namespace {

// Room between the title and the header row.
constexpr double TITLE_GAP_MM = 2.0;

const TableCell& emptyCell() {
    static const TableCell* cell = new TableCell();
    return *cell;
}

bool isPlainWhite(const wxColour& c) { return !c.IsOk() || c.Alpha() == 0 || c == wxColour(255, 255, 255); }

// Limits drawing to a rectangle for its lifetime. On a graphics-context DC the clip goes to
// the context itself: wxGCDC's DestroyClippingRegion re-clips to the DC's size, which a DC
// made on a bare cairo context (the PDF) reports as zero, and nothing would be drawn after.
class ClipScope {
 public:
    ClipScope(wxDC* dc, wxCoord x, wxCoord y, wxCoord w, wxCoord h) : m_dc(dc), m_gc(dc->GetGraphicsContext()) {
        if (m_gc) {
            m_gc->PushState();
            m_gc->Clip(x, y, w, h);
        } else {
            m_dc->SetClippingRegion(x, y, w, h);
        }
    }
    ~ClipScope() {
        if (m_gc)
            m_gc->PopState();
        else
            m_dc->DestroyClippingRegion();
    }
    ClipScope(const ClipScope&) = delete;
    ClipScope& operator=(const ClipScope&) = delete;

 private:
    wxDC* m_dc;
    wxGraphicsContext* m_gc;
};

}  // namespace

TablePrintout::TablePrintout(const Table* table, const wxString& title) : lxPrint(title), m_table(table) {}

TablePrintout::TablePrintout(std::shared_ptr<const Table> table, const wxString& title)
    : lxPrint(title), m_table(table.get()), m_keptTable(std::move(table)) {}

void TablePrintout::useStyle(wxDC* dc, const TextStyle& style) {
    if (m_styledDc != dc || !m_font.IsSameAs(style.font)) {
        dc->SetFont(style.font);
        m_font = style.font;
    }
    if (m_styledDc != dc || m_colour != style.fontColour) {
        dc->SetTextForeground(style.fontColour);
        m_colour = style.fontColour;
    }
    m_styledDc = dc;
}

void TablePrintout::drawCell(const TableCell& cell, wxDC* dc, double x, double y, double width, double height) {
    if (!isPlainWhite(cell.style.backColour)) {
        dc->SetPen(*wxTRANSPARENT_PEN);
        dc->SetBrush(wxBrush(cell.style.backColour));
        dc->DrawRectangle(toDc(x), toDc(y), toDc(x + width) - toDc(x), toDc(y + height) - toDc(y));
    }
    if (cell.value.empty()) return;
    useStyle(dc, cell.style);
    const wxFont& font = cell.style.font;
    const double lineHeight = Table::cellLineHeight(cell);
    // Lines are tighter than the font's own line height; the rules above and below a row must
    // not touch the accents of capitals, so those are kept inside the line too.
    const double textTop =
        ROW_PADDING_MM + lxTextMeasure::textTopInLineMm(font, lineHeight, lxTextMeasure::ACCENTED_CAP_HEIGHT);
    const double inner = width - 2 * CELL_PADDING_MM;
    const auto lines = Table::wrapCell(cell, width);
    for (size_t i = 0; i < lines.size(); ++i) {
        if (lines[i].empty()) continue;
        const double w = lxTextMeasure::pxToMm(lxTextMeasure::textWidthPx(font, lines[i]));
        double tx = x + CELL_PADDING_MM;
        if (cell.alignment == wxTEXT_ALIGNMENT_RIGHT)
            tx = x + width - CELL_PADDING_MM - w;
        else if (cell.alignment == wxTEXT_ALIGNMENT_CENTRE)
            tx = x + (width - w) / 2;
        const double ty = y + i * lineHeight + textTop;
        // Words are cut to fit, but a column narrower than one letter would still overflow.
        if (w > inner) {
            ClipScope clip(dc, toDc(x), toDc(y), toDc(x + width) - toDc(x), toDc(y + height) - toDc(y));
            dc->DrawText(lines[i], toDc(tx), toDc(ty));
        } else {
            dc->DrawText(lines[i], toDc(tx), toDc(ty));
        }
    }
}

void TablePrintout::drawGrid(const Table& table, const TableRowsPerPage& rows, int firstColumn, int lastColumn,
                             wxDC* dc, double x, double y) {
    std::vector<int> columns;
    for (int c = std::max(0, firstColumn); c <= lastColumn; ++c) columns.push_back(c);
    drawGrid(table, rows, columns, dc, x, y);
}

void TablePrintout::drawGrid(const Table& table, const TableRowsPerPage& rows, const std::vector<int>& columns,
                             wxDC* dc, double x, double y) {
    const double width = table.columnsWidth(columns);
    dc->SetPen(wxPen(wxColour(0, 0, 0), 1));
    double bottom = y;
    auto rule = [&](double at) { dc->DrawLine(toDc(x), toDc(at), toDc(x + width), toDc(at)); };
    if (!table.header.empty()) {
        rule(bottom);
        bottom += table.headerHeight();
    }
    rule(bottom);
    for (int r = rows.rowStart; r <= rows.rowEnd; ++r) {
        bottom += table.rowHeight(r);
        rule(bottom);
    }
    if (bottom <= y) return;
    double cx = x;
    dc->DrawLine(toDc(cx), toDc(y), toDc(cx), toDc(bottom));
    for (int c : columns) {
        cx += table.columnWidth(c);
        dc->DrawLine(toDc(cx), toDc(y), toDc(cx), toDc(bottom));
    }
}

double TablePrintout::tableLeftMm(const Layout& layout, double sheetWidthMm, double tableWidthMm) {
    return layout.marginLeft + (sheetWidthMm - layout.marginLeft - layout.marginRight - tableWidthMm) * 0.5;
}

void TablePrintout::drawTitle(wxDC* dc, const TableTitle& title, double x, double y, double width, double height) {
    useStyle(dc, title.style);
    const wxArrayString lines = wxSplit(title.title, '\n', '\0');
    const double lineHeight = height / std::max<size_t>(1, lines.size());
    for (size_t i = 0; i < lines.size(); ++i) {
        const double w = lxTextMeasure::pxToMm(lxTextMeasure::textWidthPx(title.style.font, lines[i]));
        double tx = x;
        if (title.alignment == wxTEXT_ALIGNMENT_RIGHT)
            tx = x + width - w;
        else if (title.alignment == wxTEXT_ALIGNMENT_CENTRE)
            tx = x + (width - w) / 2;
        dc->DrawText(lines[i], toDc(tx), toDc(y + i * lineHeight));
    }
}

bool TablePrintout::drawTablePage(wxDC* dc, const Table& table, int rowPage, int firstColumn, int lastColumn,
                                  bool withTitle) {
    std::vector<int> columns;
    for (int c = std::max(0, firstColumn); c <= std::min(lastColumn, table.columns() - 1); ++c) columns.push_back(c);
    return drawTablePage(dc, table, rowPage, columns, withTitle);
}

bool TablePrintout::drawTablePage(wxDC* dc, const Table& table, int rowPage, const std::vector<int>& columns,
                                  bool withTitle) {
    const auto& pages = table.rowsPerPage();
    if (rowPage < 0 || rowPage >= static_cast<int>(pages.size())) return false;
    m_styledDc = nullptr;  // the header and footer have changed the font

    const double width = table.columnsWidth(columns);
    const double x0 = tableLeftMm(layout(), sheetWidthMm(), width);
    double y = layout().marginTop;
    if (withTitle && table.tableTitle.isValid()) {
        drawTitle(dc, table.tableTitle, x0, y, width, table.titleHeight());
        y += table.titleHeight() + TITLE_GAP_MM;
    }
    const double top = y;
    auto drawRow = [&](const lxTableCellArray& row, double height) {
        double x = x0;
        for (int c : columns) {
            const TableCell& cell = c < static_cast<int>(row.size()) ? row[c] : emptyCell();
            drawCell(cell, dc, x, y, table.columnWidth(c), height);
            x += table.columnWidth(c);
        }
        y += height;
    };
    if (!table.header.empty()) drawRow(table.header, table.headerHeight());
    const TableRowsPerPage& rows = pages[rowPage];
    for (int r = rows.rowStart; r <= rows.rowEnd; ++r) drawRow(table.rows[r], table.rowHeight(r));
    drawGrid(table, rows, columns, dc, x0, top);
    return true;
}

bool TablePrintout::printPage(wxDC* dc, int page, double) {
    if (!m_table) return true;  // nothing to print: the page keeps its header and footer
    return drawTablePage(dc, *m_table, page - 1, 0, m_table->columns() - 1, page == 1);
}

TablePrint::TablePrint(wxWindow* parent, const wxString& title) : lxPrintController(parent, title) {}

void fitTablesToSheet(const std::vector<Table*>& tables, lxPrint::Layout& layout) {
    for (const Table* table : tables)
        if (layout.paperOrientation == wxPORTRAIT && table->tableWidth() > lxPrint::printableWidthMm(layout) + 1e-9)
            layout.paperOrientation = wxLANDSCAPE;
    for (Table* table : tables) table->fitToWidth(lxPrint::printableWidthMm(layout));
}

int TablePrint::paginate() {
    if (!m_table) return 1;
    m_table->refreshCellsSize();
    fitTablesToSheet({m_table}, m_layout);
    return m_table->calculatePages(m_layout.marginTop, m_layout.marginBottom,
                                   lxPrint::usablePageHeightMm(m_layout.paperOrientation));
}

std::shared_ptr<const Table> TablePrint::tableSnapshot() const {
    return m_table ? std::make_shared<const Table>(*m_table) : nullptr;
}

std::unique_ptr<lxPrint> TablePrint::createPrintout(bool snapshot) {
    if (snapshot) return std::make_unique<TablePrintout>(tableSnapshot(), m_title);
    return std::make_unique<TablePrintout>(m_table, m_title);
}
