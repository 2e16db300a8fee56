// The asset card and the asset book. The card shows the asset's data and its whole
// depreciation plan to the end: the years already claimed and the ones still to come, each
// with the residual value after it. The book lists the assets with their prices, what has been
// depreciated so far and the residual value.
#pragma once

#include <wx/datetime.h>

#include <vector>

#include "document.h"
#include "documentprint.h"
#include "table.h"
#include "tableprint.h"

struct KartaMajetku {
    wxString firma;
    wxString cislo;
    wxString nazev;
    wxString popis;
    wxString typ;
    wxString skupina;
    wxString odpis;  // the method
    wxDateTime porizen;
    double cena = 0;
    bool vyrazen = false;
    wxDateTime datumvyrazeni;
    struct Rok {
        int rok = 0;
        double odpis = 0;
        double zustatek = 0;
        bool uplatneno = false;  // stored, as opposed to the plan to come
    };
    std::vector<Rok> roky;
};

class KartaMajetkuPrint : public DocumentPrint {
 public:
    KartaMajetkuPrint(wxWindow* parent, const KartaMajetku& karta);

 private:
    Document m_karta;
};

struct KnihaMajetkuRadek {
    wxString cislo;
    wxString nazev;
    wxString typ;
    wxDateTime porizen;
    double cena = 0;
    wxString skupina;
    double odepsano = 0;
    double zustatek = 0;
    wxString stav;
};

class KnihaMajetkuPrint : public TablePrint {
 public:
    KnihaMajetkuPrint(wxWindow* parent, const wxString& firma, int rok, const std::vector<KnihaMajetkuRadek>& radky);

 private:
    Table m_kniha;
};
