// The shapes of the lists: for each book page (and the address book and the number series)
// its columns, where its rows come from, the date its filter limits, its filter choices and
// its footer. The rows come from the open company through DbModel; with no company open
// every list is empty.
#pragma once

#include "dbmodel.h"
#include "lxtablemodel.h"

namespace bookshapes {

// Dates as the lists show them: "31.12.2024", with the time "31.12.2024 08:30".
wxString formatDatum(const wxDateTime& datum, bool withTime = false);

// The journal (NAV_DENIK), the cash registers (NAV_POKLADNA) or the bank accounts (NAV_BANKA).
lxPageShape<DenikView> denik(int nav);
// Issued or received invoices.
lxPageShape<FakturaView> faktury(bool vydane);
// Receivables or liabilities.
lxPageShape<ZavPohView> zavpoh(bool zavazky);
lxPageShape<MajetekView> majetek();
lxPageShape<ZasobaView> zasoby();
lxPageShape<JizdaView> jizdy();
// The address book.
lxPageShape<KontaktView> kontakty();
// The number series of the preferences.
lxPageShape<Rada> rady();

}  // namespace bookshapes
