// Import of journal entries from a CSV file, for users moving from a spreadsheet. Each row
// is one entry of the current year with the columns
//   date, number, description, amount, register or account code, pre-posting code,
//   counterparty [, flat-rate percentage]
// Fields are separated by ";" (as Czech spreadsheets write them), a tab or ","; a field may
// be quoted with '"' (a quote inside doubled). Dates are 2024-03-31 or 31.3.2024; amounts
// may use a decimal comma and spaces between thousands. A first row whose first field is
// "datum" is a heading. An empty number takes the next number of the entry's series. The
// code decides between a cash register and a bank account (a register when both have it);
// the direction comes from the pre-posting; a bank entry gets the account's latest
// statement number, as the dialog proposes it. Files in UTF-8 or in Windows-1250 are read.
//
// Every row is checked first, with the checks of the income/expense dialog; the first bad
// row is reported with its line number and nothing is stored. Otherwise all rows are stored
// in one transaction, each advancing its series as the dialog does.
#pragma once

#include <wx/string.h>

class DbModel;

struct DenikImport {
    bool ok = false;
    int pocet = 0;    // entries stored
    int radek = 0;    // line of the first bad row; 0 when the fault is not in a row
    wxString zprava;  // the fault, or on success the number of entries stored
};

DenikImport importDenik(DbModel& model, const wxString& path);
// The same over the text of a file.
DenikImport importDenikText(DbModel& model, const wxString& text);
