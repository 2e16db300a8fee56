#include "dphdp3print.h"

#include <algorithm>
#include <cmath>

#include "dph/dp3radky.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

// Sheet geometry in mm: the printable width, the lowest bottom edge of an element on a page
// (a few millimetres above the page number), the two blocks of the header side by side, and the form's
// columns: the row number, the row text taking what the value columns leave.
constexpr int WIDTH = 190;
constexpr int PAGE_BOTTOM = 276;
constexpr int BLOCK = 94;
constexpr int BLOCK_LABEL = 34;
constexpr int CISLO = 8;
constexpr int HODNOTA = 28;

struct Styly {
    TextStyle titulek, podtitulek, nadpis, udaj, radek, zahlavi;
};

Styly styly() {
    const wxColour black(0, 0, 0), white(255, 255, 255), grey(225, 225, 225);
    return {TextStyle(printFont(13).Bold(), black, white), TextStyle(printFont(10).Bold(), black, white),
            TextStyle(printFont(8).Bold(), black, white),  TextStyle(printFont(8), black, white),
            TextStyle(printFont(7), black, white),         TextStyle(printFont(7).Bold(), black, grey)};
}

struct Bunka {
    wxString text;
    int sirka;
    wxTextAttrAlignment zarovnani;
};

TableRowElement radek(const std::vector<Bunka>& bunky, const TextStyle& style, int x = 0) {
    TableRowElement row;
    row.pos = wxPoint(x, 0);
    row.textStyle = style;
    row.border = true;
    for (const Bunka& b : bunky) {
        row.addCellValue(b.text);
        row.addCellWidth(b.sirka);
        row.addCellAlignment(b.zarovnani);
    }
    return row;
}

// Rows follow each other edge to edge; positions are whole millimetres.
int vyska(const Element& e) { return static_cast<int>(std::ceil(e.bounds().m_height)); }

// Places elements from the top of the page down and moves to the next page when an element
// would run past the bottom.
class Sazba {
 public:
    explicit Sazba(Document& doc) : m_doc(doc) {}

    int y() const { return m_y; }
    int page() const { return m_page; }
    void skip(int mm) { m_y += mm; }
    // True when `mm` more fit on this page; otherwise moves to the next one and says false.
    bool need(int mm) {
        if (m_y + mm <= PAGE_BOTTOM || m_y == 0) return true;
        ++m_page;
        m_y = 0;
        return false;
    }
    template <class E>
    void put(E element, int x, int y) {
        element.pos = wxPoint(x, y);
        element.page = m_page;
        m_doc.addElement(element);
    }
    // Puts the element at the left edge of the current line and moves below it.
    template <class E>
    void append(E element, int x = 0) {
        const int h = vyska(element);
        put(element, x, m_y);
        m_y += h;
    }

 private:
    Document& m_doc;
    int m_y = 0;
    int m_page = 1;
};

// A titled block of labelled values at `x`; returns its height.
int blok(Sazba& s, int x, int y, const char* nazev, const std::vector<dp3::FormUdaj>& udaje, const Styly& st) {
    s.put(TextElement(u8(nazev), wxPoint(), BLOCK, wxTEXT_ALIGNMENT_LEFT, st.nadpis), x, y);
    int h = 5;
    for (const dp3::FormUdaj& u : udaje) {
        const TableRowElement row = radek({{u.popisek, BLOCK_LABEL, wxTEXT_ALIGNMENT_LEFT},
                                           {u.hodnota, BLOCK - BLOCK_LABEL, wxTEXT_ALIGNMENT_LEFT}},
                                          st.udaj);
        s.put(row, x, y + h);
        h += vyska(row);
    }
    return h;
}

int textWidth(const dp3::FormOddil& o) { return WIDTH - CISLO - HODNOTA * static_cast<int>(o.sloupce.size()); }

TableRowElement zahlavi(const dp3::FormOddil& o, const Styly& st) {
    std::vector<Bunka> bunky{{u8(o.nazev), CISLO + textWidth(o), wxTEXT_ALIGNMENT_LEFT}};
    for (const char* s : o.sloupce) bunky.push_back({u8(s), HODNOTA, wxTEXT_ALIGNMENT_RIGHT});
    return radek(bunky, st.zahlavi);
}

TableRowElement formRadek(const Dphdp3& p, const dp3::FormOddil& o, const dp3::FormRadek& r, const Styly& st) {
    std::vector<Bunka> bunky{{u8(r.cislo), CISLO, wxTEXT_ALIGNMENT_CENTRE},
                             {u8(r.text), textWidth(o), wxTEXT_ALIGNMENT_LEFT}};
    for (const char* a : r.atributy) bunky.push_back({dp3::formHodnota(p, a), HODNOTA, wxTEXT_ALIGNMENT_RIGHT});
    return radek(bunky, st.radek);
}

void oddil(Sazba& s, const Dphdp3& p, const dp3::FormOddil& o, const Styly& st) {
    const TableRowElement hlava = zahlavi(o, st);
    s.skip(1);
    bool prvni = true;
    for (const dp3::FormRadek& r : o.radky) {
        const TableRowElement row = formRadek(p, o, r, st);
        // The heading stays with the section's first row, and comes again on a new page.
        if (!s.need(vyska(row) + (prvni ? vyska(hlava) : 0)) || prvni) s.append(hlava);
        s.append(row);
        prvni = false;
    }
}

void prilohy(Sazba& s, const Dphdp3& p, const Styly& st) {
    const std::vector<wxString> texty = dp3::prilohy(p);
    if (texty.empty()) return;
    s.skip(4);
    const TextElement nadpis(u8("Přílohy"), wxPoint(), WIDTH, wxTEXT_ALIGNMENT_LEFT, st.nadpis);
    bool prvni = true;
    for (const wxString& text : texty) {
        // Paragraph by paragraph, so that a long text may go on over the page.
        for (const wxString& odstavec : wxSplit(text, '\n', '\0')) {
            TextElement e(odstavec, wxPoint(), WIDTH, wxTEXT_ALIGNMENT_LEFT, st.udaj);
            e.forceSpace = true;
            s.need(vyska(e) + (prvni ? vyska(nadpis) + 1 : 0));
            if (prvni) {
                s.append(nadpis);
                s.skip(1);
            }
            s.append(e);
            prvni = false;
        }
        s.skip(2);
    }
}

}  // namespace

Dphdp3Print::Dphdp3Print(wxWindow* parent, const Dphdp3& p) : DocumentPrint(parent, u8("Přiznání k DPH")) {
    m_doc.layout.marginLeft = 10;
    m_doc.layout.marginRight = 10;
    m_doc.layout.marginTop = 8;
    m_doc.layout.marginBottom = 12;
    m_doc.layout.footer = lxPrint::FOOTER_PAGES;
    const Styly st = styly();
    Sazba s(m_doc);

    s.append(TextElement(u8("Přiznání k dani z přidané hodnoty"), wxPoint(), WIDTH, wxTEXT_ALIGNMENT_CENTRE,
                         st.titulek));
    s.skip(1);
    s.append(TextElement(dp3::formaNazev(p.atributValue("VetaD", "dapdph_forma")), wxPoint(), WIDTH,
                         wxTEXT_ALIGNMENT_CENTRE, st.podtitulek));
    s.skip(3);
    const int top = s.y();
    const int vlevo = blok(s, 0, top, "Údaje o plátci", dp3::udajePlatce(p), st);
    const int vpravo = blok(s, WIDTH - BLOCK, top, "Údaje o přiznání", dp3::udajePriznani(p), st);
    s.skip(std::max(vlevo, vpravo) + 2);

    for (const dp3::FormOddil& o : dp3::formOddily()) oddil(s, p, o, st);
    prilohy(s, p, st);

    m_doc.pages = s.page();
    m_doc.sortElements();
    setDocument(&m_doc);
}
