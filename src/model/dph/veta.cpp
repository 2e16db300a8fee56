#include "veta.h"

#include <cmath>

Atribut* Veta::find(const wxString& atribut) {
    for (Atribut& a : m_atributy) {
        if (a.name == atribut) return &a;
    }
    return nullptr;
}

const Atribut* Veta::find(const wxString& atribut) const { return const_cast<Veta*>(this)->find(atribut); }

bool Veta::isEmpty() const {
    for (const Atribut& a : m_atributy) {
        if (!a.value.empty()) return false;
    }
    return true;
}

void Veta::clear() {
    for (Atribut& a : m_atributy) a.value.clear();
}

namespace vetaformat {

double zaokrouhlit(double value) { return std::round(value); }

wxString cislo(double value, int decimals) {
    const double scale = std::pow(10.0, decimals);
    const double rounded = std::round(value * scale) / scale;
    wxString text = wxString::FromCDouble(rounded == 0 ? 0.0 : rounded, decimals);
    if (text.Contains(".")) {
        while (text.EndsWith("0")) text.RemoveLast();
        if (text.EndsWith(".")) text.RemoveLast();
    }
    return text;
}

wxString datum(const wxDateTime& value) { return value.IsValid() ? value.Format("%d.%m.%Y") : wxString(); }

double parseCislo(const wxString& text) {
    double value = 0;
    return text.ToCDouble(&value) ? value : 0;
}

wxDateTime parseDatum(const wxString& text) {
    wxDateTime value;
    wxString::const_iterator end;
    if (text.empty() || !value.ParseFormat(text, "%d.%m.%Y", &end) || end != text.end()) return wxDateTime();
    return value;
}

}  // namespace vetaformat
