#include "zavpohprint.h"

#include <cmath>
#include <algorithm>
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

std::vector<wxString> adresniRadky(const Adresa& a) {
    const wxString ulice = (a.ulice() + " " + a.cp()).Strip(wxString::both);
    const wxString misto = (a.psc() + " " + a.misto()).Strip(wxString::both);
    return {ulice, misto, a.zeme()};
}

wxString ZavpohPrint::nadpis(const ZavpohDoklad& d) { return u8(d.zavazek ? "Závazek " : "Pohledávka ") + d.cislo; }

ZavpohPrint::ZavpohPrint(wxWindow* parent, const ZavpohDoklad& d)
    : DocumentPrint(parent, d.nadpis.empty() ? nadpis(d) : d.nadpis) {
    sazbaDokladu(m_doklad, d, m_title);
    setDocument(&m_doklad);
}

void sazbaDokladu(Document& doc, const ZavpohDoklad& d, const wxString& title) {
    doc.layout.marginLeft = 10;
    doc.layout.marginRight = 10;
    doc.layout.marginTop = 15;
    doc.layout.marginBottom = 15;
    doc.layout.footer = lxPrint::FOOTER_PAGES;

    const wxColour black(0, 0, 0), white(255, 255, 255);
    const TextStyle titulek(printFont(14).Bold(), black, white);
    const TextStyle tucne(printFont(10).Bold(), black, white);
    const TextStyle text(printFont(10), black, white);
    const TextStyle drobne(printFont(8), black, white);
    const TextStyle polozky(printFont(9), black, white);
    const TextStyle hlavicka(printFont(9).Bold(), black, wxColour(230, 230, 230));
    Sazba s(doc, text, HALF);

    if (!d.logo.empty()) {
        // The logo on the left, the title beside it.
        ImageElement logo;
        logo.path = d.logo;
        logo.pos = wxPoint(0, 0);
        logo.width = 25;
        s.add(logo);
    }
    s.add(TextElement(title, wxPoint(0, 0), WIDTH, wxTEXT_ALIGNMENT_CENTRE, titulek));
    // The company supplies on a receivable and is supplied on a liability.
    const ZavpohStrana& dodavatel = d.zavazek ? d.protistrana : d.firma;
    const ZavpohStrana& odberatel = d.zavazek ? d.firma : d.protistrana;
    s.add(TextElement(u8("Dodavatel"), wxPoint(0, 12), HALF, wxTEXT_ALIGNMENT_LEFT, tucne));
    s.add(TextElement(u8("Odběratel"), wxPoint(98, 12), HALF, wxTEXT_ALIGNMENT_LEFT, tucne));
    s.add(TextElement(stranaText(dodavatel), wxPoint(0, 18), HALF, wxTEXT_ALIGNMENT_LEFT, text));
    s.add(TextElement(stranaText(odberatel), wxPoint(98, 18), HALF, wxTEXT_ALIGNMENT_LEFT, text));
    s.add(RectangleElement(wxPoint(96, 10), wxSize(WIDTH - 96, 38), LineStyle(black, 1), 2));
    if (!d.registrace.empty())
        s.add(TextElement(d.registrace, wxPoint(0, 44), HALF, wxTEXT_ALIGNMENT_LEFT, drobne));

    const int udaje = 54;
    int vlevo = udaje, vpravo = udaje;
    auto left = [&](const char* label, const wxString& value) {
        s.field(0, vlevo, u8(label), value);
        vlevo += 5;
    };
    auto right = [&](const char* label, const wxString& value) {
        s.field(98, vpravo, u8(label), value);
        vpravo += 5;
    };
    left("Datum vystavení:", datum(d.vystaveni));
    left("Datum splatnosti:", datum(d.splatnost));
    if (d.platce) left("DUZP:", datum(d.duzp));
    right("Forma úhrady:", d.uhrada);
    if (!d.ucet.empty()) right("Bankovní účet:", d.ucet);
    if (!d.iban.empty()) right("IBAN:", d.iban);
    if (!d.bic.empty()) right("BIC (SWIFT):", d.bic);
    if (d.ucet.empty() && d.iban.empty() && !d.registr.empty()) right("Pokladna / účet:", d.registr);
    right("Variabilní symbol:", d.vs);
    if (!d.ks.empty()) right("Konstantní symbol:", d.ks);
    if (!d.ss.empty()) right("Specifický symbol:", d.ss);
    s.skip(std::max(vlevo, vpravo) + 3);
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

    // The totals on the right; the QR code, when there is one, on the left beside them.
    ImageElement qr;
    qr.path = ImageElement::PATH_QR;
    qr.qr = d.qrtext;
    const int qrVyska = d.qrtext.empty() ? 0 : static_cast<int>(std::ceil(qr.bounds().m_height));
    s.skip(6);
    s.need(std::max(qrVyska, 16 + (d.razitko.empty() ? 0 : 35)));
    const int dole = s.y();
    if (qrVyska > 0) {
        qr.pos = wxPoint(0, dole);
        s.add(qr);
    }
    if (d.maZaokrouhleni) {
        s.add(TextElement(u8("Zaokrouhlení: ") + lxformat::formatCastka(d.zaokrouhleni, d.mena), wxPoint(0, s.y()),
                          WIDTH, wxTEXT_ALIGNMENT_RIGHT, text));
        s.skip(6);
    }
    s.add(TextElement(u8("Celkem k úhradě: ") + lxformat::formatCastka(d.celkem, d.mena), wxPoint(0, s.y()), WIDTH,
                      wxTEXT_ALIGNMENT_RIGHT, titulek));
    s.skip(12);
    if (!d.razitko.empty()) {
        ImageElement razitko;
        razitko.path = d.razitko;
        razitko.pos = wxPoint(WIDTH, s.y());
        razitko.width = 40;
        razitko.alignment = wxTEXT_ALIGNMENT_RIGHT;
        s.add(razitko);
    }
    s.skip(std::max(0, dole + qrVyska - s.y()));
    doc.pages = s.page();
    doc.sortElements();
}
