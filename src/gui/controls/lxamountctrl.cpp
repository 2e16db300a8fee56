#include "lxamountctrl.h"

lxAmountCtrl::lxAmountCtrl(wxWindow* parent, Druh druh, const wxString& name, int width)
    : wxTextCtrl(parent, wxID_ANY, wxString(), wxDefaultPosition, wxSize(width, -1), wxTE_RIGHT, wxDefaultValidator,
                 name),
      m_druh(druh) {
    // A typed amount takes its Czech form once the person leaves the field; the value read
    // from the text is kept, not the rounded form shown.
    Bind(wxEVT_KILL_FOCUS, [this](wxFocusEvent& event) {
        double value = 0;
        if (isEdited() && parse(&value) == lxformat::Chyba::ZADNA) SetValue(value);
        event.Skip();
    });
}

void lxAmountCtrl::SetValue(double value) {
    m_value = value;
    m_hasValue = true;
    m_shown = format(value);
    ChangeValue(m_shown);
}

lxformat::Chyba lxAmountCtrl::GetValue(double* value) const {
    if (!isEdited()) {
        *value = m_value;
        return lxformat::Chyba::ZADNA;
    }
    return parse(value);
}

bool lxAmountCtrl::isEdited() const { return !m_hasValue || wxTextCtrl::GetValue() != m_shown; }

wxString lxAmountCtrl::zprava(const wxString& pole) const {
    double value = 0;
    const lxformat::Chyba chyba = GetValue(&value);
    const wxString text = wxTextCtrl::GetValue();
    return m_druh == KURZ ? lxformat::kurzZprava(pole, text, chyba) : lxformat::castkaZprava(pole, text, chyba);
}

lxformat::Chyba lxAmountCtrl::parse(double* value) const {
    const wxString text = wxTextCtrl::GetValue();
    return m_druh == KURZ ? lxformat::parseKurz(text, value) : lxformat::parseCastka(text, value);
}

wxString lxAmountCtrl::format(double value) const {
    if (m_druh == MNOZSTVI) return lxformat::formatMnozstvi(value);
    return m_druh == KURZ ? lxformat::formatKurz(value) : lxformat::formatCastka(value);
}
