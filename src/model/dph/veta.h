// The records (věty) of an electronic tax filing: a record has a name and an ordered list of
// named attributes. Values are kept as the text the filing carries, so that what is computed,
// saved, read back and printed is one and the same: whole numbers and decimals with a point,
// dates as "d.m.yyyy".
#pragma once

#include <wx/datetime.h>
#include <wx/string.h>

#include <vector>

// Pomocny: a working value the program keeps with a record (an unrounded running total, …)
// that is never written into the file.
enum class AtributTyp { Text, Integer, Double, Datum, Pomocny };

struct Atribut {
    wxString name;
    wxString value;
    AtributTyp typ = AtributTyp::Text;
};

class Veta {
 public:
    Veta() = default;
    Veta(const wxString& name, std::vector<Atribut> atributy, bool forXml = true)
        : m_name(name), m_atributy(std::move(atributy)), m_forXml(forXml) {}

    const wxString& name() const { return m_name; }
    const std::vector<Atribut>& atributy() const { return m_atributy; }
    Atribut* find(const wxString& atribut);
    const Atribut* find(const wxString& atribut) const;
    // Only records marked for XML are written into the filing's file.
    bool isForXml() const { return m_forXml; }
    bool isEmpty() const;
    void clear();

 private:
    wxString m_name;
    std::vector<Atribut> m_atributy;
    bool m_forXml = true;
};

// The text forms of values, independent of the system's locale.
namespace vetaformat {
// Integers "%d"; doubles with a decimal point and at most `decimals` places, trailing zeros
// dropped ("95.5", "1200"); dates "d.m.yyyy" with leading zeros ("05.03.2026").
wxString cislo(double value, int decimals);
wxString datum(const wxDateTime& value);
double parseCislo(const wxString& text);  // 0 for an empty or malformed text
wxDateTime parseDatum(const wxString& text);  // invalid for an empty or malformed text
// Half away from zero to whole units: 2.5 → 3, −2.5 → −3.
double zaokrouhlit(double value);
}  // namespace vetaformat
