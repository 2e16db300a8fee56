#include "KontaktCompleter.h"

#include "collation.h"
#include "dbmodel.h"

KontaktCompleter::KontaktCompleter(DbModel& model) {
    for (const auto& k : model.kontakty()) {
        if (k->id() <= 0 || k->nazev().empty()) continue;  // contact 0 is "no counterparty"
        const wxString ic = k->ic().Strip(wxString::both);
        const wxString nabidka = ic.empty() ? k->nazev() : k->nazev() + wxString::FromUTF8(", IČ ") + ic;
        m_kontakty.push_back({k->id(), k->nazev(), nabidka, collation::searchFold(k->nazev()), ic});
    }
}

bool KontaktCompleter::Start(const wxString& prefix) {
    m_shody.clear();
    m_next = 0;
    const wxString hledane = collation::searchFold(prefix.Strip(wxString::leading));
    if (hledane.empty()) return false;
    for (size_t i = 0; i < m_kontakty.size(); ++i) {
        const Kontakt& k = m_kontakty[i];
        // The start of the name, of any later word of it, or of the IČ.
        const bool shoda = k.slozeny.StartsWith(hledane) || k.slozeny.Contains(" " + hledane) ||
                           (!k.ic.empty() && k.ic.StartsWith(hledane));
        if (shoda) m_shody.push_back(i);
    }
    return !m_shody.empty();
}

wxString KontaktCompleter::GetNext() {
    return m_next < m_shody.size() ? m_kontakty[m_shody[m_next++]].nabidka : wxString();
}

int KontaktCompleter::kontaktId(const wxString& nabidka) const {
    for (const Kontakt& k : m_kontakty)
        if (k.nabidka == nabidka && k.nabidka != k.nazev) return k.id;
    return -1;
}

wxString KontaktCompleter::nazev(int kontaktId) const {
    for (const Kontakt& k : m_kontakty)
        if (k.id == kontaktId) return k.nazev;
    return wxString();
}
