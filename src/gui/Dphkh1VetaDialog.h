// One row of a VAT control statement's section (A.1 … A.4, B.1, B.2): the dialog that adds or
// edits it, and how the wizard's lists and the dialog show each attribute of such a row.
#pragma once

#include <vector>

#include "FormDialog.h"
#include "dph/dphkh1fill.h"

class lxAmountCtrl;
class lxDateCtrl;

namespace kh1pole {

enum class Druh {
    TEXT,    // as typed
    DIC,     // a Czech DIČ without its prefix, shown and typed after a fixed "CZ"
    DATUM,   // required date
    DATUM0,  // a date that may stay empty
    CASTKA,  // an amount; an empty field leaves the attribute empty
    VOLBA,   // one of the codes of `volby`
};

struct Volba {
    const char* kod;
    const char* text;
};

struct Pole {
    const char* atribut;
    const char* popis;  // the list's column and the dialog's label
    Druh druh;
    const char* prazdne;  // the refusal of an empty field; null when it may stay empty
    std::vector<Volba> volby;
    int sirka;  // of a text field, in pixels
};

// The attributes of a section's row in the record's order, without the row number.
std::vector<const Pole*> polozky(const Dphkh1& p, kh1::Sekce s);
// A cell of the list: amounts and dates in their Czech form, a DIČ with its "CZ".
wxString text(const Dphkh1& p, kh1::Sekce s, const Pole& pole, int index);

}  // namespace kh1pole

class Dphkh1VetaDialog : public FormDialog {
 public:
    // `index` is the row's index among the section's records, -1 for a new row.
    Dphkh1VetaDialog(wxWindow* parent, Dphkh1& p, kh1::Sekce s, int index);

    // Checks every field and writes the row; false with the message shown and the focus on
    // the field to fix.
    bool save() override;

 private:
    struct Vstup {
        const kh1pole::Pole* pole;
        wxWindow* ctrl;
    };
    // The field's value as the statement stores it; false after refusing it.
    bool precist(const Vstup& v, wxString* text, double* castka, bool* jeCastka);
    bool odmitnout(const wxString& zprava, wxWindow* ctrl);

    Dphkh1& m_p;
    kh1::Sekce m_sekce;
    int m_index;
    std::vector<Vstup> m_vstupy;
};
