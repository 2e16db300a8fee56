#include "pokladnidokladprint.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

// A row of a label and its value, framed, inside the voucher's frame.
TableRowElement labelRow(int y, const wxString& label, const wxString& value, const TextStyle& style) {
    TableRowElement row;
    row.pos = wxPoint(3, y);
    row.textStyle = style;
    row.border = true;
    row.addCellValue(label);
    row.addCellWidth(50);
    row.addCellAlignment(wxTEXT_ALIGNMENT_LEFT);
    row.addCellValue(value);
    row.addCellWidth(134);
    row.addCellAlignment(wxTEXT_ALIGNMENT_LEFT);
    return row;
}

}  // namespace

PokladniDokladPrint::PokladniDokladPrint(wxWindow* parent, const PokladniDoklad& d)
    : DocumentPrint(parent, (d.prijem ? u8("Příjmový pokladní doklad ") : u8("Výdajový pokladní doklad ")) + d.cislo) {
    m_doklad.layout.marginLeft = 10;
    m_doklad.layout.marginRight = 10;
    m_doklad.layout.marginTop = 15;
    m_doklad.layout.marginBottom = 15;
    m_doklad.layout.footer = lxPrint::FOOTER_NONE;

    TextStyle nadpis(printFont(14).Bold(), wxColour(0, 0, 0), wxColour(255, 255, 255));
    TextStyle text(printFont(10), wxColour(0, 0, 0), wxColour(255, 255, 255));

    m_doklad.addElement(TextElement(m_title, wxPoint(0, 0), 190, wxTEXT_ALIGNMENT_CENTRE, nadpis));
    m_doklad.addElement(
        TextElement(d.firma + "\n" + u8("IČ: ") + d.firmaIc, wxPoint(3, 12), 92, wxTEXT_ALIGNMENT_LEFT, text));
    m_doklad.addElement(TextElement(u8("Datum: ") + d.datum, wxPoint(95, 12), 92, wxTEXT_ALIGNMENT_RIGHT, text));
    m_doklad.addElement(RectangleElement(wxPoint(0, 9), wxSize(190, 56), LineStyle(wxColour(0, 0, 0), 2), 3));

    int y = 24;
    m_doklad.addElement(labelRow(y, d.prijem ? u8("Přijato od") : u8("Vyplaceno komu"), d.partner, text));
    m_doklad.addElement(labelRow(y += 8, u8("Účel platby"), d.ucel, text));
    m_doklad.addElement(labelRow(y += 8, u8("Částka"), wxString::Format("%.2f %s", d.castka, d.mena), text));

    m_doklad.addElement(LineElement(wxPoint(10, 58), wxPoint(80, 58)));
    m_doklad.addElement(LineElement(wxPoint(110, 58), wxPoint(180, 58)));
    m_doklad.addElement(TextElement(u8("Vystavil"), wxPoint(45, 59), 0, wxTEXT_ALIGNMENT_CENTRE, text));
    m_doklad.addElement(
        TextElement(d.prijem ? u8("Zaplatil") : u8("Přijal"), wxPoint(145, 59), 0, wxTEXT_ALIGNMENT_CENTRE, text));
    m_doklad.sortElements();
    setDocument(&m_doklad);
}
