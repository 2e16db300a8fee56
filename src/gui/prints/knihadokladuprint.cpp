#include "knihadokladuprint.h"

#include "lxformat.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }
wxString castka(double value) { return lxformat::formatCastka(value); }
wxString datum(const wxDateTime& d) { return d.IsValid() ? lxformat::formatDatum(d) : wxString(); }

}  // namespace

KnihaDokladuPrint::KnihaDokladuPrint(wxWindow* parent, const wxString& nadpis, const wxString& protistrana,
                                     const wxString& firma, int rok, const std::vector<KnihaRadek>& radky,
                                     const KnihaCelkem& celkem)
    : TablePrint(parent, wxString::Format("%s %d", nadpis, rok)) {
    setBookHeader(firma);
    m_layout.paperOrientation = wxLANDSCAPE;

    m_kniha.tableTitle.title = m_title;
    const wxString hlavicka[] = {u8("Číslo"),  u8("Vystaveno"), u8("Splatnost"), protistrana,    u8("Popis"),
                                 u8("Celkem"), u8("Měna"),      u8("DPH"),       u8("Uhrazeno"), u8("Stav")};
    for (const wxString& h : hlavicka) m_kniha.addCellToHeader(h);
    // Long names and descriptions wrap instead of pushing the amounts off the sheet.
    m_kniha.setColumnWidth(3, 55);
    m_kniha.setColumnWidth(4, 60);
    for (const KnihaRadek& r : radky) {
        m_kniha.addRow();
        m_kniha.addCell(r.cislo);
        m_kniha.addCell(datum(r.vystaveni));
        m_kniha.addCell(datum(r.splatnost));
        m_kniha.addCell(r.protistrana);
        m_kniha.addCell(r.popis);
        m_kniha.addCell(castka(r.celkem), wxTEXT_ALIGNMENT_RIGHT);
        m_kniha.addCell(r.mena);
        m_kniha.addCell(castka(r.dph), wxTEXT_ALIGNMENT_RIGHT);
        m_kniha.addCell(castka(r.uhrazeno), wxTEXT_ALIGNMENT_RIGHT);
        m_kniha.addCell(r.stav);
    }
    m_kniha.addRow();
    m_kniha.addCell(u8("Celkem"));
    m_kniha.addCell(wxString());
    m_kniha.addCell(wxString());
    m_kniha.addCell(wxString::Format(u8("Dokladů: %d"), static_cast<int>(radky.size())));
    m_kniha.addCell(u8("Neuhrazeno: ") + castka(celkem.neuhrazeno) + u8(" Kč"));
    m_kniha.addCell(castka(celkem.celkem), wxTEXT_ALIGNMENT_RIGHT);
    m_kniha.addCell(u8("Kč"));
    m_kniha.addCell(castka(celkem.dph), wxTEXT_ALIGNMENT_RIGHT);
    m_kniha.addCell(castka(celkem.uhrazeno), wxTEXT_ALIGNMENT_RIGHT);
    m_kniha.addCell(wxString());
    setTable(&m_kniha);
}

KnihaFakturPrint::KnihaFakturPrint(wxWindow* parent, bool vydane, const wxString& firma, int rok,
                                   const std::vector<KnihaRadek>& radky, const KnihaCelkem& celkem)
    : KnihaDokladuPrint(parent, u8(vydane ? "Kniha vydaných faktur" : "Kniha přijatých faktur"),
                        u8(vydane ? "Odběratel" : "Dodavatel"), firma, rok, radky, celkem) {}

KnihaZavpohPrint::KnihaZavpohPrint(wxWindow* parent, bool zavazky, const wxString& firma, int rok,
                                   const std::vector<KnihaRadek>& radky, const KnihaCelkem& celkem)
    : KnihaDokladuPrint(parent, u8(zavazky ? "Kniha závazků" : "Kniha pohledávek"),
                        u8(zavazky ? "Dodavatel" : "Odběratel"), firma, rok, radky, celkem) {}
