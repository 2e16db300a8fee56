#include "dphdp3fill.h"

#include <map>

#include "dbmodel.h"
#include "vetap.h"

namespace {

// How a form row sums the VAT lines of its documents.
enum class Postup {
    Sazby,         // basic rate to the first pair, reduced rates to the second, zero rate ignored
    Zaklady,       // the bases of every line
    Dane,          // the taxes of every line
    Odpocet,       // bases by rate as Sazby; taxes to full or reduced deduction by the classification
    OdpocetCelkem  // bases of every line; taxes to full or reduced deduction
};

struct RadekDp3 {
    std::vector<const char*> radky;    // the classifications' `radky` texts of the row
    Postup postup;
    std::vector<const char*> atributy; // the attributes the procedure fills, in its order
};

// Sazby: base23, tax23, base5, tax5. Zaklady, Dane: one name. Odpocet: base23, full23,
// reduced23, base5, full5, reduced5. OdpocetCelkem: base, full, reduced.
const std::vector<RadekDp3>& radkyDp3() {
    static const std::vector<RadekDp3> radky = {
        {{"1,2"}, Postup::Sazby, {"obrat23", "dan23", "obrat5", "dan5"}},
        {{"3,4", "3,4,43,44"}, Postup::Sazby, {"p_zb23", "dan_pzb23", "p_zb5", "dan_pzb5"}},
        {{"5,6", "5,6,43,44"}, Postup::Sazby, {"p_sl23_e", "dan_psl23_e", "p_sl5_e", "dan_psl5_e"}},
        {{"7,8", "7,8,42"}, Postup::Sazby, {"dov_zb23", "dan_dzb23", "dov_zb5", "dan_dzb5"}},
        // The form has no place for reduced rates on row 9: such amounts are left out.
        {{"9", "9,43,44"}, Postup::Sazby, {"p_dop_nrg", "dan_pdop_nrg", "", ""}},
        {{"10,11", "10,11,43,44"}, Postup::Sazby, {"rez_pren23", "dan_rpren23", "rez_pren5", "dan_rpren5"}},
        {{"12,13", "12,13,43,44"}, Postup::Sazby, {"p_sl23_z", "dan_psl23_z", "p_sl5_z", "dan_psl5_z"}},
        {{"20"}, Postup::Zaklady, {"dod_zb"}},
        {{"21"}, Postup::Zaklady, {"pln_sluzby"}},
        {{"22"}, Postup::Zaklady, {"pln_vyvoz"}},
        {{"23"}, Postup::Zaklady, {"dod_dop_nrg"}},
        {{"24"}, Postup::Zaklady, {"pln_zaslani"}},
        {{"25"}, Postup::Zaklady, {"pln_rez_pren"}},
        {{"26"}, Postup::Zaklady, {"pln_ost"}},
        {{"30"}, Postup::Zaklady, {"tri_pozb"}},
        {{"31"}, Postup::Zaklady, {"tri_dozb"}},
        {{"32"}, Postup::Zaklady, {"dov_osv"}},
        {{"33"}, Postup::Dane, {"opr_verit"}},
        {{"34"}, Postup::Dane, {"opr_dluz"}},
        {{"40,41", "40,41,47"}, Postup::Odpocet, {"pln23", "odp_tuz23_nar", "odp_tuz23", "pln5", "odp_tuz5_nar", "odp_tuz5"}},
        {{"7,8,42"}, Postup::OdpocetCelkem, {"dov_cu", "odp_cu_nar", "odp_cu"}},
        {{"3,4,43,44", "5,6,43,44", "9,43,44", "10,11,43,44", "12,13,43,44"},
         Postup::Odpocet, {"nar_zdp23", "od_zdp23", "odkr_zdp23", "nar_zdp5", "od_zdp5", "odkr_zdp5"}},
        {{"40,41,47"}, Postup::OdpocetCelkem, {"nar_maj", "od_maj", "odkr_maj"}},
        {{"50"}, Postup::Zaklady, {"plnosv_kf"}},
        {{"61"}, Postup::Dane, {"dan_vrac"}},
    };
    return radky;
}

// Sums one form row over the documents of its classifications. Sums stay unrounded here;
// Dphdp3::setCastka rounds each once when it is stored.
// `vObdobi` holds the classifications with documents in the period and whether a VAT payer's
// document is among them: a row is left out unless one of its classifications has a payer's
// document, and only classifications with documents are read.
void fillRadek(DbModel& model, Dphdp3& p, const RadekDp3& radek, const wxDateTime& od, const wxDateTime& doDne,
               const std::map<int, bool>& vObdobi) {
    wxArrayString texty;
    for (const char* r : radek.radky) texty.Add(r);
    std::vector<int> ids;
    bool platce = false;
    for (int id : model.getDphDruhIdByRadek(texty)) {
        const auto found = vObdobi.find(id);
        if (found == vObdobi.end()) continue;
        ids.push_back(id);
        platce = platce || found->second;
    }
    if (!platce) return;
    const auto& a = radek.atributy;
    std::map<std::string, double> sumy;
    for (int id : ids) {
        const bool kraceny = model.kracenyDphDruh(id);
        for (const DphDoklad& doklad : model.dokladyForDph(id, od, doDne, false)) {
            for (const DphForDoklad& line : doklad.dph) {
                const bool nulova = line.sazba == 0;
                switch (radek.postup) {
                    case Postup::Sazby:
                        if (nulova) break;
                        sumy[a[line.zakladni ? 0 : 2]] += line.zaklad;
                        sumy[a[line.zakladni ? 1 : 3]] += line.dph;
                        break;
                    case Postup::Zaklady: sumy[a[0]] += line.zaklad; break;
                    case Postup::Dane: sumy[a[0]] += line.dph; break;
                    case Postup::Odpocet:
                        if (nulova) break;
                        sumy[a[line.zakladni ? 0 : 3]] += line.zaklad;
                        sumy[a[(line.zakladni ? 1 : 4) + (kraceny ? 1 : 0)]] += line.dph;
                        break;
                    case Postup::OdpocetCelkem:
                        sumy[a[0]] += line.zaklad;
                        sumy[a[kraceny ? 2 : 1]] += line.dph;
                        break;
                }
            }
        }
    }
    for (const auto& [name, sum] : sumy) p.setCastka(wxString::FromUTF8(name), sum);
}

}  // namespace

namespace dp3 {

void fillHlavicka(DbModel& model, Dphdp3& p, const Dp3Zadani& z) {
    const Priznani& pr = model.priznani();
    p.setAtributValue("VetaD", "dokument", wxString("DP3"));
    p.setAtributValue("VetaD", "k_uladis", wxString("DPH"));
    p.setAtributValue("VetaD", "dapdph_forma", z.forma);
    p.setAtributValue("VetaD", "kod_zo", z.kodZo);
    if (pr.c_okec() > 0) p.setAtributValue("VetaD", "c_okec", pr.c_okec());
    // Every return this program makes is a VAT payer's (its VAT menu is a payer's only).
    p.setAtributValue("VetaD", "typ_platce", wxString("P"));
    p.setAtributValue("VetaD", "d_poddp", z.datumPodani);
    if (Dphdp3::isDodatecne(z.forma)) p.setAtributValue("VetaD", "d_zjist", z.dzjist);
    p.setAtributValue("VetaD", "rok", z.obdobi.rok);
    switch (z.obdobi.druh) {
        case DruhObdobi::Mesic: p.setAtributValue("VetaD", "mesic", z.obdobi.mesic); break;
        case DruhObdobi::Ctvrtleti: p.setAtributValue("VetaD", "ctvrt", z.obdobi.ctvrtleti); break;
        case DruhObdobi::Obdobi:
            p.setAtributValue("VetaD", "zdobd_od", z.obdobi.od);
            p.setAtributValue("VetaD", "zdobd_do", z.obdobi.doDne);
            break;
    }

    podani::fillVetaP(model, p);
}

void fillVeta1to6(DbModel& model, Dphdp3& p, const wxDateTime& od, const wxDateTime& doDne, double koefP20Nov) {
    const std::map<int, bool> vObdobi = model.dphDruhyForObdobi(od, doDne);
    for (const RadekDp3& radek : radkyDp3()) fillRadek(model, p, radek, od, doDne, vObdobi);
    if (koefP20Nov != 0) p.setAtributValue("Veta5", "koef_p20_nov", koefP20Nov);
    p.fillRadek46();
    p.fillRadek52();
}

bool fillData(DbModel& model, Dphdp3& p, const Dp3Zadani& z, wxString* error) {
    p.clearData();
    fillHlavicka(model, p, z);
    fillVeta1to6(model, p, z.obdobi.od, z.obdobi.doDne, z.koefP20Nov);
    if (z.vyporadani) {
        if (z.koefP20Vypor != 0) p.setAtributValue("Veta5", "koef_p20_vypor", z.koefP20Vypor);
        p.setCastka("vypor_odp", z.vyporOdp);
    }
    p.fillVeta6();
    // Whether a tax liability arose in the period: any supply or output tax on rows 1–26.
    bool povinnost = false;
    for (const char* veta : {"Veta1", "Veta2"}) {
        for (const wxString& name : p.atributy(veta)) povinnost = povinnost || !p.atributValue(veta, name).empty();
    }
    p.setAtributValue("VetaD", "trans", wxString(povinnost ? "A" : "N"));
    if (!Dphdp3::isDodatecne(z.forma)) return true;

    Dphdp3 drivejsi;
    wxString chyba;
    if (!model.hasUlozene(z.ulozeneId) || !drivejsi.readFromString(model.ulozeneXml(z.ulozeneId), &chyba)) {
        if (error) *error = wxString::FromUTF8("Nelze načíst přiznání, ke kterému je dodatečné přiznání podáváno");
        return false;
    }
    p.fillDodatecne(drivejsi);
    if (!z.duvod.empty()) p.addVetaR(z.duvod);
    return true;
}

bool vypocetVyporadani(const std::vector<Dphdp3>& ulozena, const Dphdp3& aktualni, double koefP20Nov,
                       Vyporadani* vysledek) {
    double n = 0, d = 0, a = 0, b = 0;
    auto pricti = [&](const Dphdp3& p) {
        const double snarokem = p.castka("obrat23") + p.castka("obrat5") + p.castka("dod_zb") +
                                p.castka("pln_sluzby") + p.castka("pln_vyvoz") + p.castka("dod_dop_nrg") +
                                p.castka("pln_zaslani") + p.castka("pln_rez_pren") + p.castka("pln_ost") +
                                p.castka("tri_dozb") + p.castka("pln_nkf");
        n += snarokem;
        d += snarokem + p.castka("plnosv_kf") + p.castka("plnosv_nkf");
        a += p.castka("odp_sum_kr");
    };
    for (const Dphdp3& p : ulozena) {
        pricti(p);
        b += p.castka("odp_uprav_kf");
    }
    pricti(aktualni);
    b += vetaformat::zaokrouhlit(aktualni.castka("odp_sum_kr") * koefP20Nov / 100);
    if (d == 0) return false;
    vysledek->koeficient = n / d * 100;
    vysledek->zmenaOdpoctu = a * (n / d) - b;
    return true;
}

wxString popis(const wxString& forma, const DphObdobi& obdobi) {
    const char* druh = "Řádné přiznání ";
    if (forma == Dphdp3::RADNE_OPRAVNE) druh = "Opravné přiznání ";
    if (forma == Dphdp3::DODATECNE) druh = "Dodatečné přiznání ";
    if (forma == Dphdp3::DODATECNE_OPRAVNE) druh = "Dodatečné/opravné přiznání ";
    return wxString::FromUTF8(druh) + obdobi.text();
}

Ulozene ulozene(const Dphdp3& p, const Dp3Zadani& z) {
    return podani::ulozene(0, popis(z.forma, z.obdobi), z.forma, z.obdobi, p);
}

}  // namespace dp3
