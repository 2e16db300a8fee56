// Builder of VAT payers' documents for the tests of the VAT lists: a document of a
// classification with items at given rates, saved as the document dialogs save it.
#pragma once

#include <utility>
#include <vector>

#include "dbmodel.h"
#include "fakturace/dokladform.h"

struct DphPolozka {
    int sazba;    // percent; 0 is the zero rate
    double cena;  // price with VAT
};

// A document of `druh` dated `duzp`/`dppd` (ISO), classification `dphdruh`, counterparty
// `protistrana`, with its items at the rates of the year `rok` (the current year when 0).
DokladForm dphDoklad(DbModel& model, DruhDokladu druh, const char* duzp, const char* dppd, const char* dphdruh,
                     const std::vector<DphPolozka>& polozky, const wxString& popis = wxString(),
                     const wxString& protistrana = "Beta s.r.o.", int menaid = 1, double kurz = 1, int rok = 0);
