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
    int first = 0, last = m_table->columns() - 1;
    if (m_table->numberOfColumnsSplit() > 0) {
        const TableColumnsSplit& split = m_table->columnsSplit[splitFromPage(page)];
        first = split.columnStart;
        last = split.columnEnd;
    }
    // Every group of the first row page has the title's room reserved, so each shows it.
    return drawTablePage(dc, *m_table, rowPage, first, last, rowPage == 0);
}

SplitTablePrint::SplitTablePrint(wxWindow* parent, const wxString& title) : TablePrint(parent, title) {}

lxTableColumnsSplitArray SplitTablePrint::splitColumns(const Table& table, double width) {
    lxTableColumnsSplitArray groups;
    double used = 0;
    for (int c = 0; c < table.columns(); ++c) {
        const double w = table.columnWidth(c);
        if (groups.empty() || used + w > width) {
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
    TablePrint::paginate();
    return m_table ? m_table->pages() : 1;
}

std::unique_ptr<lxPrint> SplitTablePrint::createPrintout(bool snapshot) {
    if (snapshot) return std::make_unique<SplitTablePrintout>(tableSnapshot(), m_title);
    return std::make_unique<SplitTablePrintout>(m_table, m_title);
}
