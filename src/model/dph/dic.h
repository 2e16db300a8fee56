// VAT identification numbers (DIČ) as the filings need them: split into the country code and
// the number, and checked against the format each EU member state gives its numbers.
#pragma once

#include <wx/string.h>

struct RozdelenaDic {
    wxString stat;   // "CZ", "DE", … ("EL" for Greece)
    wxString cislo;  // the rest, without spaces, dots and dashes
};

namespace dic {

// Splits "CZ 12345678" into "CZ" and "12345678". A number without a country prefix belongs to
// `vychozi`. Greece's VAT numbers carry the prefix "EL", not its ISO code "GR"; a contact
// written with "GR" is reported as "EL".
RozdelenaDic rozdel(const wxString& text, const wxString& vychozi = "CZ");
// A Czech DIČ: 8, 9 or 10 digits after the prefix.
bool isPlatnaCz(const wxString& cislo);
// The number matches the format of its member state (and the state is a member state).
bool isPlatnaEu(const RozdelenaDic& d);

}  // namespace dic
