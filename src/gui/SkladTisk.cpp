#include "SkladTisk.h"

#include <map>

#include "dbmodel.h"
#include "printchoice.h"
#include "prints/inventuraprint.h"
#include "prints/zasobyprint.h"
#include "sklad/skladform.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

DbModel* openModel() {
    DbModel* model = DbModel::instance();
    return model && model->isOpen() ? model : nullptr;
}

wxString nazevMetody(int ocenovani) { return ocenovani == 0 ? wxString("FIFO") : u8("Vážený aritmetický průměr"); }

}  // namespace

std::vector<KartaRadek> kartaZasoby(DbModel& model, int zasobaid) {
    const Zasoba z = model.getZasoba(zasobaid);
    std::vector<KartaRadek> radky;
    if (!z.isValid()) return radky;
    const lxPohybzasobArray pohyby = model.pohybyzasobByZasobaId(zasobaid);
    for (const skladform::RadekKarty& r : skladform::kartaZasoby(z.ocenovani(), pohyby)) {
        const Pohybzasob& p = *r.pohyb;
        KartaRadek k;
        k.datum = p.datum();
        k.cislo = p.cislo();
        k.druh = u8(p.prijemka() ? "Příjem" : "Výdej");
        if (p.inventura()) k.druh += u8(" (inventura)");
        else if (p.fakturaid() > 0) k.druh += " (" + model.getFakturaCisloById(p.fakturaid()) + ")";
        k.pocet = p.pocet();
        k.cenamj = p.cenamj();
        k.stav = r.pocet;
        k.hodnota = r.celkem;
        radky.push_back(k);
    }
    return radky;
}

std::vector<KnihaZasobRadek> knihaZasob(DbModel& model, const std::vector<int>& ids, const wxDateTime& datum) {
    // Every item's state in one pass, then the asked items in their order.
    std::map<int, DbModel::StavZasoby> stavy;
    for (const DbModel::StavZasoby& s : model.getZasobyStav(datum + wxDateSpan::Day())) stavy[s.zasobaid] = s;
    std::map<int, const ZasobaView*> polozky;
    const lxZasobaViewArray view = model.zasobyview();
    for (const auto& z : view) polozky[z->id()] = z.get();
    std::vector<KnihaZasobRadek> radky;
    for (int id : ids) {
        const auto z = polozky.find(id);
        if (z == polozky.end()) continue;
        KnihaZasobRadek r;
        r.cislo = z->second->cislo();
        r.nazev = z->second->nazev();
        r.sklad = z->second->sklad();
        r.mj = z->second->mj();
        r.pocet = stavy[id].pocet;
        r.hodnota = stavy[id].celkem;
        radky.push_back(r);
    }
    return radky;
}

wxString tiskKartyZasoby(wxWindow* parent, int zasobaid) {
    DbModel* model = openModel();
    if (!model) return wxString();
    const Zasoba z = model->getZasoba(zasobaid);
    if (!z.isValid()) return wxString();
    const KartaHlavicka hlavicka{z.cislo(), z.nazev(), z.mj(), model->getSkladNazevById(z.skladid()),
                                 nazevMetody(z.ocenovani())};
    KartaZasobyPrint print(parent, model->firma().nazev(), hlavicka, kartaZasoby(*model, zasobaid));
    return nahledNeboPdf(print, print.printTitle(), parent);
}

wxString tiskKnihyZasob(wxWindow* parent, const std::vector<int>& ids, const wxDateTime& datum) {
    DbModel* model = openModel();
    if (!model) return wxString();
    KnihaZasobPrint print(parent, model->firma().nazev(), datum, knihaZasob(*model, ids, datum));
    return nahledNeboPdf(print, print.printTitle(), parent);
}

wxString tiskInventury(wxWindow* parent, int inventuraid) {
    DbModel* model = openModel();
    if (!model) return wxString();
    const Inventura iv = model->getInventura(inventuraid);
    if (!iv.isValid()) return wxString();
    const InventuraHlavicka hlavicka{iv.cislo(), iv.datum(), model->getSkladNazevById(iv.skladid()), iv.popis(),
                                     iv.provedl()};
    std::map<int, const Zasoba*> zasoby;
    const lxZasobaArray vse = model->zasoby();
    for (const auto& z : vse) zasoby[z->id()] = z.get();
    std::vector<InventuraTiskRadek> radky;
    for (const auto& p : model->ivpolozkyByInventuraId(inventuraid)) {
        const auto z = zasoby.find(p->zasobaid());
        if (z == zasoby.end()) continue;
        radky.push_back({z->second->cislo(), z->second->nazev(), z->second->mj(), p->evidovano(), p->zjisteno()});
    }
    InventuraPrint print(parent, model->firma().nazev(), hlavicka, radky);
    return nahledNeboPdf(print, print.printTitle(), parent);
}

wxString tiskKnihyInventur(wxWindow* parent) {
    DbModel* model = openModel();
    if (!model) return wxString();
    std::map<int, wxString> sklady;
    for (const auto& s : model->sklady()) sklady[s->id()] = s->nazev();
    std::vector<InventuraHlavicka> radky;
    for (const auto& iv : model->inventury())
        radky.push_back({iv->cislo(), iv->datum(), sklady[iv->skladid()], iv->popis(), iv->provedl()});
    KnihaInventurPrint print(parent, model->firma().nazev(), model->currentRok(), radky);
    return nahledNeboPdf(print, print.printTitle(), parent);
}
