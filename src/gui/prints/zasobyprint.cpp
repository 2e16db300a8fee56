#include "zasobyprint.h"

#include "lxformat.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

}  // namespace

KartaZasobyPrint::KartaZasobyPrint(wxWindow* parent, const wxString& firma, const KartaHlavicka& zasoba,
                                   const std::vector<KartaRadek>& radky)
    : TablePrint(parent, wxString::Format(u8("Karta zásoby %s"), zasoba.cislo)) {
    setBookHeader(firma);
    m_karta.tableTitle.title =
        wxString::Format(u8("%s %s, sklad %s, %s"), zasoba.cislo, zasoba.nazev, zasoba.sklad, zasoba.ocenovani);
    for (const char* h : {"Datum", "Číslo", "Pohyb", "Počet", "Cena za MJ", "Stav", "Hodnota"})
        m_karta.addCellToHeader(u8(h));
    for (const KartaRadek& r : radky) {
        m_karta.addRow();
        m_karta.addCell(lxformat::formatDatum(r.datum));
        m_karta.addCell(r.cislo);
        m_karta.addCell(r.druh);
        m_karta.addCell(lxformat::formatMnozstvi(r.pocet) + " " + zasoba.mj, wxTEXT_ALIGNMENT_RIGHT);
        m_karta.addCell(lxformat::formatCastka(r.cenamj), wxTEXT_ALIGNMENT_RIGHT);
        m_karta.addCell(lxformat::formatMnozstvi(r.stav), wxTEXT_ALIGNMENT_RIGHT);
        m_karta.addCell(lxformat::formatCastka(r.hodnota), wxTEXT_ALIGNMENT_RIGHT);
    }
    setTable(&m_karta);
}

KnihaZasobPrint::KnihaZasobPrint(wxWindow* parent, const wxString& firma, const wxDateTime& datum,
                                 const std::vector<KnihaZasobRadek>& radky)
    : TablePrint(parent, wxString::Format(u8("Kniha zásob k %s"), lxformat::formatDatum(datum))) {
    setBookHeader(firma);
    m_kniha.tableTitle.title = m_title;
    for (const char* h : {"Číslo", "Název", "Sklad", "MJ", "Množství", "Cena za MJ", "Hodnota"})
        m_kniha.addCellToHeader(u8(h));
    m_kniha.setColumnWidth(1, 55);
    double celkem = 0;
    for (const KnihaZasobRadek& r : radky) {
        m_kniha.addRow();
        m_kniha.addCell(r.cislo);
        m_kniha.addCell(r.nazev);
        m_kniha.addCell(r.sklad);
        m_kniha.addCell(r.mj);
        m_kniha.addCell(lxformat::formatMnozstvi(r.pocet), wxTEXT_ALIGNMENT_RIGHT);
        m_kniha.addCell(lxformat::formatCastka(r.pocet != 0 ? r.hodnota / r.pocet : 0), wxTEXT_ALIGNMENT_RIGHT);
        m_kniha.addCell(lxformat::formatCastka(r.hodnota), wxTEXT_ALIGNMENT_RIGHT);
        celkem += r.hodnota;
    }
    m_kniha.addRow();
    m_kniha.addCell(u8("Celkem"));
    m_kniha.addCell(wxString::Format(u8("Zásob: %d"), static_cast<int>(radky.size())));
    for (int i = 0; i < 4; ++i) m_kniha.addCell(wxString());
    m_kniha.addCell(lxformat::formatCastka(celkem), wxTEXT_ALIGNMENT_RIGHT);
    setTable(&m_kniha);
}
