#include "skladform.h"

#include <cmath>
#include <map>
#include <set>

#include "lxformat.h"
#include "sqlvalue.h"

namespace skladform {

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

// The running valuation of an item over the movements that come before a movement dated
// `datum` (all for an invalid date), leaving out one movement and one invoice's movements.
// Movements are ordered by date and then by id, as the valuation orders them; so a new
// movement comes after those of the same moment, an edited one (`exceptId`) after those of
// the same moment with a smaller id.
ocenovani::Prubeh prubehPred(DbModel& model, int zasobaid, const wxDateTime& datum, int exceptId,
                             int exceptFakturaId) {
    ocenovani::Prubeh prubeh(model.getZasoba(zasobaid).ocenovani());
    for (const auto& p : model.pohybyzasobByZasobaId(zasobaid)) {
        if (datum.IsValid() && p->datum().IsValid()) {
            if (p->datum().IsLaterThan(datum)) break;
            if (p->datum().IsEqualTo(datum) && exceptId > 0 && p->id() > exceptId) break;
        }
        if (p->id() == exceptId || (exceptFakturaId > 0 && p->fakturaid() == exceptFakturaId)) continue;
        prubeh.pridat({p->pocet(), p->cenamj(), p->prijemka()});
    }
    return prubeh;
}

wxString radaPohybu(bool prijemka) { return prijemka ? "PR" : "VY"; }

}  // namespace

wxString skladValidation(DbModel& model, const Sklad& sklad) {
    const wxString nazev = sklad.nazev().Strip(wxString::both);
    if (nazev.empty()) return u8("Název nemůže být prázdný");
    const Sklad stejny = model.getSklad(nazev);
    if (stejny.isValid() && stejny.id() != sklad.id())
        return wxString::Format(u8("Název '%s' už existuje\nZvolte jiný"), nazev);
    return wxString();
}

wxString smazatSkladDotaz(const Sklad& sklad) {
    return wxString::Format(u8("Opravdu smazat sklad %s?"), sklad.nazev());
}

wxString zasobaValidation(const Zasoba& zasoba) {
    if (zasoba.nazev().Strip(wxString::both).empty()) return u8("Název nemůže být prázdný");
    return wxString();
}

int ulozitZasobu(DbModel& model, Zasoba zasoba) {
    zasoba.setValid(true);
    DbModel::WriteTransaction tx(model.db());
    if (zasoba.id() <= 0) {
        zasoba.setId(model.getLastId("zasoba"));
        zasoba.setCislo(model.getCisloDokladu("ZB"));
        zasoba.setPocet(0);
        zasoba.setCelkem(0);
        if (!model.addZasoba(zasoba) || !model.increaseRadaCislo("ZB")) return -1;
    } else {
        // The cached state belongs to the movements, not to the form.
        const Zasoba stara = model.getZasoba(zasoba.id());
        if (!stara.isValid()) return -1;
        zasoba.setPocet(stara.pocet());
        zasoba.setCelkem(stara.celkem());
        if (!model.editZasoba(zasoba)) return -1;
        if (stara.ocenovani() != zasoba.ocenovani() && !model.updateStavZasob(zasoba.id())) return -1;
    }
    tx.commit();
    return zasoba.id();
}

bool smazatZasobu(DbModel& model, int id) {
    if (!model.hasZasoba(id)) return false;
    DbModel::WriteTransaction tx(model.db());
    wxSQLite3Database& db = model.db();
    if (!sqlvalue::execute(db, "DELETE FROM pohybzasob WHERE zasobaid=?", id) ||
        !sqlvalue::execute(db, "DELETE FROM ivpolozka WHERE zasobaid=?", id) ||
        !sqlvalue::execute(db, "UPDATE fapolozka SET zasobaid=NULL WHERE zasobaid=?", id) || !model.deleteZasoba(id))
        return false;
    tx.commit();
    return true;
}

wxString smazatZasobuDotaz(const Zasoba& zasoba) {
    return wxString::Format(u8("Opravdu smazat zásobu\n%s\n%s?"), zasoba.cislo(), zasoba.nazev());
}

ocenovani::Stav stavPred(DbModel& model, int zasobaid, const wxDateTime& datum, int exceptId, int exceptFakturaId) {
    return prubehPred(model, zasobaid, datum, exceptId, exceptFakturaId).stav();
}

wxString nedostatekZprava(double stav, double vydej) {
    return wxString::Format(u8("Stav zásoby %.3f na skladě je nižší než požadovaný výdej %.3f"), stav, vydej);
}

wxString pohybValidation(DbModel& model, const PohybForm& form) {
    if (form.pocet == 0) return form.prijemka ? u8("Nulový příjem na sklad") : u8("Nulový výdej ze skladu");
    if (form.prijemka) {
        if (form.cenamj == 0) return u8("Nulová cena za měrnou jednotku");
        return wxString();
    }
    // An issue can take only what the item holds before it; nothing at all from an empty stock.
    const ocenovani::Stav stav = stavPred(model, form.zasobaid, form.datum, form.id);
    if (stav.pocet < form.pocet - 1e-9) return nedostatekZprava(stav.pocet, form.pocet);
    return wxString();
}

int zapsatPohyb(DbModel& model, Pohybzasob pohyb) {
    pohyb.setValid(true);
    if (pohyb.id() > 0) return model.editPohybzasob(pohyb) ? pohyb.id() : -1;
    const wxString rada = radaPohybu(pohyb.prijemka());
    pohyb.setId(model.getLastId("pohybzasob"));
    pohyb.setCislo(model.getCisloDokladu(rada));
    if (!model.addPohybzasob(pohyb) || !model.increaseRadaCislo(rada)) return -1;
    return pohyb.id();
}

double cenaVydeje(DbModel& model, int zasobaid, const wxDateTime& datum, double pocet, int exceptId,
                  int exceptFakturaId) {
    if (pocet == 0) return 0;
    return prubehPred(model, zasobaid, datum, exceptId, exceptFakturaId).hodnotaVydeje(pocet) / pocet;
}

wxString ulozitPohyb(DbModel& model, const PohybForm& form, int* id) {
    const wxString chyba = pohybValidation(model, form);
    if (!chyba.empty()) return chyba;
    Pohybzasob pohyb = form.id > 0 ? model.getPohybzasob(form.id) : Pohybzasob();
    if (form.id > 0 && !pohyb.isValid()) return u8("Pohyb nelze uložit");
    if (form.id <= 0) {
        pohyb.setId(-1);
        pohyb.setInventuraid(-1);
        pohyb.setFakturaid(-1);
        pohyb.setObdobirok(model.currentRok());
    }
    pohyb.setZasobaid(form.zasobaid);
    pohyb.setPrijemka(form.prijemka);
    pohyb.setDatum(form.datum);
    pohyb.setPocet(form.pocet);
    pohyb.setCenamj(form.prijemka || form.cenamj != 0
                        ? form.cenamj
                        : cenaVydeje(model, form.zasobaid, form.datum, form.pocet, form.id, -1));
    // An edited receipt (less, or later) must still cover the issues after it; stock that was
    // short already before, in older data, does not block the edit.
    const bool kryto = nekrytyVydej(model, form.zasobaid).empty();
    DbModel::WriteTransaction tx(model.db());
    const int ulozeno = zapsatPohyb(model, pohyb);
    if (ulozeno < 0 || !model.updateStavZasob(form.zasobaid)) return u8("Pohyb nelze uložit");
    if (kryto) {
        const wxString nekryto = nekrytyVydej(model, form.zasobaid);
        if (!nekryto.empty()) return nekryto;
    }
    tx.commit();
    if (id) *id = ulozeno;
    return wxString();
}

wxString smazatPohybDotaz(const Pohybzasob& pohyb, const wxString& mj) {
    return wxString::Format(u8("Opravdu smazat pohyb:\n%s\n%.3f %s\nz %s?"), pohyb.cislo(), pohyb.pocet(), mj,
                            pohyb.datum().Format("%d.%m.%Y %H:%M:%S"));
}

wxString nekrytyVydej(DbModel& model, int zasobaid) {
    double stav = 0;
    for (const auto& p : model.pohybyzasobByZasobaId(zasobaid)) {
        if (p->prijemka()) {
            stav += p->pocet();
            continue;
        }
        if (stav < p->pocet() - 1e-9) return nedostatekZprava(stav, p->pocet());
        stav -= p->pocet();
    }
    return wxString();
}

wxString smazatPohyb(DbModel& model, int id) {
    const Pohybzasob pohyb = model.getPohybzasob(id);
    if (!pohyb.isValid()) return u8("Pohyb nelze smazat");
    const bool kryto = nekrytyVydej(model, pohyb.zasobaid()).empty();
    DbModel::WriteTransaction tx(model.db());
    if (!model.deletePohybzasob(id) || !model.updateStavZasob(pohyb.zasobaid())) return u8("Pohyb nelze smazat");
    if (kryto) {
        const wxString nekryto = nekrytyVydej(model, pohyb.zasobaid());
        if (!nekryto.empty()) return nekryto;
    }
    tx.commit();
    return wxString();
}

std::vector<RadekKarty> kartaZasoby(int metoda, const lxPohybzasobArray& pohyby) {
    std::vector<RadekKarty> radky;
    radky.reserve(pohyby.size());
    ocenovani::Prubeh prubeh(metoda);
    for (const auto& p : pohyby) {
        prubeh.pridat({p->pocet(), p->cenamj(), p->prijemka()});
        const ocenovani::Stav s = prubeh.stav();
        radky.push_back({p.get(), s.pocet, s.celkem});
    }
    return radky;
}

std::vector<InventuraRadek> radkyInventury(DbModel& model, int skladid, const wxDateTime& datum, int inventuraid) {
    std::map<int, double> zjisteno;
    for (const auto& p : model.ivpolozkyByInventuraId(inventuraid)) zjisteno[p->zasobaid()] = p->zjisteno();
    std::vector<InventuraRadek> radky;
    for (const auto& z : model.zasobyBySkladId(skladid)) {
        InventuraRadek r;
        r.zasobaid = z->id();
        r.cislo = z->cislo();
        r.nazev = z->nazev();
        r.mj = z->mj();
        const auto vlastni = model.getPohybzasobByInventura(z->id(), inventuraid);
        r.evidovano = stavPred(model, z->id(), datum, vlastni.isValid() ? vlastni.id() : -1).pocet;
        const auto found = zjisteno.find(z->id());
        r.zjisteno = found != zjisteno.end() ? found->second : r.evidovano;
        radky.push_back(r);
    }
    return radky;
}

// A difference found by a stock-taking becomes one movement dated at the stock-taking and
// marked as its correction. A shortfall leaves the stock like any issue, valued by the item's
// method, so FIFO gives up its oldest receipts and the average keeps its unit cost. A surplus
// has no receipt of its own to take a price from; it comes in at the item's purchase price
// (the cost of its latest receipt), or at the item's own unit price when it was never bought.
int ulozitInventuru(DbModel& model, Inventura inventura, const std::vector<InventuraRadek>& radky) {
    inventura.setValid(true);
    DbModel::WriteTransaction tx(model.db());
    std::set<int> dotcene;
    if (inventura.id() <= 0) {
        inventura.setId(model.getLastId("inventura"));
        inventura.setCislo(model.getCisloDokladu("IV"));
        inventura.setObdobirok(model.currentRok());
        if (!model.addInventura(inventura) || !model.increaseRadaCislo("IV")) return -1;
    } else {
        if (!model.editInventura(inventura)) return -1;
        for (const auto& p : model.ivpolozkyByInventuraId(inventura.id())) dotcene.insert(p->zasobaid());
        if (!sqlvalue::execute(model.db(), "DELETE FROM pohybzasob WHERE inventuraid=?", inventura.id()) ||
            !sqlvalue::execute(model.db(), "DELETE FROM ivpolozka WHERE inventuraid=?", inventura.id()))
            return -1;
    }
    for (const InventuraRadek& r : radky) {
        const IvPolozka polozka(model.getLastId("ivpolozka"), r.evidovano, r.zjisteno, r.zasobaid, inventura.id());
        if (!model.addIvPolozka(polozka)) return -1;
        dotcene.insert(r.zasobaid);
        const double rozdil = r.zjisteno - r.evidovano;
        if (std::abs(rozdil) < 1e-9) continue;
        const bool prijemka = rozdil > 0;
        const double pocet = std::abs(rozdil);
        double cenamj = 0;
        if (prijemka) {
            cenamj = model.zasobaNakupniCena(r.zasobaid);
            if (cenamj == 0) cenamj = model.getZasoba(r.zasobaid).cenamj();
        } else {
            cenamj = cenaVydeje(model, r.zasobaid, inventura.datum(), pocet, -1, -1);
        }
        const Pohybzasob pohyb(-1, inventura.datum(), wxString(), pocet, cenamj, prijemka, false, true, inventura.id(),
                               -1, r.zasobaid, inventura.obdobirok());
        if (zapsatPohyb(model, pohyb) < 0) return -1;
    }
    for (int zasobaid : dotcene)
        if (model.hasZasoba(zasobaid) && !model.updateStavZasob(zasobaid)) return -1;
    tx.commit();
    return inventura.id();
}

wxString smazatInventuruDotaz(const Inventura& inventura) {
    return wxString::Format(u8("Opravdu smazat inventuru\n%s\n%s?"), inventura.cislo(),
                            lxformat::formatDatum(inventura.datum()));
}

bool smazatInventuru(DbModel& model, int id) {
    std::set<int> dotcene;
    for (const auto& p : model.ivpolozkyByInventuraId(id)) dotcene.insert(p->zasobaid());
    DbModel::WriteTransaction tx(model.db());
    if (!sqlvalue::execute(model.db(), "DELETE FROM pohybzasob WHERE inventuraid=?", id) ||
        !sqlvalue::execute(model.db(), "DELETE FROM ivpolozka WHERE inventuraid=?", id) || !model.deleteInventura(id))
        return false;
    for (int zasobaid : dotcene)
        if (!model.updateStavZasob(zasobaid)) return false;
    tx.commit();
    return true;
}

}  // namespace skladform
