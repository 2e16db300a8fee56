#include "denikform.h"

#include <algorithm>

#include "dbmodel.h"
#include "download.h"
#include "lxformat.h"
#include "lxutils.h"
#include "recordio.h"
#include "sqllog.h"
#include "sqlvalue.h"

namespace {

const int HOME_MENA = 1;

wxString trimmed(const wxString& text) {
    wxString t = text;
    t.Trim(true).Trim(false);
    return t;
}

wxString u8(const char* text) { return wxString::FromUTF8(text); }

}  // namespace

wxString registrZprava(DbModel& model, bool banka, const wxString& text) {
    const wxString registr = trimmed(text);
    if (registr.empty()) return banka ? u8("Bankovní účet nemůže být prázdný") : u8("Pokladna nemůže být prázdná");
    const int id = banka ? model.getBankaIdByZkratka(registr) : model.getPokladnaIdByZkratka(registr);
    if (id < 0) return wxString::Format(banka ? u8("Bankovní účet %s neexistuje") : u8("Pokladna %s neexistuje"), registr);
    return wxString();
}

wxString predkontaceZprava(DbModel& model, const wxString& text, bool prijem) {
    const wxString predkontace = trimmed(text);
    if (predkontace.empty()) return u8("Předkontace nemůže být prázdná");
    const int id = model.getPredkontaceIdByZkratka(predkontace);
    if (id < 0) return wxString::Format(u8("Předkontace %s neexistuje"), predkontace);
    // The pre-posting decides the direction and so the series and the sign in the balances:
    // an expense code typed into the income dialog would book an expense numbered as income.
    if (model.isPredkontacePrijem(id) != prijem) {
        return wxString::Format(prijem ? u8("Předkontace %s je výdajová, zadejte příjmovou")
                                       : u8("Předkontace %s je příjmová, zadejte výdajovou"),
                                predkontace);
    }
    return wxString();
}

wxString denikValidation(DbModel& model, const DenikForm& form, DenikPole* pole) {
    auto fail = [pole](DenikPole p, const wxString& message) {
        if (pole) *pole = p;
        return message;
    };
    if (pole) *pole = DenikPole::ZADNE;
    wxString zprava = registrZprava(model, form.banka, form.registr);
    if (!zprava.empty()) return fail(DenikPole::REGISTR, zprava);
    zprava = predkontaceZprava(model, form.predkontace, form.prijem);
    if (!zprava.empty()) return fail(DenikPole::PREDKONTACE, zprava);
    if (!form.datum.IsValid()) return fail(DenikPole::DATUM, lxformat::datumZprava(u8("Datum"), wxString()));
    const int rok = model.currentRok();
    if (form.datum.GetYear() != rok) {
        return fail(DenikPole::DATUM,
                    wxString::Format(u8("Datum %s není v účetním období %d"), lxformat::formatDatum(form.datum), rok));
    }
    // An empty number takes the series' next one when stored. An edit and a saved copy
    // (stored already by copyDenik) may keep their own number.
    const wxString cislo = trimmed(form.cislo);
    if (!cislo.empty() && model.hasDenikCislo(cislo, rok, form.mode == DenikForm::ADD ? -1 : form.id)) {
        return fail(DenikPole::CISLO, wxString::Format(u8("Doklad s číslem %s už existuje"), cislo));
    }
    return wxString();
}

double nejnizsiStav(const std::vector<DbModel::DenniPohyb>& pohyby, const wxDateTime& datum, double zmena) {
    const wxDateTime den = datum.GetDateOnly();
    double stav = 0;
    size_t i = 0;
    for (; i < pohyby.size() && pohyby[i].datum.IsEarlierThan(den); ++i) stav += pohyby[i].zmena;
    stav += zmena;
    if (i < pohyby.size() && pohyby[i].datum.IsSameDate(den)) stav += pohyby[i++].zmena;
    double nejnizsi = stav;
    for (; i < pohyby.size(); ++i) {
        stav += pohyby[i].zmena;
        nejnizsi = std::min(nejnizsi, stav);
    }
    return nejnizsi;
}

wxString zapornaPokladnaDotaz(DbModel& model, const DenikForm& form) {
    if (form.banka || form.prijem || !form.datum.IsValid()) return wxString();
    const Pokladna pokladna = model.getPokladna(trimmed(form.registr));
    if (!pokladna.isValid()) return wxString();
    const bool domaci = pokladna.menaid() == HOME_MENA;
    const double castka = domaci ? form.castka : form.castkacizi;
    const int bez = form.mode == DenikForm::ADD ? -1 : form.id;
    const double stav = nejnizsiStav(model.pokladnaPohybyPoDnech(pokladna.id(), bez), form.datum, -castka);
    // Below half a heller the register shows zero, and zero is not negative.
    if (stav > -0.005) return wxString();
    const wxString mena = domaci ? u8("Kč") : model.kodMena(pokladna.menaid());
    return wxString::Format(u8("Stav pokladny %s bude záporný (%s). Přesto uložit?"), pokladna.zkratka(),
                            lxformat::formatCastka(stav, mena));
}

wxString denikRada(bool prijem, bool banka) {
    if (banka) return prijem ? "BP" : "BV";
    return prijem ? "PP" : "PV";
}

wxString navrhCislaDenik(DbModel& model, bool prijem, bool banka) {
    return model.getCisloDokladu(denikRada(prijem, banka));
}

Denik denikFromForm(DbModel& model, const DenikForm& form, int protistranaid) {
    const wxString registr = trimmed(form.registr);
    const bool home = form.menaid == HOME_MENA;
    Denik d;
    // A copy has already been stored by copyDenik; the dialog writes over it like an edit.
    d.setId(form.mode == DenikForm::ADD ? model.getLastId("denik") : form.id);
    d.setDatum(form.datum);
    d.setCislo(form.cislo);
    d.setPopis(form.popis);
    d.setCastka(form.castka);
    d.setCastkacizi(home ? 0.0 : form.castkacizi);
    d.setKurz(home ? 1.0 : form.kurz);
    d.setReference(form.reference);
    d.setPausal(form.prijem && model.isFirmaPausal() ? form.pausal : 0);
    d.setMenaid(form.menaid);
    d.setPredkontaceid(model.getPredkontaceIdByZkratka(trimmed(form.predkontace)));
    d.setPokladnaid(form.banka ? -1 : model.getPokladnaIdByZkratka(registr));
    d.setBankaid(form.banka ? model.getBankaIdByZkratka(registr) : -1);
    d.setVypis(form.banka ? form.vypis : 0);
    d.setProtistranaid(protistranaid);
    d.setObdobirok(model.currentRok());
    d.setValid(true);
    return d;
}

int protistranaId(DbModel& model, const wxString& nazev, std::map<wxString, int>* cache) {
    const wxString name = trimmed(nazev);
    if (name.empty()) return 0;
    if (cache) {
        const auto found = cache->find(name);
        if (found != cache->end()) return found->second;
    }
    int id = model.getKontaktIdByNazev(name);
    if (id < 0) {
        try {
            DbModel::WriteTransaction tx(model.db());
            const Adresa adresa(model.getLastId("adresa"), "", "", "", "", "");
            const Kontakt kontakt(model.getLastId("kontakt"), name, "", "", "", "", false, adresa.id());
            if (!recordio::insert(model.db(), adresa) || !recordio::insert(model.db(), kontakt)) return -1;
            tx.commit();
            id = kontakt.id();
        } catch (const wxSQLite3Exception& e) {
            sqllog::error("kontakt " + name, e);
            return -1;
        }
    }
    if (cache) (*cache)[name] = id;
    return id;
}

int zapisDenik(DbModel& model, const DenikForm& form, std::map<wxString, int>* kontakty) {
    const wxString rada = denikRada(form.prijem, form.banka);
    try {
        DbModel::WriteTransaction tx(model.db());
        const int protistrana = protistranaId(model, form.protistrana, kontakty);
        if (protistrana < 0) return -1;
        Denik d = denikFromForm(model, form, protistrana);
        if (trimmed(d.cislo()).empty()) d.setCislo(model.getCisloDokladu(rada));
        const bool stored = form.mode == DenikForm::ADD ? model.insertDenik(d) : model.updateDenik(d);
        if (!stored) return -1;
        // A new entry and a saved copy use up their number; an edit keeps the one it had.
        if (form.mode != DenikForm::EDIT && !model.increaseRadaCislo(rada)) return -1;
        tx.commit();
        return d.id();
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("denik " + form.cislo, e);
        return -1;
    }
}

wxString ulozitDenik(DbModel& model, const DenikForm& form, int* id, DenikPole* pole) {
    if (id) *id = -1;
    const wxString chyba = denikValidation(model, form, pole);
    if (!chyba.empty()) return chyba;
    const wxString protistrana = trimmed(form.protistrana);
    const bool novyKontakt = !protistrana.empty() && model.getKontaktIdByNazev(protistrana) < 0;
    const int stored = zapisDenik(model, form);
    if (stored < 0) return u8("Záznam se nepodařilo uložit");
    if (id) *id = stored;
    // A new contact shows in the address book; a payment changes its invoice's paid state.
    model.fireUpdated(novyKontakt || model.isDenikUhrada(stored) ? NAV_ALL : NAV_DENIK);
    return wxString();
}

Castky calculateValues(Castky castky, ZmenaCastky zmena) {
    if (zmena == ZmenaCastky::CASTKA) {
        castky.castkacizi = castky.kurz == 0 ? 0.0 : castky.castka / castky.kurz;
    } else {
        castky.castka = castky.kurz * castky.castkacizi;
    }
    return castky;
}

wxString castkaCiziLabel(DbModel& model, int menaid) {
    const wxString kod = menaid == HOME_MENA ? wxString() : model.kodMena(menaid);
    return kod.empty() ? u8("Částka v cizí měně") : u8("Částka v ") + kod;
}

bool ulozenyKurz(DbModel& model, int menaid, const wxDateTime& datum, double* kurz) {
    if (menaid == HOME_MENA || !datum.IsValid()) return false;
    const wxString kod = model.kodMena(menaid);
    if (kod.empty() || !model.hasKurz(kod, datum)) return false;
    const Kurz k = model.getKurz(kod, datum);
    if (!k.isValid()) return false;
    *kurz = k.hodnota();
    return true;
}

bool stahnoutKurz(DbModel& model, int menaid, const wxDateTime& datum, double* kurz) {
    if (ulozenyKurz(model, menaid, datum, kurz)) return true;
    if (menaid == HOME_MENA || !datum.IsValid()) return false;
    const wxString kod = model.kodMena(menaid);
    if (kod.empty() || !lxutils::kurzyDownload(datum)) return false;
    const Kurz k = model.getKurz(kod, datum);
    if (!k.isValid()) return false;
    *kurz = k.hodnota();
    return true;
}

wxArrayString pausalHodnoty() {
    wxArrayString hodnoty;
    for (const char* h : {"80", "60", "40", "30"}) hodnoty.Add(h);
    return hodnoty;
}

bool parsePausal(const wxString& text, int* pausal) {
    long value = 0;
    if (!trimmed(text).ToLong(&value, 10) || value < 1 || value > 100) return false;
    *pausal = static_cast<int>(value);
    return true;
}

wxString zkratkaValidation(DbModel& model, Ciselnik ciselnik, const wxString& zkratka, int id) {
    if (trimmed(zkratka).empty()) return u8("Zkratka nemůže být prázdná");
    const char* table = ciselnik == Ciselnik::POKLADNA ? "pokladna"
                        : ciselnik == Ciselnik::BANKA  ? "banka"
                                                       : "predkontace";
    if (sqlvalue::exists(model.db(), wxString::Format("SELECT count(*) FROM %s WHERE zkratka=? AND id<>?", table),
                         zkratka, id)) {
        return wxString::Format(u8("Zkratka '%s' už existuje\nZvolte jinou"), zkratka);
    }
    return wxString();
}

wxString spocitatIban(const wxString& cisloUctu, const wxString& kodBanky, wxString* iban) {
    iban->clear();
    const wxString cislo = trimmed(cisloUctu);
    const wxString kod = trimmed(kodBanky);
    if (kod.empty()) return u8("Kód banky nemůže být prázdný");
    if (cislo.empty()) return u8("Číslo účtu nemůže být prázdné");
    if (!lxutils::isCzechAccountValid(cislo)) return wxString::Format(u8("Číslo účtu %s není platné"), cislo);
    *iban = lxutils::ibanFromUcet(cislo, kod);
    if (iban->empty()) return wxString::Format(u8("Kód banky %s není platný"), kod);
    return wxString();
}
