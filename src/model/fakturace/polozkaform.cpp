#include "polozkaform.h"

#include <algorithm>

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

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
    return form;
}

wxString ulozitPolozku(DbModel& model, const DokladForm& doklad, const PolozkaForm& form, int* id) {
    const wxString chyba = polozkaValidation(form);
    if (!chyba.empty()) return chyba;
    const int sazba = doklad.platce ? form.sazba : 0;
    const int sazbaid = model.getDphSazbaId(sazba, model.currentRok());
    const castky::Polozka c = castkyPolozky(doklad, form);
    const bool nova = form.id <= 0;
    const int polozkaId = nova ? model.getLastId("fapolozka") : form.id;
    const FaPolozka polozka(polozkaId, form.popis, form.mj, form.pocet, form.cenamj, sazbaid, c.dph, c.celkem,
                            doklad.platce && form.bezdph, doklad.faktura() ? doklad.id : -1,
                            doklad.faktura() ? -1 : doklad.id, -1, false);
    if (!(nova ? model.addFaPolozka(polozka) : model.editFaPolozka(polozka))) return u8("Položku nelze uložit");
    if (id) *id = polozkaId;
    return wxString();
}

bool obnovitPolozky(DbModel& model, const DokladForm& doklad, const lxFaPolozkaArray& polozky) {
    DbModel::WriteTransaction tx(model.db());
    const bool smazano =
        doklad.faktura() ? model.deleteFaPolozkyByFakturaId(doklad.id) : model.deleteFaPolozkyByZavpohId(doklad.id);
    if (!smazano) return false;
    for (const auto& p : polozky)
        if (!model.addFaPolozka(*p)) return false;
    tx.commit();
    return true;
}
