#include "prijmyvydajeprint.h"

#include <cmath>

#include "sazba.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }
wxString castka(double v) { return wxString::Format("%.2f", v); }

constexpr int WIDTH = 190;

double soucet(const std::vector<PrijmyVydajeTisk::Radek>& radky) {
    double s = 0;
    for (const auto& r : radky) s += r.castka;
    return s;
}

}  // namespace

PrijmyVydajePrint::PrijmyVydajePrint(wxWindow* parent, const PrijmyVydajeTisk& t)
    : DocumentPrint(parent, wxString::Format(u8("Přehled daňových příjmů a výdajů za rok %d"), t.rok)) {
    m_prehled.layout.marginLeft = 15;
    m_prehled.layout.marginRight = 15;
    m_prehled.layout.marginTop = 15;
    m_prehled.layout.marginBottom = 15;
    m_prehled.layout.footer = lxPrint::FOOTER_PAGES;
    const wxColour black(0, 0, 0), white(255, 255, 255);
    const TextStyle titulek(printFont(14).Bold(), black, white);
    const TextStyle tucne(printFont(10).Bold(), black, white);
    const TextStyle text(printFont(10), black, white);
    const TextStyle hlavicka(printFont(10).Bold(), black, wxColour(230, 230, 230));
    Sazba s(m_prehled, text, WIDTH / 2);
    const std::vector<Sloupec> cols{{"", 130, wxTEXT_ALIGNMENT_LEFT}, {"", 50, wxTEXT_ALIGNMENT_RIGHT}};

    s.add(TextElement(m_title, wxPoint(0, 0), WIDTH - 10, wxTEXT_ALIGNMENT_CENTRE, titulek));
    s.add(TextElement(wxString::Format("%s %s", t.firma, t.adresa), wxPoint(0, 10), WIDTH - 10,
                      wxTEXT_ALIGNMENT_LEFT, text));
    s.add(TextElement(wxString::Format(u8("IČ: %s"), t.ic), wxPoint(0, 15), WIDTH - 10, wxTEXT_ALIGNMENT_LEFT, text));
    s.skip(26);
    if (t.prijmy.empty() && t.vydaje.empty()) {
        s.add(TextElement(u8("Žádné daňové příjmy a výdaje"), wxPoint(0, s.y()), WIDTH - 10, wxTEXT_ALIGNMENT_LEFT,
                          tucne));
    } else {
        const auto sekce = [&](const wxString& nazev, const std::vector<PrijmyVydajeTisk::Radek>& radky) {
            s.need(Sazba::ROW_STEP * 2);
            s.row({nazev, wxString()}, cols, hlavicka);
            for (const auto& r : radky) s.row({r.popis, castka(r.castka)}, cols, text);
            s.row({u8("Celkem"), castka(soucet(radky))}, cols, tucne);
            s.skip(6);
        };
        sekce(u8("Daňové příjmy"), t.prijmy);
        if (t.pausal) {
            for (size_t i = 0; i < t.vydaje.size(); ++i)
                s.row({wxString::Format(u8("Paušální výdaje %d%%"), i < t.procenta.size() ? t.procenta[i] : 0),
                       castka(t.vydaje[i].castka)},
                      cols, text);
            s.skip(6);
        } else {
            sekce(u8("Daňové výdaje"), t.vydaje);
        }
        const double zisk = soucet(t.prijmy) - soucet(t.vydaje);
        s.need(10);
        s.add(TextElement(zisk >= 0 ? wxString::Format(u8("Zisk: %.2f"), zisk)
                                    : wxString::Format(u8("Ztráta: %.2f"), std::fabs(zisk)),
                          wxPoint(0, s.y()), WIDTH - 10, wxTEXT_ALIGNMENT_LEFT, titulek));
    }
    m_prehled.pages = s.page();
    m_prehled.sortElements();
    setDocument(&m_prehled);
}
