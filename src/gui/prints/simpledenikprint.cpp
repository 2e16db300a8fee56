#include "simpledenikprint.h"

#include "lxformat.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

}  // namespace

SimpleDenikPrint::SimpleDenikPrint(wxWindow* parent, const wxString& nadpis, const wxString& firma, int rok,
                                   const std::vector<DenikRadek>& radky)
    : TablePrint(parent, wxString::Format("%s %d", nadpis, rok)) {
    setBookHeader(firma);

    m_denik.tableTitle.title = m_title;
    for (const char* name : {"Datum", "Číslo dokladu", "Popis", "Částka"}) m_denik.addCellToHeader(u8(name));
    m_denik.setColumnWidth(2, 90);
    double saldo = 0;
    for (const DenikRadek& r : radky) {
        // Expenses print negative, so the last row's sum is the year's balance.
        const double castka = r.prijem ? r.castka : -r.castka;
        saldo += castka;
        m_denik.addRow();
        m_denik.addCell(r.datum);
        m_denik.addCell(r.cislo);
        m_denik.addCell(r.popis);
        m_denik.addCell(lxformat::formatCastka(castka), wxTEXT_ALIGNMENT_RIGHT);
    }
    m_denik.addRow();
    m_denik.addCell(u8("Celkem"));
    m_denik.addCell(wxString());
    m_denik.addCell(wxString());
    m_denik.addCell(lxformat::formatCastka(saldo), wxTEXT_ALIGNMENT_RIGHT);
    setTable(&m_denik);
}
