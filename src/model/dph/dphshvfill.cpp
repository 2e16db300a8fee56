#include "dphshvfill.h"

#include "dbmodel.h"
#include "dic.h"
#include "vetap.h"

namespace {

// The return rows whose documents the list reports, and their codes of supply.
struct Skupina {
    const char* radky;
    int kod;
};
const Skupina SKUPINY[] = {{"20", 0}, {"21", 3}, {"31", 2}};

}  // namespace

namespace shv {

void fillHlavicka(DbModel& model, Dphshv& p, const ShZadani& z) {
    p.setAtributValue("VetaD", "k_uladis", wxString("DPH"));
    p.setAtributValue("VetaD", "dokument", wxString("SHV"));
    p.setAtributValue("VetaD", "shvies_forma", z.forma);
    p.setAtributValue("VetaD", "rok", z.obdobi.rok);
    if (z.obdobi.druh == DruhObdobi::Ctvrtleti)
        p.setAtributValue("VetaD", "ctvrt", z.obdobi.ctvrtleti);
    else
        p.setAtributValue("VetaD", "mesic", z.obdobi.mesic > 0 ? z.obdobi.mesic : z.obdobi.od.GetMonth() + 1);
    p.setAtributValue("VetaD", "d_poddp", z.datumPodani);
    podani::fillVetaP(model, p);
}

void addVetyForDoklady(DbModel& model, Dphshv& p, const wxDateTime& od, const wxDateTime& doDne) {
    while (p.pocetVet("VetaR") > 0) p.removeVeta("VetaR", p.pocetVet("VetaR") - 1);
    for (const Skupina& s : SKUPINY) {
        // A supply can only be reported under the customer's VAT id: documents without one
        // form no row (the check before filing lists them).
        lxDphDokladArray doklady = model.dokladyForDph(model.getDphDruhIdByRadek(wxString(s.radky)), od, doDne, true);
        for (const DphDoklad& d : doklady) {
            double hodnota = 0;
            for (const DphForDoklad& line : d.dph) hodnota += line.zaklad;
            const RozdelenaDic dic = dic::rozdel(d.dic, wxString());
            const int i = p.findVetaR(dic.stat, dic.cislo, s.kod, false);
            if (i < 0)
                p.addVetaR(dic.stat, dic.cislo, s.kod, false, hodnota);
            else
                p.editVetaR(i, hodnota);
        }
    }
}

bool nacistUlozene(DbModel& model, Dphshv& p, int ulozeneId, wxString* error) {
    Dphshv ulozene;
    if (!model.hasUlozene(ulozeneId) || !ulozene.readFromString(model.ulozeneXml(ulozeneId))) {
        if (error) *error = wxString::FromUTF8("Nelze načíst souhrnné hlášení, ke kterému je následné hlášení podáváno");
        return false;
    }
    while (p.pocetVet("VetaR") > 0) p.removeVeta("VetaR", p.pocetVet("VetaR") - 1);
    for (int i = 0; i < ulozene.pocetVet("VetaR"); ++i) {
        const int j = p.addVeta("VetaR");
        p.setRadek(j, ulozene.radek(i));
    }
    return true;
}

bool fillData(DbModel& model, Dphshv& p, const ShZadani& z, wxString* error) {
    p.clearData();
    fillHlavicka(model, p, z);
    if (z.forma == Dphshv::NASLEDNE && z.ulozeneId > 0) {
        if (!nacistUlozene(model, p, z.ulozeneId, error)) return false;
    } else {
        addVetyForDoklady(model, p, z.obdobi.od, z.obdobi.doDne);
    }
    p.fillVety();
    return true;
}

wxString popis(const wxString& forma, const DphObdobi& obdobi) {
    const char* druh = forma == Dphshv::NASLEDNE ? "Následné souhrnné hlášení " : "Souhrnné hlášení ";
    return wxString::FromUTF8(druh) + obdobi.text();
}

Ulozene ulozene(const Dphshv& p, const ShZadani& z) {
    return podani::ulozene(1, popis(z.forma, z.obdobi), z.forma, z.obdobi, p);
}

}  // namespace shv
