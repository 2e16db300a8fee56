#include "dphshprint.h"

#include <algorithm>

#include "podaniprint.h"

namespace {

using namespace podaniprint;

wxString u8(const char* text) { return wxString::FromUTF8(text); }

// The header: the office block on the left, the page count and the office's stamp box on
// the right.
constexpr int URAD = 106;
constexpr int URAD_LABEL = 48;
constexpr int RAZITKO_X = 110;
constexpr int RAZITKO = WIDTH - RAZITKO_X;
constexpr int UDAJ_LABEL = 50;

struct Sloupec {
    const char* nazev;
    int sirka;
    wxTextAttrAlignment zarovnani;
};
const Sloupec SLOUPCE[] = {
    {"Pořadové číslo řádku", 18, wxTEXT_ALIGNMENT_CENTRE}, {"Kód země", 16, wxTEXT_ALIGNMENT_CENTRE},
    {"DIČ pořizovatele zboží", 50, wxTEXT_ALIGNMENT_LEFT}, {"Kód plnění", 18, wxTEXT_ALIGNMENT_CENTRE},
    {"Počet plnění", 20, wxTEXT_ALIGNMENT_RIGHT},          {"Celková hodnota plnění v Kč", 46, wxTEXT_ALIGNMENT_RIGHT},
    {"Storno řádek", 22, wxTEXT_ALIGNMENT_CENTRE}};

TableRowElement tabulkaRadek(const std::vector<wxString>& texty, const TextStyle& style) {
    std::vector<Bunka> bunky;
    for (size_t i = 0; i < texty.size(); ++i) bunky.push_back({texty[i], SLOUPCE[i].sirka, SLOUPCE[i].zarovnani});
    return radek(bunky, style);
}

// The rows of each page of the form: a list of more rows than one page holds numbers them
// within their page (por_c_stran).
std::vector<std::vector<TableRowElement>> stranyFormulare(const Dphshv& p, const Styly& st) {
    std::vector<std::vector<TableRowElement>> strany(1);
    const auto r = [&p](const char* atribut, int i) { return p.atributValue("VetaR", atribut, i); };
    for (int i = 0; i < p.pocetVet("VetaR"); ++i) {
        const size_t strana = static_cast<size_t>(std::max(p.atributValueInt("VetaR", "por_c_stran", i), 1));
        if (strana > strany.size()) strany.resize(strana);
        strany[strana - 1].push_back(
            tabulkaRadek({r("c_rad", i), r("k_stat", i), r("c_vat", i), r("k_pln_eu", i), r("pln_pocet", i),
                          celeKoruny(r("pln_hodnota", i)), r("k_storno", i) == Dphshv::STORNO ? u8("ano") : wxString()},
                         st.radek));
    }
    return strany;
}

// The head of a page of the form: the office block (only the DIČ on further pages) and the
// page number, with the office's stamp box on the first page.
void hlavicka(Sazba& s, const Dphshv& p, size_t strana, size_t stran, const Styly& st) {
    std::vector<Udaj> urad = udajeUradu(p);
    if (strana > 1) urad = {urad.back()};
    const int vlevo = blok(s, 0, s.y(), URAD, URAD_LABEL, wxString(), urad, st);
    const TableRowElement cislo =
        radek({{u8("Pořadové číslo strany / Celkový počet stran"), RAZITKO - 12, wxTEXT_ALIGNMENT_LEFT},
               {wxString::Format("%zu/%zu", strana, stran), 12, wxTEXT_ALIGNMENT_CENTRE}},
              st.radek);
    s.put(cislo, RAZITKO_X, s.y());
    int vpravo = vyska(cislo);
    if (strana == 1) {
        constexpr int RAZITKO_VYSKA = 24;
        s.place(RectangleElement(wxPoint(RAZITKO_X, s.y() + vpravo + 1), wxSize(RAZITKO, RAZITKO_VYSKA)));
        s.put(TextElement(u8("otisk podacího razítka finančního úřadu"), wxPoint(), RAZITKO, wxTEXT_ALIGNMENT_CENTRE,
                          st.radek),
              RAZITKO_X, s.y() + vpravo + 2);
        vpravo += 1 + RAZITKO_VYSKA;
    }
    s.skip(std::max(vlevo, vpravo) + 4);
}

wxString formaText(const wxString& forma) {
    return u8(forma == Dphshv::NASLEDNE ? "Následné souhrnné hlášení" : "Souhrnné hlášení");
}

}  // namespace

DphshPrint::DphshPrint(wxWindow* parent, const Dphshv& p) : DocumentPrint(parent, u8("Souhrnné hlášení VIES")) {
    nastavitStranu(m_doc);
    const Styly st = styly();
    Sazba s(m_doc);

    const std::vector<std::vector<TableRowElement>> strany = stranyFormulare(p, st);
    hlavicka(s, p, 1, strany.size(), st);
    s.append(TextElement(u8("SOUHRNNÉ HLÁŠENÍ"), wxPoint(), WIDTH, wxTEXT_ALIGNMENT_CENTRE, st.titulek));
    s.append(TextElement(u8("k dani z přidané hodnoty"), wxPoint(), WIDTH, wxTEXT_ALIGNMENT_CENTRE, st.podtitulek));
    s.append(TextElement(u8("podle § 102 zákona č. 235/2004 Sb., o dani z přidané hodnoty"), wxPoint(), WIDTH,
                         wxTEXT_ALIGNMENT_CENTRE, st.udaj));
    s.skip(4);

    const std::vector<Udaj> hlaseni{{u8("Druh hlášení"), formaText(p.atributValue("VetaD", "shvies_forma"))},
                                    obdobi(p),
                                    {u8("Datum vyplnění"), p.atributValue("VetaD", "d_poddp")}};
    s.skip(blok(s, 0, s.y(), WIDTH, UDAJ_LABEL, wxString(), hlaseni, st) + 4);
    s.skip(blok(s, 0, s.y(), WIDTH, UDAJ_LABEL, osobaNadpis(p), udajeOsoby(p), st) + 4);

    std::vector<wxString> nazvy;
    for (const Sloupec& c : SLOUPCE) nazvy.push_back(u8(c.nazev));
    for (size_t k = 0; k < strany.size(); ++k) {
        // Each page of the form on a sheet of its own, as the form's page numbers say.
        if (k > 0) {
            s.novaStrana();
            hlavicka(s, p, k + 1, strany.size(), st);
        }
        s.tabulka(TextElement(u8("A. ODDÍL"), wxPoint(), WIDTH, wxTEXT_ALIGNMENT_LEFT, st.nadpis),
                  tabulkaRadek(nazvy, st.zahlavi), strany[k]);
    }

    m_doc.pages = s.page();
    m_doc.sortElements();
    setDocument(&m_doc);
}

void nahledDphsh(wxWindow* parent, const Dphshv& hlaseni) {
    DphshPrint print(parent, hlaseni);
    print.Preview();
}
