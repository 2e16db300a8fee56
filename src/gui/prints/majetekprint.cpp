#include "majetekprint.h"

#include "lxformat.h"
#include "sazba.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }
wxString datum(const wxDateTime& d) { return d.IsValid() ? lxformat::formatDatum(d) : wxString(); }
wxString castka(double value) { return lxformat::formatCastka(value); }

constexpr int WIDTH = 190;
constexpr int HALF = 92;

}  // namespace

KartaMajetkuPrint::KartaMajetkuPrint(wxWindow* parent, const KartaMajetku& k)
    : DocumentPrint(parent, u8("Karta majetku ") + k.cislo) {
    m_karta.layout.marginLeft = 10;
    m_karta.layout.marginRight = 10;
    m_karta.layout.marginTop = 15;
    m_karta.layout.marginBottom = 15;
    m_karta.layout.footer = lxPrint::FOOTER_PAGES;

    const wxColour black(0, 0, 0), white(255, 255, 255);
    const TextStyle titulek(printFont(14).Bold(), black, white);
    const TextStyle tucne(printFont(10).Bold(), black, white);
    const TextStyle text(printFont(10), black, white);
    const TextStyle radky(printFont(9), black, white);
    const TextStyle hlavicka(printFont(9).Bold(), black, wxColour(230, 230, 230));
    Sazba s(m_karta, text, HALF);

    s.add(TextElement(m_title, wxPoint(0, 0), WIDTH, wxTEXT_ALIGNMENT_CENTRE, titulek));
    s.add(TextElement(k.firma, wxPoint(0, 9), WIDTH, wxTEXT_ALIGNMENT_CENTRE, text));
    s.add(TextElement(k.nazev, wxPoint(0, 18), WIDTH, wxTEXT_ALIGNMENT_LEFT, tucne));
    int y = 25;
    if (!k.popis.empty()) {
        s.add(TextElement(k.popis, wxPoint(0, y), WIDTH, wxTEXT_ALIGNMENT_LEFT, text));
        y += 7;
    }
    s.field(0, y, u8("Typ:"), k.typ);
    s.field(98, y, u8("Odpisová skupina:"), k.skupina);
    s.field(0, y + 5, u8("Pořízeno:"), datum(k.porizen));
    s.field(98, y + 5, u8("Způsob odpisu:"), k.odpis);
    s.field(0, y + 10, u8("Vstupní cena:"), lxformat::formatCastka(k.cena, u8("Kč")));
    s.field(98, y + 10, u8("Stav:"), k.vyrazen ? u8("Vyřazen ") + datum(k.datumvyrazeni) : u8("V užívání"));
    s.skip(y + 20);

    if (k.roky.empty()) {
        s.add(TextElement(u8("Majetek se neodpisuje."), wxPoint(0, s.y()), WIDTH, wxTEXT_ALIGNMENT_LEFT, text));
    } else {
        const std::vector<Sloupec> cols{{"Rok", 30, wxTEXT_ALIGNMENT_LEFT},
                                        {"Odpis", 45, wxTEXT_ALIGNMENT_RIGHT},
                                        {"Odepsáno celkem", 45, wxTEXT_ALIGNMENT_RIGHT},
                                        {"Zůstatková cena", 45, wxTEXT_ALIGNMENT_RIGHT},
                                        {"", 25, wxTEXT_ALIGNMENT_LEFT}};
        s.header(cols, hlavicka);
        double celkem = 0;
        for (const KartaMajetku::Rok& r : k.roky) {
            const int top = s.y();
            s.need(Sazba::ROW_STEP);
            if (s.y() < top) s.header(cols, hlavicka);  // the header again on a new page
            celkem += r.odpis;
            s.row({wxString::Format("%d", r.rok), castka(r.odpis), castka(celkem), castka(r.zustatek),
                   r.uplatneno ? u8("uplatněno") : u8("plán")},
                  cols, radky);
        }
    }
    m_karta.pages = s.page();
    m_karta.sortElements();
    setDocument(&m_karta);
}

KnihaMajetkuPrint::KnihaMajetkuPrint(wxWindow* parent, const wxString& firma, int rok,
                                     const std::vector<KnihaMajetkuRadek>& radky)
    : TablePrint(parent, wxString::Format(u8("Kniha majetku %d"), rok)) {
    setBookHeader(firma);
    m_layout.paperOrientation = wxLANDSCAPE;
    m_kniha.tableTitle.title = m_title;
    const char* const hlavicka[] = {"Číslo",    "Název",    "Typ",       "Pořízeno",        "Vstupní cena",
                                    "Skupina",  "Odepsáno", "Zůstatková cena", "Stav"};
    for (const char* h : hlavicka) m_kniha.addCellToHeader(u8(h));
    m_kniha.setColumnWidth(1, 60);
    m_kniha.setColumnWidth(5, 55);
    double cena = 0, odepsano = 0, zustatek = 0;
    for (const KnihaMajetkuRadek& r : radky) {
        m_kniha.addRow();
        m_kniha.addCell(r.cislo);
        m_kniha.addCell(r.nazev);
        m_kniha.addCell(r.typ);
        m_kniha.addCell(datum(r.porizen));
        m_kniha.addCell(castka(r.cena), wxTEXT_ALIGNMENT_RIGHT);
        m_kniha.addCell(r.skupina);
        m_kniha.addCell(castka(r.odepsano), wxTEXT_ALIGNMENT_RIGHT);
        m_kniha.addCell(castka(r.zustatek), wxTEXT_ALIGNMENT_RIGHT);
        m_kniha.addCell(r.stav);
        cena += r.cena;
        odepsano += r.odepsano;
        zustatek += r.zustatek;
    }
    m_kniha.addRow();
    m_kniha.addCell(u8("Celkem"));
    m_kniha.addCell(wxString::Format(u8("Položek: %d"), static_cast<int>(radky.size())));
    m_kniha.addCell(wxString());
    m_kniha.addCell(wxString());
    m_kniha.addCell(castka(cena), wxTEXT_ALIGNMENT_RIGHT);
    m_kniha.addCell(wxString());
    m_kniha.addCell(castka(odepsano), wxTEXT_ALIGNMENT_RIGHT);
    m_kniha.addCell(castka(zustatek), wxTEXT_ALIGNMENT_RIGHT);
    m_kniha.addCell(wxString());
    setTable(&m_kniha);
}
