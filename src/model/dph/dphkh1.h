// The VAT control statement (kontrolní hlášení, filing DPHKH1): the header VetaD, the taxpayer
// VetaP, the per-document sections A.1–A.4, B.1, B.2, the two summary records A.5 and B.3, and
// the totals of section C that the tax office reconciles with the VAT return.
//
// Amounts of the control statement are written in crowns with two decimals (the statement
// reports each document as it was issued, unlike the return's whole crowns).
#pragma once

#include "podani.h"

class Dphkh1 : public Podani {
 public:
    Dphkh1();

    // Form codes of the four kinds (the schema's khdph_forma): the first statement of a
    // period, its replacement before the deadline, the follow-up after the deadline (a whole
    // new statement, not a difference) and the replacement of a follow-up.
    static constexpr const char* RADNE = "B";
    static constexpr const char* RADNE_OPRAVNE = "O";
    static constexpr const char* NASLEDNE = "N";
    static constexpr const char* NASLEDNE_OPRAVNE = "E";
    static bool isNasledne(const wxString& forma) { return forma == NASLEDNE || forma == NASLEDNE_OPRAVNE; }
    // Quick answers to the tax office's summons (vyzva_odp): no duty to file (a zero
    // statement) or the last statement filed is right. Such a statement carries no sections.
    static constexpr const char* VYZVA_NULOVE = "B";
    static constexpr const char* VYZVA_POTVRZUJI = "P";

    // The per-document sections, in the order of the form.
    static const std::vector<wxString>& radkoveVety();  // VetaA1 … VetaA4, VetaB1, VetaB2

    // An amount of a record, an empty attribute counting as 0.
    double castka(const wxString& veta, const wxString& atribut, int index = 0) const;
    // Stores an amount rounded to hundredths (half away from zero).
    void setCastka(const wxString& veta, const wxString& atribut, double value, int index = 0);
    // The sum of an attribute over every record of that name.
    double soucet(const wxString& veta, const wxString& atribut) const;
    // Renumbers c_radku of a section from 1 (after a row was deleted).
    void precislovat(const wxString& veta);

    // Normalises record `index` of VetaA4 or VetaB2 before it is stored: zdph_44 is one of
    // "N" (no bad-debt correction), "P" (correction under the current law) or "A" (under § 44
    // as it stood until 31.3.2019, only for periods before 1.4.2019; later it becomes "P");
    // anything else is "N". Rate pairs whose base and tax are both zero are left out, but a
    // record keeps at least zakl_dane1 and dan1. B.2's pomer is "A" or "N" (default "N").
    void fixVetaA4B2(const wxString& veta, int index, const wxDateTime& obdobiOd);

    // Section C from the sections: celk_zd_a2 the bases of A.2; obrat23/obrat5 the basic /
    // reduced bases of A.4 and A.5; pln23/pln5 the same of B.2 and B.3; pln_rez_pren the
    // bases of A.1; rez_pren23/rez_pren5 the basic / reduced bases of B.1.
    void fillVetaC();

    // No section holds a row or an amount: such a statement is not filed.
    bool isNulove() const;
};
