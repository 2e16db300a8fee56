#include "majetekzavazkyprint.h"

#include "lxformat.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

}  // namespace

MajetekZavazkyPrint::MajetekZavazkyPrint(wxWindow* parent, const wxString& firma, int rok,
                                         const std::vector<MajetekZavazkyTiskRadek>& radky)
    : TablePrint(parent, wxString::Format(u8("Přehled majetku a závázků za rok %d"), rok)) {
    setBookHeader(firma);
    m_prehled.tableTitle.title = m_title;
    m_prehled.addCellToHeader(wxString());
    m_prehled.addCellToHeader(u8("Na začátku období"));
    m_prehled.addCellToHeader(u8("Na konci období"));
    m_prehled.setColumnWidth(0, 60);
    for (const MajetekZavazkyTiskRadek& r : radky) {
        m_prehled.addRow();
        m_prehled.addCell(r.popis);
        m_prehled.addCell(lxformat::formatCastka(r.zacatek), wxTEXT_ALIGNMENT_RIGHT);
        m_prehled.addCell(r.jednaHodnota ? wxString() : lxformat::formatCastka(r.konec), wxTEXT_ALIGNMENT_RIGHT);
    }
    setTable(&m_prehled);
}
