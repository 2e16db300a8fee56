// The VAT return (form DP3) as a person reads it: the form's sections with their column
// headings, each row with its number, its Czech text and the attribute shown in each column,
// and the texts of the header and the taxpayer block. The printed return and every other view
// of a return lay out this one table; the attribute values come from a Dphdp3.
#pragma once

#include <wx/string.h>

#include <vector>

#include "dphdp3.h"

namespace dp3 {

// One row of the form. Texts are UTF-8.
struct FormRadek {
    const char* cislo;  // "1", "51"
    const char* text;
    // The attribute of each column of the section, in column order; "" where the form has
    // no value in that column.
    std::vector<const char*> atributy;
};

struct FormOddil {
    const char* nazev;                 // "I. Zdanitelná plnění"
    std::vector<const char*> sloupce;  // the column headings
    std::vector<FormRadek> radky;
};

// Sections I–VI of the form, rows 1–13, 20–26, 30–34, 40–47, 50–53 and 60–66.
const std::vector<FormOddil>& formOddily();

// Attributes that are percentages (rows 52 and 53) rather than amounts.
bool isKoeficient(const wxString& atribut);
// The text of one cell: empty for an empty attribute, an amount in whole crowns with
// thousands groups ("1 002", "-500"), a percentage with two decimals ("95,50").
wxString formHodnota(const Dphdp3& p, const wxString& atribut);

// "Řádné přiznání", "Řádné opravné přiznání", "Dodatečné přiznání" or "Dodatečné opravné
// přiznání" for the form codes B, O, D and E; empty for any other code.
wxString formaNazev(const wxString& forma);
// The period of the return: "Březen 2024", "1. čtvrtletí 2024" or "01.01.2024 – 15.03.2024".
wxString obdobiText(const Dphdp3& p);
// The taxpayer's office and workplace by their names in the code lists and their codes, or by
// the codes alone when the lists are not downloaded ("Finanční úřad 451"); the parts
// whose code is missing are left out.
wxString uradText(const Dphdp3& p);

// A labelled value of the header or the taxpayer block.
struct FormUdaj {
    wxString popisek;
    wxString hodnota;
};
// The return: its kind, period, filing date, the day a supplementary return's reason was
// found, the main economic activity and the period code of the next year (those present).
std::vector<FormUdaj> udajePriznani(const Dphdp3& p);
// The taxpayer: name or business name, DIČ "CZ…", address, office, telephone, e-mail (the
// name and the DIČ always, the others when present).
std::vector<FormUdaj> udajePlatce(const Dphdp3& p);
// The texts of the attachment records, in their order; empty ones left out.
std::vector<wxString> prilohy(const Dphdp3& p);

}  // namespace dp3
