// Import of journal entries from a CSV file, for users moving from a spreadsheet and for
// the journal page's own export. Each row is one entry of the current year. Without a heading
// the columns are, in this order,
//   date, number, description, amount, register or account code, pre-posting code,
//   counterparty [, flat-rate percentage]
// A first row whose first field is "datum" (any case) is a heading, and then the columns are
// found by their names in any order (case and Czech accents aside), as the export writes them:
//   Datum;Číslo;Popis;Částka;Pokladna/účet;Předkontace;Protistrana
// required, and optionally Paušál, Reference, Výpis (statement number of a bank row), Měna
// (currency code), Částka v měně and Kurz. An unknown or repeated name is refused.
//
// Fields are separated by ";" (as Czech spreadsheets write them), a tab or ",", decided by the
// first non-blank line; a field may be quoted with '"' (a quote inside doubled). Dates,
// amounts and rates are read by the program's one parser of each (lxformat). An empty number
// takes the next free number of the entry's series. The code decides between a cash register
// and a bank account (a register when both have it); the direction comes from the
// pre-posting; a bank entry without a statement number gets the account's latest, as the
// dialog proposes it. A row is in its register's currency unless it names another; for a
// foreign currency the home amount is the foreign amount × the rate (see meny() in the
// source). Files in UTF-8 (with or without a byte-order mark), UTF-16 with its mark or
// Windows-1250 are read; anything else is refused naming the line of the bad byte.
//
// Every row is checked first, with the checks of the income/expense dialog; the first bad
// row is reported with its line number and nothing is stored. A file over 50 MB, a field over
// 1 000 characters and a number used twice in one series are refused too. Otherwise all rows
// are stored in one transaction, and each journal series continues past every number stored.
#pragma once

#include <wx/string.h>

#include <string>

class DbModel;

struct DenikImport {
    bool ok = false;
    int pocet = 0;    // entries stored
    int radek = 0;    // line of the first bad row; 0 when the fault is not in a row
    wxString zprava;  // the fault, or on success the number of entries stored
};

// A file larger than 50 MB is refused before it is read.
DenikImport importDenik(DbModel& model, const wxString& path);
// The same over the bytes of a file, whose encoding is decided by csvtext::dekodovat.
DenikImport importDenikBytes(DbModel& model, const std::string& bytes);
// The same over the text of a file.
DenikImport importDenikText(DbModel& model, const wxString& text);
