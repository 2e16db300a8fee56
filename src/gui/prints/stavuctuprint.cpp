#include "stavuctuprint.h"

#include "lxformat.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

Table tabulka(const char* title, const std::vector<StavUctuRadek>& radky) {
    Table t;
    t.tableTitle.title = u8(title);
    t.addCellToHeader(u8("Zkratka"));
    t.addCellToHeader(u8("Popis"));
    t.addCellToHeader(u8("Měna"));
    t.addCellToHeader(u8("Stav"), wxTEXT_ALIGNMENT_RIGHT);
    t.setColumnWidth(1, 80);
    for (const StavUctuRadek& r : radky) {
        t.addRow();
        t.addCell(r.zkratka);
        t.addCell(r.popis);
        t.addCell(r.mena);
        t.addCell(lxformat::formatCastka(r.stav), wxTEXT_ALIGNMENT_RIGHT);
    }
    return t;
}

}  // namespace

StavUctuPrint::StavUctuPrint(wxWindow* parent, const wxString& firma, const std::vector<StavUctuRadek>& pokladny,
                             const std::vector<StavUctuRadek>& banky)
    : MultiTablePrint(parent, u8("Stav pokladen a bankovních účtů")) {
    setBookHeader(firma);
    m_tabulky.push_back(tabulka("Pokladny", pokladny));
    m_tabulky.push_back(tabulka("Bankovní účty", banky));
    setTables(&m_tabulky);
}
