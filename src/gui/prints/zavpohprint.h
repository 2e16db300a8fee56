// One receivable, liability or issued invoice as a document: the two parties with their
// addresses, the number, dates, symbols and how it is paid, its items, for a VAT payer's
// document the VAT summary per rate, the rounding, the total and, for an invoice paid to an
// account with an IBAN, the QR payment code.
#pragma once

#include <wx/datetime.h>

#include <vector>

#include "document.h"
#include "records.h"
#include "documentprint.h"

// A party of the document as it prints: its name, then address lines, IČ and DIČ.
struct ZavpohStrana {
    wxString nazev;
    std::vector<wxString> adresa;
    wxString ic;
    wxString dic;
};

// The address as it prints: "street number", "postcode town", country.
std::vector<wxString> adresniRadky(const Adresa& adresa);

struct ZavpohPolozka {
    wxString popis;
    wxString mj;
    double pocet = 0;
    double cenamj = 0;
    int sazba = 0;  // percent
    double dph = 0;
    double celkem = 0;
};

// One line of the VAT summary, in the document's currency.
struct ZavpohDph {
    int sazba = 0;
    double zaklad = 0;
    double dph = 0;
};

struct ZavpohDoklad {
    bool zavazek = false;  // a liability, else a receivable
    bool platce = false;   // made out as a VAT payer's: VAT columns and summary
    wxString cislo;
    wxString popis;
    ZavpohStrana firma;
    ZavpohStrana protistrana;
    wxDateTime vystaveni;
    wxDateTime duzp;
    wxDateTime splatnost;
    wxString vs;
    wxString uhrada;   // payment form, "Převodem"
    wxString registr;  // the cash register or bank account it is paid through
    wxString mena = "CZK";
    std::vector<ZavpohPolozka> polozky;
    std::vector<ZavpohDph> souhrn;
    double celkem = 0;

    // What an issued invoice adds; receivables and liabilities leave these empty.
    wxString nadpis;  // the title; empty gives nadpis() of the document
    wxString ucet;    // "number/bank code" of the account it is paid to
    wxString iban;
    wxString bic;
    wxString ks;
    wxString ss;
    bool maZaokrouhleni = false;
    double zaokrouhleni = 0;
    wxString qrtext;     // the QR payment string; empty prints no code
    wxString logo;       // picture files of the company, empty for none
    wxString razitko;
    wxString registrace;  // the supplier's registration note, printed under the parties
};

// Lays the document out into `doc` from the top down, over as many pages as the items need.
void sazbaDokladu(Document& doc, const ZavpohDoklad& doklad, const wxString& nadpis);

class ZavpohPrint : public DocumentPrint {
 public:
    ZavpohPrint(wxWindow* parent, const ZavpohDoklad& doklad);

    // "Pohledávka PO0001" or "Závazek ZA0001".
    static wxString nadpis(const ZavpohDoklad& doklad);

 private:
    Document m_doklad;
};
