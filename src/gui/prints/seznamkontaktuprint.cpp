#include "seznamkontaktuprint.h"

namespace {
wxString u8(const char* text) { return wxString::FromUTF8(text); }
}  // namespace

SeznamKontaktuPrint::SeznamKontaktuPrint(wxWindow* parent, const wxString& firma,
                                         const std::vector<KontaktRadek>& kontakty)
    : TablePrint(parent, u8("Seznam kontaktů")) {
    m_layout.headerLeftText = firma;
    m_layout.headerRightText = u8("Seznam kontaktů");
    m_layout.headerLine = true;

    m_kontakty.tableTitle.title = u8("Seznam kontaktů");
    m_kontakty.tableTitle.alignment = wxTEXT_ALIGNMENT_CENTRE;
    for (const char* name : {"Název", "IČ", "DIČ", "Adresa", "Telefon", "E-mail"}) m_kontakty.addCellToHeader(u8(name));
    // Fixed widths that fill the 190 mm between the margins; longer texts wrap.
    const double sirky[] = {45, 18, 24, 40, 28, 35};
    for (int c = 0; c < 6; ++c) m_kontakty.setColumnWidth(c, sirky[c]);
    for (const KontaktRadek& k : kontakty) {
        m_kontakty.addRow();
        m_kontakty.addCell(k.nazev);
        m_kontakty.addCell(k.ic);
        m_kontakty.addCell(k.dic);
        wxString adresa = k.ulice;
        const wxString misto = (k.psc + " " + k.misto).Strip(wxString::both);
        if (!misto.empty()) adresa += (adresa.empty() ? "" : "\n") + misto;
        m_kontakty.addCell(adresa);
        m_kontakty.addCell(k.telefon);
        m_kontakty.addCell(k.email);
    }
    setTable(&m_kontakty);
}
