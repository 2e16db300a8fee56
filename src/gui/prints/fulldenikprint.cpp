#include "fulldenikprint.h"

#include <algorithm>

FullDenikPrint::FullDenikPrint(wxWindow* parent, const wxString& firma, int rok, const wxArrayString& sloupce,
                               const std::vector<wxArrayString>& radky, const std::vector<int>& castky)
    : SplitTablePrint(parent, wxString::Format(wxString::FromUTF8("Peněžní deník %d"), rok)) {
    m_layout.headerLeftText = firma;
    m_layout.headerRightText = m_title;
    m_layout.headerLine = true;
    m_layout.paperOrientation = wxLANDSCAPE;

    m_denik.tableTitle.title = m_title;
    auto isAmount = [&](size_t c) {
        return std::find(castky.begin(), castky.end(), static_cast<int>(c)) != castky.end();
    };
    for (size_t c = 0; c < sloupce.size(); ++c)
        m_denik.addCellToHeader(sloupce[c], isAmount(c) ? wxTEXT_ALIGNMENT_RIGHT : wxTEXT_ALIGNMENT_LEFT);
    for (const wxArrayString& radek : radky) {
        m_denik.addRow();
        for (size_t c = 0; c < radek.size(); ++c)
            m_denik.addCell(radek[c], isAmount(c) ? wxTEXT_ALIGNMENT_RIGHT : wxTEXT_ALIGNMENT_LEFT);
    }
    setTable(&m_denik);
}

int FullDenikPrint::paginate() {
    // The groups follow the widths, which follow the text: measure first, then cut.
    m_denik.refreshCellsSize();
    const double sheet = m_layout.paperOrientation == wxLANDSCAPE ? 297 : 210;
    m_denik.columnsSplit = splitColumns(m_denik, sheet - m_layout.marginLeft - m_layout.marginRight);
    return SplitTablePrint::paginate();
}
