#include "knihajizdprint.h"

#include <iterator>

#include "lxformat.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

}  // namespace

wxString jizdaCas(const wxDateTime& cas) {
    if (!cas.IsValid()) return wxString();
    return lxformat::formatDatum(cas) + wxString::Format(" %d:%02d", cas.GetHour(), cas.GetMinute());
}

wxString jizdaKm(int km) {
    const wxString castka = lxformat::formatCastka(km);
    return castka.Left(castka.length() - 3);
}

KnihaJizdPrint::KnihaJizdPrint(wxWindow* parent, const wxString& firma, const wxString& vozidlo,
                               const wxString& obdobi, const std::vector<JizdaRadek>& jizdy)
    : TablePrint(parent, u8("Kniha jízd ") + vozidlo) {
    m_layout.headerLeftText = firma;
    m_layout.headerRightText = u8("Kniha jízd");
    m_layout.headerLine = true;
    m_layout.paperOrientation = wxLANDSCAPE;

    m_kniha.tableTitle.title = u8("Kniha jízd\nVozidlo: ") + vozidlo + u8("\nObdobí: ") + obdobi;
    const wxString hlavicka[] = {u8("Začátek"), u8("Konec"),      u8("Řidič"),  u8("Trasa"),
                                 u8("Účel"),    u8("Stav km od"), u8("Stav km do"), u8("Ujeto km")};
    for (size_t i = 0; i < std::size(hlavicka); ++i)
        m_kniha.addCellToHeader(hlavicka[i], i >= 5 ? wxTEXT_ALIGNMENT_RIGHT : wxTEXT_ALIGNMENT_LEFT);
    // The route and purpose wrap instead of pushing the kilometres off the sheet.
    m_kniha.setColumnWidth(3, 70);
    m_kniha.setColumnWidth(4, 55);
    long celkem = 0;
    for (const JizdaRadek& j : jizdy) {
        m_kniha.addRow();
        m_kniha.addCell(jizdaCas(j.startcas));
        m_kniha.addCell(jizdaCas(j.endcas));
        m_kniha.addCell(j.ridic);
        m_kniha.addCell(j.cesta);
        m_kniha.addCell(j.ucel);
        m_kniha.addCell(jizdaKm(j.startkm), wxTEXT_ALIGNMENT_RIGHT);
        m_kniha.addCell(jizdaKm(j.endkm), wxTEXT_ALIGNMENT_RIGHT);
        m_kniha.addCell(jizdaKm(j.endkm - j.startkm), wxTEXT_ALIGNMENT_RIGHT);
        celkem += j.endkm - j.startkm;
    }
    m_kniha.addRow();
    m_kniha.addCell(u8("Celkem"));
    m_kniha.addCell(wxString::Format(u8("Jízd: %d"), static_cast<int>(jizdy.size())));
    for (int i = 0; i < 5; ++i) m_kniha.addCell(wxString());
    m_kniha.addCell(jizdaKm(static_cast<int>(celkem)), wxTEXT_ALIGNMENT_RIGHT);
    setTable(&m_kniha);
}
