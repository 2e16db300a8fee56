// The demo company "Ukázková firma s.r.o.": a VAT payer with two accounting years of records
// that show every book of the program filled. The records are made as a user makes them,
// through the same form rules the dialogs call, so the demo holds nothing a user could not
// have typed. Everything is fixed relative to the year asked for: the same year gives the
// same company, and the plan below says what it books, so that its balances can be
// recomputed without reading the file.
#pragma once

#include <wx/datetime.h>
#include <wx/string.h>

#include <vector>

#include "fakturace/uhradaform.h"

class DbModel;

namespace ukazka {

// A journal entry typed in the income/expense dialog.
struct Pohyb {
    wxDateTime datum;
    bool prijem = true;
    bool banka = false;
    wxString registr;      // cash register or bank account code
    wxString predkontace;  // pre-posting code
    wxString popis;
    wxString protistrana;
    double castka = 0;      // in CZK
    int menaid = 1;         // 1 CZK, 2 EUR
    double castkacizi = 0;  // the foreign amount of a EUR entry
    double kurz = 1;
};

// An item of a document: its price per unit is without VAT.
struct Polozka {
    wxString popis;
    wxString mj;
    double pocet = 1;
    double cenamj = 0;
    int sazba = 0;
    int zasoba = -1;  // index into Plan::zasoby of the stock item the line moves, -1 for none
};

// A payment of a document, in the document's currency.
struct Platba {
    wxDateTime datum;
    bool banka = true;
    wxString registr;
    double castka = 0;
    double kurz = 1;  // the rate of the day for a EUR document
};

// An invoice, receivable or liability with its items and payments.
struct Doklad {
    DruhDokladu druh = DruhDokladu::FAKTURA_VYDANA;
    wxString popis;
    wxString protistrana;
    wxString predkontace;
    wxString dphdruh;
    bool prevodem = true;  // paid by bank transfer, else in cash
    wxString registr;      // the register or account the document names
    wxDateTime vystaveni;  // also the tax dates
    wxDateTime splatnost;
    int menaid = 1;
    double kurz = 1;
    std::vector<Polozka> polozky;
    std::vector<Platba> platby;

    bool prijem() const { return druh == DruhDokladu::FAKTURA_VYDANA || druh == DruhDokladu::POHLEDAVKA; }
};

// A stock receipt or issue typed in the movement dialog.
struct PohybZasoby {
    int zasoba = -1;  // index into Plan::zasoby
    bool prijemka = true;
    wxDateTime datum;
    double pocet = 0;
    double cenamj = 0;  // receipts only
};

// What is booked in one accounting year.
struct Rok {
    int rok = 0;
    std::vector<Pohyb> pohyby;
    std::vector<Doklad> doklady;
    std::vector<PohybZasoby> sklad;
};

struct Kontakt {
    wxString nazev;
    wxString ic;
    wxString dic;
    wxString email;
    wxString ulice, cp, misto, psc, zeme;
};

struct Zasoba {
    wxString nazev;
    wxString mj;
};

struct Majetek {
    wxString nazev;
    wxString popis;
    wxDateTime porizen;
    double cena = 0;
    int skupina = 1;  // depreciation group id
    int odpis = 1;    // method (straight-line)
};

struct Jizda {
    wxDateTime start, konec;
    int startkm = 0, endkm = 0;
    wxString cesta, ucel;
};

struct Plan {
    int rok = 0;  // the current year; the year before is the previous one
    wxString nazev, ic, dic, telefon, email, www;
    wxString ulice, cp, misto, psc, zeme;
    wxString pokladnaEur;  // the code of the EUR cash register (POK1 is the CZK one)
    wxString banka;        // the bank account code (BU1)
    wxString cisloUctu, kodBanky;
    std::vector<Kontakt> kontakty;
    wxString sklad;
    std::vector<Zasoba> zasoby;
    std::vector<Majetek> majetek;
    wxString vozidloRz, vozidloJmeno, ridic;
    double spotreba = 0;
    std::vector<Jizda> jizdy;
    std::vector<Rok> roky;          // the previous year first, then the current one
    std::vector<int> podaneMesice;  // months of the current year with saved VAT filings
};

// The name of the demo company.
wxString nazev();

// What the demo books for the year `rok` (and the year before it).
Plan plan(int rok);

// Creates the demo company in a new file at `path` (an existing file is refused) and leaves it
// open in the model. False with the reason in `chyba` when something could not be stored;
// the file is then removed.
bool vytvor(DbModel& model, const wxString& path, int rok, wxString* chyba = nullptr);

// The demo as a new company of the program: a fresh file in the data directory, listed in the
// settings and made the open company, as the new-company wizard leaves its company.
bool vytvorFirmu(DbModel& model, int rok, wxString* chyba = nullptr);

}  // namespace ukazka
