// What the invoice dialog (FakturaDialog) and the receivable/liability dialog (ZavpohDialog)
// decide without a window: the row a new document gets when its dialog opens, undoing it on
// Cancel, the checks of OK in their order, the rounding line, whether an edit changed a paid
// document, and saving with a new counterparty, the total of the items, the stock dates and
// the series advance in one transaction.
#pragma once

#include <wx/datetime.h>
#include <wx/string.h>

#include "dbmodel.h"
#include "uhradaform.h"

// The fields of a document dialog. `druh` says which of the four kinds it is; the invoice's
// symbols and type are ignored for receivables and liabilities.
struct DokladForm {
    DruhDokladu druh = DruhDokladu::FAKTURA_VYDANA;
    int id = -1;          // the document's row (a new one is created when the dialog opens)
    bool novy = true;     // a new document (its series advances on OK) or an edited one
    int typid = 1;        // 1 "Faktura", 2 "Zálohová faktura"
    wxString cislo;
    wxString vs, ss, ks;
    wxString popis;
    wxString protistrana;  // a name not yet among the contacts becomes a new contact
    int uhradaid = -1;     // the payment form; its `pokladnou` decides register or account
    wxString registr;      // the code typed in "Pokladna" or "Bankovní účet"
    wxString predkontace;  // the code typed in "Předkontace"
    wxString dphdruh;      // the code of the VAT classification (VAT payers only)
    int menaid = 1;
    double kurz = 1;
    wxDateTime vystaveni, duzp, dppd, splatnost;
    bool platce = false;  // made out as a VAT payer's
    int pausal = 0;

    bool faktura() const { return druh == DruhDokladu::FAKTURA_VYDANA || druh == DruhDokladu::FAKTURA_PRIJATA; }
    bool prijem() const { return druh == DruhDokladu::FAKTURA_VYDANA || druh == DruhDokladu::POHLEDAVKA; }
};

// The field a failed check names.
enum class DokladPole { ZADNE, UHRADA, REGISTR, PREDKONTACE, DPHDRUH, VYSTAVENI, DUZP, DPPD, SPLATNOST, KURZ };

// The series of a document: "FV", "FP", "ZFV", "ZFP" by direction and type, "PO" / "ZA".
wxString dokladRada(DruhDokladu druh, int typid);

// Opens a new document: its row is stored at once (id = last id + 1, no change notice) so
// that items can refer to it, filled as a new document is: the next number of its series and
// the counter as variable symbol, the working date as issue and tax dates, the due date after
// the default number of days, the first payment form with the first register or account,
// the first pre-posting of its direction, the first offered classification, the home
// currency, and the company's VAT status. Returns the form of the new row (id -1 on failure).
DokladForm novyDoklad(DbModel& model, DruhDokladu druh, int typid = 1);
// The form of a stored document (id -1 when there is none).
DokladForm nactiDoklad(DbModel& model, DruhDokladu druh, int id);
// Cancel of a new document: its row, items and their stock movements go; the series was not
// advanced and stays as it was.
bool zrusitNovyDoklad(DbModel& model, const DokladForm& form);

// The items of the document and the sum of their totals, the rounding line included.
lxFaPolozkaArray polozkyDokladu(DbModel& model, const DokladForm& form);
double celkemDokladu(DbModel& model, const DokladForm& form);

// The first failed check of OK, as the message to show under "Informace", or empty: "Úhrada
// nemůže být prázdná"; "Pokladna %s neexistuje" / "Bankovní účet %s neexistuje";
// "Předkontace nemůže být prázdná" / "Předkontace %s neexistuje"; for a payer's document
// "Členění DPH nemůže být prázdné" / "Členění DPH %s neexistuje", "Členění DPH %s není platné
// pro DUZP %s", "Členění DPH %s není platné pro DPPD %s"; then dates that are missing.
wxString dokladValidation(DbModel& model, const DokladForm& form, DokladPole* pole = nullptr);

// "Zaokrouhlit": rounds the sum of the items up to a whole unit with one item "Zaokrouhlení"
// (quantity 1, the difference as price and total; for a payer's document VAT at the rate of
// castky::sazbaZaokrouhleni). When the sum is already whole an existing rounding line is
// deleted and `zprava` receives "Zaokrouhlení není potřeba". False when storing fails.
bool zaokrouhlitDoklad(DbModel& model, const DokladForm& form, wxString* zprava = nullptr);
bool hasZaokrouhleni(DbModel& model, const DokladForm& form);

// Whether an edited document differs from its stored row in anything that its payments were
// computed from (total, currency, rate, counterparty, pre-posting, dates, register).
bool dokladZmenen(DbModel& model, const DokladForm& form);
// "Faktura byla změněna\nPoužít nové hodnoty?\n(Úhrady budou smazány)", "Závazek byl
// změněn…", "Pohledávka byla změněna…": the question before payments are deleted.
wxString dotazZmenenyDoklad(const DokladForm& form);

// OK after the checks (and, for a changed paid document, the user's yes as `smazatUhrady`):
// the counterparty when new, the rounding line when the document has one, the total from the
// items, the row, the stock movements' date, the payments deleted when asked, and for a new
// document the advance of its series, in one transaction. Returns the message to show, empty
// on success.
wxString ulozitDoklad(DbModel& model, const DokladForm& form, bool smazatUhrady = false);
