#include "dphdp3print.h"

#include <algorithm>

#include "dph/dp3radky.h"
#include "podaniprint.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

using namespace podaniprint;

// The two blocks of the header side by side, and the form's columns: the row number, the row
// text taking what the value columns leave.
constexpr int BLOCK = 94;
constexpr int BLOCK_LABEL = 34;
constexpr int CISLO = 8;
constexpr int HODNOTA = 28;

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
    std::vector<TableRowElement> radky;
    for (const dp3::FormRadek& r : o.radky) radky.push_back(formRadek(p, o, r, st));
    s.skip(1);
    s.tabulka(std::nullopt, zahlavi(o, st), radky);
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
    nastavitStranu(m_doc);
    const Styly st = styly();
    Sazba s(m_doc);

    s.append(TextElement(u8("Přiznání k dani z přidané hodnoty"), wxPoint(), WIDTH, wxTEXT_ALIGNMENT_CENTRE,
                         st.titulek));
    s.skip(1);
    s.append(TextElement(dp3::formaNazev(p.atributValue("VetaD", "dapdph_forma")), wxPoint(), WIDTH,
                         wxTEXT_ALIGNMENT_CENTRE, st.podtitulek));
    s.skip(3);
    const int top = s.y();
    const int vlevo = blok(s, 0, top, BLOCK, BLOCK_LABEL, u8("Údaje o plátci"), dp3::udajePlatce(p), st);
    const int vpravo =
        blok(s, WIDTH - BLOCK, top, BLOCK, BLOCK_LABEL, u8("Údaje o přiznání"), dp3::udajePriznani(p), st);
    s.skip(std::max(vlevo, vpravo) + 2);

    for (const dp3::FormOddil& o : dp3::formOddily()) oddil(s, p, o, st);
    prilohy(s, p, st);

    m_doc.pages = s.page();
    m_doc.sortElements();
    setDocument(&m_doc);
}
