#include "zavpohprint.h"

#include <cmath>
#include <utility>

#include "lxformat.h"
#include "sazba.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }
wxString datum(const wxDateTime& d) { return d.IsValid() ? lxformat::formatDatum(d) : wxString(); }

// Sheet geometry in mm: the printable width and the two party blocks side by side.
constexpr int WIDTH = 190;
constexpr int HALF = 92;

// The item columns; a non-payer's document has no VAT columns and a wider description.
std::vector<Sloupec> sloupce(bool platce) {
    const auto L = wxTEXT_ALIGNMENT_LEFT, R = wxTEXT_ALIGNMENT_RIGHT;
    if (platce)
        return {{"Popis", 66, L}, {"MJ", 12, L},  {"Počet", 18, R}, {"Cena za MJ", 26, R},
                {"DPH %", 14, R}, {"DPH", 24, R}, {"Celkem", 30, R}};
    return {{"Popis", 100, L}, {"MJ", 12, L}, {"Počet", 20, R}, {"Cena za MJ", 28, R}, {"Celkem", 30, R}};
}

wxString stranaText(const ZavpohStrana& s) {
    wxString text = s.nazev;
    for (const wxString& line : s.adresa)
        if (!line.empty()) text += "\n" + line;
    if (!s.ic.empty()) text += "\n" + u8("IČ: ") + s.ic;
    if (!s.dic.empty()) text += "\n" + u8("DIČ: ") + s.dic;
    return text;
}

}  // namespace

wxString ZavpohPrint::nadpis(const ZavpohDoklad& d) { return u8(d.zavazek ? "Závazek " : "Pohledávka ") + d.cislo; }

ZavpohPrint::ZavpohPrint(wxWindow* parent, const ZavpohDoklad& d) : DocumentPrint(parent, nadpis(d)) {
    m_doklad.layout.marginLeft = 10;
    m_doklad.layout.marginRight = 10;
    m_doklad.layout.marginTop = 15;
    m_doklad.layout.marginBottom = 15;
    m_doklad.layout.footer = lxPrint::FOOTER_PAGES;

    const wxColour black(0, 0, 0), white(255, 255, 255);
    const TextStyle titulek(printFont(14).Bold(), black, white);
    const TextStyle tucne(printFont(10).Bold(), black, white);
    const TextStyle text(printFont(10), black, white);
    const TextStyle polozky(printFont(9), black, white);
    const TextStyle hlavicka(printFont(9).Bold(), black, wxColour(230, 230, 230));
    Sazba s(m_doklad, text, HALF);

    s.add(TextElement(m_title, wxPoint(0, 0), WIDTH, wxTEXT_ALIGNMENT_CENTRE, titulek));
    // The company supplies on a receivable and is supplied on a liability.
    const ZavpohStrana& dodavatel = d.zavazek ? d.protistrana : d.firma;
    const ZavpohStrana& odberatel = d.zavazek ? d.firma : d.protistrana;
    s.add(TextElement(u8("Dodavatel"), wxPoint(0, 12), HALF, wxTEXT_ALIGNMENT_LEFT, tucne));
    s.add(TextElement(u8("Odběratel"), wxPoint(98, 12), HALF, wxTEXT_ALIGNMENT_LEFT, tucne));
    s.add(TextElement(stranaText(dodavatel), wxPoint(0, 18), HALF, wxTEXT_ALIGNMENT_LEFT, text));
    s.add(TextElement(stranaText(odberatel), wxPoint(98, 18), HALF, wxTEXT_ALIGNMENT_LEFT, text));
    s.add(RectangleElement(wxPoint(96, 10), wxSize(WIDTH - 96, 38), LineStyle(black, 1), 2));

    const int udaje = 54;
    s.field(0, udaje, u8("Datum vystavení:"), datum(d.vystaveni));
    s.field(0, udaje + 5, u8("Datum splatnosti:"), datum(d.splatnost));
    if (d.platce) s.field(0, udaje + 10, u8("DUZP:"), datum(d.duzp));
    s.field(98, udaje, u8("Variabilní symbol:"), d.vs);
    s.field(98, udaje + 5, u8("Forma úhrady:"), d.uhrada);
    s.field(98, udaje + 10, u8("Pokladna / účet:"), d.registr);
    s.skip(udaje + 18);
    if (!d.popis.empty()) {
        s.add(TextElement(d.popis, wxPoint(0, s.y()), WIDTH, wxTEXT_ALIGNMENT_LEFT, text));
        s.skip(8);
    }

    const std::vector<Sloupec> cols = sloupce(d.platce);
    std::vector<wxString> nazvy;
    for (const Sloupec& c : cols) nazvy.push_back(u8(c.nazev));
    s.row(nazvy, cols, hlavicka);
    for (const ZavpohPolozka& p : d.polozky) {
        const int top = s.y();
        s.need(Sazba::ROW_STEP);
        if (s.y() < top) s.row(nazvy, cols, hlavicka);  // the header again on a new page
        std::vector<wxString> v{p.popis, p.mj, lxformat::formatMnozstvi(p.pocet), lxformat::formatCastka(p.cenamj)};
        if (d.platce) {
            v.push_back(wxString::Format("%d", p.sazba));
            v.push_back(lxformat::formatCastka(p.dph));
        }
        v.push_back(lxformat::formatCastka(p.celkem));
        s.row(v, cols, polozky);
    }

    if (d.platce && !d.souhrn.empty()) {
        s.skip(6);
        s.need(Sazba::ROW_STEP * (static_cast<int>(d.souhrn.size()) + 2));
        s.add(TextElement(u8("Rekapitulace DPH"), wxPoint(WIDTH - 120, s.y()), 0, wxTEXT_ALIGNMENT_LEFT, tucne));
        s.skip(6);
        const std::vector<Sloupec> rekap{{"Sazba", 30, wxTEXT_ALIGNMENT_RIGHT},
                                         {"Základ", 30, wxTEXT_ALIGNMENT_RIGHT},
                                         {"DPH", 30, wxTEXT_ALIGNMENT_RIGHT},
                                         {"Celkem", 30, wxTEXT_ALIGNMENT_RIGHT}};
        // The summary sits under the amount columns, on the right.
        const int x = WIDTH - 120;
        s.row({u8("Sazba"), u8("Základ"), u8("DPH"), u8("Celkem")}, rekap, hlavicka, x);
        for (const ZavpohDph& r : d.souhrn)
            s.row({wxString::Format("%d %%", r.sazba), lxformat::formatCastka(r.zaklad), lxformat::formatCastka(r.dph),
                   lxformat::formatCastka(r.zaklad + r.dph)},
                  rekap, polozky, x);
    }

    s.skip(6);
    s.need(10);
    s.add(TextElement(u8("Celkem k úhradě: ") + lxformat::formatCastka(d.celkem, d.mena), wxPoint(0, s.y()), WIDTH,
                      wxTEXT_ALIGNMENT_RIGHT, titulek));
    m_doklad.pages = s.page();
    m_doklad.sortElements();
    setDocument(&m_doklad);
}
