#include "splittableprint.h"

#include <algorithm>

SplitTablePrintout::SplitTablePrintout(const Table* table, const wxString& title) : TablePrintout(table, title) {}

SplitTablePrintout::SplitTablePrintout(std::shared_ptr<const Table> table, const wxString& title)
    : TablePrintout(std::move(table), title) {}

int SplitTablePrintout::groups() const { return m_table ? std::max(1, m_table->numberOfColumnsSplit()) : 1; }

int SplitTablePrintout::splitFromPage(int page) const { return (page - 1) % groups(); }

int SplitTablePrintout::rowPageFromPage(int page) const { return (page - 1) / groups(); }

bool SplitTablePrintout::printPage(wxDC* dc, int page, double) {
    if (!m_table || page < 1) return false;
    const int rowPage = rowPageFromPage(page);
    const int split = m_table->numberOfColumnsSplit() > 0 ? splitFromPage(page) : -1;
    // Every group of the first row page has the title's room reserved, so each shows it.
    return drawTablePage(dc, *m_table, rowPage, m_table->columnsForSplit(split), rowPage == 0);
}

SplitTablePrint::SplitTablePrint(wxWindow* parent, const wxString& title) : TablePrint(parent, title) {}

lxTableColumnsSplitArray SplitTablePrint::splitColumns(const Table& table, double width) {
    lxTableColumnsSplitArray groups;
    const int repeated = std::clamp(table.repeatedColumns, 0, table.columns());
    double room = width;
    for (int c = 0; c < repeated; ++c) room -= table.columnWidth(c);
    double used = 0;
    for (int c = repeated; c < table.columns(); ++c) {
        const double w = table.columnWidth(c);
        if (groups.empty() || used + w > room + 1e-9) {
            groups.push_back({c, c});
            used = w;
        } else {
            groups.back().columnEnd = c;
            used += w;
        }
    }
    return groups;
}

int SplitTablePrint::paginate() {
    // The columns are split, not narrowed: measure and cut the rows only.
    if (!m_table) return 1;
    m_table->refreshCellsSize();
    m_table->calculatePages(m_layout.marginTop, m_layout.marginBottom,
                            lxPrint::usablePageHeightMm(m_layout.paperOrientation));
    return m_table->pages();
}

double SplitTablePrint::tableLeftMm(int page) const {
    if (!m_table || page < 1) return 0;
    const int groups = std::max(1, m_table->numberOfColumnsSplit());
    const int split = m_table->numberOfColumnsSplit() > 0 ? (page - 1) % groups : -1;
    return TablePrintout::tableLeftMm(m_layout, lxPrint::sheetWidthMm(m_layout.paperOrientation),
                                      m_table->columnsWidth(m_table->columnsForSplit(split)));
}

std::unique_ptr<lxPrint> SplitTablePrint::createPrintout(bool snapshot) {
    if (snapshot) return std::make_unique<SplitTablePrintout>(tableSnapshot(), m_title);
    return std::make_unique<SplitTablePrintout>(m_table, m_title);
}
