// What the payment dialog (UhradaDialog) decides without a window: which document is paid,
// the checks of its register or account, and writing the payment: one journal entry for a
// document without VAT, or a base entry and a VAT entry for a VAT payer's document, each
// linked to the document by a payment row, all in one transaction.
#pragma once

#include <wx/datetime.h>
#include <wx/string.h>

#include <vector>

#include "dbmodel.h"

// The four kinds of document that are paid.
enum class DruhDokladu { FAKTURA_VYDANA, FAKTURA_PRIJATA, POHLEDAVKA, ZAVAZEK };

// A document as a payment sees it: kind, id, number, total and VAT in its currency, the
// currency, its pre-posting, whether made out as a VAT payer's, its register or account and
// its counterparty.
struct PlacenyDoklad {
    DruhDokladu druh = DruhDokladu::FAKTURA_VYDANA;
    int id = -1;
    wxString cislo;
    wxString vs;
    double celkem = 0;
    double dph = 0;
    double uhrazeno = 0;
    int menaid = 1;
    double kurz = 1;
    int predkontaceid = -1;
    bool platce = false;
    int uhradaid = -1;
    int pokladnaid = -1;
    int bankaid = -1;
    int protistranaid = 0;
    int pausal = 0;

    bool isValid() const { return id > 0; }
    // Income (issued invoices and receivables) or expense.
    bool prijem() const { return druh == DruhDokladu::FAKTURA_VYDANA || druh == DruhDokladu::POHLEDAVKA; }
    bool faktura() const { return druh == DruhDokladu::FAKTURA_VYDANA || druh == DruhDokladu::FAKTURA_PRIJATA; }
    double zbyva() const { return celkem - uhrazeno; }
};

PlacenyDoklad placenyFaktura(DbModel& model, int id);
PlacenyDoklad placenyZavPoh(DbModel& model, int id);

// "Úhrada faktury vydané %s", "Úhrada faktury přijaté %s", "Úhrada pohledávky %s",
// "Úhrada závazku %s" with the number; and the dialog's title ("Úhrada faktury", …).
wxString popisUhrady(const PlacenyDoklad& doklad);
wxString titulekUhrady(const PlacenyDoklad& doklad);
// "Úhrady faktury %s", "Úhrady závazku %s", "Úhrady pohledávky %s": the list of payments.
wxString titulekUhrad(const PlacenyDoklad& doklad);

// The fields of the payment dialog.
struct UhradaForm {
    bool banka = false;      // paid through a bank account (true) or a cash register
    wxString registr;        // the code typed in "Pokladna" or "Bankovní účet"
    int vypis = 0;           // "Číslo výpisu"
    wxDateTime datum;        // the day of the payment
    double castka = 0;       // "Částka v Kč"
    double castkacizi = 0;   // "Částka v EUR" for a document in a foreign currency
    double kurz = 1;
    int pausal = 0;          // "Paušální výdaj %", income of a flat-rate company
    wxString reference;      // the entries' reference; empty takes the document's number
};

// The field a failed check names.
enum class UhradaPole { ZADNE, REGISTR, DATUM, CASTKA };

// The form a dialog opens with: the document's register or account (its payment form decides
// which), the working date, the open amount and the document's rate.
UhradaForm novaUhrada(DbModel& model, const PlacenyDoklad& doklad);

// The first failed check as the message to show under "Informace": "Pokladna nemůže být
// prázdná", "Pokladna %s neexistuje", "Bankovní účet nemůže být prázdný", "Bankovní účet %s
// neexistuje"; then the date within the accounting year and an amount that is not zero.
wxString uhradaValidation(DbModel& model, const UhradaForm& form, UhradaPole* pole = nullptr);

// Whether a payment of the document is split into base and VAT: the company is a VAT payer
// and the document was made out as a payer's. A non-payer's books take the whole amount,
// VAT included, as income or expense.
bool platceUhrada(DbModel& model, const PlacenyDoklad& doklad);

// Writes a payment that passed uhradaValidation: `rada` overrides the series ("PP" for a
// payment written from the document dialog); empty takes the register's or account's series
// by direction. Journal entries, payment rows and series advances go in one transaction.
// Returns the ids of the written entries (empty when nothing was written).
std::vector<int> writeUhradaPlatce(DbModel& model, const PlacenyDoklad& doklad, const UhradaForm& form,
                                   const wxString& rada = wxString());
std::vector<int> writeUhradaNeplatce(DbModel& model, const PlacenyDoklad& doklad, const UhradaForm& form,
                                     const wxString& rada = wxString());
// Writes a payment that passed uhradaValidation by the right writer inside the caller's open
// transaction and without notifying, for imports that store many payments all or nothing.
// Returns the written entries; empty when a statement failed, and the caller then rolls back.
std::vector<int> zapisUhradu(DbModel& model, const PlacenyDoklad& doklad, const UhradaForm& form);
// Checks the form and writes the payment by the right writer; the message to show, empty on
// success. `denikIds` receives the written entries.
wxString ulozitUhradu(DbModel& model, const PlacenyDoklad& doklad, const UhradaForm& form,
                      std::vector<int>* denikIds = nullptr, UhradaPole* pole = nullptr);

// "Přidat úhradu" in the document dialog: the open amount of the document paid in cash
// through the document's register (or the first one) on the working date, in the cash
// series of its direction ("PP" income, "PV" expense).
wxString writeUhrada(DbModel& model, const PlacenyDoklad& doklad);
