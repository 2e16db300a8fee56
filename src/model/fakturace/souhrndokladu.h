// The totals of a list of invoices or receivables/liabilities in home currency, as the book
// pages' footers, the books' prints and evida-cli show them. Paid and overdue follow the one
// rule of views.h on each row's summed payments.
#pragma once

#include <wx/datetime.h>

#include "clock.h"
#include "lxsettings.h"
#include "views.h"

// An amount of a document in home currency. A document in the home currency may carry the
// rate 0 (none entered); it counts as 1.
inline double vDomaciMene(double castka, double kurz) { return castka * (kurz == 0.0 ? 1.0 : kurz); }

struct SouhrnDokladu {
    double celkem = 0;        // the documents' totals
    double uhrazeno = 0;      // their payments
    double neuhrazeno = 0;    // what is still open on the unpaid ones
    double poSplatnosti = 0;  // of that, what is open on the overdue ones
    int pocet = 0;            // the number of documents
    int neuhrazenych = 0;
    int poSplatnostiPocet = 0;
};

// The open amount of one document in its own currency; 0 once it counts as paid.
template <class Row>
double zbyvaUhradit(const Row& r) {
    return isDokladUhrazen(r.celkem(), r.uhrazeno()) ? 0.0 : r.celkem() - r.uhrazeno();
}

// Sums rows that are pointers or owning pointers to FakturaView or ZavPohView.
template <class Rows>
SouhrnDokladu souhrnDokladu(const Rows& rows, const wxDateTime& dnes) {
    SouhrnDokladu s;
    for (const auto& row : rows) {
        const auto& r = *row;
        ++s.pocet;
        s.celkem += vDomaciMene(r.celkem(), r.kurz());
        s.uhrazeno += vDomaciMene(r.uhrazeno(), r.kurz());
        if (isDokladUhrazen(r.celkem(), r.uhrazeno())) continue;
        const double zbyva = vDomaciMene(r.celkem() - r.uhrazeno(), r.kurz());
        ++s.neuhrazenych;
        s.neuhrazeno += zbyva;
        if (isDokladPoSplatnosti(r.celkem(), r.uhrazeno(), r.splatnost(), dnes)) {
            ++s.poSplatnostiPocet;
            s.poSplatnosti += zbyva;
        }
    }
    return s;
}
