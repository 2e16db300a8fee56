// The books of invoices and of receivables/liabilities: one row per document of the year as
// the page shows them, with its dates, counterparty, amounts in its own currency and state,
// and a last "Celkem" row in home currency. KnihaFakturPrint and KnihaZavpohPrint only name
// the book; the table is the same.
#pragma once

#include <wx/datetime.h>

#include <vector>

#include "table.h"
#include "tableprint.h"

// One document as the book prints it; amounts in the document's currency.
struct KnihaRadek {
    wxString cislo;
    wxDateTime vystaveni;
    wxDateTime splatnost;
    wxString protistrana;
    wxString popis;
    double celkem = 0;
    wxString mena;
    double dph = 0;
    double uhrazeno = 0;
    wxString stav;  // "Uhrazeno", "Neuhrazeno", "Po splatnosti"
};

// The book's totals in home currency, summed by the caller at each document's rate.
struct KnihaCelkem {
    double celkem = 0;
    double dph = 0;
    double uhrazeno = 0;
    double neuhrazeno = 0;
};

class KnihaDokladuPrint : public TablePrint {
 public:
    // `nadpis` names the book ("Kniha vydaných faktur"), `protistrana` its counterparty column.
    KnihaDokladuPrint(wxWindow* parent, const wxString& nadpis, const wxString& protistrana, const wxString& firma,
                      int rok, const std::vector<KnihaRadek>& radky, const KnihaCelkem& celkem);

 private:
    Table m_kniha;
};

// Issued (`vydane`) or received invoices.
class KnihaFakturPrint : public KnihaDokladuPrint {
 public:
    KnihaFakturPrint(wxWindow* parent, bool vydane, const wxString& firma, int rok,
                     const std::vector<KnihaRadek>& radky, const KnihaCelkem& celkem);
};

// Receivables, or liabilities when `zavazky`.
class KnihaZavpohPrint : public KnihaDokladuPrint {
 public:
    KnihaZavpohPrint(wxWindow* parent, bool zavazky, const wxString& firma, int rok,
                     const std::vector<KnihaRadek>& radky, const KnihaCelkem& celkem);
};
