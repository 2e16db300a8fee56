#include "multitableprint.h"

MultiTablePrintout::MultiTablePrintout(const lxTableArray* tables, const wxString& title)
    : TablePrintout(static_cast<const Table*>(nullptr), title), m_tables(tables) {}

MultiTablePrintout::MultiTablePrintout(std::shared_ptr<const lxTableArray> tables, const wxString& title)
    : TablePrintout(static_cast<const Table*>(nullptr), title),
      m_tables(tables.get()),
      m_keptTables(std::move(tables)) {}

int MultiTablePrintout::getTableForPage(int page) const {
    if (!m_tables || page < 1) return -1;
    int last = 0;
    for (size_t t = 0; t < m_tables->size(); ++t) {
        last += (*m_tables)[t].pagesWithoutSplit();
        if (page <= last) return static_cast<int>(t);
    }
    return -1;
}

int MultiTablePrintout::pageForTable(int table) const {
    int page = 1;
    for (int t = 0; m_tables && t < table && t < static_cast<int>(m_tables->size()); ++t)
        page += (*m_tables)[t].pagesWithoutSplit();
    return page;
}

bool MultiTablePrintout::printPage(wxDC* dc, int page, double) {
    if (!m_tables || m_tables->empty()) return true;  // nothing to print: header and footer only
    const int t = getTableForPage(page);
    if (t < 0) return false;
    const Table& table = (*m_tables)[t];
    const int rowPage = page - pageForTable(t);
    return drawTablePage(dc, table, rowPage, 0, table.columns() - 1, rowPage == 0);
}

MultiTablePrint::MultiTablePrint(wxWindow* parent, const wxString& title) : lxPrintController(parent, title) {}

int MultiTablePrint::paginate() {
    int pages = 0;
    if (!m_tables) return 1;
    std::vector<Table*> all;
    for (Table& table : *m_tables) {
        table.refreshCellsSize();
        all.push_back(&table);
    }
    fitTablesToSheet(all, m_layout);
    for (Table& table : *m_tables) {
        pages += table.calculatePages(m_layout.marginTop, m_layout.marginBottom,
                                      lxPrint::usablePageHeightMm(m_layout.paperOrientation));
    }
    return pages > 0 ? pages : 1;
}

std::unique_ptr<lxPrint> MultiTablePrint::createPrintout(bool snapshot) {
    if (snapshot && m_tables)
        return std::make_unique<MultiTablePrintout>(std::make_shared<const lxTableArray>(*m_tables), m_title);
    return std::make_unique<MultiTablePrintout>(m_tables, m_title);
}
