// Layout shared by the prints of the VAT filings: the sheet's geometry, the text styles, rows
// of bordered cells, and a cursor that places elements down the page and goes on to the next
// page when one would run past the bottom, repeating a table's heading there.
#pragma once

#include <optional>
#include <vector>

#include "document.h"

class Podani;

namespace podaniprint {

// Sheet geometry in mm: the printable width and the lowest bottom edge of an element on a
// page (a few millimetres above the page number).
constexpr int WIDTH = 190;
constexpr int PAGE_BOTTOM = 276;

struct Styly {
    TextStyle titulek, podtitulek, nadpis, udaj, radek, zahlavi;
};
Styly styly();

struct Bunka {
    wxString text;
    int sirka;
    wxTextAttrAlignment zarovnani;
};
// A row of bordered cells.
TableRowElement radek(const std::vector<Bunka>& bunky, const TextStyle& style);

// An element's height rounded up to whole millimetres, so rows follow each other edge to edge.
int vyska(const Element& e);

// Margins of a filing's print and its page numbers in the footer.
void nastavitStranu(Document& doc);

// Places elements from the top of the page down.
class Sazba {
 public:
    // `bottom` is the lowest edge of an element on a page, from the top margin.
    explicit Sazba(Document& doc, int bottom = PAGE_BOTTOM) : m_doc(doc), m_bottom(bottom) {}

    int y() const { return m_y; }
    int page() const { return m_page; }
    void skip(int mm) { m_y += mm; }
    // True when `mm` more fit on this page; otherwise moves to the next one and says false.
    bool need(int mm);
    void novaStrana() {
        ++m_page;
        m_y = 0;
    }
    template <class E>
    void put(E element, int x, int y) {
        element.pos = wxPoint(x, y);
        element.page = m_page;
        m_doc.addElement(element);
    }
    // An element that carries its own position (a line, a rectangle) on the current page.
    template <class E>
    void place(E element) {
        element.page = m_page;
        m_doc.addElement(element);
    }
    // Puts the element at the current line and moves below it.
    template <class E>
    void append(E element, int x = 0) {
        const int h = vyska(element);
        put(element, x, m_y);
        m_y += h;
    }
    // A table: its title and heading stay with its first row, and the heading comes again
    // at the top of every further page the rows run onto. Without rows the title and the
    // heading stand alone.
    void tabulka(const std::optional<TextElement>& nazev, const TableRowElement& hlava,
                 const std::vector<TableRowElement>& radky);

 private:
    Document& m_doc;
    int m_bottom;
    int m_y = 0;
    int m_page = 1;
};

// A block of labelled values at (x, y), `sirka` wide with the labels `popisek` wide, under a
// title when it has one; returns its height. U has the members `popisek` and `hodnota`.
template <class U>
int blok(Sazba& s, int x, int y, int sirka, int popisek, const wxString& nazev, const std::vector<U>& udaje,
         const Styly& st) {
    int h = 0;
    if (!nazev.empty()) {
        const TextElement titulek(nazev, wxPoint(), sirka, wxTEXT_ALIGNMENT_LEFT, st.nadpis);
        s.put(titulek, x, y);
        h = vyska(titulek) + 1;
    }
    for (const U& u : udaje) {
        const TableRowElement row =
            radek({{u.popisek, popisek, wxTEXT_ALIGNMENT_LEFT}, {u.hodnota, sirka - popisek, wxTEXT_ALIGNMENT_LEFT}},
                  st.udaj);
        s.put(row, x, y + h);
        h += vyska(row);
    }
    return h;
}

// A label and its value in a block.
struct Udaj {
    wxString popisek;
    wxString hodnota;
};

// An amount stored in whole crowns as the form shows it, "1 235"; empty for an empty attribute.
wxString celeKoruny(const wxString& ulozeno);

// The taxpayer's tax office, its workplace and the DIČ from VetaP, as the forms head them.
std::vector<Udaj> udajeUradu(const Podani& p);
// "Právnická osoba:" or "Fyzická osoba:", and the name rows that go with it.
wxString osobaNadpis(const Podani& p);
std::vector<Udaj> udajeOsoby(const Podani& p);
// The period of VetaD: "za kalendářní měsíc" / "za kalendářní čtvrtletí" with the month or
// quarter and year, or "za období" with the dates of zdobd_od and zdobd_do.
Udaj obdobi(const Podani& p);

}  // namespace podaniprint
