// Computing the control statement from the books: which documents of the period go to which
// section (by the classification's control-statement code and the 10 000 CZK limit), a row
// a document, the summaries, section C, and the saved-filings row.
#pragma once

#include <map>

#include "dphdoklad.h"
#include "dphkh1.h"
#include "dphobdobi.h"
#include "records.h"

class DbModel;

struct Kh1Zadani {
    DphObdobi obdobi;
    wxString forma = Dphkh1::RADNE;  // B, O, N, E
    wxDateTime datumPodani;          // d_poddp
    wxDateTime dzjist;               // follow-up statements: the day the reason was found
    wxString cjVyzvy;                // the summons' reference number
    wxString vyzvaOdp;               // "", VYZVA_NULOVE or VYZVA_POTVRZUJI
};

namespace kh1 {

enum class Sekce { A1, A2, A3, A4, A5, B1, B2, B3 };
const std::vector<Sekce>& sekce();  // in the form's order
wxString vetaName(Sekce s);         // "VetaA1" …
wxString kod(Sekce s);              // "A1" …
bool isRadkova(Sekce s);            // one row a document (all but A5, B3)

// The limit of a document's own total (in its currency, VAT included) from which a supply
// to or from a payer is reported on its own row.
constexpr double LIMIT = 10000.0;

// The documents of the period that the section takes, in the order of the rows.
lxDphDokladArray doklady(DbModel& model, Sekce s, const wxDateTime& od, const wxDateTime& doDne);
// The same when the classifications with documents in the period are known
// (DbModel::dphDruhyForObdobi): only those are read.
lxDphDokladArray doklady(DbModel& model, Sekce s, const wxDateTime& od, const wxDateTime& doDne,
                         const std::map<int, bool>& vObdobi);

// VetaD from the answers, VetaP from the taxpayer.
void fillHlavicka(DbModel& model, Dphkh1& p, const Kh1Zadani& zadani);
// Empties one section and fills it from the documents (the wizard's "Znovu načíst data z
// evidence"); section C is not touched.
void fillSekce(DbModel& model, Dphkh1& p, Sekce s, const wxDateTime& od, const wxDateTime& doDne);
void fillSekce(DbModel& model, Dphkh1& p, Sekce s, const wxDateTime& od, const wxDateTime& doDne,
               const std::map<int, bool>& vObdobi);
// The whole statement: header, every section and section C. A quick answer to a summons
// carries the header and the taxpayer only.
void fillData(DbModel& model, Dphkh1& p, const Kh1Zadani& zadani);

// The heading of a section in the wizard and the print. A.2, A.4 and B.2 name the bad-debt
// correction by the law in force in the period's first day.
wxString nadpis(Sekce s, const wxDateTime& od);

// "Řádné kontrolní hlášení Březen/2026" and the like.
wxString popis(const wxString& forma, const DphObdobi& obdobi);
// The saved-filings row (typ 2).
Ulozene ulozene(const Dphkh1& p, const Kh1Zadani& zadani);
// "řádné", "řádné/opravné", "následné", "následné/opravné".
wxString druhText(const wxString& forma);

}  // namespace kh1
