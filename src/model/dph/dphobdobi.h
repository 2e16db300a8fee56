// The period of a VAT filing or of the VAT document list: a month or a quarter of a year, or
// free dates. The same choice is offered by every VAT wizard and the document list, stored with
// a saved filing and written into a filing's header.
#pragma once

#include <wx/datetime.h>
#include <wx/string.h>

namespace lxutils {

// "Leden" … "Prosinec" for 1 … 12; empty outside.
wxString mesicString(int mesic);
// "1. čtvrtletí" … "4. čtvrtletí"; empty outside.
wxString ctvrtletiString(int ctvrtleti);
// The first month of a quarter (1, 4, 7, 10) and its last (3, 6, 9, 12).
int ctvrtletiMesicStart(int ctvrtleti);
int ctvrtletiMesicEnd(int ctvrtleti);
// The text in double quotes, with every quote inside doubled, for a CSV field.
wxString enquotes(const wxString& text);

}  // namespace lxutils

// The kind of period as stored in a saved filing's `obdobi`.
enum class DruhObdobi { Mesic = 0, Ctvrtleti = 1, Obdobi = 2 };

struct DphObdobi {
    DruhObdobi druh = DruhObdobi::Mesic;
    int rok = 0;
    int mesic = 0;      // 1-12 for a month, else 0
    int ctvrtleti = 0;  // 1-4 for a quarter, else 0
    wxDateTime od;      // first day, at midnight
    wxDateTime doDne;   // last day, at midnight

    static DphObdobi zMesice(int rok, int mesic);
    static DphObdobi zCtvrtleti(int rok, int ctvrtleti);
    // Free dates; the year is the year of `od`. Dates out of order are swapped.
    static DphObdobi zDatumu(const wxDateTime& od, const wxDateTime& doDne);

    bool isValid() const { return od.IsValid() && doDne.IsValid() && rok > 0; }
    // "Březen/2026", "1. čtvrtletí/2026", or "1.1.2026 - 15.3.2026" for free dates.
    wxString text() const;
};
