#include "inventuraprint.h"

#include "lxformat.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

}  // namespace

InventuraPrint::InventuraPrint(wxWindow* parent, const wxString& firma, const InventuraHlavicka& inventura,
                               const std::vector<InventuraTiskRadek>& radky)
    : TablePrint(parent, wxString::Format(u8("Inventura %s"), inventura.cislo)) {
    setBookHeader(firma);
    wxString nadpis = wxString::Format(u8("Inventura %s ze dne %s, sklad %s"), inventura.cislo,
                                       lxformat::formatDatum(inventura.datum), inventura.sklad);
    if (!inventura.popis.empty()) nadpis += ", " + inventura.popis;
    if (!inventura.provedl.empty()) nadpis += u8(", provedl ") + inventura.provedl;
    m_inventura.tableTitle.title = nadpis;
    for (const char* h : {"Číslo", "Název", "MJ", "Evidováno", "Zjištěno", "Rozdíl"})
        m_inventura.addCellToHeader(u8(h));
    m_inventura.setColumnWidth(1, 60);
    for (const InventuraTiskRadek& r : radky) {
        m_inventura.addRow();
        m_inventura.addCell(r.cislo);
        m_inventura.addCell(r.nazev);
        m_inventura.addCell(r.mj);
        m_inventura.addCell(lxformat::formatMnozstvi(r.evidovano), wxTEXT_ALIGNMENT_RIGHT);
        m_inventura.addCell(lxformat::formatMnozstvi(r.zjisteno), wxTEXT_ALIGNMENT_RIGHT);
        m_inventura.addCell(lxformat::formatMnozstvi(r.zjisteno - r.evidovano), wxTEXT_ALIGNMENT_RIGHT);
    }
    setTable(&m_inventura);
}

KnihaInventurPrint::KnihaInventurPrint(wxWindow* parent, const wxString& firma, int rok,
                                       const std::vector<InventuraHlavicka>& radky)
    : TablePrint(parent, wxString::Format(u8("Kniha inventur %d"), rok)) {
    setBookHeader(firma);
    m_kniha.tableTitle.title = m_title;
    for (const char* h : {"Číslo", "Datum", "Sklad", "Popis", "Provedl"}) m_kniha.addCellToHeader(u8(h));
    m_kniha.setColumnWidth(3, 60);
    for (const InventuraHlavicka& r : radky) {
        m_kniha.addRow();
        m_kniha.addCell(r.cislo);
        m_kniha.addCell(lxformat::formatDatum(r.datum));
        m_kniha.addCell(r.sklad);
        m_kniha.addCell(r.popis);
        m_kniha.addCell(r.provedl);
    }
    setTable(&m_kniha);
}
