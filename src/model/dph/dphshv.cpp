#include "dphshv.h"

#include <cmath>

namespace {

constexpr AtributTyp T = AtributTyp::Text;
constexpr AtributTyp I = AtributTyp::Integer;
constexpr AtributTyp DT = AtributTyp::Datum;

// The form's page holds 20 rows; c_rad may have two digits, so a list of more rows than that
// numbers its rows within pages (por_c_stran).
constexpr int RADKU_NA_STRANU = 20;

// The declarant record has the schema's attributes: the list has no place for a phone number
// or an e-mail of the taxpayer, only of the person who filled it in.
std::vector<VetaDef> definiceShv() {
    return {
        {"VetaD", false, {{"k_uladis", T}, {"dokument", T}, {"ctvrt", I}, {"rok", I}, {"shvies_forma", T},
                          {"d_poddp", DT}, {"mesic", I}}},
        {"VetaP", false, {{"c_ufo", I}, {"c_pracufo", I}, {"dic", T}, {"typ_ds", T}, {"prijmeni", T},
                          {"jmeno", T}, {"titul", T}, {"zkrobchjm", T}, {"dodobchjm", T}, {"naz_obce", T},
                          {"ulice", T}, {"c_pop", I}, {"c_orient", T}, {"psc", T}, {"opr_prijmeni", T},
                          {"opr_jmeno", T}, {"opr_postaveni", T}, {"sest_prijmeni", T}, {"sest_jmeno", T},
                          {"sest_telef", T}, {"zast_kod", T}, {"zast_typ", T}, {"zast_prijmeni", T},
                          {"zast_jmeno", T}, {"zast_nazev", T}, {"zast_dat_nar", DT}, {"zast_ev_cislo", T},
                          {"zast_ic", T}, {"stat", T}}},
        {"VetaR", true, {{"por_c_stran", I}, {"c_rad", I}, {"k_storno", T}, {"k_stat", T}, {"c_vat", T},
                         {"k_pln_eu", I}, {"pln_pocet", I}, {"pln_hodnota", I},
                         {"pln_hodnotad", AtributTyp::Pomocny}}},
    };
}

}  // namespace

Dphshv::Dphshv() : Podani("DPHSHV", definiceShv(), "dphshv_epo2.xsd") {}

double Dphshv::zaokrouhlitNahoru(double value) {
    // Sums of amounts in hundredths carry binary noise (1234.0000000001); the value is taken
    // to the hundredth first so that whole crowns stay whole.
    return std::ceil(std::round(value * 100) / 100);
}

Dphshv::Radek Dphshv::radek(int i) const {
    Radek r;
    r.stat = atributValue("VetaR", "k_stat", i);
    r.cislo = atributValue("VetaR", "c_vat", i);
    r.kod = atributValueInt("VetaR", "k_pln_eu", i);
    r.storno = atributValue("VetaR", "k_storno", i) == STORNO;
    r.pocet = atributValueInt("VetaR", "pln_pocet", i);
    const wxString hodnotad = atributValue("VetaR", "pln_hodnotad", i);
    r.hodnota = hodnotad.empty() ? atributValueDouble("VetaR", "pln_hodnota", i) : vetaformat::parseCislo(hodnotad);
    return r;
}

void Dphshv::setRadek(int i, const Radek& r) {
    setAtributValue("VetaR", "k_stat", r.stat.Upper(), i);
    setAtributValue("VetaR", "c_vat", r.cislo.Upper(), i);
    setAtributValue("VetaR", "k_pln_eu", r.kod, i);
    setAtributValue("VetaR", "k_storno", wxString(r.storno ? STORNO : ""), i);
    setAtributValue("VetaR", "pln_pocet", r.pocet, i);
    setAtributValue("VetaR", "pln_hodnotad", vetaformat::cislo(r.hodnota, 6), i);
}

int Dphshv::findVetaR(const wxString& stat, const wxString& cislo, int kod, bool storno) const {
    for (int i = 0; i < pocetVet("VetaR"); ++i) {
        const Radek r = radek(i);
        if (r.stat == stat && r.cislo == cislo && r.kod == kod && r.storno == storno) return i;
    }
    return -1;
}

int Dphshv::addVetaR(const wxString& stat, const wxString& cislo, int kod, bool storno, double hodnota) {
    const int i = addVeta("VetaR");
    setRadek(i, {stat, cislo, kod, storno, 1, hodnota});
    return i;
}

void Dphshv::editVetaR(int i, double hodnota) {
    Radek r = radek(i);
    r.pocet += 1;
    r.hodnota += hodnota;
    setRadek(i, r);
}

void Dphshv::fillVety() {
    const bool nasledne = atributValue("VetaD", "shvies_forma") == NASLEDNE;
    const int pocet = pocetVet("VetaR");
    for (int i = 0; i < pocet; ++i) {
        Radek r = radek(i);
        if (!nasledne) r.storno = false;
        setRadek(i, r);
        if (pocet > RADKU_NA_STRANU) {
            setAtributValue("VetaR", "por_c_stran", i / RADKU_NA_STRANU + 1, i);
            setAtributValue("VetaR", "c_rad", i % RADKU_NA_STRANU + 1, i);
        } else {
            setAtributValue("VetaR", "por_c_stran", wxString(), i);
            setAtributValue("VetaR", "c_rad", i + 1, i);
        }
        // A cancelling row names only the row it cancels.
        if (r.storno) {
            setAtributValue("VetaR", "pln_pocet", wxString(), i);
            setAtributValue("VetaR", "pln_hodnota", wxString(), i);
        } else {
            setAtributValue("VetaR", "pln_hodnota", static_cast<int>(zaokrouhlitNahoru(r.hodnota)), i);
        }
    }
}
