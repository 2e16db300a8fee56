// Prints of stock items. KartaZasobyPrint: the card of one item with every movement and the
// state after it. KnihaZasobPrint: the items with their quantity and value at a date and the
// total value. Both take plain rows.
#pragma once

#include <wx/datetime.h>

#include <vector>

#include "table.h"
#include "tableprint.h"

struct KartaRadek {
    wxDateTime datum;
    wxString cislo;
    wxString druh;  // "Příjem", "Výdej", with what made it
    double pocet = 0;
    double cenamj = 0;
    double stav = 0;     // quantity after the movement
    double hodnota = 0;  // value after the movement
};

// The item the card is of.
struct KartaHlavicka {
    wxString cislo;
    wxString nazev;
    wxString mj;
    wxString sklad;
    wxString ocenovani;
};

class KartaZasobyPrint : public TablePrint {
 public:
    KartaZasobyPrint(wxWindow* parent, const wxString& firma, const KartaHlavicka& zasoba,
                     const std::vector<KartaRadek>& radky);

 private:
    Table m_karta;
};

struct KnihaZasobRadek {
    wxString cislo;
    wxString nazev;
    wxString sklad;
    wxString mj;
    double pocet = 0;
    double hodnota = 0;
};

class KnihaZasobPrint : public TablePrint {
 public:
    // The state at `datum` (its day included).
    KnihaZasobPrint(wxWindow* parent, const wxString& firma, const wxDateTime& datum,
                    const std::vector<KnihaZasobRadek>& radky);

 private:
    Table m_kniha;
};
