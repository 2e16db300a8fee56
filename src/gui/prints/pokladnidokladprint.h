// A cash receipt or expense voucher on one page, built from document elements.
#pragma once

#include "document.h"
#include "documentprint.h"

struct PokladniDoklad {
    bool prijem = true;  // income voucher, else expense voucher
    wxString cislo;
    wxString datum;
    wxString firma;  // the company, with its number below
    wxString firmaIc;
    wxString partner;  // received from / paid to
    wxString ucel;     // what the payment is for
    double castka = 0;
    wxString mena = "CZK";
};

class PokladniDokladPrint : public DocumentPrint {
 public:
    PokladniDokladPrint(wxWindow* parent, const PokladniDoklad& doklad);

 private:
    Document m_doklad;
};
