// The overview of assets and liabilities for the income tax return: for each row the amount at
// the beginning and at the end of the year, computed from the books and then editable. The
// values are kept under the attribute names of the return's record (the beginning under the
// plain name, the end under the "_z_" one).
#pragma once

#include <wx/string.h>

#include <map>
#include <string>
#include <vector>

class DbModel;

struct MajetekZavazkyRadek {
    const char* popis;
    const char* zacatek;  // attribute of the beginning of the year
    const char* konec;    // attribute of the end; null for a row with one value
};

// The rows in the order of the overview.
const std::vector<MajetekZavazkyRadek>& majetekZavazkyRadky();

struct MajetekZavazky {
    int rok = 0;
    std::map<std::string, double> hodnoty;  // attribute → amount
    double hodnota(const char* atribut) const;
};

// The year of the single yearly rates that the open foreign documents of `rok` count at: the
// year itself once it is over, the year before while it is still running.
int rokJednotnychKurzu(int rok, int letos);

// The amounts from the books: fixed assets in use less their depreciation, cash and bank
// balances, stock by its valuation, open receivables and liabilities (foreign ones at the
// single yearly rate), wages paid in the year. Reserves are not kept in the books and start at 0.
MajetekZavazky nacistMajetekZavazky(DbModel& model, int rok);
