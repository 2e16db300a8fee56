#include "sazba.h"

#include <cmath>

void Sazba::need(int mm) {
    if (m_y + mm <= PAGE_BOTTOM) return;
    ++m_page;
    m_y = 0;
}

void Sazba::row(const std::vector<wxString>& hodnoty, const std::vector<Sloupec>& s, const TextStyle& style, int x) {
    need(ROW_STEP);
    TableRowElement row;
    row.pos = wxPoint(x, m_y);
    row.textStyle = style;
    row.border = true;
    for (size_t i = 0; i < s.size(); ++i) {
        row.addCellValue(i < hodnoty.size() ? hodnoty[i] : wxString());
        row.addCellWidth(s[i].sirka);
        row.addCellAlignment(s[i].zarovnani);
    }
    const double height = row.bounds().m_height;
    add(row);
    m_y += height > 0 ? static_cast<int>(std::ceil(height)) : ROW_STEP;
}

void Sazba::header(const std::vector<Sloupec>& s, const TextStyle& style, int x) {
    std::vector<wxString> nazvy;
    for (const Sloupec& c : s) nazvy.push_back(wxString::FromUTF8(c.nazev));
    row(nazvy, s, style, x);
}

void Sazba::field(int x, int y, const wxString& label, const wxString& value) {
    add(TextElement(label, wxPoint(x, y), 35, wxTEXT_ALIGNMENT_LEFT, m_text));
    add(TextElement(value, wxPoint(x + 35, y), m_sirkaPole - 35, wxTEXT_ALIGNMENT_LEFT, m_text));
}
