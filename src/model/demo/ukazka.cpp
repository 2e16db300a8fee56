// Booking the demo plan through the form rules of the dialogs, in the order a user would type
// it: the company and its registers, the previous year, then the current one with its VAT
// filings.
#include "ukazka.h"

#include <wx/filename.h>

#include <functional>
#include <map>

#include "companyfiles.h"
#include "dbmodel.h"
#include "denikform.h"
#include "dph/dphdp3fill.h"
#include "dph/dphkh1fill.h"
#include "fakturace/dokladform.h"
#include "fakturace/polozkaform.h"
#include "jizdy/jizdy.h"
#include "lxsettings.h"
#include "lxutils.h"
#include "majetek/majetekform.h"
#include "majetek/odpisy.h"
#include "sklad/ocenovani.h"
#include "sklad/skladform.h"

namespace ukazka {

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

// One booking step: an empty text is success, anything else the reason it failed.
class Zapis {
 public:
    Zapis(DbModel& model, const Plan& plan) : m_model(model), m_plan(plan) {}

    wxString firma();
    wxString registry();
    wxString kontakty();
    wxString sklad();
    wxString rok(const Rok& rok);
    wxString majetek();
    wxString jizdy();
    wxString podani();

 private:
    wxString pohyb(const Pohyb& p);
    wxString doklad(const Doklad& d);
    wxString platba(const DokladForm& form, const Platba& p);
    wxString pohybZasoby(const PohybZasoby& p);

    DbModel& m_model;
    const Plan& m_plan;
    std::vector<int> m_zasoby;  // stock item ids by their index in the plan
};

wxString Zapis::firma() {
    const Plan& p = m_plan;
    // As the new-company wizard stores it: the address first, then the company row.
    if (!m_model.addAdresa(Adresa(1, p.ulice, p.cp, p.misto, p.psc, p.zeme))) return u8("Adresu firmy nelze uložit");
    const Firma firma(p.nazev, p.ic, p.dic,
                      u8("Společnost zapsaná v obchodním rejstříku u Městského soudu v Praze, "
                         "oddíl C, vložka 123456"),
                      true, false, p.telefon, p.email, p.www, wxString(), wxString(), 1);
    if (!m_model.setFirma(firma)) return u8("Údaje firmy nelze uložit");
    if (!m_model.addObdobi(Obdobi(p.rok, true))) return u8("Období nelze uložit");
    m_model.fillData();

    // The taxpayer data of the VAT filings: a legal person filing by its business name.
    Priznani pr = m_model.priznani();
    pr.setUlice(p.ulice);
    long cp = 0;
    p.cp.ToLong(&cp);
    pr.setC_pop(static_cast<int>(cp));
    pr.setNaz_obce(u8("Praha"));
    pr.setPsc(p.psc);
    pr.setDic(p.dic);
    pr.setEmail(p.email);
    pr.setC_telef("222333444");
    pr.setC_ufo(451);
    pr.setC_pracufo(2001);
    pr.setC_okec(620100);
    pr.setOpr_jmeno(u8("Eva"));
    pr.setOpr_prijmeni(u8("Malá"));
    pr.setOpr_postaveni(u8("jednatelka"));
    if (!m_model.setPriznani(pr)) return u8("Údaje pro přiznání nelze uložit");
    return wxString();
}

wxString Zapis::registry() {
    const Plan& p = m_plan;
    Banka banka = m_model.getBanka(p.banka);
    if (!banka.isValid()) return wxString::Format(u8("Bankovní účet %s neexistuje"), p.banka);
    wxString iban;
    const wxString chyba = spocitatIban(p.cisloUctu, p.kodBanky, &iban);
    if (!chyba.empty()) return chyba;
    banka.setPopis(u8("Běžný účet"));
    banka.setCislouctu(p.cisloUctu);
    banka.setKodbanky(p.kodBanky);
    banka.setIban(iban);
    banka.setBic(m_model.bicByKod(p.kodBanky));
    if (!m_model.editBanka(banka)) return u8("Bankovní účet nelze uložit");

    const wxString zprava = zkratkaValidation(m_model, Ciselnik::POKLADNA, p.pokladnaEur, -1);
    if (!zprava.empty()) return zprava;
    const int eur = 2;  // the seeded euro
    if (!m_model.hasMena("EUR") ||
        !m_model.addPokladna(Pokladna(m_model.getLastId("pokladna"), p.pokladnaEur, u8("Pokladna EUR"), eur)))
        return u8("Pokladnu nelze uložit");
    return wxString();
}

wxString Zapis::kontakty() {
    for (const Kontakt& k : m_plan.kontakty) {
        const ::Kontakt kontakt(-1, k.nazev, wxString(), k.ic, k.dic, k.email, true, -1);
        if (m_model.addKontaktSAdresou(kontakt, Adresa(-1, k.ulice, k.cp, k.misto, k.psc, k.zeme)) < 0)
            return u8("Kontakt nelze uložit: ") + k.nazev;
    }
    return wxString();
}

wxString Zapis::sklad() {
    Sklad sklad(m_model.getLastId("sklad"), m_plan.sklad, u8("Sklad kanceláře"), ocenovani::FIFO);
    const wxString chyba = skladform::skladValidation(m_model, sklad);
    if (!chyba.empty()) return chyba;
    if (!m_model.addSklad(sklad)) return u8("Sklad nelze uložit");
    for (const Zasoba& z : m_plan.zasoby) {
        ::Zasoba zasoba;
        zasoba.setId(-1);
        zasoba.setNazev(z.nazev);
        zasoba.setMj(z.mj);
        zasoba.setOcenovani(ocenovani::FIFO);
        zasoba.setSkladid(sklad.id());
        zasoba.setBezdph(true);
        zasoba.setDph(21);
        const wxString zprava = skladform::zasobaValidation(zasoba);
        if (!zprava.empty()) return zprava;
        const int id = skladform::ulozitZasobu(m_model, zasoba);
        if (id < 0) return u8("Zásobu nelze uložit: ") + z.nazev;
        m_zasoby.push_back(id);
    }
    return wxString();
}

wxString Zapis::pohyb(const Pohyb& p) {
    DenikForm form;
    form.prijem = p.prijem;
    form.banka = p.banka;
    form.datum = p.datum;
    form.popis = p.popis;
    form.registr = p.registr;
    form.predkontace = p.predkontace;
    form.castka = p.castka;
    form.menaid = p.menaid;
    form.castkacizi = p.castkacizi;
    form.kurz = p.kurz;
    form.protistrana = p.protistrana;
    // One bank statement a month.
    form.vypis = p.banka ? p.datum.GetMonth() + 1 : 0;
    const wxString chyba = ulozitDenik(m_model, form);
    return chyba.empty() ? chyba : p.popis + ": " + chyba;
}

wxString Zapis::platba(const DokladForm& form, const Platba& p) {
    const PlacenyDoklad placeny = form.faktura() ? placenyFaktura(m_model, form.id) : placenyZavPoh(m_model, form.id);
    UhradaForm uhrada = novaUhrada(m_model, placeny);
    uhrada.banka = p.banka;
    uhrada.registr = p.registr;
    uhrada.vypis = p.banka ? p.datum.GetMonth() + 1 : 0;
    uhrada.datum = p.datum;
    uhrada.kurz = placeny.menaid == 1 ? 1.0 : p.kurz;
    uhrada.castkacizi = placeny.menaid == 1 ? 0.0 : p.castka;
    uhrada.castka = p.castka * uhrada.kurz;
    return ulozitUhradu(m_model, placeny, uhrada);
}

wxString Zapis::doklad(const Doklad& d) {
    DokladForm form = novyDoklad(m_model, d.druh);
    if (form.id < 0) return u8("Doklad nelze založit: ") + d.popis;
    form.vystaveni = form.duzp = form.dppd = d.vystaveni;
    form.splatnost = d.splatnost;
    form.popis = d.popis;
    form.protistrana = d.protistrana;
    form.predkontace = d.predkontace;
    form.dphdruh = d.dphdruh;
    form.menaid = d.menaid;
    form.kurz = d.kurz;
    form.registr = d.registr;
    for (const auto& u : m_model.fauhrady())
        if (u->pokladnou() != d.prevodem) {
            form.uhradaid = u->id();
            break;
        }
    for (const Polozka& p : d.polozky) {
        PolozkaForm polozka;
        polozka.popis = p.popis;
        polozka.mj = p.mj;
        polozka.pocet = p.pocet;
        polozka.cenamj = p.cenamj;
        polozka.sazba = p.sazba;
        polozka.bezdph = true;
        polozka.zasobaid = p.zasoba >= 0 && p.zasoba < static_cast<int>(m_zasoby.size()) ? m_zasoby[p.zasoba] : -1;
        const wxString chyba = ulozitPolozku(m_model, form, polozka);
        if (!chyba.empty()) return d.popis + ": " + chyba;
    }
    wxString chyba = ulozitDoklad(m_model, form);
    if (!chyba.empty()) return d.popis + ": " + chyba;
    for (const Platba& p : d.platby) {
        chyba = platba(form, p);
        if (!chyba.empty()) return d.popis + ": " + chyba;
    }
    return wxString();
}

wxString Zapis::pohybZasoby(const PohybZasoby& p) {
    skladform::PohybForm form;
    form.zasobaid = m_zasoby.at(p.zasoba);
    form.prijemka = p.prijemka;
    form.datum = p.datum;
    form.pocet = p.pocet;
    form.cenamj = p.cenamj;
    return skladform::ulozitPohyb(m_model, form);
}

wxString Zapis::rok(const Rok& rok) {
    // As "Přidat období" and "Změnit období" switch the year the forms book into.
    if (!m_model.setCurrentRok(rok.rok)) return wxString::Format(u8("Období %d nelze založit"), rok.rok);
    m_model.setDefaultRadaCislo();
    // The year's records go in as one write: quicker, and nothing half-made if one fails.
    DbModel::WriteTransaction tx(m_model.db());
    // Entries and documents in date order, as they would have been typed.
    std::multimap<wxDateTime, std::function<wxString()>> kroky;
    for (const Pohyb& p : rok.pohyby) kroky.emplace(p.datum, [this, &p] { return pohyb(p); });
    for (const Doklad& d : rok.doklady) kroky.emplace(d.vystaveni, [this, &d] { return doklad(d); });
    for (const PohybZasoby& p : rok.sklad) kroky.emplace(p.datum, [this, &p] { return pohybZasoby(p); });
    for (const auto& krok : kroky) {
        const wxString chyba = krok.second();
        if (!chyba.empty()) return chyba;
    }
    tx.commit();
    return wxString();
}

wxString Zapis::majetek() {
    for (const Majetek& m : m_plan.majetek) {
        MajetekForm form;
        form.cislo = m_model.getCisloDokladu("MA");
        form.nazev = m.nazev;
        form.popis = m.popis;
        form.typ = 1;
        form.porizen = m.porizen;
        form.cena = m.cena;
        form.odpis = m.odpis;
        form.skupinaid = m.skupina;
        const wxString chyba = majetekValidation(m_model, form, -1);
        if (!chyba.empty()) return m.nazev + ": " + chyba;
        if (ulozitMajetek(m_model, form, -1) < 0) return u8("Majetek nelze uložit: ") + m.nazev;
    }
    return m_model.calculateOdpisy() ? wxString() : u8("Odpisy nelze spočítat");
}

wxString Zapis::jizdy() {
    Ridic ridic(m_model.getLastId("ridic"), m_plan.ridic);
    if (!m_model.addRidic(ridic)) return u8("Řidiče nelze uložit");
    Vozidlo vozidlo;
    vozidlo.setId(m_model.getLastId("vozidlo"));
    vozidlo.setRz(m_plan.vozidloRz);
    vozidlo.setJmeno(m_plan.vozidloJmeno);
    vozidlo.setDruhvozidlaid(1);
    vozidlo.setSpotreba(m_plan.spotreba);
    vozidlo.setSoukrome(false);
    vozidlo.setPhmid(3);
    vozidlo.setValid(true);
    if (!m_model.addVozidlo(vozidlo)) return u8("Vozidlo nelze uložit");
    for (const Jizda& j : m_plan.jizdy) {
        ::Jizda jizda;
        jizda.setId(m_model.getLastId("jizda"));
        jizda.setStartcas(j.start);
        jizda.setEndcas(j.konec);
        jizda.setStartkm(j.startkm);
        jizda.setEndkm(j.endkm);
        jizda.setCesta(j.cesta);
        jizda.setUcel(j.ucel);
        jizda.setVozidloid(vozidlo.id());
        jizda.setRidicid(ridic.id());
        jizda.setValid(true);
        const wxString chyba = jizdy::jizdaValidation(jizda);
        if (!chyba.empty()) return j.cesta + ": " + chyba;
        if (!m_model.addJizda(jizda)) return u8("Jízdu nelze uložit: ") + j.cesta;
    }
    return wxString();
}

// The VAT return and the control statement of each filed month, computed as their wizards
// compute them, checked against the official schema and saved.
wxString Zapis::podani() {
    for (int mesic : m_plan.podaneMesice) {
        const DphObdobi obdobi = DphObdobi::zMesice(m_plan.rok, mesic);
        const wxDateTime podano = obdobi.doDne + wxDateSpan::Days(20);

        Dp3Zadani z;
        z.obdobi = obdobi;
        z.forma = Dphdp3::RADNE;
        z.datumPodani = podano;
        Dphdp3 dp3;
        wxString chyba;
        if (!dp3::fillData(m_model, dp3, z, &chyba)) return chyba;
        chyba = dp3.validate();
        if (!chyba.empty()) return obdobi.text() + ": " + chyba;
        if (m_model.ulozitPodani(dp3::ulozene(dp3, z)) == 0) return u8("Přiznání nelze uložit: ") + obdobi.text();

        Kh1Zadani k;
        k.obdobi = obdobi;
        k.forma = Dphkh1::RADNE;
        k.datumPodani = podano;
        Dphkh1 kh;
        kh1::fillData(m_model, kh, k);
        if (kh.isNulove()) continue;
        chyba = kh.validate();
        if (!chyba.empty()) return obdobi.text() + ": " + chyba;
        if (m_model.ulozitPodani(kh1::ulozene(kh, k)) == 0)
            return u8("Kontrolní hlášení nelze uložit: ") + obdobi.text();
    }
    return wxString();
}

}  // namespace

bool vytvor(DbModel& model, const wxString& path, int rok, wxString* chyba) {
    auto fail = [chyba](const wxString& text) {
        if (chyba) *chyba = text;
        return false;
    };
    if (wxFileName::Exists(path, wxFILE_EXISTS_ANY | wxFILE_EXISTS_NO_FOLLOW))
        return fail(u8("Soubor už existuje: ") + path);
    if (!model.newDatabase(path)) return fail(model.openError());

    const Plan p = plan(rok);
    Zapis zapis(model, p);
    wxString text = zapis.firma();
    if (text.empty()) text = zapis.registry();
    if (text.empty()) text = zapis.kontakty();
    if (text.empty()) text = zapis.sklad();
    for (const Rok& r : p.roky)
        if (text.empty()) text = zapis.rok(r);
    if (text.empty()) text = zapis.majetek();
    if (text.empty()) text = zapis.jizdy();
    if (text.empty()) text = zapis.podani();
    if (!text.empty()) {
        model.closeDatabase();
        wxRemoveFile(path);
        return fail(u8("Ukázkovou firmu se nepodařilo vytvořit:\n") + text);
    }
    model.fillData();
    return true;
}

bool vytvorFirmu(DbModel& model, int rok, wxString* chyba) {
    const wxString error = companyfiles::firmaError(nazev(), plan(rok).ic);
    if (!error.empty()) {
        if (chyba) *chyba = error;
        return false;
    }
    const wxString dbname = lxutils::getUniqueDbName();
    if (dbname.empty()) {
        if (chyba) *chyba = u8("Nepodařilo se vytvořit databázi nové firmy");
        return false;
    }
    model.closeDatabase();
    if (!vytvor(model, lxutils::dataDir() + "/" + dbname, rok, chyba)) return false;
    lxSettings* settings = lxSettings::instance();
    const Firma& firma = model.firma();
    settings->addDbnamePair(dbname, companyfiles::firmaKey(firma.nazev(), firma.ic()));
    settings->setDbname(dbname);
    settings->setSplatnost(model.getSplatnost(rok));
    return true;
}

}  // namespace ukazka
