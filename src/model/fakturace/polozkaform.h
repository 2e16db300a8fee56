// What the item dialog (PolozkaDialog) decides without a window: the rates it offers, the
// checks of the quantity, the item's VAT and total, and storing the item under its document.
// The document dialogs also use it to put a document's items back as they were when an
// edit is cancelled.
#pragma once

#include <wx/string.h>

#include <vector>

#include "castky.h"
#include "dokladform.h"

// The fields of the item dialog.
struct PolozkaForm {
    int id = -1;  // the edited item, -1 for a new one
    wxString popis;
    wxString mj;
    double pocet = 1;
    double cenamj = 0;
    int sazba = 0;  // percent; a non-payer's item is always at 0 %
    bool bezdph = false;
    int zasobaid = -1;  // the stock item the line moves (invoices only), -1 for none
};

// The rates an item of the year may carry, highest first, ending with 0 %.
std::vector<int> sazbyPolozky(DbModel& model, int rok);
// The day whose law computes the item's VAT: the document's DUZP, or its issue date while
// the DUZP is not filled in.
wxDateTime datumDanePolozky(const DokladForm& doklad);

// "Počet nemůže být nulový", "Počet nemůže být záporný", or empty.
wxString polozkaValidation(const PolozkaForm& form);
// The item's VAT and total as the document makes it out (a payer's or not, its tax date).
castky::Polozka castkyPolozky(const DokladForm& doklad, const PolozkaForm& form);

// The form of a stored item (id -1 when there is none).
PolozkaForm nactiPolozku(DbModel& model, int id);
// Checks the form and stores the item of the document (a new one takes the next id). A line
// of an invoice with a stock item writes its movement in the same transaction: an issue (VY)
// for an issued invoice, a receipt (PR) for a received one, dated at the invoice's issue.
// Returns the message to show, empty on success; `id` receives the item's id.
wxString ulozitPolozku(DbModel& model, const DokladForm& doklad, const PolozkaForm& form, int* id = nullptr);
// Deletes the item with its stock movement; the message when it may not go, empty when it went.
wxString smazatPolozku(DbModel& model, const DokladForm& doklad, int id);

// The stock movements the document's lines made (none for receivables and liabilities).
lxPohybzasobArray pohybyDokladu(DbModel& model, const DokladForm& doklad);
// Replaces the document's items by `polozky` and its stock movements by `pohyby` (what it had
// when its dialog opened), in one transaction; Cancel of an edited document leaves it as it was.
bool obnovitPolozky(DbModel& model, const DokladForm& doklad, const lxFaPolozkaArray& polozky,
                    const lxPohybzasobArray& pohyby = {});
