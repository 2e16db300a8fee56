// List rows of the book pages: lighter records built by joins, one per row of a page.
// Column names are the names the filling query gives to its result columns.
#pragma once

#include "record.h"

// A journal entry as the journal, cash and bank pages list it; zkratka is the cash
// register's or bank account's code, prijem the direction from the pre-posting.
#define FIELDS_DENIKVIEW(F)                                                                       \
    F(int, id, Id, id) F(wxDateTime, datum, Datum, datum) F(wxString, cislo, Cislo, cislo)        \
    F(wxString, popis, Popis, popis) F(double, castka, Castka, castka) F(bool, prijem, Prijem, prijem) \
    F(wxString, zkratka, Zkratka, zkratka) F(int, vypis, Vypis, vypis)
EVIDA_RECORD(DenikView, denikview, id, FIELDS_DENIKVIEW)

// An invoice: number, description, counterparty, total (in its currency), issue and due date,
// the amount paid so far, whether made out as a VAT payer's, its type (1 invoice, 2 advance
// invoice), direction, currency code, rate and accounting year.
#define FIELDS_FAKTURAVIEW(F)                                                                              \
    F(int, id, Id, id) F(wxString, cislo, Cislo, cislo) F(wxString, popis, Popis, popis)                    \
    F(wxString, protistrana, Protistrana, protistrana) F(double, celkem, Celkem, celkem)                    \
    F(wxDateTime, vystaveni, Vystaveni, vystaveni) F(wxDateTime, splatnost, Splatnost, splatnost)          \
    F(double, uhrazeno, Uhrazeno, uhrazeno) F(bool, platce, Platce, platce) F(int, typid, Typid, typid)    \
    F(bool, vydana, Vydana, vydana) F(wxString, mena, Mena, mena) F(double, kurz, Kurz, kurz)               \
    F(int, obdobirok, Obdobirok, obdobirok)
EVIDA_RECORD(FakturaView, fakturaview, id, FIELDS_FAKTURAVIEW)

// A receivable or liability, as an invoice without symbols and type.
#define FIELDS_ZAVPOHVIEW(F)                                                                               \
    F(int, id, Id, id) F(wxString, cislo, Cislo, cislo) F(wxString, popis, Popis, popis)                    \
    F(wxString, protistrana, Protistrana, protistrana) F(double, celkem, Celkem, celkem)                    \
    F(wxDateTime, vystaveni, Vystaveni, vystaveni) F(wxDateTime, splatnost, Splatnost, splatnost)          \
    F(double, uhrazeno, Uhrazeno, uhrazeno) F(bool, zavazek, Zavazek, zavazek) F(wxString, mena, Mena, mena) \
    F(double, kurz, Kurz, kurz) F(int, obdobirok, Obdobirok, obdobirok)
EVIDA_RECORD(ZavPohView, zavpohview, id, FIELDS_ZAVPOHVIEW)

// A contact with its address, for the address book.
#define FIELDS_KONTAKTVIEW(F)                                                                          \
    F(int, id, Id, id) F(wxString, nazev, Nazev, nazev) F(wxString, jmeno, Jmeno, jmeno)                \
    F(wxString, ic, Ic, ic) F(wxString, dic, Dic, dic) F(wxString, email, Email, email)                 \
    F(wxString, ulice, Ulice, ulice) F(wxString, cp, Cp, cp) F(wxString, misto, Misto, misto)          \
    F(wxString, psc, Psc, psc) F(wxString, zeme, Zeme, zeme)
EVIDA_RECORD(KontaktView, kontaktview, id, FIELDS_KONTAKTVIEW)

// A fixed asset with its group and the depreciation booked so far.
#define FIELDS_MAJETEKVIEW(F)                                                                          \
    F(int, id, Id, id) F(wxString, cislo, Cislo, cislo) F(wxString, nazev, Nazev, nazev)                \
    F(wxDateTime, porizen, Porizen, porizen) F(double, cena, Cena, cena)                               \
    F(wxString, skupina, Skupina, skupina) F(bool, vyrazen, Vyrazen, vyrazen)                           \
    F(double, odepsano, Odepsano, odepsano)
EVIDA_RECORD(MajetekView, majetekview, id, FIELDS_MAJETEKVIEW)

// A stock item with its cached quantity and value and its warehouse.
#define FIELDS_ZASOBAVIEW(F)                                                                           \
    F(int, id, Id, id) F(wxString, cislo, Cislo, cislo) F(wxString, nazev, Nazev, nazev)                \
    F(double, pocet, Pocet, pocet) F(double, celkem, Celkem, celkem) F(wxString, mj, Mj, mj)            \
    F(wxString, sklad, Sklad, sklad)
EVIDA_RECORD(ZasobaView, zasobaview, id, FIELDS_ZASOBAVIEW)

// A trip: start and end, the distance driven, vehicle plate, driver, route, purpose and
// whether the vehicle is private.
#define FIELDS_JIZDAVIEW(F)                                                                            \
    F(int, id, Id, id) F(wxDateTime, startcas, Startcas, startcas) F(wxDateTime, endcas, Endcas, endcas) \
    F(int, km, Km, km) F(wxString, vozidlo, Vozidlo, vozidlo) F(wxString, ridic, Ridic, ridic)          \
    F(wxString, cesta, Cesta, cesta) F(wxString, ucel, Ucel, ucel) F(bool, soukrome, Soukrome, soukrome)
EVIDA_RECORD(JizdaView, jizdaview, id, FIELDS_JIZDAVIEW)

// One line of a document's VAT summary: the rate in percent, the base and the VAT.
struct FaDphSazba {
    int sazba = 0;
    double zaklad = 0;
    double dph = 0;
};

// The one rule of a paid document: its payments reach its total. The comparison is exact;
// a document short by a thousandth of a crown is still open.
inline bool isDokladUhrazen(double celkem, double uhrazeno) { return celkem <= uhrazeno; }
// Overdue: unpaid and due before `dnes` (the working date); due on that day is not overdue.
inline bool isDokladPoSplatnosti(double celkem, double uhrazeno, const wxDateTime& splatnost, const wxDateTime& dnes) {
    return !isDokladUhrazen(celkem, uhrazeno) && splatnost.IsValid() && dnes.IsValid() &&
           splatnost.GetDateOnly().IsEarlierThan(dnes.GetDateOnly());
}
