// The VAT return (form DP3) as its electronic filing: the records VetaD (header), VetaP
// (taxpayer), Veta1 … Veta6 (the form's rows) and the repeated attachments VetaR, with the rows
// that the form derives from the others.
#pragma once

#include "podani.h"

class Dphdp3 : public Podani {
 public:
    Dphdp3();

    // The form codes of the four kinds of return.
    static constexpr const char* RADNE = "B";
    static constexpr const char* RADNE_OPRAVNE = "O";
    static constexpr const char* DODATECNE = "D";
    static constexpr const char* DODATECNE_OPRAVNE = "E";
    static bool isDodatecne(const wxString& forma) { return forma == DODATECNE || forma == DODATECNE_OPRAVNE; }

    // Finds the record of an attribute name; Veta1 … Veta6 share no attribute names.
    static wxString vetaOf(const wxString& atribut);
    // An amount of the form rows, an empty attribute counting as 0.
    double castka(const wxString& atribut) const;
    // Stores a sum rounded to whole crowns, half away from zero; a sum that rounds to zero
    // (and an empty name) is not stored at all.
    void setCastka(const wxString& atribut, double value);
    // Stores the value even when it is zero.
    void setCastkaVzdy(const wxString& atribut, double value);

    // Adds an attachment record with the text, "D" as its section (reasons for a
    // supplementary return), numbered after the others.
    void addVetaR(const wxString& text);

    // Row 46: the sums of full and reduced deductions.
    void fillRadek46();
    // Row 52: the reduced deduction times the coefficient of row 52.
    void fillRadek52();
    // Rows 62–65: the output tax, the deduction and the own tax or excess deduction.
    void fillVeta6();
    // Turns this computed return into a supplementary one to `earlier`: every amount of the
    // form rows except the coefficient of row 52 becomes the difference to the earlier
    // return, and row 66 (`dano`) holds the change of the tax: own tax minus excess deduction
    // of this return less the same of the earlier one.
    void fillDodatecne(const Dphdp3& earlier);
};
