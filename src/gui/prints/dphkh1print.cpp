#include "dphkh1print.h"

#include <algorithm>
#include <functional>
#include <map>
#include <numeric>

#include "dph/dphkh1fill.h"
#include "lxformat.h"
#include "podaniprint.h"

namespace {

using namespace podaniprint;

wxString u8(const char* text) { return wxString::FromUTF8(text); }

// The header in the page's top margin carries the mark of a check print, so the content
// starts lower and ends higher than on the other filings' prints.
constexpr int MARGIN_TOP = 14;
constexpr int BOTTOM = PAGE_BOTTOM - (MARGIN_TOP - 8);
constexpr int URAD_LABEL = 58;
constexpr int UDAJ_LABEL = 60;

// A column of a section's table: its heading and its share of the width.
struct Sloupec {
    const char* nazev;
    int sirka;
    wxTextAttrAlignment zarovnani;
};

bool isCastka(const wxString& atribut) {
    return atribut.StartsWith("zakl_dane") || atribut.StartsWith("dan") || atribut == "osv_plneni";
}

// Headings of the summaries' six amounts say which rate they are for.
const char* souhrnNazev(const wxString& atribut) {
    static const std::map<wxString, const char*> nazvy{
        {"zakl_dane1", "Základ daně pro základní sazbu"},    {"dan1", "Daň pro základní sazbu"},
        {"zakl_dane2", "Základ daně pro 1. sníženou sazbu"}, {"dan2", "Daň pro 1. sníženou sazbu"},
        {"zakl_dane3", "Základ daně pro 2. sníženou sazbu"}, {"dan3", "Daň pro 2. sníženou sazbu"}};
    const auto it = nazvy.find(atribut);
    return it == nazvy.end() ? nullptr : it->second;
}

Sloupec sloupec(const wxString& atribut) {
    static const std::map<wxString, Sloupec> sloupce{
        {"c_radku", {"Č. ř.", 7, wxTEXT_ALIGNMENT_CENTRE}},
        {"dic_odb", {"DIČ odběratele", 19, wxTEXT_ALIGNMENT_LEFT}},
        {"dic_dod", {"DIČ dodavatele", 19, wxTEXT_ALIGNMENT_LEFT}},
        {"k_stat", {"Kód státu", 9, wxTEXT_ALIGNMENT_CENTRE}},
        {"vatid_dod", {"Identifikace dodavatele", 21, wxTEXT_ALIGNMENT_LEFT}},
        {"vatid_odb", {"Identifikace odběratele", 21, wxTEXT_ALIGNMENT_LEFT}},
        {"jm_prijm_obch", {"Jméno / obchodní firma", 28, wxTEXT_ALIGNMENT_LEFT}},
        {"d_narozeni", {"Datum narození", 16, wxTEXT_ALIGNMENT_CENTRE}},
        {"m_pobytu_sidlo", {"Místo pobytu / sídlo", 28, wxTEXT_ALIGNMENT_LEFT}},
        {"c_evid_dd", {"Ev. číslo daňového dokladu", 22, wxTEXT_ALIGNMENT_LEFT}},
        {"duzp", {"DUZP", 16, wxTEXT_ALIGNMENT_CENTRE}},
        {"dppd", {"DPPD", 16, wxTEXT_ALIGNMENT_CENTRE}},
        {"dup", {"DUP", 16, wxTEXT_ALIGNMENT_CENTRE}},
        {"zakl_dane1", {"Základ daně 1", 17, wxTEXT_ALIGNMENT_RIGHT}},
        {"dan1", {"Daň 1", 17, wxTEXT_ALIGNMENT_RIGHT}},
        {"zakl_dane2", {"Základ daně 2", 17, wxTEXT_ALIGNMENT_RIGHT}},
        {"dan2", {"Daň 2", 17, wxTEXT_ALIGNMENT_RIGHT}},
        {"zakl_dane3", {"Základ daně 3", 17, wxTEXT_ALIGNMENT_RIGHT}},
        {"dan3", {"Daň 3", 17, wxTEXT_ALIGNMENT_RIGHT}},
        {"osv_plneni", {"Hodnota osvobozeného plnění", 22, wxTEXT_ALIGNMENT_RIGHT}},
        {"kod_pred_pl", {"Kód předmětu plnění", 12, wxTEXT_ALIGNMENT_CENTRE}},
        {"kod_rezim_pl", {"Kód režimu plnění", 12, wxTEXT_ALIGNMENT_CENTRE}},
        {"zdph_44", {"§ 44 ZDPH", 10, wxTEXT_ALIGNMENT_CENTRE}},
        {"pomer", {"Použit poměr", 10, wxTEXT_ALIGNMENT_CENTRE}}};
    const auto it = sloupce.find(atribut);
    return it == sloupce.end() ? Sloupec{"", 15, wxTEXT_ALIGNMENT_LEFT} : it->second;
}

// A section's columns stretched or squeezed to the printable width; what rounding leaves
// goes to the widest column.
std::vector<int> sirky(const std::vector<Sloupec>& sloupce) {
    const int soucet =
        std::accumulate(sloupce.begin(), sloupce.end(), 0, [](int s, const Sloupec& c) { return s + c.sirka; });
    std::vector<int> out;
    for (const Sloupec& c : sloupce) out.push_back(c.sirka * WIDTH / std::max(soucet, 1));
    const auto nejsirsi = std::max_element(out.begin(), out.end());
    if (nejsirsi != out.end()) *nejsirsi += WIDTH - std::accumulate(out.begin(), out.end(), 0);
    return out;
}

wxString hodnota(const Dphkh1& p, const wxString& veta, const wxString& atribut, int index) {
    const wxString text = p.atributValue(veta, atribut, index);
    if (text.empty() || !isCastka(atribut)) return text;
    return lxformat::formatCastka(p.castka(veta, atribut, index));
}

void sekce(Sazba& s, const Dphkh1& p, kh1::Sekce sekce, const wxDateTime& od, const Styly& st) {
    const wxString veta = kh1::vetaName(sekce);
    const std::vector<wxString> atributy = p.atributy(veta);
    std::vector<Sloupec> sloupce;
    for (const wxString& a : atributy) {
        Sloupec c = sloupec(a);
        if (!kh1::isRadkova(sekce) && souhrnNazev(a)) c = {souhrnNazev(a), 17, wxTEXT_ALIGNMENT_RIGHT};
        sloupce.push_back(c);
    }
    const std::vector<int> w = sirky(sloupce);
    const auto row = [&](const std::function<wxString(size_t)>& text, const TextStyle& style) {
        std::vector<Bunka> bunky;
        for (size_t i = 0; i < atributy.size(); ++i) bunky.push_back({text(i), w[i], sloupce[i].zarovnani});
        return radek(bunky, style);
    };
    std::vector<TableRowElement> radky;
    // A summary is one row even when nothing was summed, so that its zeros are seen.
    const int pocet = kh1::isRadkova(sekce) ? p.pocetVet(veta) : 1;
    for (int r = 0; r < pocet; ++r)
        radky.push_back(row([&](size_t i) { return hodnota(p, veta, atributy[i], r); }, st.radek));
    s.skip(3);
    s.tabulka(TextElement(kh1::nadpis(sekce, od), wxPoint(), WIDTH, wxTEXT_ALIGNMENT_LEFT, st.nadpis),
              row([&](size_t i) { return u8(sloupce[i].nazev); }, st.zahlavi), radky);
}

void oddilC(Sazba& s, const Dphkh1& p, const Styly& st) {
    static const std::map<wxString, const char*> nazvy{
        {"celk_zd_a2", "Celkový základ daně z oddílu A.2"},
        {"obrat23", "Základ daně v základní sazbě z oddílů A.4 a A.5"},
        {"obrat5", "Základ daně ve snížených sazbách z oddílů A.4 a A.5"},
        {"pln23", "Základ daně v základní sazbě z oddílů B.2 a B.3"},
        {"pln5", "Základ daně ve snížených sazbách z oddílů B.2 a B.3"},
        {"pln_rez_pren", "Základ daně v režimu přenesení daňové povinnosti z oddílu A.1"},
        {"rez_pren23", "Základ daně v režimu přenesení v základní sazbě z oddílu B.1"},
        {"rez_pren5", "Základ daně v režimu přenesení ve snížených sazbách z oddílu B.1"}};
    constexpr int HODNOTA = 40;
    std::vector<TableRowElement> radky;
    for (const wxString& a : p.atributy("VetaC")) {
        const auto it = nazvy.find(a);
        radky.push_back(radek({{it == nazvy.end() ? a : u8(it->second), WIDTH - HODNOTA, wxTEXT_ALIGNMENT_LEFT},
                               {lxformat::formatCastka(p.castka("VetaC", a)), HODNOTA, wxTEXT_ALIGNMENT_RIGHT}},
                              st.radek));
    }
    s.skip(3);
    s.tabulka(TextElement(u8("C. Kontrolní řádky"), wxPoint(), WIDTH, wxTEXT_ALIGNMENT_LEFT, st.nadpis),
              radek({{u8("Údaj"), WIDTH - HODNOTA, wxTEXT_ALIGNMENT_LEFT},
                     {u8("Částka v Kč"), HODNOTA, wxTEXT_ALIGNMENT_RIGHT}},
                    st.zahlavi),
              radky);
}

// The first day of the statement's period; the headings of some sections depend on the law
// in force then.
wxDateTime obdobiOd(const Dphkh1& p) {
    const wxDateTime od = p.atributValueDatum("VetaD", "zdobd_od");
    if (od.IsValid()) return od;
    const int rok = p.atributValueInt("VetaD", "rok");
    const int mesic = p.atributValueInt("VetaD", "mesic");
    const int ctvrt = p.atributValueInt("VetaD", "ctvrt");
    if (rok <= 0) return wxDateTime();
    if (mesic > 0) return DphObdobi::zMesice(rok, mesic).od;
    if (ctvrt > 0) return DphObdobi::zCtvrtleti(rok, ctvrt).od;
    return wxDateTime();
}

// The details of the kind: the day a follow-up's reason was found, the summons and the
// quick answer to it.
std::vector<Udaj> udajeDruhu(const Dphkh1& p) {
    std::vector<Udaj> udaje{{u8("Druh kontrolního hlášení"), kh1::druhText(p.atributValue("VetaD", "khdph_forma"))}};
    const auto pridat = [&](const char* popisek, const wxString& hodnota) {
        if (!hodnota.empty()) udaje.push_back({u8(popisek), hodnota});
    };
    pridat("Datum zjištění důvodů pro podání následného KH", p.atributValue("VetaD", "d_zjist"));
    pridat("Číslo jednací výzvy", p.atributValue("VetaD", "c_jed_vyzvy"));
    const wxString odpoved = p.atributValue("VetaD", "vyzva_odp");
    if (odpoved == Dphkh1::VYZVA_NULOVE)
        pridat("Rychlá odpověď na výzvu", u8("Nemám povinnost podat KH (nulové KH)"));
    else if (odpoved == Dphkh1::VYZVA_POTVRZUJI)
        pridat("Rychlá odpověď na výzvu", u8("Potvrzuji správnost naposledy podaného KH"));
    udaje.push_back(obdobi(p));
    pridat("Datum vyhotovení", p.atributValue("VetaD", "d_poddp"));
    return udaje;
}

}  // namespace

Dphkh1Print::Dphkh1Print(wxWindow* parent, const Dphkh1& p) : DocumentPrint(parent, u8("Kontrolní hlášení DPH")) {
    nastavitStranu(m_doc);
    m_doc.layout.marginTop = MARGIN_TOP;
    m_doc.layout.headerCenterText = u8("Kontrolní tisk, neslouží k podání");
    const Styly st = styly();
    Sazba s(m_doc, BOTTOM);

    s.skip(blok(s, 0, 0, WIDTH, URAD_LABEL, wxString(), udajeUradu(p), st) + 4);
    s.append(TextElement(u8("KONTROLNÍ HLÁŠENÍ"), wxPoint(), WIDTH, wxTEXT_ALIGNMENT_CENTRE, st.titulek));
    s.append(TextElement(u8("podle § 101c a násl. zákona č. 235/2004 Sb., o dani z přidané hodnoty,"), wxPoint(), WIDTH,
                         wxTEXT_ALIGNMENT_CENTRE, st.udaj));
    s.append(
        TextElement(u8("ve znění pozdějších předpisů (ZDPH)"), wxPoint(), WIDTH, wxTEXT_ALIGNMENT_CENTRE, st.udaj));
    s.skip(4);
    s.skip(blok(s, 0, s.y(), WIDTH, UDAJ_LABEL, wxString(), udajeDruhu(p), st) + 4);
    s.skip(blok(s, 0, s.y(), WIDTH, UDAJ_LABEL, osobaNadpis(p), udajeOsoby(p), st) + 2);

    // A quick answer to a summons carries no sections.
    if (p.atributValue("VetaD", "vyzva_odp").empty()) {
        const wxDateTime od = obdobiOd(p);
        for (kh1::Sekce k : kh1::sekce()) sekce(s, p, k, od, st);
        oddilC(s, p, st);
    }

    m_doc.pages = s.page();
    m_doc.sortElements();
    setDocument(&m_doc);
}

void nahledDphkh1(wxWindow* parent, const Dphkh1& p) {
    Dphkh1Print print(parent, p);
    print.Preview();
}
