// The check before filing ("Kontrola podání"): the VAT return and the control statement of one
// period, both computed from the books, compared in the pairs the tax office reconciles, and
// the documents the control statement cannot place.
#pragma once

#include "dphdoklad.h"
#include "dphobdobi.h"

#include <vector>

class DbModel;

namespace kontrola {

// A document behind a difference, with its base and tax on the side it is counted on.
struct Doklad {
    DphDoklad doklad;
    int id = 0;            // the document's row in its table (doklad.zdroj names the table)
    double zaklad = 0;
    double dan = 0;
    bool vPriznani = false;
    bool vHlaseni = false;
    int vHlaseniKrat = 0;  // how many sections of the statement hold it (a document of exactly
                           // the limit is in A.4 and A.5)
};

struct Rozdil {
    wxString nazev;        // "Řádek 1 – daň (základní sazba) × A.4 + A.5"
    double priznani = 0;   // the return's row, whole crowns
    double hlaseni = 0;    // the statement's sum
    std::vector<Doklad> doklady;
};

struct Nezarazeny {
    Doklad doklad;
    wxString sekce;        // "A.4", "B.2", …
    wxString duvod;        // "Chybí DIČ odběratele", …
};

struct Vysledek {
    DphObdobi obdobi;
    std::vector<Rozdil> rozdily;
    std::vector<Nezarazeny> nezarazene;
    bool vPoradku() const { return rozdily.empty() && nezarazene.empty(); }
    // The result as text: "Přiznání a kontrolní hlášení za Březen/2026 se shodují." or the
    // differences and the documents, one a line.
    wxString text() const;
};

Vysledek zkontrolovat(DbModel& model, const DphObdobi& obdobi);

}  // namespace kontrola
