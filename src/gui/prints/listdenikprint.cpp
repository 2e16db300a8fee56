#include "listdenikprint.h"

#include "lxformat.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }
wxString castka(double value) { return lxformat::formatCastka(value); }

}  // namespace

ListDenikPrint::ListDenikPrint(wxWindow* parent, const wxString& nadpis, const wxString& firma, int rok,
                               const std::vector<DenikRadek>& radky)
    : TablePrint(parent, wxString::Format("%s %d", nadpis, rok)) {
    setBookHeader(firma);
    m_layout.paperOrientation = wxLANDSCAPE;

    m_denik.tableTitle.title = m_title;
    for (const char* name :
         {"Datum", "Číslo dokladu", "Popis", "Předkontace", "Příjem", "Výdaj", "Pokladna / účet", "Výpis"})
        m_denik.addCellToHeader(u8(name));
    m_denik.setColumnWidth(2, 80);
    double prijmy = 0, vydaje = 0;
    for (const DenikRadek& r : radky) {
        (r.prijem ? prijmy : vydaje) += r.castka;
        m_denik.addRow();
        m_denik.addCell(r.datum);
        m_denik.addCell(r.cislo);
        m_denik.addCell(r.popis);
        m_denik.addCell(r.predkontace);
        m_denik.addCell(r.prijem ? castka(r.castka) : wxString(), wxTEXT_ALIGNMENT_RIGHT);
        m_denik.addCell(r.prijem ? wxString() : castka(r.castka), wxTEXT_ALIGNMENT_RIGHT);
        m_denik.addCell(r.registr);
        m_denik.addCell(r.vypis > 0 ? wxString::Format("%d", r.vypis) : wxString(), wxTEXT_ALIGNMENT_RIGHT);
    }
    m_denik.addRow();
    m_denik.addCell(u8("Celkem"));
    m_denik.addCell(wxString());
    m_denik.addCell(u8("Rozdíl: ") + castka(prijmy - vydaje));
    m_denik.addCell(wxString());
    m_denik.addCell(castka(prijmy), wxTEXT_ALIGNMENT_RIGHT);
    m_denik.addCell(castka(vydaje), wxTEXT_ALIGNMENT_RIGHT);
    m_denik.addCell(wxString());
    m_denik.addCell(wxString());
    setTable(&m_denik);
}
