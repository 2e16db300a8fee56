#include "seznamdph.h"

#include <algorithm>

#include "dbmodel.h"
#include "dphobdobi.h"
#include "lxformat.h"

namespace seznamdph {

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

struct OddilText {
    std::vector<const char*> radky;
    const char* nadpis;
    const char* podnadpis;
};

// The rows of the VAT return in its order. A classification feeding several rows is listed in
// every section that names its `radky` ("3,4,43,44" under rows 3,4 and again under 43,44);
// those of rows "0" (outside VAT) are in none.
const OddilText ODDILY[] = {
    {{"1,2"}, "Dodání zboží nebo poskytnutí služby s místem plnění v tuzemsku (např. §13, §14, §8)",
     "Řádky v přiznání: 1,2"},
    {{"3,4", "3,4,43,44"}, "Pořízení zboží z jiného členského státu (§16; §17 odst.6 písm e); §19 odst.3)",
     "Řádky v přiznání: 3,4"},
    {{"5,6", "5,6,43,44"},
     "Přijetí služby s místem plnění podle §9 odst.1 od osoby registrované k dani v jiném členském státě",
     "Řádky v přiznání: 5,6"},
    {{"7,8", "7,8,42"}, "Dovoz zboží (§23 odst.3 - 5)", "Řádky v přiznání: 7,8"},
    {{"9", "9,43,44"}, "Pořízení nového dopravního prostředku (§19 odst.4)", "Řádek v přiznání: 9"},
    {{"10,11", "10,11,43,44"}, "Režim přenesení daňové povinnosti (§92a) - odběratel zboží nebo příjemce služeb",
     "Řádky v přiznání: 10,11"},
    {{"12,13", "12,13,43,44"},
     "Ostatní zdanitelná plnění, u kterých je povinen přiznat daň plátce při jejich přijetí (§108)",
     "Řádky v přiznání: 12,13"},
    {{"20"}, "Dodání zboží do jiného členského státu (§64)", "Řádek v přiznání: 20"},
    {{"21"}, "Poskytnutí služeb s místem plnění v jiném členském státě vymezených v §102 odst.1 písm.d) a odst.2",
     "Řádek v přiznání: 21"},
    {{"22"}, "Vývoz zboží (§66)", "Řádek v přiznání: 22"},
    {{"23"}, "Dodání nového dopravního prostředku osobě neregistrované k dani v jiném členském státě (§19 odst.4)",
     "Řádek v přiznání: 23"},
    {{"24"}, "Zasílání zboží do jiného členského státu (§8)", "Řádek v přiznání: 24"},
    {{"25"}, "Režim přenesení daňové povinnosti (§92a) - dodavatel zboží nebo poskytovatel služeb",
     "Řádek v přiznání: 25"},
    {{"26"}, "Ostatní uskutečněná plnění s nárokem na odpočet daně (např. §24a, §67, §68, §69, §70, §89, §90, §92)",
     "Řádek v přiznání: 26"},
    {{"30"}, "Zjednodušený postup při dodání zboží formou třístranného obchodu (§17) prostřední osobou - Pořízení zboží",
     "Řádek v přiznání: 30"},
    {{"31"}, "Zjednodušený postup při dodání zboží formou třístranného obchodu (§17) prostřední osobou - Dodání zboží",
     "Řádek v přiznání: 31"},
    {{"32"}, "Dovoz zboží osvobozený podle §71g", "Řádek v přiznání: 32"},
    {{"33"}, "Oprava výše daně u pohledávek za dlužníky v insolvenčním řízení (§44) - Věřitel", "Řádek v přiznání: 33"},
    {{"34"}, "Oprava výše daně u pohledávek za dlužníky v insolvenčním řízení (§44) - Dlužník", "Řádek v přiznání: 34"},
    {{"40,41", "40,41,47"}, "Z přijatých zdanitelných plnění od plátců", "Řádky v přiznání: 40,41"},
    {{"7,8,42"}, "Při dovozu zboží, kdy je správcem daně celní úřad", "Řádek v přiznání: 42"},
    {{"3,4,43,44", "5,6,43,44", "9,43,44", "10,11,43,44", "12,13,43,44"},
     "Ze zdanitelných plnění vykázaných na řádcích 3 až 13", "Řádky v přiznání: 43,44"},
    {{"40,41,47"}, "Hodnota pořízeného majetku vymezeného v § 4 odst. 4 písm. d) a e)", "Řádek v přiznání: 47"},
    {{"50"}, "Plnění osvobozená od daně bez nároku na odpočet daně", "Řádek v přiznání: 50"},
    {{"61"}, "Vrácení daně (§ 84)", "Řádek v přiznání: 61"},
};

Bunka text(const wxString& t) { return {t, false}; }
Bunka suma(double value) { return {castka(value), true}; }
wxString datum(const wxDateTime& d) { return d.IsValid() ? lxformat::formatDatum(d) : wxString(); }

// The leading text columns of every row.
const char* const TEXT_COLUMNS[] = {"Doklad", "DUZP", "DPPD", "Popis", "Zdroj", "DIČ"};
constexpr size_t TEXT_COUNT = std::size(TEXT_COLUMNS);

wxString sazba(int procent) { return wxString::Format("%d%%", procent); }

}  // namespace

const std::vector<Oddil>& oddily() {
    static const std::vector<Oddil> all = [] {
        std::vector<Oddil> v;
        for (const OddilText& o : ODDILY) {
            Oddil oddil;
            for (const char* r : o.radky) oddil.radky.Add(r);
            oddil.nadpis = u8(o.nadpis);
            oddil.podnadpis = u8(o.podnadpis);
            v.push_back(oddil);
        }
        return v;
    }();
    return all;
}

wxString castka(double value) {
    // The one formatter of amounts, with its comma turned into the point of a "%.2f".
    wxString s = lxformat::formatCastka(value, false);
    s.Replace(",", ".");
    return s;
}

Radek hlavicka(const lxDphForDokladArray& lines) {
    Radek h;
    for (const char* name : TEXT_COLUMNS) h.push_back(text(u8(name)));
    for (const DphForDoklad& line : lines) {
        if (line.sazba == 0) continue;
        for (const char* name : {"Základ", "DPH", "Sazba"}) h.push_back(text(u8(name)));
    }
    h.push_back(text(u8("Základ DPH 0%")));
    h.push_back(text(u8("Celkem")));
    return h;
}

Radek radek(const DphDoklad& d) {
    Radek r = {text(d.cislo), text(datum(d.duzp)), text(datum(d.dppd)), text(d.popis), text(d.zdroj), text(d.dic)};
    double nulova = 0;
    for (const DphForDoklad& line : d.dph) {
        if (line.sazba == 0) {
            nulova += line.zaklad;
            continue;
        }
        r.push_back(suma(line.zaklad));
        r.push_back(suma(line.dph));
        r.push_back(text(sazba(line.sazba)));
    }
    r.push_back(suma(nulova));
    r.push_back(suma(d.celkem));
    return r;
}

Radek celkem(const lxDphDokladArray& doklady) {
    if (doklady.empty()) return {};
    // Sum the rows as they are built, column by column, so the totals stand under their columns.
    Radek soucet = radek(doklady.front());
    std::vector<double> sumy(soucet.size(), 0);
    for (const DphDoklad& d : doklady) {
        size_t c = TEXT_COUNT;
        for (const DphForDoklad& line : d.dph) {
            if (line.sazba == 0) continue;
            sumy[c] += line.zaklad;
            sumy[c + 1] += line.dph;
            c += 3;
        }
        for (const DphForDoklad& line : d.dph)
            if (line.sazba == 0) sumy[c] += line.zaklad;
        sumy[c + 1] += d.celkem;
    }
    for (size_t c = 0; c < soucet.size(); ++c) soucet[c] = soucet[c].castka ? suma(sumy[c]) : text(wxString());
    soucet[0] = text(u8("Celkem"));
    return soucet;
}

std::vector<Blok> bloky(const lxDphDokladArray& doklady) {
    std::vector<Blok> result;
    lxDphDokladArray blok;
    const auto zavri = [&] {
        if (blok.empty()) return;
        Blok b;
        b.hlavicka = hlavicka(blok.front().dph);
        for (const DphDoklad& d : blok) b.doklady.push_back(radek(d));
        b.celkem = celkem(blok);
        result.push_back(std::move(b));
        blok.clear();
    };
    for (const DphDoklad& d : doklady) {
        if (!blok.empty() && !DbModel::isDphSazbySameForDoklad(blok.back().dph, d.dph)) zavri();
        blok.push_back(d);
    }
    zavri();
    return result;
}

Sekce createRowsForRadky(DbModel& model, const wxArrayString& radky, const wxDateTime& od, const wxDateTime& doDne,
                         const wxString& nadpis, const wxString& podnadpis) {
    Sekce sekce{nadpis, podnadpis, wxString(), {}};
    const std::vector<int> ids = model.getDphDruhIdByRadek(radky);
    if (!model.someDokladForDph(ids, od, doDne, false)) return sekce;
    const DphDruh prvni = model.getDphDruh(ids.front());
    sekce.strana = u8(prvni.isValid() && prvni.plneni() ? "Přijaté plnění" : "Uskutečněné plnění");
    lxDphDokladArray doklady = model.dokladyForDph(ids, od, doDne, false);
    DbModel::sortDphDoklad(doklady);
    sekce.bloky = bloky(doklady);
    return sekce;
}

std::vector<Sekce> seznam(DbModel& model, const wxDateTime& od, const wxDateTime& doDne) {
    std::vector<Sekce> result;
    for (const Oddil& o : oddily()) {
        Sekce s = createRowsForRadky(model, o.radky, od, doDne, o.nadpis, o.podnadpis);
        if (!s.bloky.empty()) result.push_back(std::move(s));
    }
    return result;
}

wxString csvRadek(const Radek& radek) {
    wxString line;
    for (size_t i = 0; i < radek.size(); ++i) {
        if (i > 0) line += ",";
        line += radek[i].castka ? radek[i].text : lxutils::enquotes(radek[i].text);
    }
    return line + "\r\n";
}

wxString createHeader(const lxDphForDokladArray& lines) { return csvRadek(hlavicka(lines)); }

wxString csvSekce(const Sekce& sekce) {
    wxString out;
    for (const wxString& t : {sekce.nadpis, sekce.podnadpis, sekce.strana}) out += lxutils::enquotes(t) + "\r\n";
    for (const Blok& b : sekce.bloky) {
        out += csvRadek(b.hlavicka);
        for (const Radek& r : b.doklady) out += csvRadek(r);
        out += csvRadek(b.celkem);
    }
    return out;
}

wxString csv(const std::vector<Sekce>& sekce) {
    wxString out;
    for (const Sekce& s : sekce) out += csvSekce(s);
    return out;
}

}  // namespace seznamdph
