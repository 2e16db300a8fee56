#include "bankovnidokladprint.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

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

BankovniDokladPrint::BankovniDokladPrint(wxWindow* parent, const BankovniDoklad& d)
    : DocumentPrint(parent, (d.prijem ? u8("Bankovní doklad - příjem ") : u8("Bankovní doklad - výdaj ")) + d.cislo) {
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
    m_doklad.addElement(RectangleElement(wxPoint(0, 9), wxSize(190, 72), LineStyle(wxColour(0, 0, 0), 2), 3));

    int y = 24;
    m_doklad.addElement(labelRow(y, u8("Bankovní účet"), d.ucet, text));
    m_doklad.addElement(
        labelRow(y += 8, u8("Číslo výpisu"), d.vypis > 0 ? wxString::Format("%d", d.vypis) : wxString(), text));
    m_doklad.addElement(labelRow(y += 8, d.prijem ? u8("Přijato od") : u8("Zaplaceno komu"), d.partner, text));
    m_doklad.addElement(labelRow(y += 8, u8("Účel platby"), d.ucel, text));
    m_doklad.addElement(labelRow(y += 8, u8("Variabilní symbol"), d.reference, text));
    m_doklad.addElement(labelRow(y += 8, u8("Částka"), wxString::Format("%.2f %s", d.castka, d.mena), text));

    m_doklad.addElement(LineElement(wxPoint(110, 74), wxPoint(180, 74)));
    m_doklad.addElement(TextElement(u8("Zaúčtoval"), wxPoint(145, 75), 0, wxTEXT_ALIGNMENT_CENTRE, text));
    m_doklad.sortElements();
    setDocument(&m_doklad);
}
