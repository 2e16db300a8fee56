#include "DokladTisk.h"

#include <map>

#include "dbmodel.h"
#include "fakturace/souhrndokladu.h"
#include "knihadokladuprint.h"
#include "navigation.h"
#include "printchoice.h"
#include "prompts.h"
#include "zavpohprint.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

DbModel* openModel() {
    DbModel* model = DbModel::instance();
    return model && model->isOpen() ? model : nullptr;
}

wxString stav(double celkem, double uhrazeno, const wxDateTime& splatnost, const wxDateTime& dnes) {
    if (isDokladUhrazen(celkem, uhrazeno)) return u8("Uhrazeno");
    return u8(isDokladPoSplatnosti(celkem, uhrazeno, splatnost, dnes) ? "Po splatnosti" : "Neuhrazeno");
}

// The book's rows of one kind of list row, picked by id in the order of `ids`; the VAT of
// each document comes from `dph`.
template <class Array>
std::vector<KnihaRadek> radky(const Array& rows, const std::vector<int>& ids, double (DbModel::*dph)(int),
                              DbModel& model, KnihaCelkem* celkem) {
    std::map<int, const typename Array::value_type::element_type*> podleId;
    for (const auto& r : rows) podleId.emplace(r->id(), r.get());
    const wxDateTime dnes = pracovniDen();
    std::vector<const typename Array::value_type::element_type*> vybrane;
    std::vector<KnihaRadek> kniha;
    KnihaCelkem soucet;
    for (int id : ids) {
        const auto it = podleId.find(id);
        if (it == podleId.end()) continue;
        const auto& r = *it->second;
        vybrane.push_back(&r);
        KnihaRadek k;
        k.cislo = r.cislo();
        k.vystaveni = r.vystaveni();
        k.splatnost = r.splatnost();
        k.protistrana = r.protistrana();
        k.popis = r.popis();
        k.celkem = r.celkem();
        k.mena = r.mena().empty() ? wxString("CZK") : r.mena();
        k.dph = (model.*dph)(r.id());
        k.uhrazeno = r.uhrazeno();
        k.stav = stav(r.celkem(), r.uhrazeno(), r.splatnost(), dnes);
        soucet.dph += vDomaciMene(k.dph, r.kurz());
        kniha.push_back(k);
    }
    const SouhrnDokladu s = souhrnDokladu(vybrane, dnes);
    soucet.celkem = s.celkem;
    soucet.uhrazeno = s.uhrazeno;
    soucet.neuhrazeno = s.neuhrazeno;
    if (celkem) *celkem = soucet;
    return kniha;
}

std::vector<wxString> adresa(DbModel& model, int adresaid) {
    const Adresa a = adresaid > 0 ? model.getAdresa(adresaid) : Adresa();
    if (!a.isValid()) return {};
    return adresniRadky(a);
}

}  // namespace

std::vector<KnihaRadek> knihaDokladu(DbModel& model, int nav, const std::vector<int>& ids, KnihaCelkem* celkem) {
    switch (nav) {
        case NAV_FAKTURY_VYDANE:
            return radky(model.vystaveneview(), ids, &DbModel::dphFaktury, model, celkem);
        case NAV_FAKTURY_PRIJATE:
            return radky(model.prijateview(), ids, &DbModel::dphFaktury, model, celkem);
        case NAV_POHLEDAVKY:
            return radky(model.pohledavkyview(), ids, &DbModel::dphZavPoh, model, celkem);
        case NAV_ZAVAZKY:
            return radky(model.zavazkyview(), ids, &DbModel::dphZavPoh, model, celkem);
        default:
            if (celkem) *celkem = KnihaCelkem();
            return {};
    }
}

wxString tiskKnihyDokladu(wxWindow* parent, int nav, const std::vector<int>& ids) {
    DbModel* model = openModel();
    if (!model) return wxString();
    KnihaCelkem celkem;
    const std::vector<KnihaRadek> kniha = knihaDokladu(*model, nav, ids, &celkem);
    const wxString firma = model->firma().nazev();
    const int rok = model->currentRok();
    if (nav == NAV_FAKTURY_VYDANE || nav == NAV_FAKTURY_PRIJATE) {
        KnihaFakturPrint print(parent, nav == NAV_FAKTURY_VYDANE, firma, rok, kniha, celkem);
        return nahledNeboPdf(print, print.printTitle(), parent);
    }
    KnihaZavpohPrint print(parent, nav == NAV_ZAVAZKY, firma, rok, kniha, celkem);
    return nahledNeboPdf(print, print.printTitle(), parent);
}

ZavpohDoklad zavpohDoklad(DbModel& model, int id) {
    ZavpohDoklad d;
    const ZavPoh z = model.getZavPoh(id);
    if (!z.isValid()) return d;
    d.zavazek = z.zavazek();
    d.platce = z.platce();
    d.cislo = z.cislo();
    d.popis = z.popis();
    d.vystaveni = z.vystaveni();
    d.duzp = z.duzp();
    d.splatnost = z.splatnost();
    d.vs = z.vs();
    d.celkem = z.celkem();
    const wxString mena = model.kodMena(z.menaid() > 0 ? z.menaid() : 1);
    d.mena = mena.empty() ? wxString("CZK") : mena;

    const Firma& firma = model.firma();
    d.firma = {firma.nazev(), adresa(model, firma.adresaid()), firma.ic(), firma.dic()};
    const Kontakt kontakt = z.protistranaid() > 0 ? model.getKontakt(z.protistranaid()) : Kontakt();
    if (kontakt.isValid())
        d.protistrana = {kontakt.nazev(), adresa(model, kontakt.adresaid()), kontakt.ic(), kontakt.dic()};

    const FaUhrada uhrada = z.uhradaid() > 0 ? model.getFaUhrada(z.uhradaid()) : FaUhrada();
    if (uhrada.isValid()) d.uhrada = uhrada.uhrada();
    if (z.pokladnaid() > 0) {
        const Pokladna p = model.getPokladna(z.pokladnaid());
        if (p.isValid()) d.registr = p.zkratka() + " " + p.popis();
    } else if (z.bankaid() > 0) {
        const Banka b = model.getBanka(z.bankaid());
        if (b.isValid()) {
            d.registr = b.zkratka();
            // The default account of a new company has the number 0, which says nothing.
            if (!b.cislouctu().empty() && b.cislouctu() != "0") d.registr += "  " + b.cislouctu() + "/" + b.kodbanky();
        }
    }

    for (const auto& p : model.fapolozkyByZavpohId(id))
        d.polozky.push_back({p->popis(), p->mj(), p->pocet(), p->cenamj(), model.getDphSazbaValue(p->sazbaid()),
                             p->dph(), p->celkem()});
    if (d.platce)
        for (const FaDphSazba& s : model.dphZavPohSouhrn(id, false)) d.souhrn.push_back({s.sazba, s.zaklad, s.dph});
    return d;
}

void tiskZavpoh(wxWindow* parent, int id) {
    DbModel* model = openModel();
    if (!model) return;
    if (!model->getZavPoh(id).isValid()) {
        prompts().info(u8("Vyberte pohledávku nebo závazek, který chcete tisknout"), wxString(), parent);
        return;
    }
    const ZavpohDoklad doklad = zavpohDoklad(*model, id);
    ZavpohPrint print(parent, doklad);
    nahledNeboPdf(print, doklad.cislo, parent);
}
