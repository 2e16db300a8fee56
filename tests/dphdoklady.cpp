#include "dphdoklady.h"

#include <gtest/gtest.h>

#include "fakturace/castky.h"

namespace {

wxDateTime den(const char* iso) {
    wxDateTime d;
    d.ParseISODate(iso);
    return d;
}

}  // namespace

DokladForm dphDoklad(DbModel& model, DruhDokladu druh, const char* duzp, const char* dppd, const char* dphdruh,
                     const std::vector<DphPolozka>& polozky, const wxString& popis, const wxString& protistrana,
                     int menaid, double kurz, int rok) {
    DokladForm form = novyDoklad(model, druh);
    form.duzp = den(duzp);
    form.dppd = den(dppd);
    form.dphdruh = dphdruh;
    form.popis = popis;
    form.menaid = menaid;
    form.kurz = kurz;
    form.protistrana = protistrana;
    const int rokSazeb = rok > 0 ? rok : model.currentRok();
    for (const DphPolozka& p : polozky) {
        const castky::Polozka c = castky::polozka(true, false, 1, p.cena, p.sazba, form.duzp);
        const int sazbaid = p.sazba == 0 ? 0 : model.getDphSazbaId(p.sazba, rokSazeb);
        EXPECT_TRUE(model.addFaPolozka(FaPolozka(model.getLastId("fapolozka"), "", "", 1, p.cena, sazbaid, c.dph,
                                                 c.celkem, false, form.faktura() ? form.id : -1,
                                                 form.faktura() ? -1 : form.id, -1, false)));
    }
    EXPECT_EQ(ulozitDoklad(model, form), wxString()) << dphdruh;
    return form;
}
