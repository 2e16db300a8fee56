// The rules of the taxpayer record that every filing copies into its taxpayer row: which
// entries it must have before it is stored, which representative fields apply to which kind
// of representative, the representative codes, and the first record made from the company.
#pragma once

#include <wx/arrstr.h>
#include <wx/string.h>

#include "records.h"

namespace priznaniform {

// The state every taxpayer record holds.
extern const char* const STAT;

// The kinds of signing representative as the choice offers them ("Žádná", "Fyzická osoba",
// "Právnická osoba") and as stored in `zast_typ` ("", "F", "P").
wxArrayString zastTypTexty();
wxString zastTypKod(int index);
int zastTypIndex(const wxString& kod);

// The representative codes as offered ("1 - zákonný zástupce nebo opatrovník", …) and as
// stored: the code before the description ("1", "4a", "7b").
wxArrayString zastKodTexty();
wxString zastKodZTextu(const wxString& text);
// The position of a stored code among the texts, -1 when it is none of them.
int zastKodIndex(const wxString& kod);

// Whether a representative field (a column of `priznani` starting with "zast_" or "opr_")
// is filled in for the representative kind `zastTyp`; the others are left empty.
bool isPoleZastupce(const wxString& zastTyp, const wxString& column);
// The record with the representative fields that do not apply to its kind emptied.
Priznani bezNepouzitych(const Priznani& p);

// The first refusal of a record about to be stored, in the order the form is read, with the
// column of the field to fix; an empty message when the record can be stored.
struct Chyba {
    wxString zprava;
    wxString pole;
    bool empty() const { return zprava.empty(); }
};
Chyba check(const Priznani& p);

// A first taxpayer record from the company's data: a person's name split into first name and
// surname (a company's name goes whole into the surname), street with its numbers, town,
// postcode, DIČ without the country prefix, e-mail and phone.
Priznani zFirmy(const Firma& firma, const Adresa& adresa);

}  // namespace priznaniform
