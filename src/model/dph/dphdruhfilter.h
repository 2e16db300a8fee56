// The conditions of the VAT classification filter and the test of one classification
// against them. A condition that is not set lets every classification through.
#pragma once

#include <wx/string.h>

#include <optional>

#include "records.h"

// A text condition: the value equals the text ("Rovno") or contains it ("Obsahuje"), both
// regardless of case; "Obsahuje" also regardless of accents.
struct TextPodminka {
    enum Shoda { ROVNO, OBSAHUJE };
    Shoda shoda = ROVNO;
    wxString text;
    bool matches(const wxString& value) const;
};

struct DphDruhPodminky {
    std::optional<TextPodminka> zkratka;
    std::optional<TextPodminka> popis;
    std::optional<bool> plneni;    // true: received supplies ("Přijaté")
    std::optional<wxString> radky;  // the rows of the return, exactly
    std::optional<wxString> kpp;    // empty: classifications without a subject code
    std::optional<wxString> kh;     // empty: classifications not in the control statement
    std::optional<bool> nabizet;

    bool empty() const;
    bool matches(const DphDruh& druh) const;
};
