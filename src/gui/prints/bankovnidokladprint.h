// One bank income or expense document on one page, built from document elements.
#pragma once

#include "document.h"
#include "documentprint.h"

struct BankovniDoklad {
    bool prijem = true;
    wxString cislo;
    wxString datum;
    wxString firma;
    wxString firmaIc;
    wxString ucet;     // the account: code, number / bank code
    int vypis = 0;     // statement number, 0 for none
    wxString partner;  // the counterparty
    wxString ucel;     // what the payment is for
    wxString reference;
    double castka = 0;
    wxString mena = "CZK";
};

class BankovniDokladPrint : public DocumentPrint {
 public:
    BankovniDokladPrint(wxWindow* parent, const BankovniDoklad& doklad);

 private:
    Document m_doklad;
};
