#include "dokladform.h"


#include "castky.h"
#include "clock.h"
#include "denikform.h"
#include "lxformat.h"
#include "lxsettings.h"
#include "recordio.h"
#include "sqllog.h"
#include "sklad/skladform.h"
#include "sqlvalue.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

wxString trimmed(const wxString& text) { return wxString(text).Strip(wxString::both); }

const char* tabulka(const DokladForm& form) { return form.faktura() ? "faktura" : "zavpoh"; }
const char* sloupecPolozky(const DokladForm& form) { return form.faktura() ? "fakturaid" : "zavpohid"; }

// The classification with that code for the document's side: "R0P" and other codes exist
// once for income and once for expense documents, and "R24" twice by date, so the row of the
// document's direction valid on its tax date wins.
int dphDruhId(DbModel& model, const DokladForm& form) {
    const wxString zkratka = trimmed(form.dphdruh);
    if (zkratka.empty()) return -1;
    const wxString datum = form.duzp.IsValid() ? form.duzp.FormatISODate() : wxString("2100-01-01");
    return sqlvalue::integer(model.db(), -1,
                             "SELECT id FROM dphdruh WHERE zkratka=? ORDER BY (vydaj=?) DESC, "
                             "(date(od)<=? AND date(do)>=?) DESC, id LIMIT 1",
                             zkratka, form.prijem() ? 0 : 1, datum, datum);
}

int registrId(DbModel& model, const DokladForm& form, bool banka) {
    const wxString registr = trimmed(form.registr);
    return banka ? model.getBankaIdByZkratka(registr) : model.getPokladnaIdByZkratka(registr);
}

bool isBanka(DbModel& model, const DokladForm& form) {
    return form.uhradaid > 0 && !model.faUhradaPokladnou(form.uhradaid);
}

// The row's fields that invoices and receivables/liabilities share.
template <class Doc>
void fillCommon(DbModel& model, Doc& doc, const DokladForm& form, int protistranaid, double celkem) {
    const bool banka = isBanka(model, form);
    doc.setId(form.id);
    doc.setProtistranaid(protistranaid);
    doc.setPopis(form.popis);
    doc.setCelkem(celkem);
    doc.setCislo(form.cislo);
    doc.setVs(form.vs);
    doc.setUhradaid(form.uhradaid);
    doc.setPokladnaid(banka ? -1 : registrId(model, form, false));
    doc.setBankaid(banka ? registrId(model, form, true) : -1);
    doc.setMenaid(form.menaid > 0 ? form.menaid : 1);
    doc.setPredkontaceid(model.getPredkontaceIdByZkratka(trimmed(form.predkontace)));
    doc.setObdobirok(model.currentRok());
    doc.setPlatce(form.platce);
    doc.setVystaveni(form.vystaveni);
    doc.setDuzp(form.duzp);
    doc.setDppd(form.dppd);
    doc.setSplatnost(form.splatnost);
    doc.setDphdruhid(form.platce ? dphDruhId(model, form) : -1);
    doc.setKurz(form.menaid > 1 ? form.kurz : 1.0);
    doc.setPausal(form.prijem() && model.isFirmaPausal() ? form.pausal : 0);
    doc.setValid(true);
}

Faktura fakturaFromForm(DbModel& model, const DokladForm& form, int protistranaid, double celkem) {
    Faktura f;
    fillCommon(model, f, form, protistranaid, celkem);
    f.setSs(form.ss);
    f.setKs(form.ks);
    f.setTypid(form.typid == 2 ? 2 : 1);
    f.setVydana(form.druh == DruhDokladu::FAKTURA_VYDANA);
    return f;
}

ZavPoh zavpohFromForm(DbModel& model, const DokladForm& form, int protistranaid, double celkem) {
    ZavPoh z;
    fillCommon(model, z, form, protistranaid, celkem);
    z.setZavazek(form.druh == DruhDokladu::ZAVAZEK);
    return z;
}

template <class Doc>
void formFromRow(DbModel& model, DokladForm& form, const Doc& doc) {
    form.id = doc.id();
    form.novy = false;
    form.cislo = doc.cislo();
    form.vs = doc.vs();
    form.popis = doc.popis();
    form.protistrana = doc.protistranaid() > 0 ? model.getKontakt(doc.protistranaid()).nazev() : wxString();
    form.uhradaid = doc.uhradaid();
    form.registr = model.faUhradaPokladnou(doc.uhradaid()) ? model.getPokladnaZkratka(doc.pokladnaid())
                                                           : model.getBankaZkratka(doc.bankaid());
    form.predkontace = model.getPredkontace(doc.predkontaceid()).zkratka();
    form.dphdruh = doc.dphdruhid() >= 0 ? model.getDphDruh(doc.dphdruhid()).zkratka() : wxString();
    form.menaid = doc.menaid() > 0 ? doc.menaid() : 1;
    form.kurz = form.menaid > 1 && doc.kurz() > 0 ? doc.kurz() : 1.0;
    form.vystaveni = doc.vystaveni();
    form.duzp = doc.duzp();
    form.dppd = doc.dppd();
    form.splatnost = doc.splatnost();
    form.platce = doc.platce();
    form.pausal = doc.pausal();
}

bool ulozRadek(DbModel& model, const DokladForm& form, int protistranaid, double celkem, bool novy) {
    if (form.faktura()) {
        const Faktura f = fakturaFromForm(model, form, protistranaid, celkem);
        return novy ? recordio::insert(model.db(), f) : recordio::update(model.db(), f);
    }
    const ZavPoh z = zavpohFromForm(model, form, protistranaid, celkem);
    return novy ? recordio::insert(model.db(), z) : recordio::update(model.db(), z);
}

int navigace(DruhDokladu druh) {
    static const int pages[] = {NAV_FAKTURY_VYDANE, NAV_FAKTURY_PRIJATE, NAV_POHLEDAVKY, NAV_ZAVAZKY};
    return pages[static_cast<int>(druh)];
}

// The rounding line among the items, or an invalid item.
FaPolozka radekZaokrouhleni(const lxFaPolozkaArray& polozky) {
    for (const auto& p : polozky)
        if (p->zaokrouhleni()) return *p;
    return FaPolozka();
}

// Rounds without a transaction of its own and without notices (ulozitDoklad calls it inside
// its transaction).
bool zaokrouhlit(DbModel& model, const DokladForm& form, wxString* zprava) {
    const lxFaPolozkaArray polozky = polozkyDokladu(model, form);
    double soucet = 0;
    std::vector<int> sazby;
    for (const auto& p : polozky) {
        if (p->zaokrouhleni()) continue;
        soucet += p->celkem();
        sazby.push_back(model.getDphSazbaValue(p->sazbaid()));
    }
    FaPolozka radek = radekZaokrouhleni(polozky);
    const castky::Zaokrouhleni z = castky::zaokrouhleni(soucet);
    if (!z.potreba) {
        if (zprava) *zprava = u8("Zaokrouhlení není potřeba");
        return !radek.isValid() || sqlvalue::execute(model.db(), "DELETE FROM fapolozka WHERE id=?", radek.id());
    }
    int sazba = 0, sazbaId = 0;
    double dph = 0;
    if (form.platce) {
        const int rok = form.duzp.IsValid() ? form.duzp.GetYear() : model.currentRok();
        sazba = castky::sazbaZaokrouhleni(model.faUhradaPokladnou(form.uhradaid), sazby, model.zakladniSazba(rok));
        sazbaId = model.getDphSazbaId(sazba, rok);
        // A year without rate rows has only the zero rate.
        if (sazbaId < 0) sazba = sazbaId = 0;
        dph = z.rozdil * castky::koeficient(sazba, form.duzp);
    }
    const bool novy = !radek.isValid();
    if (novy) radek.setId(model.getLastId("fapolozka"));
    radek.setPopis(u8("Zaokrouhlení"));
    radek.setMj(wxString());
    radek.setPocet(1);
    radek.setCenamj(z.rozdil);
    radek.setSazbaid(sazbaId);
    radek.setDph(dph);
    radek.setCelkem(z.rozdil);
    radek.setBezdph(false);
    radek.setFakturaid(form.faktura() ? form.id : -1);
    radek.setZavpohid(form.faktura() ? -1 : form.id);
    radek.setZasobaid(-1);
    radek.setZaokrouhleni(true);
    radek.setValid(true);
    return novy ? recordio::insert(model.db(), radek) : recordio::update(model.db(), radek);
}

}  // namespace

wxString dokladRada(DruhDokladu druh, int typid) {
    switch (druh) {
        case DruhDokladu::FAKTURA_VYDANA:
            return typid == 2 ? "ZFV" : "FV";
        case DruhDokladu::FAKTURA_PRIJATA:
            return typid == 2 ? "ZFP" : "FP";
        case DruhDokladu::POHLEDAVKA:
            return "PO";
        case DruhDokladu::ZAVAZEK:
            return "ZA";
    }
    return "FV";
}

DokladForm novyDoklad(DbModel& model, DruhDokladu druh, int typid) {
    DokladForm form;
    form.druh = druh;
    form.typid = form.faktura() && typid == 2 ? 2 : 1;
    form.novy = true;
    const wxString rada = dokladRada(druh, form.typid);
    form.cislo = model.getCisloDokladu(rada);
    form.vs = wxString::Format("%d", model.getRadaCislo(rada));
    const wxDateTime datum = pracovniDen();
    form.vystaveni = form.duzp = form.dppd = datum;
    form.splatnost = datum + wxDateSpan::Days(lxSettings::instance()->splatnost());
    form.uhradaid = model.firstFaUhrada();
    if (isBanka(model, form)) {
        const lxBankaArray banky = model.banky();
        if (!banky.empty()) form.registr = banky.front()->zkratka();
    } else {
        const lxPokladnaArray pokladny = model.pokladny();
        if (!pokladny.empty()) form.registr = pokladny.front()->zkratka();
    }
    const lxPredkontaceArray predkontace = form.prijem() ? model.predkontacePrijem() : model.predkontaceVydaj();
    if (!predkontace.empty()) form.predkontace = predkontace.front()->zkratka();
    form.platce = model.isFirmaPlatce();
    if (form.platce) {
        const lxDphDruhArray druhy = form.prijem() ? model.dphdruhyNabizenePrijem() : model.dphdruhyNabizeneVydaj();
        if (!druhy.empty()) form.dphdruh = druhy.front()->zkratka();
    }
    form.id = model.getLastId(tabulka(form));
    try {
        DbModel::WriteTransaction tx(model.db());
        if (!ulozRadek(model, form, 0, 0.0, true)) {
            form.id = -1;
            return form;
        }
        tx.commit();
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("novyDoklad", e);
        form.id = -1;
    }
    return form;
}

DokladForm nactiDoklad(DbModel& model, DruhDokladu druh, int id) {
    DokladForm form;
    form.druh = druh;
    form.id = -1;
    if (form.faktura()) {
        const Faktura f = model.getFaktura(id);
        if (!f.isValid()) return form;
        formFromRow(model, form, f);
        form.ss = f.ss();
        form.ks = f.ks();
        form.typid = f.typid() == 2 ? 2 : 1;
        form.druh = f.vydana() ? DruhDokladu::FAKTURA_VYDANA : DruhDokladu::FAKTURA_PRIJATA;
    } else {
        const ZavPoh z = model.getZavPoh(id);
        if (!z.isValid()) return form;
        formFromRow(model, form, z);
        form.druh = z.zavazek() ? DruhDokladu::ZAVAZEK : DruhDokladu::POHLEDAVKA;
    }
    return form;
}

bool zrusitNovyDoklad(DbModel& model, const DokladForm& form) {
    if (!form.novy || form.id <= 0) return false;
    return form.faktura() ? model.deleteFaktura(form.id, false) : model.deleteZavPoh(form.id, false);
}

lxFaPolozkaArray polozkyDokladu(DbModel& model, const DokladForm& form) {
    return form.faktura() ? model.fapolozkyByFakturaId(form.id) : model.fapolozkyByZavpohId(form.id);
}

double celkemDokladu(DbModel& model, const DokladForm& form) {
    return sqlvalue::real(model.db(), 0.0,
                          wxString::Format("SELECT total(celkem) FROM fapolozka WHERE %s=?", sloupecPolozky(form)),
                          form.id);
}

wxString dokladValidation(DbModel& model, const DokladForm& form, DokladPole* pole) {
    auto fail = [pole](DokladPole p, const wxString& message) {
        if (pole) *pole = p;
        return message;
    };
    if (pole) *pole = DokladPole::ZADNE;
    if (form.uhradaid <= 0 || !model.hasFaUhrada(form.uhradaid))
        return fail(DokladPole::UHRADA, u8("Úhrada nemůže být prázdná"));
    wxString zprava = registrZprava(model, isBanka(model, form), form.registr);
    if (!zprava.empty()) return fail(DokladPole::REGISTR, zprava);
    zprava = predkontaceZprava(model, form.predkontace, form.prijem());
    if (!zprava.empty()) return fail(DokladPole::PREDKONTACE, zprava);
    if (form.platce) {
        const wxString druh = trimmed(form.dphdruh);
        if (druh.empty()) return fail(DokladPole::DPHDRUH, u8("Členění DPH nemůže být prázdné"));
        if (!model.hasDphDruh(druh)) return fail(DokladPole::DPHDRUH, wxString::Format(u8("Členění DPH %s neexistuje"), druh));
        if (form.duzp.IsValid() && !model.isDphDruhValidForDatum(druh, form.duzp)) {
            return fail(DokladPole::DUZP, wxString::Format(u8("Členění DPH %s není platné pro DUZP %s"), druh,
                                                           lxformat::formatDatum(form.duzp)));
        }
        if (form.dppd.IsValid() && !model.isDphDruhValidForDatum(druh, form.dppd)) {
            return fail(DokladPole::DPPD, wxString::Format(u8("Členění DPH %s není platné pro DPPD %s"), druh,
                                                           lxformat::formatDatum(form.dppd)));
        }
    }
    const struct {
        const wxDateTime& datum;
        DokladPole pole;
        const char* nazev;
    } datumy[] = {{form.vystaveni, DokladPole::VYSTAVENI, "Vystavení"},
                  {form.duzp, DokladPole::DUZP, "DUZP"},
                  {form.dppd, DokladPole::DPPD, "DPPD"},
                  {form.splatnost, DokladPole::SPLATNOST, "Splatnost"}};
    for (const auto& d : datumy)
        if (!d.datum.IsValid()) return fail(d.pole, lxformat::datumZprava(u8(d.nazev), wxString()));
    if (form.menaid > 1 && !(form.kurz > 0)) return fail(DokladPole::KURZ, lxformat::kurzZprava(u8("Kurz"), wxString(), lxformat::Chyba::ROZSAH));
    return wxString();
}

bool hasZaokrouhleni(DbModel& model, const DokladForm& form) {
    return sqlvalue::exists(
        model.db(), wxString::Format("SELECT count(*) FROM fapolozka WHERE %s=? AND zaokrouhleni=1", sloupecPolozky(form)),
        form.id);
}

bool zaokrouhlitDoklad(DbModel& model, const DokladForm& form, wxString* zprava) {
    if (form.id <= 0) return false;
    if (zprava) zprava->clear();
    try {
        DbModel::WriteTransaction tx(model.db());
        if (!zaokrouhlit(model, form, zprava)) return false;
        tx.commit();
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("zaokrouhlitDoklad", e);
        return false;
    }
    model.fireUpdated(navigace(form.druh));
    return true;
}

bool dokladZmenen(DbModel& model, const DokladForm& form) {
    if (form.novy) return false;
    const DokladForm ulozeny = nactiDoklad(model, form.druh, form.id);
    if (ulozeny.id < 0) return false;
    const double ulozenyCelkem = sqlvalue::real(model.db(), 0.0,
                                                wxString::Format("SELECT celkem FROM %s WHERE id=?", tabulka(form)), form.id);
    auto den = [](const wxDateTime& d) { return d.IsValid() ? d.FormatISODate() : wxString(); };
    return celkemDokladu(model, form) != ulozenyCelkem || form.menaid != ulozeny.menaid ||
           (form.menaid > 1 && form.kurz != ulozeny.kurz) || trimmed(form.protistrana) != trimmed(ulozeny.protistrana) ||
           trimmed(form.predkontace) != trimmed(ulozeny.predkontace) || form.uhradaid != ulozeny.uhradaid ||
           trimmed(form.registr) != trimmed(ulozeny.registr) || den(form.vystaveni) != den(ulozeny.vystaveni) ||
           den(form.duzp) != den(ulozeny.duzp) || den(form.dppd) != den(ulozeny.dppd) ||
           form.platce != ulozeny.platce || trimmed(form.dphdruh) != trimmed(ulozeny.dphdruh);
}

wxString dotazZmenenyDoklad(const DokladForm& form) {
    static const char* const texty[] = {"Faktura byla změněna\nPoužít nové hodnoty?\n(Úhrady budou smazány)",
                                        "Faktura byla změněna\nPoužít nové hodnoty?\n(Úhrady budou smazány)",
                                        "Pohledávka byla změněna\nPoužít nové hodnoty?\n(Úhrady budou smazány)",
                                        "Závazek byl změněn\nPoužít nové hodnoty?\n(Úhrady budou smazány)"};
    return u8(texty[static_cast<int>(form.druh)]);
}

wxString ulozitDoklad(DbModel& model, const DokladForm& formIn, bool smazatUhrady) {
    const wxString chyba = dokladValidation(model, formIn);
    if (!chyba.empty()) return chyba;
    DokladForm form = formIn;
    const wxString rada = dokladRada(form.druh, form.typid);
    if (trimmed(form.cislo).empty()) form.cislo = model.getCisloDokladu(rada);
    const wxString protistrana = trimmed(form.protistrana);
    const bool novyKontakt = !protistrana.empty() && model.getKontaktIdByNazev(protistrana) < 0;
    // A new date moves the invoice's stock issues; the items whose issues are all covered now
    // must stay so (stock that was short before, in older data, does not block the save).
    std::vector<int> kryteZasoby;
    if (form.faktura() && !form.novy)
        for (const auto& p : model.fapolozkyByFakturaId(form.id))
            if (p->zasobaid() > 0 && skladform::nekrytyVydej(model, p->zasobaid()).empty())
                kryteZasoby.push_back(p->zasobaid());
    try {
        DbModel::WriteTransaction tx(model.db());
        const int protistranaid = protistranaId(model, protistrana);
        if (protistranaid < 0) return u8("Doklad se nepodařilo uložit");
        // The rounding line follows the items as they are now.
        if (hasZaokrouhleni(model, form) && !zaokrouhlit(model, form, nullptr)) return u8("Doklad se nepodařilo uložit");
        if (!ulozRadek(model, form, protistranaid, celkemDokladu(model, form), false))
            return u8("Doklad se nepodařilo uložit");
        if (form.faktura() && form.vystaveni.IsValid()) model.editPohybzasobDatum(form.id, form.vystaveni);
        for (int zasobaid : kryteZasoby) {
            const wxString nekryto = skladform::nekrytyVydej(model, zasobaid);
            if (!nekryto.empty()) return nekryto;
        }
        if (smazatUhrady && !(form.faktura() ? model.deleteUhradaByFakturaId(form.id)
                                             : model.deleteUhradaByZavpohId(form.id)))
            return u8("Doklad se nepodařilo uložit");
        if (form.novy && !model.increaseRadaCislo(rada)) return u8("Doklad se nepodařilo uložit");
        tx.commit();
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("ulozitDoklad " + form.cislo, e);
        return u8("Doklad se nepodařilo uložit");
    }
    model.fireUpdated(novyKontakt || smazatUhrady ? NAV_ALL : navigace(form.druh));
    return wxString();
}
