// The document of one journal entry on one page: a cash receipt or expense voucher, or a bank
// document. Both are one print: a title, the company and the date, a framed list of labelled
// values and the signature lines; the kind decides which values and which signatures.
#pragma once

#include <wx/datetime.h>

#include "document.h"
#include "documentprint.h"

struct PenezniDoklad {
    bool banka = false;  // a bank document, else a cash voucher
    bool prijem = true;  // income, else expense
    wxString cislo;
    wxDateTime datum;
    wxString firma;  // the company, with its number below
    wxString firmaIc;
    wxString ucet;       // bank: the account's code, number / bank code
    int vypis = 0;       // bank: statement number, 0 for none
    wxString partner;    // received from / paid to
    wxString ucel;       // what the payment is for
    wxString reference;  // bank: variable symbol
    double castka = 0;
    wxString mena = "CZK";
};

class PenezniDokladPrint : public DocumentPrint {
 public:
    PenezniDokladPrint(wxWindow* parent, const PenezniDoklad& doklad);

    // "Příjmový pokladní doklad PP0001", "Bankovní doklad - výdaj BV0002", ...
    static wxString nadpis(const PenezniDoklad& doklad);

 private:
    Document m_doklad;
};

// The names under which the program knows the two vouchers.
using PokladniDokladPrint = PenezniDokladPrint;
using BankovniDokladPrint = PenezniDokladPrint;
