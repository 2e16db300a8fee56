#include "priznaniform.h"

#include <wx/tokenzr.h>

namespace priznaniform {

const char* const STAT = "ČESKÁ REPUBLIKA";

namespace {

const char* const ZAST_TYP_TEXTY[] = {"Žádná", "Fyzická osoba", "Právnická osoba"};
const char* const ZAST_TYP_KODY[] = {"", "F", "P"};

const char* const ZAST_KOD_TEXTY[] = {
    "1 - zákonný zástupce nebo opatrovník",
    "2 - ustanovený zástupce",
    "3 - společný zástupce, společný zmocněnec",
    "4a - obecný zmocněnec",
    "4b - fyzická osoba daňový poradce nebo advokát",
    "4c -právnická osoba vykonávající daňové poradenství",
    "5a - osoba spravující pozůstalost",
    "5b - zástupce osoby spravující pozůstalost",
    "6a - dědic po skončení řízení o pozůstalosti",
    "6b - zástupce dědice po skončení řízení o pozůstalosti",
    "7a - právní nástupce právnické osoby",
    "7b - zástupce právního nástupce právnické osoby",
};

// The representative fields of each kind; the code applies to both.
const char* const POLE_FYZICKE[] = {"zast_kod", "zast_jmeno", "zast_prijmeni", "zast_dat_nar", "zast_ev_cislo"};
const char* const POLE_PRAVNICKE[] = {"zast_kod",  "zast_nazev",   "zast_ic",
                                      "opr_jmeno", "opr_prijmeni", "opr_postaveni"};

wxArrayString texty(const char* const* texts, size_t count) {
    wxArrayString list;
    for (size_t i = 0; i < count; ++i) list.Add(wxString::FromUTF8(texts[i]));
    return list;
}

template <size_t N>
bool contains(const char* const (&columns)[N], const wxString& column) {
    for (const char* c : columns) {
        if (column == c) return true;
    }
    return false;
}

bool prazdne(const wxString& text) { return text.Strip(wxString::both).empty(); }

// A check of the form: the column, its message and whether the record breaks it.
struct Pravidlo {
    const char* pole;
    const char* zprava;
    bool (*porusene)(const Priznani& p);
};

const Pravidlo PRAVIDLA[] = {
    {"jmeno", "Jméno nemůže být prázdné", [](const Priznani& p) { return prazdne(p.jmeno()); }},
    {"prijmeni", "Příjmení nemůže být prázdné", [](const Priznani& p) { return prazdne(p.prijmeni()); }},
    {"ulice", "Ulice nemůže být prázdná", [](const Priznani& p) { return prazdne(p.ulice()); }},
    {"naz_obce", "Obec nemůže být prázdná", [](const Priznani& p) { return prazdne(p.naz_obce()); }},
    {"c_okec", "Hlavní ekonomická činnost nemůže být prázdná", [](const Priznani& p) { return p.c_okec() <= 0; }},
    {"email", "Vyplňte buď email\nnebo identifikátor datové schránky",
     [](const Priznani& p) { return prazdne(p.email()) && prazdne(p.id_dats()); }},
    {"zast_jmeno", "Jméno podepisující osoby nemůže být prázdné",
     [](const Priznani& p) { return p.zast_typ() == "F" && prazdne(p.zast_jmeno()); }},
    {"zast_prijmeni", "Příjmení podepisující osoby nemůže být prázdné",
     [](const Priznani& p) { return p.zast_typ() == "F" && prazdne(p.zast_prijmeni()); }},
    {"zast_nazev", "Název právnické osoby nemůže být prázdný",
     [](const Priznani& p) { return p.zast_typ() == "P" && prazdne(p.zast_nazev()); }},
    {"opr_jmeno", "Jméno oprávněné osoby nemůže být prázdné",
     [](const Priznani& p) { return p.zast_typ() == "P" && prazdne(p.opr_jmeno()); }},
    {"opr_prijmeni", "Příjmení oprávněné osoby nemůže být prázdné",
     [](const Priznani& p) { return p.zast_typ() == "P" && prazdne(p.opr_prijmeni()); }},
    {"opr_postaveni", "Vztah oprávněné osoby k právnické osobě nemůže být prázdný",
     [](const Priznani& p) { return p.zast_typ() == "P" && prazdne(p.opr_postaveni()); }},
};

// Legal forms that mark a company's name, compared without blanks and case.
const char* const PRAVNI_FORMY[] = {"s.r.o", "spol.", "a.s.", "v.o.s", "k.s.", "z.s.", "o.p.s", "z.ú.", "družstvo"};

bool isNazevFirmy(const wxString& nazev) {
    wxString folded = nazev.Lower();
    folded.Replace(" ", "");
    for (const char* forma : PRAVNI_FORMY) {
        if (folded.Contains(wxString::FromUTF8(forma))) return true;
    }
    return nazev.find_first_of("0123456789,&") != wxString::npos;
}

// "12", "1234/5", "12a": the building number and the orientation number after a slash.
bool rozdelCislo(const wxString& text, long* cp, wxString* co) {
    const wxString cislo = text.BeforeFirst('/').Strip(wxString::both);
    if (cislo.empty() || !cislo.ToLong(cp) || *cp <= 0 || *cp > 999999) return false;
    *co = text.Contains("/") ? text.AfterFirst('/').Strip(wxString::both) : wxString();
    return true;
}

}  // namespace

wxArrayString zastTypTexty() { return texty(ZAST_TYP_TEXTY, WXSIZEOF(ZAST_TYP_TEXTY)); }

wxString zastTypKod(int index) {
    return index >= 0 && index < static_cast<int>(WXSIZEOF(ZAST_TYP_KODY)) ? ZAST_TYP_KODY[index] : "";
}

int zastTypIndex(const wxString& kod) {
    for (size_t i = 1; i < WXSIZEOF(ZAST_TYP_KODY); ++i) {
        if (kod == ZAST_TYP_KODY[i]) return static_cast<int>(i);
    }
    return 0;
}

wxArrayString zastKodTexty() { return texty(ZAST_KOD_TEXTY, WXSIZEOF(ZAST_KOD_TEXTY)); }

wxString zastKodZTextu(const wxString& text) { return text.Strip(wxString::leading).BeforeFirst(' '); }

int zastKodIndex(const wxString& kod) {
    if (kod.empty()) return -1;
    for (size_t i = 0; i < WXSIZEOF(ZAST_KOD_TEXTY); ++i) {
        if (zastKodZTextu(wxString::FromUTF8(ZAST_KOD_TEXTY[i])) == kod) return static_cast<int>(i);
    }
    return -1;
}

bool isPoleZastupce(const wxString& zastTyp, const wxString& column) {
    if (zastTyp == "F") return contains(POLE_FYZICKE, column);
    if (zastTyp == "P") return contains(POLE_PRAVNICKE, column);
    return false;
}

Priznani bezNepouzitych(const Priznani& p) {
    Priznani r = p;
    const wxString typ = p.zast_typ();
    r.visit([&typ](const char* column, auto& field) {
        using Field = std::decay_t<decltype(field)>;
        if constexpr (std::is_same_v<Field, wxString>) {
            const wxString c(column);
            if ((c.StartsWith("zast_") || c.StartsWith("opr_")) && c != "zast_typ" && !isPoleZastupce(typ, c)) {
                field.clear();
            }
        }
    });
    return r;
}

Chyba check(const Priznani& p) {
    for (const Pravidlo& pravidlo : PRAVIDLA) {
        if (pravidlo.porusene(p)) return {wxString::FromUTF8(pravidlo.zprava), pravidlo.pole};
    }
    return {};
}

Priznani zFirmy(const Firma& firma, const Adresa& adresa) {
    Priznani p;
    const wxString nazev = firma.nazev().Strip(wxString::both);
    wxArrayString slova = wxStringTokenize(nazev, " \t", wxTOKEN_STRTOK);
    // Academic titles before the name ("Ing.", "MUDr.") are the title.
    wxString titul;
    while (slova.size() > 2 && slova[0].EndsWith(".")) {
        titul += (titul.empty() ? "" : " ") + slova[0];
        slova.RemoveAt(0);
    }
    if (!isNazevFirmy(nazev) && slova.size() >= 2 && slova.size() <= 3) {
        p.setTitul(titul);
        p.setPrijmeni(slova.Last());
        slova.RemoveAt(slova.size() - 1);
        wxString jmeno;
        for (const wxString& s : slova) jmeno += (jmeno.empty() ? "" : " ") + s;
        p.setJmeno(jmeno);
    } else {
        p.setPrijmeni(nazev);
    }

    wxString ulice = adresa.ulice().Strip(wxString::both);
    wxString cislo = adresa.cp().Strip(wxString::both);
    if (cislo.empty() && ulice.Contains(" ")) {  // "Dlouhá 12/3" written in one field
        long cp = 0;
        wxString co;
        if (rozdelCislo(ulice.AfterLast(' '), &cp, &co)) {
            cislo = ulice.AfterLast(' ');
            ulice = ulice.BeforeLast(' ').Strip(wxString::trailing);
        }
    }
    long cp = 0;
    wxString co;
    if (rozdelCislo(cislo, &cp, &co)) {
        p.setC_pop(static_cast<int>(cp));
        p.setC_orient(co);
    }
    p.setUlice(ulice);
    p.setNaz_obce(adresa.misto().Strip(wxString::both));
    wxString psc = adresa.psc();
    psc.Replace(" ", "");
    p.setPsc(psc);
    p.setStat(wxString::FromUTF8(STAT));
    wxString dic = firma.dic().Strip(wxString::both);
    if (dic.Upper().StartsWith("CZ")) dic = dic.Mid(2);
    p.setDic(dic);
    p.setEmail(firma.email().Strip(wxString::both));
    p.setC_telef(firma.telefon().Strip(wxString::both));
    p.setValid(true);
    return p;
}

}  // namespace priznaniform
