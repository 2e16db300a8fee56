#include "peneznidokladprint.h"

#include <utility>
#include <vector>

#include "lxformat.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

// Sheet geometry in mm: the frame spans the printable width; rows of values start below the
// company and the date, one every ROW_STEP.
constexpr int WIDTH = 190;
constexpr int FRAME_TOP = 9;
constexpr int FIRST_ROW = 24;
constexpr int ROW_STEP = 8;
constexpr int LABEL_WIDTH = 50;
constexpr int VALUE_WIDTH = 134;

using Radky = std::vector<std::pair<wxString, wxString>>;

// A row of a label and its value, framed, inside the voucher's frame.
TableRowElement labelRow(int y, const wxString& label, const wxString& value, const TextStyle& style) {
    TableRowElement row;
    row.pos = wxPoint(3, y);
    row.textStyle = style;
    row.border = true;
    row.addCellValue(label);
    row.addCellWidth(LABEL_WIDTH);
    row.addCellAlignment(wxTEXT_ALIGNMENT_LEFT);
    row.addCellValue(value);
    row.addCellWidth(VALUE_WIDTH);
    row.addCellAlignment(wxTEXT_ALIGNMENT_LEFT);
    return row;
}

Radky radky(const PenezniDoklad& d) {
    const wxString castka = lxformat::formatCastka(d.castka, d.mena);
    if (!d.banka)
        return {{d.prijem ? u8("Přijato od") : u8("Vyplaceno komu"), d.partner},
                {u8("Účel platby"), d.ucel},
                {u8("Částka"), castka}};
    return {{u8("Bankovní účet"), d.ucet},
            {u8("Číslo výpisu"), d.vypis > 0 ? wxString::Format("%d", d.vypis) : wxString()},
            {d.prijem ? u8("Přijato od") : u8("Zaplaceno komu"), d.partner},
            {u8("Účel platby"), d.ucel},
            {u8("Variabilní symbol"), d.reference},
            {u8("Částka"), castka}};
}

// Captions of the signature lines, left to right; the last one sits on the right.
std::vector<wxString> podpisy(const PenezniDoklad& d) {
    if (d.banka) return {u8("Zaúčtoval")};
    return {u8("Vystavil"), d.prijem ? u8("Zaplatil") : u8("Přijal")};
}

}  // namespace

wxString PenezniDokladPrint::nadpis(const PenezniDoklad& d) {
    const char* druh = d.banka ? (d.prijem ? "Bankovní doklad - příjem " : "Bankovní doklad - výdaj ")
                               : (d.prijem ? "Příjmový pokladní doklad " : "Výdajový pokladní doklad ");
    return u8(druh) + d.cislo;
}

PenezniDokladPrint::PenezniDokladPrint(wxWindow* parent, const PenezniDoklad& d) : DocumentPrint(parent, nadpis(d)) {
    m_doklad.layout.marginLeft = 10;
    m_doklad.layout.marginRight = 10;
    m_doklad.layout.marginTop = 15;
    m_doklad.layout.marginBottom = 15;
    m_doklad.layout.footer = lxPrint::FOOTER_NONE;

    const TextStyle titulek(printFont(14).Bold(), wxColour(0, 0, 0), wxColour(255, 255, 255));
    const TextStyle text(printFont(10), wxColour(0, 0, 0), wxColour(255, 255, 255));

    m_doklad.addElement(TextElement(m_title, wxPoint(0, 0), WIDTH, wxTEXT_ALIGNMENT_CENTRE, titulek));
    m_doklad.addElement(
        TextElement(d.firma + "\n" + u8("IČ: ") + d.firmaIc, wxPoint(3, 12), 92, wxTEXT_ALIGNMENT_LEFT, text));
    m_doklad.addElement(
        TextElement(u8("Datum: ") + lxformat::formatDatum(d.datum), wxPoint(95, 12), 92, wxTEXT_ALIGNMENT_RIGHT, text));

    int y = FIRST_ROW;
    for (const auto& [popisek, hodnota] : radky(d)) {
        m_doklad.addElement(labelRow(y, popisek, hodnota, text));
        y += ROW_STEP;
    }
    // Signature lines under the rows, from the right: 110-180 mm, then 10-80 mm.
    const int cara = y + 12;  // room above the line for a hand signature
    const std::vector<wxString> podpis = podpisy(d);
    for (size_t i = 0; i < podpis.size(); ++i) {
        const int stred = 145 - 100 * static_cast<int>(podpis.size() - 1 - i);
        m_doklad.addElement(LineElement(wxPoint(stred - 35, cara), wxPoint(stred + 35, cara)));
        m_doklad.addElement(TextElement(podpis[i], wxPoint(stred, cara + 1), 0, wxTEXT_ALIGNMENT_CENTRE, text));
    }
    m_doklad.addElement(RectangleElement(wxPoint(0, FRAME_TOP), wxSize(WIDTH, cara + 7 - FRAME_TOP),
                                         LineStyle(wxColour(0, 0, 0), 2), 3));
    m_doklad.sortElements();
    setDocument(&m_doklad);
}
