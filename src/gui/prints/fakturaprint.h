// The print of an issued invoice: the data it shows, the two built-in layouts (a VAT payer's
// with VAT columns and a recap per rate, a non-payer's without) and a template file whose
// placeholders are filled from the invoice.
#pragma once

#include <vector>

#include "dbmodel.h"
#include "documentprint.h"

// Everything an invoice print shows, read from the model once (nactiFakturu) or made up for
// the template editor's preview (ukazkovaFaktura).
struct FakturaTisk {
    Firma firma;
    Adresa firmaAdresa;
    bool maFirmaAdresu = false;
    Faktura faktura;
    Kontakt kontakt;
    bool maKontakt = false;
    Adresa kontaktAdresa;
    bool maKontaktAdresu = false;
    wxString uhrada;  // name of the payment form, empty when the invoice has none
    bool maUhradu = false;
    bool pokladnou = false;
    Banka banka;
    bool maBanku = false;
    wxString zkratkaMena;  // the currency's short name ("Kč")
    wxString kodMena;      // its ISO code ("CZK")
    std::vector<FaPolozka> polozky;
    std::vector<int> sazbyPolozek;  // the VAT rate in per cent of each item, in step with polozky
    std::vector<FaDphSazba> rekapitulace;  // base and VAT per rate, in the invoice's currency
    wxString qrtext;  // the QR payment string; empty when the invoice gets no code
};

// The invoice `id` with everything it refers to; `ok` false when there is no such invoice.
FakturaTisk nactiFakturu(DbModel& model, int id, bool* ok = nullptr);
// A sample invoice of three items ("Položka č.1" .. "Položka č.3", unit "ks") for previews
// of templates, issued by the open company when one is open.
FakturaTisk ukazkovaFaktura();

// Fills a template with the invoice: company, invoice and customer placeholders in every
// text; item rows repeated per item and VAT recap rows per rate, later elements moved down;
// the "{qr-platba}" image given the payment string (or nothing when the invoice gets none).
// Rows that run past the item band's room go on to further pages.
void vyplnSablonu(Document& doc, const FakturaTisk& data);

// The placeholder fillers, one per source.
wxString parseFirmaLine(const wxString& line, const FakturaTisk& data);
wxString parseFakturaLine(const wxString& line, const FakturaTisk& data);
wxString parseKontaktLine(const wxString& line, const FakturaTisk& data);
wxString parseLine(const wxString& line, const FakturaTisk& data);  // the three above
wxString parsePolozkaLine(const wxString& line, const FaPolozka& polozka, int sazba, int index);
wxString parseSazbaLine(const wxString& line, int sazba, double zaklad, double dph);
// Moves the elements whose top is at `from` mm or lower down by `by` mm.
void moveElements(std::vector<Element*>& elements, int from, int by);

// The built-in layouts: both keep their document.
class FakturaPlatcePrint : public DocumentPrint {
 public:
    FakturaPlatcePrint(wxWindow* parent, const FakturaTisk& data);

 private:
    Document m_doc;
};

class FakturaNeplatcePrint : public DocumentPrint {
 public:
    FakturaNeplatcePrint(wxWindow* parent, const FakturaTisk& data);

 private:
    Document m_doc;
};

// An invoice through a template file. `ok()` is false (and `error()` says why in Czech) when
// the template cannot be read.
class FakturaXmlPrint : public DocumentPrint {
 public:
    FakturaXmlPrint(wxWindow* parent, const FakturaTisk& data, const wxString& templatePath);
    bool ok() const { return m_ok; }
    const wxString& error() const { return m_error; }

 private:
    Document m_doc;
    bool m_ok = false;
    wxString m_error;
};
