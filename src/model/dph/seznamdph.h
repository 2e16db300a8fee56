// The list of VAT documents of a period: for every group of rows of the VAT return, the
// documents whose classification feeds those rows, with their base and VAT per rate. The
// list is plain data here; the print lays it into tables and the CSV export writes it as text.
#pragma once

#include <wx/arrstr.h>
#include <wx/datetime.h>
#include <wx/string.h>

#include <vector>

#include "dphdoklad.h"

class DbModel;

namespace seznamdph {

// One section of the list: the exact `radky` texts of the classifications it gathers, the
// text of the return's row and the rows named under it.
struct Oddil {
    wxArrayString radky;
    wxString nadpis;
    wxString podnadpis;
};
// Every section, in the order of the VAT return.
const std::vector<Oddil>& oddily();

// A cell of the list: a text, or an amount (which a CSV leaves unquoted and a print aligns right).
struct Bunka {
    wxString text;
    bool castka = false;
};
using Radek = std::vector<Bunka>;

// Documents with the same rates, under one column header and closed by their "Celkem" row.
struct Blok {
    Radek hlavicka;
    std::vector<Radek> doklady;
    Radek celkem;
};

// A section that has documents in the period.
struct Sekce {
    wxString nadpis;
    wxString podnadpis;
    wxString strana;  // "Přijaté plnění" or "Uskutečněné plnění"
    std::vector<Blok> bloky;
};

// An amount with two decimals and a decimal point, whatever the locale: "2500.00".
wxString castka(double value);

// The column header of documents with the rate lines `lines`: "Doklad" … "DIČ", "Základ", "DPH",
// "Sazba" per non-zero rate, "Základ DPH 0%", "Celkem".
Radek hlavicka(const lxDphForDokladArray& lines);
// One document's row under that header.
Radek radek(const DphDoklad& doklad);
// The "Celkem" row of documents that share their rate lines: the sum of every amount column.
Radek celkem(const lxDphDokladArray& doklady);
// Cuts documents (sorted already) into blocks: a new one starts where the rate lines change.
std::vector<Blok> bloky(const lxDphDokladArray& doklady);

// The section over the classifications of `radky` for the period; no blocks when it has no documents.
Sekce createRowsForRadky(DbModel& model, const wxArrayString& radky, const wxDateTime& od, const wxDateTime& doDne,
                         const wxString& nadpis, const wxString& podnadpis);
// The sections of the period that have documents, in the fixed order.
std::vector<Sekce> seznam(DbModel& model, const wxDateTime& od, const wxDateTime& doDne);

// CSV text: fields separated by ",", texts in double quotes, lines ending "\r\n".
wxString csvRadek(const Radek& radek);
wxString createHeader(const lxDphForDokladArray& lines);
wxString csvSekce(const Sekce& sekce);
wxString csv(const std::vector<Sekce>& sekce);

}  // namespace seznamdph
