#include "kontrola.h"

#include <cmath>
#include <map>

#include "dbmodel.h"
#include "dic.h"
#include "dphdp3fill.h"
#include "dphkh1fill.h"
#include "lxformat.h"

namespace {

using kh1::Sekce;

// Which lines of a document a pair compares.
enum class Sazby { Zakladni, Snizene, Zdanene, Vse };
enum class Castka { Zaklad, Dan };

// One reconciliation of the tax office: rows of the return against amounts of the control
// statement. `radky` are the classifications' return rows behind the return's side, `sekce`
// the statement's sections; both sides are summed from the documents they hold in the same
// way, so that a document counted on one side only stands out.
struct Par {
    const char* nazev;
    std::vector<const char*> dp3;                         // the return's attributes, summed
    std::vector<std::pair<const char*, const char*>> kh;  // the statement's records and attributes, summed
    std::vector<const char*> radky;
    std::vector<Sekce> sekce;
    Sazby sazby;
    Castka castka;
};

const std::vector<Par>& pary() {
    static const std::vector<const char*> A2_RADKY = {"3,4", "3,4,43,44", "5,6", "5,6,43,44", "9", "9,43,44",
                                                      "12,13", "12,13,43,44"};
    static const std::vector<const char*> B2_RADKY = {"40,41", "40,41,47"};
    static const std::vector<const char*> B1_RADKY = {"10,11", "10,11,43,44"};
    static const std::vector<Par> all = {
        {"Řádek 1 – základ daně × A.4 + A.5", {"obrat23"}, {{"VetaC", "obrat23"}}, {"1,2"}, {Sekce::A4, Sekce::A5},
         Sazby::Zakladni, Castka::Zaklad},
        {"Řádek 1 – daň × A.4 + A.5", {"dan23"}, {{"VetaA4", "dan1"}, {"VetaA5", "dan1"}}, {"1,2"},
         {Sekce::A4, Sekce::A5}, Sazby::Zakladni, Castka::Dan},
        {"Řádek 2 – základ daně × A.4 + A.5", {"obrat5"}, {{"VetaC", "obrat5"}}, {"1,2"}, {Sekce::A4, Sekce::A5},
         Sazby::Snizene, Castka::Zaklad},
        {"Řádek 2 – daň × A.4 + A.5", {"dan5"},
         {{"VetaA4", "dan2"}, {"VetaA4", "dan3"}, {"VetaA5", "dan2"}, {"VetaA5", "dan3"}}, {"1,2"},
         {Sekce::A4, Sekce::A5}, Sazby::Snizene, Castka::Dan},
        {"Řádky 3–6, 9, 12, 13 – základ daně × A.2", {"p_zb23", "p_zb5", "p_sl23_e", "p_sl5_e", "p_dop_nrg", "p_sl23_z",
         "p_sl5_z"}, {{"VetaC", "celk_zd_a2"}}, A2_RADKY, {Sekce::A2}, Sazby::Zdanene, Castka::Zaklad},
        {"Řádky 3–6, 9, 12, 13 – daň × A.2", {"dan_pzb23", "dan_pzb5", "dan_psl23_e", "dan_psl5_e", "dan_pdop_nrg",
         "dan_psl23_z", "dan_psl5_z"}, {{"VetaA2", "dan1"}, {"VetaA2", "dan2"}, {"VetaA2", "dan3"}}, A2_RADKY,
         {Sekce::A2}, Sazby::Zdanene, Castka::Dan},
        {"Řádek 10 – základ daně × B.1", {"rez_pren23"}, {{"VetaC", "rez_pren23"}}, B1_RADKY, {Sekce::B1},
         Sazby::Zakladni, Castka::Zaklad},
        {"Řádek 10 – daň × B.1", {"dan_rpren23"}, {{"VetaB1", "dan1"}}, B1_RADKY, {Sekce::B1}, Sazby::Zakladni,
         Castka::Dan},
        {"Řádek 11 – základ daně × B.1", {"rez_pren5"}, {{"VetaC", "rez_pren5"}}, B1_RADKY, {Sekce::B1},
         Sazby::Snizene, Castka::Zaklad},
        {"Řádek 11 – daň × B.1", {"dan_rpren5"}, {{"VetaB1", "dan2"}, {"VetaB1", "dan3"}}, B1_RADKY, {Sekce::B1},
         Sazby::Snizene, Castka::Dan},
        {"Řádek 25 – základ × A.1", {"pln_rez_pren"}, {{"VetaC", "pln_rez_pren"}}, {"25"}, {Sekce::A1}, Sazby::Vse,
         Castka::Zaklad},
        {"Řádek 40 – základ daně × B.2 + B.3", {"pln23"}, {{"VetaC", "pln23"}}, B2_RADKY, {Sekce::B2, Sekce::B3},
         Sazby::Zakladni, Castka::Zaklad},
        {"Řádek 40 – odpočet × B.2 + B.3", {"odp_tuz23_nar", "odp_tuz23"}, {{"VetaB2", "dan1"}, {"VetaB3", "dan1"}},
         B2_RADKY, {Sekce::B2, Sekce::B3}, Sazby::Zakladni, Castka::Dan},
        {"Řádek 41 – základ daně × B.2 + B.3", {"pln5"}, {{"VetaC", "pln5"}}, B2_RADKY, {Sekce::B2, Sekce::B3},
         Sazby::Snizene, Castka::Zaklad},
        {"Řádek 41 – odpočet × B.2 + B.3", {"odp_tuz5_nar", "odp_tuz5"},
         {{"VetaB2", "dan2"}, {"VetaB2", "dan3"}, {"VetaB3", "dan2"}, {"VetaB3", "dan3"}}, B2_RADKY,
         {Sekce::B2, Sekce::B3}, Sazby::Snizene, Castka::Dan},
    };
    return all;
}

bool bere(Sazby s, const DphForDoklad& line) {
    switch (s) {
        case Sazby::Zakladni: return line.sazba != 0 && line.zakladni;
        case Sazby::Snizene: return line.sazba != 0 && !line.zakladni;
        case Sazby::Zdanene: return line.sazba != 0;
        case Sazby::Vse: return true;
    }
    return false;
}

using Klic = std::pair<wxString, int>;  // source table and row

// Adds a document's lines of the pair to one side; a document a side holds twice (one of
// exactly the limit is in A.4 and A.5) counts twice, as the statement counts it.
void pricti(std::map<Klic, kontrola::Doklad>& doklady, const DphDoklad& d, const Par& par, bool priznani) {
    kontrola::Doklad& k = doklady[{d.zdroj, d.id}];
    k.doklad = d;
    k.id = d.id;
    double castka = 0, zaklad = 0, dan = 0;
    for (const DphForDoklad& line : d.dph) {
        if (!bere(par.sazby, line)) continue;
        zaklad += line.zaklad;
        dan += line.dph;
    }
    castka = par.castka == Castka::Zaklad ? zaklad : dan;
    if (castka == 0 && zaklad == 0) return;
    if (priznani) {
        k.vPriznani = true;
        k.zaklad = zaklad;
        k.dan = dan;
    } else {
        k.vHlaseni = true;
        k.zaklad = zaklad;
        k.dan = dan;
        k.vHlaseniKrat += 1;
    }
}

wxDateTime datum(const DphDoklad& d) { return d.zdroj == "FP" || d.zdroj == "ZA" ? d.dppd : d.duzp; }

wxString u8(const char* text) { return wxString::FromUTF8(text); }

void nezarazeny(kontrola::Vysledek& v, const DphDoklad& d, Sekce s, const wxString& duvod) {
    kontrola::Nezarazeny n;
    n.doklad.doklad = d;
    n.doklad.id = d.id;
    for (const DphForDoklad& line : d.dph) {
        n.doklad.zaklad += line.zaklad;
        n.doklad.dan += line.dph;
    }
    n.sekce = kh1::kod(s);
    n.sekce.insert(1, ".");
    n.duvod = duvod;
    v.nezarazene.push_back(std::move(n));
}

// The documents of the statement's sections that the tax office cannot match: a missing or
// malformed DIČ, a received document without the supplier's number.
void najdiNezarazene(DbModel& model, kontrola::Vysledek& v, const std::map<int, bool>& vObdobi) {
    const wxDateTime& od = v.obdobi.od;
    const wxDateTime& doDne = v.obdobi.doDne;
    for (Sekce s : {Sekce::A1, Sekce::A2, Sekce::A4, Sekce::A5, Sekce::B1, Sekce::B2, Sekce::B3}) {
        const bool prijate = s == Sekce::A2 || s == Sekce::B1 || s == Sekce::B2 || s == Sekce::B3;
        const wxString strana = prijate ? u8("dodavatele") : u8("odběratele");
        for (const DphDoklad& d : kh1::doklady(model, s, od, doDne, vObdobi)) {
            const RozdelenaDic dic = dic::rozdel(d.dic, "CZ");
            if (s == Sekce::A5 || s == Sekce::B3) {
                // The summary sections need no DIČ, but a document over the limit lands here
                // only because its counterparty has none.
                if (d.dic.empty() && std::fabs(d.celkem) > kh1::LIMIT)
                    nezarazeny(v, d, s == Sekce::A5 ? Sekce::A4 : Sekce::B2,
                               u8("Doklad nad 10 000 Kč bez DIČ ") + strana + u8(", kontrolní hlášení ho uvede jen v souhrnu ") +
                                   (s == Sekce::A5 ? "A.5" : "B.3"));
                continue;
            }
            if (s == Sekce::A2) {
                if (!d.dic.empty() && !dic::isPlatnaEu(dic))
                    nezarazeny(v, d, s, wxString::Format(u8("DIČ „%s“ nemá tvar DIČ členského státu EU"), d.dic));
            } else if (d.dic.empty()) {
                nezarazeny(v, d, s, u8("Chybí DIČ ") + strana);
            } else if (dic.stat != "CZ" || !dic::isPlatnaCz(dic.cislo)) {
                nezarazeny(v, d, s, wxString::Format(u8("DIČ „%s“ není platné české DIČ"), d.dic));
            }
            if (prijate && d.cislo.Strip(wxString::both).empty())
                nezarazeny(v, d, s, u8("Chybí evidenční číslo dokladu dodavatele"));
        }
    }
}

}  // namespace

namespace kontrola {

Vysledek zkontrolovat(DbModel& model, const DphObdobi& obdobi) {
    Vysledek v;
    v.obdobi = obdobi;
    Dphdp3 dp3;
    dp3::fillVeta1to6(model, dp3, obdobi.od, obdobi.doDne, 0);
    Dphkh1 kh;
    Kh1Zadani zadani;
    zadani.obdobi = obdobi;
    kh1::fillData(model, kh, zadani);
    const std::map<int, bool> vObdobi = model.dphDruhyForObdobi(obdobi.od, obdobi.doDne);

    for (const Par& par : pary()) {
        Rozdil r;
        r.nazev = u8(par.nazev);
        for (const char* a : par.dp3) r.priznani += dp3.castka(a);
        for (const auto& [veta, a] : par.kh) r.hlaseni += kh.soucet(veta, a);
        // Both sides are rounded differently (the return to whole crowns once, the statement
        // to hundredths a document); less than a crown is that rounding.
        if (std::fabs(r.priznani - r.hlaseni) < 1.0) continue;

        std::map<Klic, Doklad> doklady;
        wxArrayString radky;
        for (const char* t : par.radky) radky.Add(t);
        std::vector<int> ids;
        for (int id : model.getDphDruhIdByRadek(radky)) {
            if (vObdobi.count(id)) ids.push_back(id);
        }
        for (const DphDoklad& d : model.dokladyForDph(ids, obdobi.od, obdobi.doDne, false)) pricti(doklady, d, par, true);
        for (Sekce s : par.sekce) {
            for (const DphDoklad& d : kh1::doklady(model, s, obdobi.od, obdobi.doDne, vObdobi))
                pricti(doklady, d, par, false);
        }
        // The documents on one side only, or counted more than once by the statement; when
        // there are none the difference is in the amounts, and every document is shown.
        for (const auto& [klic, d] : doklady) {
            if (d.vPriznani != d.vHlaseni || d.vHlaseniKrat > 1) r.doklady.push_back(d);
        }
        if (r.doklady.empty()) {
            for (const auto& [klic, d] : doklady) r.doklady.push_back(d);
        }
        v.rozdily.push_back(std::move(r));
    }
    najdiNezarazene(model, v, vObdobi);
    return v;
}

wxString Vysledek::text() const {
    if (vPoradku())
        return wxString::Format(u8("Přiznání a kontrolní hlášení za %s se shodují."), obdobi.text());
    wxString out;
    auto dokladText = [](const Doklad& d) {
        return wxString::Format(u8("%s  %s  základ %s  daň %s"), d.doklad.cislo, lxformat::formatDatum(datum(d.doklad)),
                                lxformat::formatCastka(d.zaklad), lxformat::formatCastka(d.dan));
    };
    if (!rozdily.empty()) {
        out += wxString::Format(u8("Rozdíly mezi přiznáním a kontrolním hlášením za %s:\n"), obdobi.text());
        for (const Rozdil& r : rozdily) {
            out += wxString::Format(u8("%s: přiznání %s Kč, kontrolní hlášení %s Kč, rozdíl %s Kč\n"), r.nazev,
                                    lxformat::formatCastka(r.priznani), lxformat::formatCastka(r.hlaseni),
                                    lxformat::formatCastka(r.priznani - r.hlaseni));
            for (const Doklad& d : r.doklady) {
                wxString strana = d.vPriznani && d.vHlaseni ? u8("v obou") : d.vPriznani ? u8("jen v přiznání")
                                                                                          : u8("jen v kontrolním hlášení");
                if (d.vHlaseniKrat > 1) strana += wxString::Format(u8(", v hlášení %d×"), d.vHlaseniKrat);
                out += "    " + dokladText(d) + "  (" + strana + ")\n";
            }
        }
    }
    if (!nezarazene.empty()) {
        out += u8("Doklady, které kontrolní hlášení nezařadí:\n");
        for (const Nezarazeny& n : nezarazene) out += "    " + dokladText(n.doklad) + "  " + n.sekce + ": " + n.duvod + "\n";
    }
    return out;
}

}  // namespace kontrola
