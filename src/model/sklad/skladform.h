// What the stock dialogs decide without a window: the checks of warehouses, items and
// movements, storing a movement or a stock-taking with everything that follows from it (its
// number from the series, the item's cached state) in one transaction, and the texts of the
// delete questions.
#pragma once

#include <wx/datetime.h>
#include <wx/string.h>

#include <vector>

#include "dbmodel.h"
#include "ocenovani.h"

namespace skladform {

// "Název nemůže být prázdný", "Název '%s' už existuje\nZvolte jiný" (another warehouse has
// the name), or empty.
wxString skladValidation(DbModel& model, const Sklad& sklad);
wxString smazatSkladDotaz(const Sklad& sklad);

wxString zasobaValidation(const Zasoba& zasoba);
// Stores a new item (`zasoba.id` ≤ 0: the next id and the next ZB number, advancing the
// series) or an edited one, without touching its cached state. Returns the id, -1 on failure.
int ulozitZasobu(DbModel& model, Zasoba zasoba);

// Deletes the item with its movements and stock-taking lines; invoice lines keep their text
// without the link to it. One transaction.
bool smazatZasobu(DbModel& model, int id);
// "Opravdu smazat zásobu\n<number>\n<name>?"
wxString smazatZasobuDotaz(const Zasoba& zasoba);

// The state of an item just before a movement dated `datum` would come: its movements dated
// earlier or at the same moment (those of the same moment only up to `exceptId`, the movement
// being edited, which is itself left out), without the movements of the invoice
// `exceptFakturaId`.
ocenovani::Stav stavPred(DbModel& model, int zasobaid, const wxDateTime& datum, int exceptId = -1,
                         int exceptFakturaId = -1);

// Writes a movement: an id ≤ 0 adds it with the next id and the next PR or VY number
// (advancing the series), otherwise it is updated. Returns the id, -1 on failure.
int zapsatPohyb(DbModel& model, Pohybzasob pohyb);
// The unit cost an issue of `pocet` at `datum` takes by the item's method (0 for nothing).
double cenaVydeje(DbModel& model, int zasobaid, const wxDateTime& datum, double pocet, int exceptId = -1,
                  int exceptFakturaId = -1);

// "Stav zásoby %.3f na skladě je nižší než požadovaný výdej %.3f".
wxString nedostatekZprava(double stav, double vydej);

// A receipt or issue typed in the movement dialog.
struct PohybForm {
    int id = -1;  // the edited movement, -1 for a new one
    int zasobaid = -1;
    bool prijemka = true;
    wxDateTime datum;
    double pocet = 0;
    double cenamj = 0;
};

// "Nulový příjem na sklad", "Nulový výdej ze skladu", "Nulová cena za měrnou jednotku" (a
// receipt), the shortage message (an issue beyond the stock before its date), or empty.
wxString pohybValidation(DbModel& model, const PohybForm& form);
// Checks and stores the movement; a new one takes the next PR or VY number. An issue without
// a unit cost gets the one its valuation method gives. Returns the message, empty on success.
wxString ulozitPohyb(DbModel& model, const PohybForm& form, int* id = nullptr);
// "Opravdu smazat pohyb:\n<number>\n<quantity> <unit>\nz <date and time>?"
wxString smazatPohybDotaz(const Pohybzasob& pohyb, const wxString& mj);
// Deletes the movement and refreshes its item's state. A receipt that a later issue needs
// stays, with the shortage message of that issue. Returns the message, empty on success.
wxString smazatPohyb(DbModel& model, int id);

// The first issue of the item that takes more than the item holds just before it, as the
// shortage message; empty when every issue is covered.
wxString nekrytyVydej(DbModel& model, int zasobaid);

// One line of an item's card: a movement and the item's state after it.
struct RadekKarty {
    const Pohybzasob* pohyb;
    double pocet;
    double celkem;
};
// The card of an item valued by `metoda` over its movements in date order (the rows point into
// `pohyby`).
std::vector<RadekKarty> kartaZasoby(int metoda, const lxPohybzasobArray& pohyby);

// One line of a stock-taking: an item of the warehouse, its quantity on record at the day and
// the quantity found.
struct InventuraRadek {
    int zasobaid = -1;
    wxString cislo;
    wxString nazev;
    wxString mj;
    double evidovano = 0;
    double zjisteno = 0;
};

// The lines of a stock-taking of `skladid` at `datum`: every item of the warehouse with the
// quantity its movements up to that day give (without the correction the stock-taking
// `inventuraid` already made); the found quantity is the stored one, or the recorded one for
// a new line.
std::vector<InventuraRadek> radkyInventury(DbModel& model, int skladid, const wxDateTime& datum,
                                           int inventuraid = -1);
// Stores the stock-taking with its lines (`inventura.id` ≤ 0: a new one with the next IV
// number) and replaces its correction movements. Returns the id, -1 on failure.
int ulozitInventuru(DbModel& model, Inventura inventura, const std::vector<InventuraRadek>& radky);
// "Opravdu smazat inventuru\n<number>\n<date>?"
wxString smazatInventuruDotaz(const Inventura& inventura);
// Deletes the stock-taking, its lines and its corrections, and refreshes the items' states.
bool smazatInventuru(DbModel& model, int id);

}  // namespace skladform
