// A document as the VAT filings see it: its number, the counterparty's VAT id, the two tax
// dates, where it comes from, its tax base and VAT per rate of its year in home currency,
// and the classification's reverse-charge and special-regime codes.
#pragma once

#include <wx/datetime.h>
#include <wx/string.h>

#include <vector>

// The VAT of one document at one rate, in home currency.
struct DphForDoklad {
    int sazba = 0;
    bool zakladni = false;
    double zaklad = 0;
    double dph = 0;
};
using lxDphForDokladArray = std::vector<DphForDoklad>;

struct DphDoklad {
    wxString cislo;
    wxString dic;   // empty when the counterparty has none
    wxDateTime duzp;
    wxDateTime dppd;
    wxString popis;
    wxString zdroj;  // "FV" issued invoice, "FP" received invoice, "PO" receivable, "ZA" liability
    lxDphForDokladArray dph;  // one line per rate of the document's year, highest first, the zero rate last
    double celkem = 0;        // the document's own total, in its currency
    wxString kpp;
    wxString krp;
    int kontaktid = 0;
    int id = 0;         // the document's row in its table (zdroj names the table)
    int dphdruhid = 0;  // its classification
};
using lxDphDokladArray = std::vector<DphDoklad>;
