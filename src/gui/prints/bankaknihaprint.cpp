#include "bankaknihaprint.h"

#include "lxformat.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }
wxString castka(double value) { return lxformat::formatCastka(value); }

}  // namespace

BankaKnihaPrint::BankaKnihaPrint(wxWindow* parent, const wxString& firma, int rok,
                                 const std::vector<BankovniUcet>& ucty)
    : MultiTablePrint(parent, wxString::Format(u8("Bankovní kniha %d"), rok)) {
    m_layout.headerLeftText = firma;
    m_layout.headerRightText = m_title;
    m_layout.headerLine = true;

    for (const BankovniUcet& ucet : ucty) {
        Table kniha;
        kniha.tableTitle.title =
            ucet.nazev + u8("\nPočáteční stav: ") + lxformat::formatCastka(ucet.pocatecniStav, ucet.mena);
        for (const char* name : {"Datum", "Doklad", "Popis", "Příjem", "Výdej", "Zůstatek"})
            kniha.addCellToHeader(u8(name));
        kniha.setColumnWidth(2, 70);
        double stav = ucet.pocatecniStav, prijmy = 0, vydaje = 0;
        for (const PokladniPohyb& p : ucet.pohyby) {
            stav += p.prijem - p.vydej;
            prijmy += p.prijem;
            vydaje += p.vydej;
            kniha.addRow();
            kniha.addCell(p.datum);
            kniha.addCell(p.doklad);
            kniha.addCell(p.popis);
            kniha.addCell(p.prijem != 0 ? castka(p.prijem) : wxString(), wxTEXT_ALIGNMENT_RIGHT);
            kniha.addCell(p.vydej != 0 ? castka(p.vydej) : wxString(), wxTEXT_ALIGNMENT_RIGHT);
            kniha.addCell(castka(stav), wxTEXT_ALIGNMENT_RIGHT);
        }
        kniha.addRow();
        kniha.addCell(u8("Celkem"));
        kniha.addCell(wxString());
        kniha.addCell(u8("Konečný stav"));
        kniha.addCell(castka(prijmy), wxTEXT_ALIGNMENT_RIGHT);
        kniha.addCell(castka(vydaje), wxTEXT_ALIGNMENT_RIGHT);
        kniha.addCell(castka(stav), wxTEXT_ALIGNMENT_RIGHT);
        m_tabulky.push_back(kniha);
    }
    setTables(&m_tabulky);
}
