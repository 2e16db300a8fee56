#include "uhradaform.h"

#include "castky.h"
#include "clock.h"
#include "denikform.h"
#include "lxformat.h"
#include "lxsettings.h"
#include "recordio.h"
#include "sqllog.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

double platnyKurz(double kurz) { return kurz > 0 ? kurz : 1.0; }

template <class Doc>
void fillCommon(PlacenyDoklad& d, const Doc& doc) {
    d.id = doc.id();
    d.cislo = doc.cislo();
    d.vs = doc.vs();
    d.celkem = doc.celkem();
    d.menaid = doc.menaid() > 0 ? doc.menaid() : 1;
    d.kurz = d.menaid == 1 ? 1.0 : platnyKurz(doc.kurz());
    d.predkontaceid = doc.predkontaceid();
    d.platce = doc.platce();
    d.uhradaid = doc.uhradaid();
    d.pokladnaid = doc.pokladnaid();
    d.bankaid = doc.bankaid();
    d.protistranaid = doc.protistranaid();
    d.pausal = doc.pausal();
}

// One journal entry of a payment and its payment row. `cast` is the part paid in the
// document's currency; the entry carries it as its foreign amount for a foreign document.
bool zapisCast(DbModel& model, const PlacenyDoklad& doklad, const UhradaForm& form, const wxString& rada,
               const wxString& popis, int predkontaceid, double cast, bool pausal, std::vector<int>& ids) {
    const bool domaci = doklad.menaid == 1;
    const double kurz = domaci ? 1.0 : platnyKurz(form.kurz);
    const wxString registr = form.registr.Strip(wxString::both);
    Denik d;
    d.setId(model.getLastId("denik"));
    d.setDatum(form.datum);
    d.setCislo(model.getCisloDokladu(rada));
    d.setPopis(popis);
    d.setCastka(domaci ? cast : cast * kurz);
    d.setCastkacizi(domaci ? 0.0 : cast);
    d.setKurz(kurz);
    d.setReference(form.reference.empty() ? doklad.cislo : form.reference);
    d.setPausal(pausal ? form.pausal : 0);
    d.setMenaid(doklad.menaid);
    d.setPredkontaceid(predkontaceid);
    d.setPokladnaid(form.banka ? -1 : model.getPokladnaIdByZkratka(registr));
    d.setBankaid(form.banka ? model.getBankaIdByZkratka(registr) : -1);
    d.setVypis(form.banka ? form.vypis : 0);
    d.setProtistranaid(doklad.protistranaid);
    d.setObdobirok(model.currentRok());
    d.setValid(true);
    if (!model.insertDenik(d)) return false;
    Uhrada u;
    u.setId(model.getLastId("uhrada"));
    u.setCastka(cast);
    u.setDenikid(d.id());
    u.setFakturaid(doklad.faktura() ? doklad.id : -1);
    u.setZavpohid(doklad.faktura() ? -1 : doklad.id);
    u.setObdobirok(model.currentRok());
    u.setValid(true);
    if (!recordio::insert(model.db(), u) || !model.increaseRadaCislo(rada)) return false;
    ids.push_back(d.id());
    return true;
}

// The written payment in one transaction: the base (or whole) part, then the VAT part.
std::vector<int> zapis(DbModel& model, const PlacenyDoklad& doklad, const UhradaForm& form, const wxString& radaForm,
                       bool rozdelit, bool oznamit = true) {
    const wxString rada = radaForm.empty() ? denikRada(doklad.prijem(), form.banka) : radaForm;
    const double zaplaceno = doklad.menaid == 1 ? form.castka : form.castkacizi;
    const castky::Rozdeleni r =
        rozdelit ? castky::rozdelUhradu(doklad.celkem, doklad.dph, zaplaceno) : castky::Rozdeleni{false, zaplaceno, 0};
    // A flat-rate company keeps its percentage on the income it received.
    const bool pausal = doklad.prijem() && model.isFirmaPausal();
    std::vector<int> ids;
    try {
        DbModel::WriteTransaction tx(model.db());
        if (!zapisCast(model, doklad, form, rada, popisUhrady(doklad), doklad.predkontaceid, r.zaklad, pausal, ids))
            return {};
        if (r.rozdelit) {
            const int dphPredkontace = model.getPredkontaceIdByZkratka(doklad.prijem() ? "P102" : "V102");
            if (dphPredkontace < 0 ||
                !zapisCast(model, doklad, form, rada, u8(doklad.prijem() ? "DPH příjem" : "DPH výdaj"), dphPredkontace,
                           r.dph, false, ids))
                return {};
        }
        tx.commit();
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("uhrada " + doklad.cislo, e);
        return {};
    }
    // The journal, the register and the document's paid state all change.
    if (oznamit) model.fireUpdated(NAV_ALL);
    return ids;
}

}  // namespace

PlacenyDoklad placenyFaktura(DbModel& model, int id) {
    PlacenyDoklad d;
    const Faktura f = model.getFaktura(id);
    if (!f.isValid()) return d;
    fillCommon(d, f);
    d.druh = f.vydana() ? DruhDokladu::FAKTURA_VYDANA : DruhDokladu::FAKTURA_PRIJATA;
    d.dph = model.dphFaktury(id);
    d.uhrazeno = model.uhrazenoByFakturaId(id);
    return d;
}

PlacenyDoklad placenyZavPoh(DbModel& model, int id) {
    PlacenyDoklad d;
    const ZavPoh z = model.getZavPoh(id);
    if (!z.isValid()) return d;
    fillCommon(d, z);
    d.druh = z.zavazek() ? DruhDokladu::ZAVAZEK : DruhDokladu::POHLEDAVKA;
    d.dph = model.dphZavPoh(id);
    d.uhrazeno = model.uhrazenoByZavpohId(id);
    return d;
}

wxString popisUhrady(const PlacenyDoklad& doklad) {
    static const char* const texty[] = {"Úhrada faktury vydané %s", "Úhrada faktury přijaté %s",
                                        "Úhrada pohledávky %s", "Úhrada závazku %s"};
    return wxString::Format(u8(texty[static_cast<int>(doklad.druh)]), doklad.cislo);
}

wxString titulekUhrady(const PlacenyDoklad& doklad) {
    static const char* const texty[] = {"Úhrada faktury", "Úhrada faktury", "Úhrada pohledávky", "Úhrada závazku"};
    return u8(texty[static_cast<int>(doklad.druh)]);
}

wxString titulekUhrad(const PlacenyDoklad& doklad) {
    static const char* const texty[] = {"Úhrady faktury %s", "Úhrady faktury %s", "Úhrady pohledávky %s",
                                        "Úhrady závazku %s"};
    return wxString::Format(u8(texty[static_cast<int>(doklad.druh)]), doklad.cislo);
}

UhradaForm novaUhrada(DbModel& model, const PlacenyDoklad& doklad) {
    UhradaForm form;
    form.banka = doklad.uhradaid > 0 && !model.faUhradaPokladnou(doklad.uhradaid);
    if (form.banka) {
        form.registr = model.getBankaZkratka(doklad.bankaid);
        if (form.registr.empty() && !model.banky().empty()) form.registr = model.banky().front()->zkratka();
        form.vypis = model.getLastVypis(model.getBankaIdByZkratka(form.registr));
    } else {
        form.registr = model.getPokladnaZkratka(doklad.pokladnaid);
        if (form.registr.empty() && !model.pokladny().empty()) form.registr = model.pokladny().front()->zkratka();
    }
    form.datum = pracovniDen();
    form.kurz = doklad.kurz;
    const double zbyva = doklad.zbyva() > 0 ? doklad.zbyva() : 0.0;
    if (doklad.menaid == 1) {
        form.castka = zbyva;
    } else {
        form.castkacizi = zbyva;
        form.castka = zbyva * doklad.kurz;
    }
    form.pausal = doklad.pausal;
    return form;
}

wxString uhradaValidation(DbModel& model, const UhradaForm& form, UhradaPole* pole) {
    auto fail = [pole](UhradaPole p, const wxString& message) {
        if (pole) *pole = p;
        return message;
    };
    if (pole) *pole = UhradaPole::ZADNE;
    const wxString registr = registrZprava(model, form.banka, form.registr);
    if (!registr.empty()) return fail(UhradaPole::REGISTR, registr);
    if (!form.datum.IsValid()) return fail(UhradaPole::DATUM, lxformat::datumZprava(u8("Datum"), wxString()));
    // The entries belong to the open accounting year, as every journal entry does.
    const int rok = model.currentRok();
    if (form.datum.GetYear() != rok) {
        return fail(UhradaPole::DATUM,
                    wxString::Format(u8("Datum %s není v účetním období %d"), lxformat::formatDatum(form.datum), rok));
    }
    if (form.castka == 0.0 && form.castkacizi == 0.0) return fail(UhradaPole::CASTKA, u8("Částka nemůže být nulová"));
    return wxString();
}

bool platceUhrada(DbModel& model, const PlacenyDoklad& doklad) { return model.isFirmaPlatce() && doklad.platce; }

std::vector<int> writeUhradaPlatce(DbModel& model, const PlacenyDoklad& doklad, const UhradaForm& form,
                                   const wxString& rada) {
    return zapis(model, doklad, form, rada, true);
}

std::vector<int> writeUhradaNeplatce(DbModel& model, const PlacenyDoklad& doklad, const UhradaForm& form,
                                     const wxString& rada) {
    return zapis(model, doklad, form, rada, false);
}

std::vector<int> zapisUhradu(DbModel& model, const PlacenyDoklad& doklad, const UhradaForm& form) {
    return zapis(model, doklad, form, wxString(), platceUhrada(model, doklad), false);
}

wxString ulozitUhradu(DbModel& model, const PlacenyDoklad& doklad, const UhradaForm& form, std::vector<int>* denikIds,
                      UhradaPole* pole) {
    if (denikIds) denikIds->clear();
    if (!doklad.isValid()) return u8("Doklad neexistuje");
    const wxString chyba = uhradaValidation(model, form, pole);
    if (!chyba.empty()) return chyba;
    const std::vector<int> ids = platceUhrada(model, doklad) ? writeUhradaPlatce(model, doklad, form)
                                                              : writeUhradaNeplatce(model, doklad, form);
    if (ids.empty()) return u8("Úhradu se nepodařilo uložit");
    if (denikIds) *denikIds = ids;
    return wxString();
}

wxString writeUhrada(DbModel& model, const PlacenyDoklad& doklad) {
    if (!doklad.isValid()) return u8("Doklad neexistuje");
    if (doklad.zbyva() <= 0) return u8("Doklad je už uhrazen");
    UhradaForm form = novaUhrada(model, doklad);
    // Paid in cash: the document's register, or the first one.
    form.banka = false;
    form.registr = model.getPokladnaZkratka(doklad.pokladnaid);
    if (form.registr.empty() && !model.pokladny().empty()) form.registr = model.pokladny().front()->zkratka();
    form.vypis = 0;
    const wxString chyba = uhradaValidation(model, form);
    if (!chyba.empty()) return chyba;
    const wxString rada = denikRada(doklad.prijem(), false);
    const std::vector<int> ids = platceUhrada(model, doklad) ? writeUhradaPlatce(model, doklad, form, rada)
                                                              : writeUhradaNeplatce(model, doklad, form, rada);
    return ids.empty() ? u8("Úhradu se nepodařilo uložit") : wxString();
}
