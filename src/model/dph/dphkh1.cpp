#include "dphkh1.h"

#include <cmath>

namespace {

constexpr AtributTyp T = AtributTyp::Text;
constexpr AtributTyp I = AtributTyp::Integer;
constexpr AtributTyp D = AtributTyp::Double;
constexpr AtributTyp DT = AtributTyp::Datum;

using Atributy = std::vector<std::pair<const char*, AtributTyp>>;

// zakl_dane1, dan1 … zakl_dane3, dan3 after the given attributes.
Atributy sCastkami(Atributy pred, Atributy po = {}) {
    for (int i = 1; i <= 3; ++i) {
        static const char* const ZAKLAD[] = {"zakl_dane1", "zakl_dane2", "zakl_dane3"};
        static const char* const DAN[] = {"dan1", "dan2", "dan3"};
        pred.emplace_back(ZAKLAD[i - 1], D);
        pred.emplace_back(DAN[i - 1], D);
    }
    pred.insert(pred.end(), po.begin(), po.end());
    return pred;
}

// The records in the schema's order. The taxpayer record has the schema's attributes; the
// schema has no place for a data box id, so none is written.
std::vector<VetaDef> definiceKh1() {
    return {
        {"VetaD", false, {{"dokument", T}, {"k_uladis", T}, {"mesic", I}, {"rok", I}, {"ctvrt", I},
                          {"zdobd_od", DT}, {"zdobd_do", DT}, {"d_poddp", DT}, {"khdph_forma", T},
                          {"d_zjist", DT}, {"c_jed_vyzvy", T}, {"vyzva_odp", T}}},
        {"VetaP", false, {{"c_ufo", I}, {"c_pracufo", I}, {"dic", T}, {"typ_ds", T}, {"titul", T}, {"jmeno", T},
                          {"prijmeni", T}, {"zkrobchjm", T}, {"ulice", T}, {"c_orient", T}, {"c_pop", I},
                          {"naz_obce", T}, {"psc", T}, {"stat", T}, {"email", T}, {"zast_typ", T}, {"zast_kod", T},
                          {"zast_prijmeni", T}, {"zast_jmeno", T}, {"zast_dat_nar", DT}, {"zast_ev_cislo", T},
                          {"zast_nazev", T}, {"zast_ic", T}, {"opr_jmeno", T}, {"opr_postaveni", T},
                          {"opr_prijmeni", T}, {"sest_jmeno", T}, {"sest_prijmeni", T}, {"sest_telef", T},
                          {"c_telef", T}}},
        {"VetaA1", true,
         {{"c_radku", I}, {"dic_odb", T}, {"c_evid_dd", T}, {"duzp", DT}, {"zakl_dane1", D}, {"kod_pred_pl", T}}},
        {"VetaA2", true, sCastkami({{"c_radku", I}, {"k_stat", T}, {"vatid_dod", T}, {"c_evid_dd", T}, {"dppd", DT}})},
        {"VetaA3", true,
         {{"c_radku", I}, {"k_stat", T}, {"vatid_odb", T}, {"jm_prijm_obch", T}, {"d_narozeni", DT},
          {"m_pobytu_sidlo", T}, {"c_evid_dd", T}, {"dup", DT}, {"osv_plneni", D}}},
        {"VetaA4", true, sCastkami({{"c_radku", I}, {"dic_odb", T}, {"c_evid_dd", T}, {"dppd", DT}},
                                   {{"kod_rezim_pl", T}, {"zdph_44", T}})},
        {"VetaA5", false, sCastkami({})},
        {"VetaB1", true, sCastkami({{"c_radku", I}, {"dic_dod", T}, {"c_evid_dd", T}, {"duzp", DT}},
                                   {{"kod_pred_pl", T}})},
        {"VetaB2", true, sCastkami({{"c_radku", I}, {"dic_dod", T}, {"c_evid_dd", T}, {"dppd", DT}},
                                   {{"pomer", T}, {"zdph_44", T}})},
        {"VetaB3", false, sCastkami({})},
        {"VetaC", false, {{"obrat23", D}, {"obrat5", D}, {"pln23", D}, {"pln5", D}, {"pln_rez_pren", D},
                          {"rez_pren23", D}, {"rez_pren5", D}, {"celk_zd_a2", D}}},
    };
}

double naHalere(double value) { return vetaformat::zaokrouhlit(value * 100) / 100; }

}  // namespace

Dphkh1::Dphkh1() : Podani("DPHKH1", definiceKh1(), "dphkh1_epo2.xsd") {}

const std::vector<wxString>& Dphkh1::radkoveVety() {
    static const std::vector<wxString> vety = {"VetaA1", "VetaA2", "VetaA3", "VetaA4", "VetaB1", "VetaB2"};
    return vety;
}

double Dphkh1::castka(const wxString& veta, const wxString& atribut, int index) const {
    return atributValueDouble(veta, atribut, index);
}

void Dphkh1::setCastka(const wxString& veta, const wxString& atribut, double value, int index) {
    setAtributValue(veta, atribut, naHalere(value), index);
}

double Dphkh1::soucet(const wxString& veta, const wxString& atribut) const {
    double s = 0;
    for (int i = 0; i < pocetVet(veta); ++i) s += castka(veta, atribut, i);
    return s;
}

void Dphkh1::precislovat(const wxString& veta) {
    for (int i = 0; i < pocetVet(veta); ++i) setAtributValue(veta, "c_radku", i + 1, i);
}

void Dphkh1::fixVetaA4B2(const wxString& veta, int index, const wxDateTime& obdobiOd) {
    wxString zdph = atributValue(veta, "zdph_44", index).Upper().Trim().Trim(false);
    if (zdph != "P" && zdph != "A") zdph = "N";
    // The mark "A" stands for corrections under § 44 as it stood until 31.3.2019; a period
    // after that reports every bad-debt correction under the law that replaced it ("P").
    if (zdph == "A" && obdobiOd.IsValid() && obdobiOd >= wxDateTime(1, wxDateTime::Apr, 2019)) zdph = "P";
    setAtributValue(veta, "zdph_44", zdph, index);
    if (veta == "VetaB2") {
        const wxString pomer = atributValue(veta, "pomer", index).Upper();
        setAtributValue(veta, "pomer", wxString(pomer == "A" ? "A" : "N"), index);
    }
    if (veta == "VetaA4" && atributValue(veta, "kod_rezim_pl", index).empty())
        setAtributValue(veta, "kod_rezim_pl", wxString("0"), index);
    for (int i = 1; i <= 3; ++i) {
        const wxString zaklad = wxString::Format("zakl_dane%d", i);
        const wxString dan = wxString::Format("dan%d", i);
        const double z = naHalere(castka(veta, zaklad, index));
        const double d = naHalere(castka(veta, dan, index));
        if (z == 0 && d == 0 && i > 1) {
            setAtributValue(veta, zaklad, wxString(), index);
            setAtributValue(veta, dan, wxString(), index);
        } else {
            setAtributValue(veta, zaklad, z, index);
            setAtributValue(veta, dan, d, index);
        }
    }
}

void Dphkh1::fillVetaC() {
    auto soucetSazeb = [this](std::initializer_list<const char*> vety, std::initializer_list<const char*> atributy) {
        double s = 0;
        for (const char* v : vety) {
            for (const char* a : atributy) s += soucet(v, a);
        }
        return s;
    };
    auto set = [this](const char* atribut, double value) {
        const double rounded = naHalere(value);
        setAtributValue("VetaC", atribut, rounded == 0 ? wxString() : vetaformat::cislo(rounded, 2));
    };
    set("celk_zd_a2", soucetSazeb({"VetaA2"}, {"zakl_dane1", "zakl_dane2", "zakl_dane3"}));
    set("obrat23", soucetSazeb({"VetaA4", "VetaA5"}, {"zakl_dane1"}));
    set("obrat5", soucetSazeb({"VetaA4", "VetaA5"}, {"zakl_dane2", "zakl_dane3"}));
    set("pln23", soucetSazeb({"VetaB2", "VetaB3"}, {"zakl_dane1"}));
    set("pln5", soucetSazeb({"VetaB2", "VetaB3"}, {"zakl_dane2", "zakl_dane3"}));
    set("pln_rez_pren", soucetSazeb({"VetaA1"}, {"zakl_dane1"}));
    set("rez_pren23", soucetSazeb({"VetaB1"}, {"zakl_dane1"}));
    set("rez_pren5", soucetSazeb({"VetaB1"}, {"zakl_dane2", "zakl_dane3"}));
}

bool Dphkh1::isNulove() const {
    for (const wxString& veta : radkoveVety()) {
        if (pocetVet(veta) > 0) return false;
    }
    for (const char* veta : {"VetaA5", "VetaB3", "VetaC"}) {
        for (const wxString& a : atributy(veta)) {
            if (atributValueDouble(veta, a) != 0) return false;
        }
    }
    return true;
}
