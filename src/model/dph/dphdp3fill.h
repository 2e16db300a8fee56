// Computing a VAT return from the books: the header from the wizard's answers and the taxpayer
// record, every form row from the documents of the period, the derived rows, and a
// supplementary return's differences. The wizard, the command line and the tests all use these.
#pragma once

#include "dphdp3.h"
#include "dphobdobi.h"
#include "records.h"

class DbModel;

// What the user answers in the wizard.
struct Dp3Zadani {
    DphObdobi obdobi;
    wxString forma = Dphdp3::RADNE;  // "B", "O", "D" or "E"
    wxDateTime datumPodani;          // d_poddp
    wxString kodZo;                  // "", "Q" or "M"
    double koefP20Nov = 0;           // row 52, percent
    bool vyporadani = false;         // row 53 filled
    double koefP20Vypor = 0;         // row 53, percent
    double vyporOdp = 0;             // row 53, the change of the deduction
    // Supplementary returns: the earlier return, the day the reason was found, the reasons.
    int ulozeneId = 0;
    wxDateTime dzjist;
    wxString duvod;
};

namespace dp3 {

// VetaD and VetaP: the form, the period, the filing date, the taxpayer.
void fillHlavicka(DbModel& model, Dphdp3& p, const Dp3Zadani& zadani);
// Every form row from the documents of [od, do], then rows 46, 52 and 62–65. `koefP20Nov` is
// the coefficient of row 52.
void fillVeta1to6(DbModel& model, Dphdp3& p, const wxDateTime& od, const wxDateTime& doDne, double koefP20Nov);
// The whole return as the wizard finishes it: header, amounts, row 53, and for a
// supplementary return the differences to the earlier one and the reasons as an attachment.
// False with a Czech message when the earlier return cannot be read.
bool fillData(DbModel& model, Dphdp3& p, const Dp3Zadani& zadani, wxString* error = nullptr);

// The yearly settlement of the deduction (row 53) from the chosen saved returns and the
// current one. False when the returns hold no supplies at all (the coefficient would divide
// by zero).
struct Vyporadani {
    double koeficient = 0;  // percent, unrounded
    double zmenaOdpoctu = 0;
};
bool vypocetVyporadani(const std::vector<Dphdp3>& ulozena, const Dphdp3& aktualni, double koefP20Nov,
                       Vyporadani* vysledek);

// "Řádné přiznání Březen/2026" and the like: the description of a saved return.
wxString popis(const wxString& forma, const DphObdobi& obdobi);
// The saved-filings row of a finished return.
Ulozene ulozene(const Dphdp3& p, const Dp3Zadani& zadani);

}  // namespace dp3
