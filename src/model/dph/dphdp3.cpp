#include "dphdp3.h"

namespace {

constexpr AtributTyp T = AtributTyp::Text;
constexpr AtributTyp I = AtributTyp::Integer;
constexpr AtributTyp D = AtributTyp::Double;
constexpr AtributTyp DT = AtributTyp::Datum;

std::vector<std::pair<const char*, AtributTyp>> castky(std::initializer_list<const char*> names) {
    std::vector<std::pair<const char*, AtributTyp>> out;
    for (const char* n : names) out.emplace_back(n, D);
    return out;
}

const char* const VETY_CASTEK[] = {"Veta1", "Veta2", "Veta3", "Veta4", "Veta5", "Veta6"};

std::vector<VetaDef> definiceDp3() {
    return {
        {"VetaD", false, {{"c_okec", I}, {"ctvrt", I}, {"d_poddp", DT}, {"d_zjist", DT}, {"dapdph_forma", T},
                          {"dokument", T}, {"k_uladis", T}, {"kod_zo", T}, {"mesic", I}, {"rok", I}, {"trans", T},
                          {"typ_platce", T}, {"zdobd_do", DT}, {"zdobd_od", DT}}},
        {"VetaP", false, {{"c_orient", T}, {"c_pop", I}, {"c_pracufo", I}, {"c_telef", T}, {"c_ufo", I}, {"dic", T},
                          {"email", T}, {"jmeno", T}, {"naz_obce", T}, {"opr_jmeno", T}, {"opr_postaveni", T},
                          {"opr_prijmeni", T}, {"prijmeni", T}, {"psc", T}, {"sest_jmeno", T}, {"sest_prijmeni", T},
                          {"sest_telef", T}, {"stat", T}, {"titul", T}, {"typ_ds", T}, {"ulice", T},
                          {"zast_dat_nar", DT}, {"zast_ev_cislo", T}, {"zast_ic", T}, {"zast_jmeno", T},
                          {"zast_kod", T}, {"zast_nazev", T}, {"zast_prijmeni", T}, {"zast_typ", T},
                          {"zkrobchjm", T}}},
        {"Veta1", false, castky({"dan23", "dan5", "dan_dzb23", "dan_dzb5", "dan_pdop_nrg", "dan_psl23_e",
                                 "dan_psl23_z", "dan_psl5_e", "dan_psl5_z", "dan_pzb23", "dan_pzb5", "dan_rpren23",
                                 "dan_rpren5", "dov_zb23", "dov_zb5", "obrat23", "obrat5", "p_dop_nrg", "p_sl23_e",
                                 "p_sl23_z", "p_sl5_e", "p_sl5_z", "p_zb23", "p_zb5", "rez_pren23", "rez_pren5"})},
        {"Veta2", false,
         castky({"dod_dop_nrg", "dod_zb", "pln_ost", "pln_rez_pren", "pln_sluzby", "pln_vyvoz", "pln_zaslani"})},
        {"Veta3", false, castky({"dov_osv", "opr_dluz", "opr_verit", "tri_dozb", "tri_pozb"})},
        {"Veta4", false, castky({"dov_cu", "nar_maj", "nar_zdp23", "nar_zdp5", "od_maj", "od_zdp23", "od_zdp5",
                                 "odkr_maj", "odkr_zdp23", "odkr_zdp5", "odp_cu", "odp_cu_nar", "odp_rez_nar",
                                 "odp_rezim", "odp_sum_kr", "odp_sum_nar", "odp_tuz23", "odp_tuz23_nar", "odp_tuz5",
                                 "odp_tuz5_nar", "pln23", "pln5"})},
        {"Veta5", false, castky({"koef_p20_nov", "koef_p20_vypor", "odp_uprav_kf", "pln_nkf", "plnosv_kf",
                                 "plnosv_nkf", "vypor_odp"})},
        {"Veta6", false, castky({"dan_vrac", "dan_zocelk", "dano", "dano_da", "dano_no", "odp_zocelk", "uprav_odp"})},
        {"VetaR", true, {{"kod_sekce", T}, {"poradi", I}, {"t_prilohy", T}}},
    };
}

double soucet(const Dphdp3& p, std::initializer_list<const char*> names) {
    double s = 0;
    for (const char* n : names) s += p.castka(n);
    return s;
}

}  // namespace

Dphdp3::Dphdp3() : Podani("DPHDP3", definiceDp3(), "dphdp3_epo2.xsd") {}

wxString Dphdp3::vetaOf(const wxString& atribut) {
    static const Dphdp3 vzor;
    for (const char* veta : VETY_CASTEK) {
        for (const wxString& name : vzor.atributy(veta)) {
            if (name == atribut) return veta;
        }
    }
    return wxString();
}

double Dphdp3::castka(const wxString& atribut) const { return atributValueDouble(vetaOf(atribut), atribut); }

void Dphdp3::setCastka(const wxString& atribut, double value) {
    const double rounded = vetaformat::zaokrouhlit(value);
    if (atribut.empty() || rounded == 0) return;
    setAtributValue(vetaOf(atribut), atribut, rounded);
}

void Dphdp3::setCastkaVzdy(const wxString& atribut, double value) {
    setAtributValue(vetaOf(atribut), atribut, vetaformat::zaokrouhlit(value));
}

void Dphdp3::addVetaR(const wxString& text) {
    const int index = addVeta("VetaR");
    setAtributValue("VetaR", "kod_sekce", wxString("D"), index);
    setAtributValue("VetaR", "poradi", index + 1, index);
    setAtributValue("VetaR", "t_prilohy", text, index);
}

void Dphdp3::fillRadek46() {
    setCastka("odp_sum_nar",
              soucet(*this, {"odp_tuz23_nar", "odp_tuz5_nar", "odp_cu_nar", "od_zdp23", "od_zdp5", "odp_rez_nar"}));
    setCastka("odp_sum_kr", soucet(*this, {"odp_tuz23", "odp_tuz5", "odp_cu", "odkr_zdp23", "odkr_zdp5", "odp_rezim"}));
}

void Dphdp3::fillRadek52() {
    const double kracene = castka("odp_sum_kr");
    if (kracene != 0) setCastka("odp_uprav_kf", kracene * castka("koef_p20_nov") / 100);
}

void Dphdp3::fillVeta6() {
    const double vystup = soucet(*this, {"dan23", "dan5", "dan_pzb23", "dan_pzb5", "dan_psl23_e", "dan_psl5_e",
                                         "dan_dzb23", "dan_dzb5", "dan_pdop_nrg", "dan_rpren23", "dan_rpren5",
                                         "dan_psl23_z", "dan_psl5_z"}) -
                          castka("dan_vrac");
    const double odpocet = soucet(*this, {"odp_sum_nar", "odp_uprav_kf", "vypor_odp", "uprav_odp"});
    setCastka("dan_zocelk", vystup);
    setCastka("odp_zocelk", odpocet);
    if (vystup <= odpocet) {
        // Equal totals are an excess deduction of 0, never an own tax of 0.
        setCastkaVzdy("dano_no", odpocet - vystup);
    } else {
        setCastka("dano_da", vystup - odpocet);
    }
}

void Dphdp3::fillDodatecne(const Dphdp3& earlier) {
    const double danNyni = castka("dano_da") - castka("dano_no");
    const double danDrive = earlier.castka("dano_da") - earlier.castka("dano_no");
    for (const char* veta : VETY_CASTEK) {
        for (const wxString& name : atributy(veta)) {
            if (name == "koef_p20_nov") continue;
            const wxString value = atributValue(veta, name);
            const wxString before = earlier.atributValue(veta, name);
            if (value.empty() && before.empty()) continue;
            setAtributValue(veta, name, wxString());
            const double rozdil = vetaformat::parseCislo(value) - vetaformat::parseCislo(before);
            // The settlement coefficient is a percentage with decimals, not crowns.
            if (name == "koef_p20_vypor") {
                if (rozdil != 0) setAtributValue(veta, name, rozdil);
            } else {
                setCastka(name, rozdil);
            }
        }
    }
    // A supplementary return does not fill own tax or excess deduction; row 66 carries
    // the change of the tax instead (positive: tax to pay extra, negative: tax returned).
    setAtributValue("Veta6", "dano_da", wxString());
    setAtributValue("Veta6", "dano_no", wxString());
    setCastkaVzdy("dano", danNyni - danDrive);
}
