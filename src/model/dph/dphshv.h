// The EC sales list (souhrnné hlášení VIES, filing DPHSHV): the header VetaD, the declarant
// VetaP and one VetaR a customer, code of supply and cancellation flag, with the number of
// supplies and their value in whole crowns.
#pragma once

#include "podani.h"

class Dphshv : public Podani {
 public:
    Dphshv();

    // shvies_forma: the list of a period, and a follow-up list that corrects it.
    static constexpr const char* RADNE = "R";
    static constexpr const char* NASLEDNE = "N";
    // k_storno: the row cancels the row with the same country, VAT id and code in the lists
    // filed earlier for the period. The schema allows it only in a follow-up list.
    static constexpr const char* STORNO = "A";

    struct Radek {
        wxString stat;
        wxString cislo;
        int kod = 0;           // k_pln_eu: 0 goods, 2 triangular trade, 3 services
        bool storno = false;
        int pocet = 0;
        double hodnota = 0;    // unrounded, in crowns
    };
    Radek radek(int index) const;
    void setRadek(int index, const Radek& r);
    // The row with that key, or -1.
    int findVetaR(const wxString& stat, const wxString& cislo, int kod, bool storno) const;
    bool hasVetaR(const wxString& stat, const wxString& cislo, int kod, bool storno) const {
        return findVetaR(stat, cislo, kod, storno) >= 0;
    }
    // A new row with one supply of `hodnota`; returns its index.
    int addVetaR(const wxString& stat, const wxString& cislo, int kod, bool storno, double hodnota);
    // One more supply of `hodnota` in row `index`.
    void editVetaR(int index, double hodnota);

    // Stores every row for the file: c_rad numbered in order (por_c_stran when more rows than
    // one page of the form holds), pln_hodnota the running total rounded up to whole crowns
    // (toward positive infinity), k_storno only in a follow-up list.
    void fillVety();

    // Rounding up to whole crowns as the list wants it: 1234.10 → 1235, 1234.00 → 1234.
    static double zaokrouhlitNahoru(double value);
};
