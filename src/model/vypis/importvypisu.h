// Importing a bank statement into an account: reading the file in whichever format it is,
// pairing its movements, marking those imported before, and writing what the user accepted
// (payments through the payment writer, other movements as plain income or expense) in one
// transaction.
//
// Where an imported movement is remembered: in the reference of the journal entries written
// for it, as "[výpis 2026-01-15 +1210.00 VS:123 ref:ABC účet:19-123/0800]" after the
// document's number. The journal is the only place that knows whether the entry still
// exists: deleting the entry forgets the import, so the movement can be imported again, and
// nothing outside the company file has to be kept in step with it. The counter-account in the
// mark is how later imports learn which contact an account belongs to.
#pragma once

#include <string>
#include <unordered_set>

#include "csvvypis.h"
#include "parovani.h"

namespace vypis {

// The bytes of a statement file; false with the message to show when it cannot be read or is
// larger than any statement.
bool nacistSoubor(const wxString& path, std::string* bytes, wxString* zprava);

// Reads a file in the format its content shows: ABO/GPC, camt.053, or else CSV by the mapping
// given (a CSV without a valid mapping is refused with a message saying so).
CteniVypisu cistVypis(const std::string& bytes, const CsvMapovani& mapovani);
// Whether the bytes will be read as CSV, so the mapping must be known first.
bool jeCsv(const std::string& bytes);

enum class Akce { PRESKOCIT, UHRADA, PRIJEM_VYDEJ };

struct PolozkaImportu {
    Pohyb pohyb;
    Navrh navrh;
    wxString klic;              // what identifies the movement among those already imported
    bool importovano = false;   // found in the journal: skipped, never written again
    Akce akce = Akce::PRESKOCIT;
    int doklad = -1;            // the document paid (index into Import::parovani.doklady())
    wxString predkontace;       // pre-posting code for PRIJEM_VYDEJ
};

struct Import {
    int bankaid = -1;
    int cisloVypisu = 0;        // "Číslo výpisu" of the written entries
    Parovani parovani{{}, {}, 1};
    std::vector<PolozkaImportu> polozky;
};

// The mark stored in the reference of the entries of a movement, and its key part.
wxString znackaPohybu(const Pohyb& pohyb, const wxString& klic);
wxString klicPohybu(const Pohyb& pohyb, int poradi);

// The message when the statement is for another account than the chosen one, or in another
// currency than the account's (`menaUctu`, its ISO code); empty when they agree or what is to
// be compared is unknown.
wxString kontrolaUctu(const Banka& banka, const Vypis& vypis, const wxString& menaUctu = wxString());

// Pairs every movement of the statements for the account: movements already imported are
// marked and skipped, sure proposals (VS and amount, a known account and amount) are set to be
// written, everything else waits for the user.
Import pripravitImport(DbModel& model, int bankaid, const CteniVypisu& cteni);

// Writes the items set to be written, all or none, and notifies once. Returns the message to
// show, empty on success; `zapsano` receives the number of movements written.
wxString zapsatImport(DbModel& model, const Import& import, int* zapsano = nullptr);

}  // namespace vypis
