#include "JizdyTisk.h"

#include <map>

#include "dbmodel.h"
#include "dph/dphobdobi.h"
#include "jizdaprint.h"
#include "jizdy/jizdydb.h"
#include "knihajizdprint.h"
#include "lxformat.h"
#include "nahradaprint.h"
#include "printchoice.h"
#include "prompts.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

DbModel* openModel() {
    DbModel* model = DbModel::instance();
    return model && model->isOpen() ? model : nullptr;
}

wxString nazevVozidla(const Vozidlo& v) { return v.jmeno().empty() ? v.rz() : v.rz() + ", " + v.jmeno(); }

std::map<int, wxString> jmenaRidicu(DbModel& model) {
    std::map<int, wxString> jmena;
    for (const auto& r : model.ridici()) jmena[r->id()] = r->jmeno();
    return jmena;
}

JizdaRadek radek(const Jizda& j, const std::map<int, wxString>& ridici) {
    const auto ridic = ridici.find(j.ridicid());
    return {j.startcas(), j.endcas(), ridic == ridici.end() ? wxString() : ridic->second,
            j.cesta(),    j.ucel(),   j.startkm(),
            j.endkm()};
}

}  // namespace

void tiskKnihyJizd(wxWindow* parent, int vozidloid, const std::vector<int>& ids) {
    DbModel* model = openModel();
    if (!model) return;
    const Vozidlo v = model->getVozidlo(vozidloid);
    if (!v.isValid()) return;
    // One query for the vehicle's trips, picked in the page's order.
    std::map<int, const Jizda*> podleId;
    const lxJizdaArray jizdy = model->jizdyVozidla(vozidloid);
    for (const auto& j : jizdy) podleId[j->id()] = j.get();
    const std::map<int, wxString> ridici = jmenaRidicu(*model);
    std::vector<JizdaRadek> radky;
    wxDateTime od, doKdy;
    for (int id : ids) {
        const auto it = podleId.find(id);
        if (it == podleId.end()) continue;
        radky.push_back(radek(*it->second, ridici));
        const wxDateTime den = it->second->startcas().GetDateOnly();
        if (!od.IsValid() || den.IsEarlierThan(od)) od = den;
        if (!doKdy.IsValid() || den.IsLaterThan(doKdy)) doKdy = den;
    }
    const wxString obdobi = od.IsValid() ? lxformat::formatDatum(od) + u8(" – ") + lxformat::formatDatum(doKdy)
                                         : wxString::Format("%d", model->currentRok());
    KnihaJizdPrint print(parent, model->firma().nazev(), nazevVozidla(v), obdobi, radky);
    nahledNeboPdf(print, u8("Kniha jízd ") + v.rz(), parent);
}

void tiskJizdy(wxWindow* parent, int id) {
    DbModel* model = openModel();
    if (!model) return;
    const Jizda j = model->getJizda(id);
    if (!j.isValid()) return;
    JizdaPrint print(parent, model->firma().nazev(), nazevVozidla(model->getVozidlo(j.vozidloid())),
                     radek(j, jmenaRidicu(*model)));
    nahledNeboPdf(print, print.printTitle(), parent);
}

NahradaTisk nahradaTisk(DbModel& model, int vozidloid, int rok, int mesic, wxString* chyba) {
    NahradaTisk t;
    const Vozidlo v = model.getVozidlo(vozidloid);
    const jizdy::Nahrada n = jizdy::nahradaVozidla(model, vozidloid, rok, mesic);
    if (chyba) *chyba = n.chyba;
    t.firma = model.firma().nazev();
    t.vozidlo = v.jmeno();
    t.rz = v.rz();
    const DruhVozidla druh = model.getDruhVozidla(v.druhvozidlaid());
    const Phm phm = model.getPhm(v.phmid());
    t.druh = druh.jmeno();
    t.phm = phm.jmeno();
    t.spotreba = v.spotreba();
    t.jednotka = v.phmid() == jizdy::PHM_ELEKTRINA ? "kWh" : "l";
    t.soukrome = v.soukrome();
    t.obdobi = lxutils::mesicString(mesic) + wxString::Format(" %d", rok);
    for (const jizdy::NahradaRadek& r : n.radky)
        t.radky.push_back({r.startcas, r.cesta, r.ucel, r.km, r.sazba, r.cenaPhm, r.castka});
    t.km = n.km;
    t.celkem = n.celkem;
    return t;
}

wxString tiskNahrady(wxWindow* parent, int vozidloid, int rok, int mesic) {
    DbModel* model = openModel();
    if (!model) return wxString();
    wxString chyba;
    const NahradaTisk t = nahradaTisk(*model, vozidloid, rok, mesic, &chyba);
    if (!chyba.empty()) {
        prompts().info(chyba, u8("Informace"), parent);
        return wxString();
    }
    NahradaPrint print(parent, t);
    return nahledNeboPdf(print, print.printTitle(), parent);
}
