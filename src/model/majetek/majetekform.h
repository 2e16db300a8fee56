// What the asset dialog decides without a window: the checks of its fields and saving an
// asset. When the price, the acquisition date, the group or the method of an asset with
// depreciation rows changes, its rows no longer fit, so they are computed again.
#pragma once

#include <wx/datetime.h>
#include <wx/string.h>

#include "dbmodel.h"

// The asset types the dialog offers, in this order: tangible, intangible, small.
constexpr int MAJETEK_TYPY[] = {1, 2, 3};

struct MajetekForm {
    wxString cislo;
    wxString nazev;
    wxString popis;
    int typ = 1;
    wxDateTime porizen;
    wxString porizenText;  // as typed, for the message when it does not read
    double cena = 0;
    int odpis = 1;          // the method, 0..3
    int skupinaid = -1;
    bool vyrazen = false;
    wxDateTime datumvyrazeni;
    wxString datumvyrazeniText;

    Majetek majetek(int id) const;
};

// The field a failed check names.
enum class MajetekPole { ZADNE, CISLO, NAZEV, PORIZEN, CENA, SKUPINA, VYRAZENI };

// The first failed check as the message to show under "Informace"; empty when all is right.
wxString majetekValidation(DbModel& model, const MajetekForm& form, int id, MajetekPole* pole = nullptr);

// Whether saving the form over the stored asset changes its depreciation (and so drops its
// rows to compute them again).
bool zmeniOdpisy(const Majetek& puvodni, const MajetekForm& form);

// Stores a checked form: a new asset (id ≤ 0) advances the series MA. The asset, the removal of
// rows that no longer fit and the new depreciation up to this year go in one transaction.
// Returns the asset's id, or -1 when nothing was written.
int ulozitMajetek(DbModel& model, const MajetekForm& form, int id);
