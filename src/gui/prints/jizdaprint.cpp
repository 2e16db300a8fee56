#include "jizdaprint.h"

#include <utility>

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

}  // namespace

JizdaPrint::JizdaPrint(wxWindow* parent, const wxString& firma, const wxString& vozidlo, const JizdaRadek& jizda)
    : TablePrint(parent, u8("Jízda ") + jizdaCas(jizda.startcas)) {
    m_layout.headerLeftText = firma;
    m_layout.headerRightText = u8("Záznam o jízdě");
    m_layout.headerLine = true;

    m_jizda.tableTitle.title = u8("Záznam o jízdě");
    m_jizda.addCellToHeader(u8("Údaj"));
    m_jizda.addCellToHeader(u8("Hodnota"));
    m_jizda.setColumnWidth(1, 130);
    const std::pair<const char*, wxString> radky[] = {
        {"Vozidlo", vozidlo},
        {"Řidič", jizda.ridic},
        {"Začátek jízdy", jizdaCas(jizda.startcas)},
        {"Konec jízdy", jizdaCas(jizda.endcas)},
        {"Trasa", jizda.cesta},
        {"Účel cesty", jizda.ucel},
        {"Stav tachometru na začátku", jizdaKm(jizda.startkm) + " km"},
        {"Stav tachometru na konci", jizdaKm(jizda.endkm) + " km"},
        {"Ujeto", jizdaKm(jizda.endkm - jizda.startkm) + " km"},
        {"Podpis řidiče", "\n\n"},
    };
    for (const auto& r : radky) {
        m_jizda.addRow();
        m_jizda.addCell(u8(r.first));
        m_jizda.addCell(r.second);
    }
    setTable(&m_jizda);
}
