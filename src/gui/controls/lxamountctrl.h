// lxAmountCtrl: the text field of an amount of money or of an exchange rate. It keeps the exact
// double it was given and shows it in the Czech form (decimal comma); as long as nobody changes
// the text, GetValue gives back that very double, so opening a document and pressing OK never
// rounds what is stored. Only text that differs from what the field showed is read, through the
// one parser of its kind (lxformat::parseCastka or parseKurz). A quantity reads as an amount
// and shows with three decimals (formatMnozstvi).
#pragma once

#include <wx/textctrl.h>

#include "lxformat.h"

class lxAmountCtrl : public wxTextCtrl {
 public:
    enum Druh { CASTKA, KURZ, MNOZSTVI };

    lxAmountCtrl(wxWindow* parent, Druh druh, const wxString& name, int width = 150);

    using wxTextCtrl::GetValue;
    using wxTextCtrl::SetValue;
    // Shows the value (formatCastka, formatKurz or formatMnozstvi) and keeps it exactly; sends no change event.
    void SetValue(double value);
    // The kept value while the text is the one shown, else the text read by the parser; the
    // value is left alone when the text does not read.
    lxformat::Chyba GetValue(double* value) const;
    // Whether the text is no longer the one the field showed for its value.
    bool isEdited() const;
    // The message for the text when it does not read, naming the field by its label.
    wxString zprava(const wxString& pole) const;

 private:
    lxformat::Chyba parse(double* value) const;
    wxString format(double value) const;

    Druh m_druh;
    bool m_hasValue = false;
    double m_value = 0;
    wxString m_shown;
};
