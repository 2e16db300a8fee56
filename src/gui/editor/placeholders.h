// The placeholders a template may hold, grouped by where the invoice print takes their
// values from; the editor's dialogs offer them for insertion into their text fields.
#pragma once

#include <wx/string.h>

#include <vector>

struct Placeholder {
    const char* key;    // "{firma-nazev}"
    const char* popis;  // "Název firmy"
};

struct PlaceholderGroup {
    const char* nazev;  // "Firma"
    std::vector<Placeholder> polozky;
};

// Company, invoice, customer, item and VAT recap, in that order.
const std::vector<PlaceholderGroup>& placeholderGroups();
