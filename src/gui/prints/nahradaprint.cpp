#include "nahradaprint.h"

#include <iterator>

#include "knihajizdprint.h"
#include "lxformat.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }
wxString castka(double value) { return lxformat::formatCastka(value); }

// Consumption and prices keep the decimals they have ("6,5", "34,7"), at least one.
wxString cislo(double value) {
    wxString text = lxformat::formatKurz(value);
    if (!text.Contains(",")) text += ",0";
    return text;
}

}  // namespace

NahradaPrint::NahradaPrint(wxWindow* parent, const NahradaTisk& n)
    : TablePrint(parent, (n.soukrome ? u8("Náhrada za použití vozidla ") : u8("Spotřeba PHM vozidla ")) + n.rz +
                             " " + n.obdobi) {
    m_layout.headerLeftText = n.firma;
    m_layout.headerRightText = n.soukrome ? u8("Náhrada za použití vozidla") : u8("Spotřeba PHM (informativně)");
    m_layout.headerLine = true;

    wxString nadpis = n.soukrome ? u8("Náhrada za použití soukromého vozidla k pracovním cestám")
                                 : u8("Spotřeba PHM služebního vozidla (informativně)");
    nadpis += u8("\nVozidlo: ") + n.vozidlo + u8(", RZ: ") + n.rz;
    nadpis += u8("\nDruh vozidla: ") + n.druh;
    nadpis += u8("\nPohonná hmota: ") + n.phm + u8(", spotřeba ") + cislo(n.spotreba) + " " + n.jednotka +
              u8(" na 100 km");
    nadpis += u8("\nMěsíc: ") + n.obdobi;
    m_nahrada.tableTitle.title = nadpis;

    const wxString hlavicka[] = {u8("Datum"), u8("Trasa"),           u8("Účel"),   u8("km"),
                                 u8("Náhrada Kč/km"), u8("Cena PHM"), u8("Částka Kč")};
    for (size_t i = 0; i < std::size(hlavicka); ++i)
        m_nahrada.addCellToHeader(hlavicka[i], i >= 3 ? wxTEXT_ALIGNMENT_RIGHT : wxTEXT_ALIGNMENT_LEFT);
    m_nahrada.setColumnWidth(1, 50);
    m_nahrada.setColumnWidth(2, 40);
    for (const NahradaTiskRadek& r : n.radky) {
        m_nahrada.addRow();
        m_nahrada.addCell(r.datum.IsValid() ? lxformat::formatDatum(r.datum) : wxString());
        m_nahrada.addCell(r.cesta);
        m_nahrada.addCell(r.ucel);
        m_nahrada.addCell(jizdaKm(r.km), wxTEXT_ALIGNMENT_RIGHT);
        m_nahrada.addCell(n.soukrome ? cislo(r.sazba) : wxString(), wxTEXT_ALIGNMENT_RIGHT);
        m_nahrada.addCell(cislo(r.cenaPhm), wxTEXT_ALIGNMENT_RIGHT);
        m_nahrada.addCell(castka(r.castka), wxTEXT_ALIGNMENT_RIGHT);
    }
    m_nahrada.addRow();
    m_nahrada.addCell(u8("Celkem"));
    m_nahrada.addCell(wxString::Format(u8("Jízd: %d"), static_cast<int>(n.radky.size())));
    m_nahrada.addCell(wxString());
    m_nahrada.addCell(jizdaKm(n.km), wxTEXT_ALIGNMENT_RIGHT);
    m_nahrada.addCell(wxString());
    m_nahrada.addCell(wxString());
    m_nahrada.addCell(castka(n.celkem), wxTEXT_ALIGNMENT_RIGHT);
    setTable(&m_nahrada);
}
