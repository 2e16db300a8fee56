// What the income/expense dialog (PrijemVydejDialog) decides without a window: the checks of
// its fields in the order the user meets them, the entry built from them, the number series
// of the entry, the amount and rate arithmetic, and saving with a new counterparty and the
// series advance in one transaction. The dialog reads its fields into a DenikForm, calls
// these functions and shows the message they return; the journal import uses the same ones,
// so an imported row passes exactly the checks of a typed one.
#pragma once

#include <wx/arrstr.h>
#include <wx/datetime.h>
#include <wx/string.h>

#include <map>
#include <vector>

#include "dbmodel.h"

// The fields of the income/expense dialog.
struct DenikForm {
    enum Mode { ADD = 0, EDIT = 1, COPY = 2 };
    Mode mode = ADD;
    bool prijem = true;  // opened as "Zadejte příjem" (true) or "Zadejte výdaj"
    bool banka = false;  // for a bank account (true) or a cash register
    int id = -1;         // the entry edited, or the copy made by copyDenik, in modes EDIT and COPY
    wxDateTime datum;
    wxString cislo;        // "Číslo dokladu"
    wxString popis;        // "Popis dokladu"
    wxString reference;    // "Číslo faktury, variabilní symbol atd."
    wxString registr;      // the code typed in "Pokladna" or "Bankovní účet"
    wxString predkontace;  // the code typed in "Předkontace"
    double castka = 0;     // "Částka v Kč"
    double castkacizi = 0;
    double kurz = 1;
    int menaid = 1;        // 1 is the home currency
    int vypis = 0;         // "Číslo výpisu", bank entries only
    int pausal = 0;        // "Paušální výdaj %", used for income of a flat-rate company only
    wxString protistrana;  // "Protistrana"; a name not yet among the contacts becomes a new contact
};

// The field a failed check sends the focus back to.
enum class DenikPole { ZADNE, DATUM, CISLO, REGISTR, PREDKONTACE, CASTKA, CASTKACIZI, KURZ };

// The first failed check of the form as the message to show under "Informace", or an empty
// text when the entry may be saved. `pole` receives the field to focus. In this order: the
// register or account, the pre-posting (known, and of the direction the form was opened
// for), the date (inside the current accounting year) and the document number (not used by
// another entry of that year).
wxString denikValidation(DbModel& model, const DenikForm& form, DenikPole* pole = nullptr);

// The checks of a register or account code and of a pre-posting code that every document
// form shares: the message to show, or empty when the code is good. A pre-posting must be of
// the form's direction (`prijem`).
wxString registrZprava(DbModel& model, bool banka, const wxString& registr);
wxString predkontaceZprava(DbModel& model, const wxString& predkontace, bool prijem);

// The lowest balance a cash register reaches from `datum` on when `zmena` is booked on that
// day, given its movements per day (oldest first, as pokladnaPohybyPoDnech gives them).
double nejnizsiStav(const std::vector<DbModel::DenniPohyb>& pohyby, const wxDateTime& datum, double zmena);
// A cash expense that takes its register below zero on its day or any later one needs the
// user's consent: the question to ask under "Dotaz" ("Stav pokladny POK1 bude záporný
// (-250,00 Kč). Přesto uložit?"), naming the lowest balance reached. Empty when no question
// is needed: income, bank entries, and registers that stay at zero or above. The form is one
// that passed denikValidation.
wxString zapornaPokladnaDotaz(DbModel& model, const DenikForm& form);

// The series of a journal entry: "PP" cash income, "PV" cash expense, "BP" bank income,
// "BV" bank expense.
wxString denikRada(bool prijem, bool banka);
// The number proposed for a new entry of that series (the series is not advanced).
wxString navrhCislaDenik(DbModel& model, bool prijem, bool banka);

// The entry a valid form describes, pointing at the given counterparty: a new id when
// adding, the form's id otherwise; the current year; the home currency without a foreign
// amount; no statement number for cash; no flat-rate percentage unless it is the income of a
// flat-rate company.
Denik denikFromForm(DbModel& model, const DenikForm& form, int protistranaid);

// The id of the contact named `nazev`, creating it with an empty address when there is none;
// 0 (no counterparty) for an empty name and -1 when storing fails. Joins an open transaction
// and does not notify. `cache`, when given, remembers names already resolved.
int protistranaId(DbModel& model, const wxString& nazev, std::map<wxString, int>* cache = nullptr);

// Stores a form that passed denikValidation: the counterparty when new, the entry (added, or
// written over the edited entry or the copy), and for ADD and COPY the advance of its series.
// An empty number takes the series' next one. Joins an open transaction, does not notify and
// returns the stored entry's id, or -1 when a statement fails.
int zapisDenik(DbModel& model, const DenikForm& form, std::map<wxString, int>* kontakty = nullptr);

// The dialog's OK: checks the form and stores it in one transaction. Returns the message to
// show (empty on success); `id` receives the stored entry, `pole` the field to focus.
wxString ulozitDenik(DbModel& model, const DenikForm& form, int* id = nullptr, DenikPole* pole = nullptr);

// The amounts of the dialog and the field the user changed last. Editing the home amount
// recomputes the foreign one (castka / kurz, 0 for a zero rate); editing the foreign amount
// or the rate recomputes the home one (kurz × castkacizi). Nothing is rounded.
struct Castky {
    double castka = 0;
    double castkacizi = 0;
    double kurz = 1;
};
enum class ZmenaCastky { CASTKA, CASTKACIZI, KURZ };
Castky calculateValues(Castky castky, ZmenaCastky zmena);

// The label of the foreign amount: "Částka v EUR" for a chosen currency, "Částka v cizí
// měně" for the home one.
wxString castkaCiziLabel(DbModel& model, int menaid);

// The rate stored for the currency on exactly that day, for filling the rate when the date
// changes; false for the home currency or when no rate of that day is stored.
bool ulozenyKurz(DbModel& model, int menaid, const wxDateTime& datum, double* kurz);
// "Stáhnout kurz z webu ČNB": the stored rate of the day when there is one, otherwise that
// day's list is downloaded and stored and its rate of the currency taken. False when the
// currency is the home one or no rate could be had.
bool stahnoutKurz(DbModel& model, int menaid, const wxDateTime& datum, double* kurz);

// The flat-rate percentages the choice "Paušální výdaj %" starts with.
wxArrayString pausalHodnoty();
// A value typed after "Přidat hodnotu paušálních výdajů": a whole percentage from 1 to 100.
bool parsePausal(const wxString& text, int* pausal);

// Checks of the code of a cash register, bank account or pre-posting in its dialog: not empty
// and not the code of another row (`id` is the edited row's id, -1 for a new one).
enum class Ciselnik { POKLADNA, BANKA, PREDKONTACE };
wxString zkratkaValidation(DbModel& model, Ciselnik ciselnik, const wxString& zkratka, int id);

// "Spočítat IBAN" of the bank account dialog: the IBAN of the account number and bank code in
// `iban`, or the message why it cannot be computed.
wxString spocitatIban(const wxString& cisloUctu, const wxString& kodBanky, wxString* iban);
