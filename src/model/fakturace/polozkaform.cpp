#include "polozkaform.h"

#include <algorithm>
#include <set>

#include "recordio.h"
#include "sklad/skladform.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

// Whether the last stock-taking of the item is later than the document's issue: its lines
// for the item may then not change, or the stock-taking would no longer hold.
bool zamcenoInventurou(DbModel& model, const DokladForm& doklad, int zasobaid) {
    if (zasobaid <= 0 || !doklad.vystaveni.IsValid()) return false;
    const wxDateTime posledni = model.getInventuraLastDateForZasoba(zasobaid);
    return posledni.IsValid() && posledni.IsLaterThan(doklad.vystaveni);
}

wxString zamekZprava(const char* co) {
    return wxString::Format(u8("Položku nelze %s,\nprotože datum poslední inventury\nje později než datum vystavení faktury"),
                            u8(co));
}

// The checks of a stock line beyond those of every line.
wxString skladValidation(DbModel& model, const DokladForm& doklad, const PolozkaForm& form, int puvodniZasoba) {
    const bool nova = form.id <= 0;
    if (zamcenoInventurou(model, doklad, form.zasobaid) || (!nova && zamcenoInventurou(model, doklad, puvodniZasoba)))
        return zamekZprava(nova ? "přidat" : "upravit");
    for (const auto& p : model.fapolozkyByFakturaId(doklad.id))
        if (p->zasobaid() == form.zasobaid && p->id() != form.id)
            return u8("Položku nelze přidat, faktura už obsahuje položku pro vybranou zásobu");
    if (doklad.prijem()) {
        // The invoice's own earlier issue of the item does not count against it.
        const ocenovani::Stav stav = skladform::stavPred(model, form.zasobaid, doklad.vystaveni, -1, doklad.id);
        if (stav.pocet < form.pocet - 1e-9) return skladform::nedostatekZprava(stav.pocet, form.pocet);
    }
    return wxString();
}

// Writes (or rewrites) the movement of a stock line and drops the one of an item the line no
// longer moves; the caller holds the transaction.
bool zapsatPohybPolozky(DbModel& model, const DokladForm& doklad, const FaPolozka& polozka, int puvodniZasoba) {
    if (puvodniZasoba > 0 && puvodniZasoba != polozka.zasobaid()) {
        const Pohybzasob stary = model.getPohybzasobByFaktura(puvodniZasoba, doklad.id);
        if (stary.isValid() && !model.deletePohybzasob(stary.id())) return false;
        if (!model.updateStavZasob(puvodniZasoba)) return false;
    }
    if (polozka.zasobaid() <= 0) return true;
    Pohybzasob pohyb = model.getPohybzasobByFaktura(polozka.zasobaid(), doklad.id);
    if (!pohyb.isValid()) {
        pohyb = Pohybzasob(-1, doklad.vystaveni, wxString(), 0, 0, !doklad.prijem(), false, false, -1, doklad.id,
                           polozka.zasobaid(), model.currentRok());
    }
    pohyb.setDatum(doklad.vystaveni);
    pohyb.setPocet(polozka.pocet());
    if (doklad.prijem()) {
        pohyb.setCenamj(skladform::cenaVydeje(model, polozka.zasobaid(), doklad.vystaveni, polozka.pocet(), -1,
                                              doklad.id));
    } else {
        // Goods bought come in at their price without VAT, in home currency.
        const double kurz = doklad.kurz > 0 ? doklad.kurz : 1.0;
        pohyb.setCenamj((polozka.celkem() - polozka.dph()) / polozka.pocet() * kurz);
    }
    return skladform::zapsatPohyb(model, pohyb) > 0 && model.updateStavZasob(polozka.zasobaid());
}

}  // namespace

std::vector<int> sazbyPolozky(DbModel& model, int rok) {
    std::vector<int> sazby;
    for (const auto& s : model.dphsazby(rok))
        if (s->sazba() > 0 && std::find(sazby.begin(), sazby.end(), s->sazba()) == sazby.end())
            sazby.push_back(s->sazba());
    std::sort(sazby.begin(), sazby.end(), std::greater<int>());
    sazby.push_back(0);
    return sazby;
}

wxDateTime datumDanePolozky(const DokladForm& doklad) { return doklad.duzp.IsValid() ? doklad.duzp : doklad.vystaveni; }

wxString polozkaValidation(const PolozkaForm& form) {
    if (form.pocet == 0) return u8("Počet nemůže být nulový");
    if (form.pocet < 0) return u8("Počet nemůže být záporný");
    return wxString();
}

castky::Polozka castkyPolozky(const DokladForm& doklad, const PolozkaForm& form) {
    return castky::polozka(doklad.platce, form.bezdph, form.pocet, form.cenamj, doklad.platce ? form.sazba : 0,
                           datumDanePolozky(doklad));
}

PolozkaForm nactiPolozku(DbModel& model, int id) {
    PolozkaForm form;
    const FaPolozka p = model.getFaPolozka(id);
    if (!p.isValid()) {
        form.id = -1;
        return form;
    }
    form.id = p.id();
    form.popis = p.popis();
    form.mj = p.mj();
    form.pocet = p.pocet();
    form.cenamj = p.cenamj();
    form.sazba = model.getDphSazbaValue(p.sazbaid());
    form.bezdph = p.bezdph();
    form.zasobaid = p.zasobaid();
    return form;
}

wxString ulozitPolozku(DbModel& model, const DokladForm& doklad, const PolozkaForm& form, int* id) {
    const wxString chyba = polozkaValidation(form);
    if (!chyba.empty()) return chyba;
    const int sazba = doklad.platce ? form.sazba : 0;
    const int sazbaid = model.getDphSazbaId(sazba, model.currentRok());
    const castky::Polozka c = castkyPolozky(doklad, form);
    const bool nova = form.id <= 0;
    // Only invoices move stock.
    const int zasobaid = doklad.faktura() && form.zasobaid > 0 ? form.zasobaid : -1;
    const int puvodniZasoba = nova ? -1 : model.getFaPolozka(form.id).zasobaid();
    if (zasobaid > 0 || puvodniZasoba > 0) {
        PolozkaForm skladova = form;
        skladova.zasobaid = zasobaid;
        const wxString chybaSkladu = skladValidation(model, doklad, skladova, puvodniZasoba);
        if (!chybaSkladu.empty()) return chybaSkladu;
    }
    const int polozkaId = nova ? model.getLastId("fapolozka") : form.id;
    const FaPolozka polozka(polozkaId, form.popis, form.mj, form.pocet, form.cenamj, sazbaid, c.dph, c.celkem,
                            doklad.platce && form.bezdph, doklad.faktura() ? doklad.id : -1,
                            doklad.faktura() ? -1 : doklad.id, zasobaid, false);
    DbModel::WriteTransaction tx(model.db());
    if (!(nova ? model.addFaPolozka(polozka) : model.editFaPolozka(polozka))) return u8("Položku nelze uložit");
    if (!zapsatPohybPolozky(model, doklad, polozka, puvodniZasoba)) return u8("Položku nelze přidat");
    tx.commit();
    if (id) *id = polozkaId;
    return wxString();
}

wxString smazatPolozku(DbModel& model, const DokladForm& doklad, int id) {
    const FaPolozka polozka = model.getFaPolozka(id);
    if (!polozka.isValid()) return u8("Položku nelze smazat");
    const int zasobaid = doklad.faktura() ? polozka.zasobaid() : -1;
    if (zamcenoInventurou(model, doklad, zasobaid)) return zamekZprava("smazat");
    DbModel::WriteTransaction tx(model.db());
    if (zasobaid > 0) {
        const Pohybzasob pohyb = model.getPohybzasobByFaktura(zasobaid, doklad.id);
        if (pohyb.isValid() && !model.deletePohybzasob(pohyb.id())) return u8("Položku nelze smazat");
    }
    if (!model.deleteFaPolozka(id) || (zasobaid > 0 && !model.updateStavZasob(zasobaid)))
        return u8("Položku nelze smazat");
    tx.commit();
    return wxString();
}

lxPohybzasobArray pohybyDokladu(DbModel& model, const DokladForm& doklad) {
    if (!doklad.faktura()) return {};
    return recordio::query<Pohybzasob>(model.db(), "SELECT * FROM pohybzasob WHERE fakturaid=? ORDER BY id",
                                       doklad.id);
}

bool obnovitPolozky(DbModel& model, const DokladForm& doklad, const lxFaPolozkaArray& polozky,
                    const lxPohybzasobArray& pohyby) {
    DbModel::WriteTransaction tx(model.db());
    std::set<int> zasoby;
    for (const auto& p : pohybyDokladu(model, doklad)) zasoby.insert(p->zasobaid());
    const bool smazano =
        doklad.faktura() ? model.deleteFaPolozkyByFakturaId(doklad.id) : model.deleteFaPolozkyByZavpohId(doklad.id);
    if (!smazano || (doklad.faktura() && !model.deletePohybyzasobByFakturaId(doklad.id))) return false;
    for (const auto& p : polozky)
        if (!model.addFaPolozka(*p)) return false;
    for (const auto& p : pohyby) {
        if (!model.addPohybzasob(*p)) return false;
        zasoby.insert(p->zasobaid());
    }
    for (int zasobaid : zasoby)
        if (model.hasZasoba(zasobaid) && !model.updateStavZasob(zasobaid)) return false;
    tx.commit();
    return true;
}
