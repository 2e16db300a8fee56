// The contents of the demo company: two years of a small IT and office-supplies business.
// Pure data; ukazka.cpp books it.
#include "ukazka.h"

namespace ukazka {

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

wxDateTime den(int rok, int mesic, int den, int hodina = 0, int minuta = 0) {
    return wxDateTime(static_cast<wxDateTime::wxDateTime_t>(den), static_cast<wxDateTime::Month>(mesic - 1), rok,
                      static_cast<wxDateTime::wxDateTime_t>(hodina), static_cast<wxDateTime::wxDateTime_t>(minuta));
}

// The basic VAT rate of the documents.
constexpr int ZAKLADNI = 21;

// Stock items by their index in Plan::zasoby.
constexpr int TONER = 0;
constexpr int PAPIR = 1;

const char* const POK = "POK1";
const char* const POK_EUR = "POK2";
const char* const BANKA = "BU1";

const char* const NOVAK = "Novák stavby s.r.o.";
const char* const PEKARNA = "Pražská pekárna a.s.";
const char* const DVORAK = "Jan Dvořák";
const char* const MULLER = "Müller GmbH";
const char* const SERVIS = "Kancelář Servis s.r.o.";
const char* const REALITY = "Realitní správa s.r.o.";
const char* const POJISTOVNA = "Pojišťovna Jistota a.s.";
const char* const TELEKOM = "Telekomunikace CZ a.s.";

Pohyb pohyb(const wxDateTime& datum, bool prijem, const char* registr, const char* predkontace, const char* popis,
            double castka, const char* protistrana = "") {
    Pohyb p;
    p.datum = datum;
    p.prijem = prijem;
    p.registr = registr;
    p.banka = p.registr == BANKA;
    p.predkontace = predkontace;
    p.popis = u8(popis);
    p.castka = castka;
    p.protistrana = u8(protistrana);
    return p;
}

// A cash entry of the EUR register: the home amount follows from the foreign one and the rate.
Pohyb pohybEur(const wxDateTime& datum, bool prijem, const char* predkontace, const char* popis, double eur,
               double kurz, const char* protistrana = "") {
    Pohyb p = pohyb(datum, prijem, POK_EUR, predkontace, popis, eur * kurz, protistrana);
    p.menaid = 2;
    p.castkacizi = eur;
    p.kurz = kurz;
    return p;
}

Doklad doklad(DruhDokladu druh, const wxDateTime& vystaveni, int dnuSplatnosti, const char* protistrana,
              const char* popis, const char* predkontace, const char* dphdruh, std::vector<Polozka> polozky) {
    Doklad d;
    d.druh = druh;
    d.vystaveni = vystaveni;
    d.splatnost = vystaveni + wxDateSpan::Days(dnuSplatnosti);
    d.protistrana = u8(protistrana);
    d.popis = u8(popis);
    d.predkontace = predkontace;
    d.dphdruh = dphdruh;
    d.registr = BANKA;
    d.polozky = std::move(polozky);
    return d;
}

Polozka polozka(const char* popis, const char* mj, double pocet, double cenamj, int sazba, int zasoba = -1) {
    return Polozka{u8(popis), u8(mj), pocet, cenamj, sazba, zasoba};
}

Platba banka(const wxDateTime& datum, double castka, double kurz = 1) {
    return Platba{datum, true, BANKA, castka, kurz};
}
Platba hotove(const wxDateTime& datum, double castka) { return Platba{datum, false, POK, castka, 1}; }

Kontakt kontakt(const char* nazev, const char* ic, const char* dic, const char* email, const char* ulice,
                const char* cp, const char* misto, const char* psc, const char* zeme = "Česká republika") {
    return Kontakt{u8(nazev), ic, dic, email, u8(ulice), cp, u8(misto), psc, u8(zeme)};
}

Rok predchoziRok(int r) {
    using D = DruhDokladu;
    Rok rok;
    rok.rok = r;
    rok.pohyby = {
        pohyb(den(r, 2, 1), true, POK, "P101", "Vklad do pokladny", 50000),
        pohyb(den(r, 2, 1), true, BANKA, "P101", "Vklad na bankovní účet", 800000),
        pohyb(den(r, 3, 15), false, BANKA, "V101", "Nákup osobního automobilu", 450000),
        pohyb(den(r, 3, 15), false, POK, "V008", "Kancelářské potřeby", 1815, SERVIS),
        pohybEur(den(r, 5, 10), true, "P003", "Konzultace pro zahraničního klienta", 500, 24.50, MULLER),
        pohyb(den(r, 7, 1), false, BANKA, "V101", "Nákup notebooku", 60000),
        pohyb(den(r, 12, 31), false, BANKA, "V009", "Bankovní poplatky za rok", 1440),
    };

    Doklad materialy = doklad(D::FAKTURA_PRIJATA, den(r, 9, 1), 14, SERVIS, "Nákup tonerů a papíru", "V002", "R40,41",
                              {polozka("Toner HP 305A", "ks", 20, 1500, ZAKLADNI, TONER),
                               polozka("Papír A4, balík 500 listů", "bal", 100, 95, ZAKLADNI, PAPIR)});
    materialy.platby = {banka(den(r, 9, 10), 47795)};

    Doklad nabytek = doklad(D::FAKTURA_PRIJATA, den(r, 10, 10), 14, SERVIS, "Kancelářský nábytek", "V008", "R40,41",
                            {polozka("Kancelářský stůl a židle", "ks", 1, 18000, ZAKLADNI)});
    nabytek.platby = {banka(den(r, 10, 20), 21780)};

    Doklad vyvoj = doklad(D::FAKTURA_VYDANA, den(r, 11, 5), 14, NOVAK, "Vývoj webové aplikace", "P002", "R1,2",
                          {polozka("Programování webové aplikace", "hod", 40, 1200, ZAKLADNI)});
    vyvoj.platby = {banka(den(r, 11, 18), 58080)};

    rok.doklady = {materialy, nabytek, vyvoj};
    return rok;
}

Rok aktualniRok(int r) {
    const int sazba = ZAKLADNI;
    using D = DruhDokladu;
    Rok rok;
    rok.rok = r;
    rok.pohyby = {
        pohyb(den(r, 1, 15), false, BANKA, "V004", "Mzdy za prosinec", 32000),
        pohyb(den(r, 1, 31), false, POK, "V008", "Poštovné a kolky", 450),
        pohyb(den(r, 2, 10), true, POK, "P003", "Prodej drobného materiálu", 1200, DVORAK),
        pohybEur(den(r, 2, 20), false, "V008", "Parkovné Vídeň", 40, 25.10),
        pohyb(den(r, 3, 5), true, BANKA, "P103", "Vrácený přeplatek pojistného", 2500, POJISTOVNA),
        pohyb(den(r, 3, 31), false, POK, "V105", "Osobní výběr", 5000),
    };

    Doklad najem = doklad(D::FAKTURA_PRIJATA, den(r, 1, 8), 12, REALITY, "Nájem kanceláře – leden", "V008", "R40,41",
                          {polozka("Nájem kanceláře", "měs", 1, 15000, sazba)});
    najem.platby = {banka(den(r, 1, 15), 18150)};

    // Paid in full: the total with VAT of both lines.
    Doklad udrzba = doklad(D::FAKTURA_VYDANA, den(r, 1, 12), 14, NOVAK, "Údržba webu – leden", "P002", "R1,2",
                           {polozka("Údržba webu", "hod", 10, 1200, sazba), polozka("Hosting", "měs", 1, 500, sazba)});
    udrzba.platby = {banka(den(r, 1, 24), 15125)};

    // Lines taken from stock; paid in part.
    Doklad tonery = doklad(D::FAKTURA_VYDANA, den(r, 2, 3), 14, DVORAK, "Dodávka tonerů a papíru", "P001", "R1,2",
                           {polozka("Toner HP 305A", "ks", 4, 2400, sazba, TONER),
                            polozka("Papír A4, balík 500 listů", "bal", 10, 150, sazba, PAPIR)});
    tonery.platby = {banka(den(r, 2, 20), 6000)};

    Doklad nakupTonery = doklad(D::FAKTURA_PRIJATA, den(r, 2, 5), 14, SERVIS, "Nákup tonerů", "V002", "R40,41",
                                {polozka("Toner HP 305A", "ks", 10, 1600, sazba, TONER)});

    // Invoiced in euros to a customer in another member state, paid at another day's rate.
    Doklad sluzbyEu = doklad(D::FAKTURA_VYDANA, den(r, 2, 15), 14, MULLER, "Software services – February", "P002",
                             "R21", {polozka("Vývoj softwaru", "hod", 20, 100, 0)});
    sluzbyEu.menaid = 2;
    sluzbyEu.kurz = 25.20;
    sluzbyEu.platby = {banka(den(r, 3, 1), 2000, 25.05)};

    // Left unpaid after its due date.
    Doklad konzultace = doklad(D::FAKTURA_VYDANA, den(r, 3, 2), 14, PEKARNA, "Konzultace – březen", "P002", "R1,2",
                               {polozka("Konzultace", "hod", 8, 1500, sazba)});

    Doklad telefon = doklad(D::FAKTURA_PRIJATA, den(r, 3, 3), 14, TELEKOM, "Telefon a internet – únor", "V008",
                            "R40,41", {polozka("Služby elektronických komunikací", "měs", 1, 1200, sazba)});
    telefon.prevodem = false;
    telefon.registr = POK;
    telefon.platby = {hotove(den(r, 3, 3), 1452)};

    Doklad cestovne = doklad(D::POHLEDAVKA, den(r, 1, 20), 100, NOVAK, "Přefakturace cestovného", "P003", "R1,2",
                             {polozka("Cestovné", "ks", 1, 3000, sazba)});

    Doklad pojisteni = doklad(D::ZAVAZEK, den(r, 2, 25), 13, POJISTOVNA, "Pojištění vozidla", "V008", "R0P",
                              {polozka("Havarijní pojištění", "rok", 1, 8400, 0)});
    pojisteni.platby = {banka(den(r, 3, 10), 4200)};

    rok.doklady = {najem, udrzba, tonery, nakupTonery, sluzbyEu, konzultace, telefon, cestovne, pojisteni};
    rok.sklad = {PohybZasoby{PAPIR, true, den(r, 1, 10, 9), 50, 98},
                 PohybZasoby{PAPIR, false, den(r, 3, 20, 10), 5, 0}};
    return rok;
}

}  // namespace

wxString nazev() { return u8("Ukázková firma s.r.o."); }

Plan plan(int rok) {
    Plan p;
    p.rok = rok;
    p.nazev = nazev();
    p.ic = "26082942";
    p.dic = "CZ26082942";
    p.telefon = "+420 222 333 444";
    p.email = "info@ukazkova-firma.cz";
    p.www = "www.ukazkova-firma.cz";
    p.ulice = u8("Dlouhá");
    p.cp = "12";
    p.misto = "Praha 1";
    p.psc = "110 00";
    p.zeme = u8("Česká republika");
    p.pokladnaEur = POK_EUR;
    p.banka = BANKA;
    p.cisloUctu = "2801234578";
    p.kodBanky = "2010";
    p.kontakty = {
        kontakt(NOVAK, "45678901", "CZ45678901", "objednavky@novakstavby.cz", "Cejl", "45", "Brno", "602 00"),
        kontakt(PEKARNA, "61949213", "CZ61949213", "ucetni@prazskapekarna.cz", "Vinohradská", "120", "Praha 2",
                "120 00"),
        kontakt(DVORAK, "", "", "jan.dvorak@email.cz", "Husova", "8", "Kolín", "280 02"),
        kontakt(MULLER, "", "DE123456789", "office@mueller-gmbh.de", "Friedrichstraße", "50", "Berlin", "10117",
                "Deutschland"),
        kontakt(SERVIS, "27182819", "CZ27182819", "prodej@kancelarservis.cz", "Nádražní", "30", "Ostrava", "702 00"),
        kontakt(REALITY, "25053213", "CZ25053213", "najmy@realitnisprava.cz", "Národní", "5", "Praha 1", "110 00"),
        kontakt(POJISTOVNA, "63310015", "", "klient@jistota.cz", "Bělehradská", "77", "Praha 2", "120 00"),
        kontakt(TELEKOM, "60470933", "CZ60470933", "fakturace@telekom-cz.cz", "Olšanská", "1", "Praha 3", "130 00"),
    };
    p.sklad = u8("Hlavní sklad");
    p.zasoby = {{u8("Toner HP 305A"), "ks"}, {u8("Papír A4, balík 500 listů"), "bal"}};
    p.majetek = {
        {u8("Osobní automobil Škoda Octavia"), u8("Služební vozidlo 1AB 2345"), den(rok - 1, 3, 15), 450000, 2, 1},
        {u8("Notebook Lenovo ThinkPad"), u8("Pracovní počítač"), den(rok - 1, 7, 1), 60000, 1, 1},
    };
    p.vozidloRz = "1AB 2345";
    p.vozidloJmeno = u8("Škoda Octavia Combi");
    p.spotreba = 5.8;
    p.ridic = u8("Petr Svoboda");
    p.jizdy = {
        {den(rok, 1, 16, 8), den(rok, 1, 16, 11, 30), 12500, 12632, u8("Praha – Kolín – Praha"),
         u8("Jednání se zákazníkem")},
        {den(rok, 2, 3, 9), den(rok, 2, 3, 12), 12632, 12764, u8("Praha – Kolín – Praha"), u8("Dodávka zboží")},
        {den(rok, 3, 2, 7, 30), den(rok, 3, 2, 17), 12764, 13186, u8("Praha – Brno – Praha"),
         u8("Konzultace u zákazníka")},
        {den(rok, 3, 20, 13), den(rok, 3, 20, 14, 30), 13186, 13232, u8("Praha – Beroun – Praha"),
         u8("Nákup materiálu")},
    };
    p.roky = {predchoziRok(rok - 1), aktualniRok(rok)};
    p.podaneMesice = {1, 2, 3};
    return p;
}

}  // namespace ukazka
