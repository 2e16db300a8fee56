// Record classes of the company database, one per table, with the fields in column order
// (Vozidlo and Jizda keep the constructor order the rest of the program uses). Each entry
// of a field list is F(type, field, Field, column).
#pragma once

#include "record.h"

#define FIELDS_FIRMA(F) \
    F(wxString, nazev, Nazev, nazev) \
    F(wxString, ic, Ic, ic) \
    F(wxString, dic, Dic, dic) \
    F(wxString, registrace, Registrace, registrace) \
    F(bool, platce, Platce, platce) \
    F(bool, pausal, Pausal, pausal) \
    F(wxString, telefon, Telefon, telefon) \
    F(wxString, email, Email, email) \
    F(wxString, www, Www, www) \
    F(wxString, logo, Logo, logo) \
    F(wxString, razitko, Razitko, razitko) \
    F(int, adresaid, Adresaid, adresaid)
EVIDA_RECORD(Firma, firma, NONE, FIELDS_FIRMA)

#define FIELDS_ADRESA(F) \
    F(int, id, Id, id) \
    F(wxString, ulice, Ulice, ulice) \
    F(wxString, cp, Cp, cp) \
    F(wxString, misto, Misto, misto) \
    F(wxString, psc, Psc, psc) \
    F(wxString, zeme, Zeme, zeme)
EVIDA_RECORD(Adresa, adresa, id, FIELDS_ADRESA)

#define FIELDS_KONTAKT(F) \
    F(int, id, Id, id) \
    F(wxString, nazev, Nazev, nazev) \
    F(wxString, jmeno, Jmeno, jmeno) \
    F(wxString, ic, Ic, ic) \
    F(wxString, dic, Dic, dic) \
    F(wxString, email, Email, email) \
    F(bool, isPublic, Public, public) \
    F(int, adresaid, Adresaid, adresaid)
EVIDA_RECORD(Kontakt, kontakt, id, FIELDS_KONTAKT)

#define FIELDS_OBDOBI(F) \
    F(int, rok, Rok, rok) \
    F(bool, current, Current, current)
EVIDA_RECORD(Obdobi, obdobi, rok, FIELDS_OBDOBI)

#define FIELDS_DPHSAZBA(F) \
    F(int, id, Id, id) \
    F(int, sazba, Sazba, sazba) \
    F(int, rok, Rok, rok) \
    F(bool, zakladni, Zakladni, zakladni)
EVIDA_RECORD(DphSazba, dphsazba, id, FIELDS_DPHSAZBA)

#define FIELDS_DPHDRUH(F) \
    F(int, id, Id, id) \
    F(wxString, zkratka, Zkratka, zkratka) \
    F(wxString, popis, Popis, popis) \
    F(wxString, radky, Radky, radky) \
    F(bool, plneni, Plneni, plneni) \
    F(bool, vydaj, Vydaj, vydaj) \
    F(bool, nabizet, Nabizet, nabizet) \
    F(wxString, kpp, Kpp, kpp) \
    F(int, krp, Krp, krp) \
    F(wxDateTime, validFrom, ValidFrom, od) \
    F(wxDateTime, validTo, ValidTo, do) \
    F(bool, kraceny, Kraceny, kraceny) \
    F(wxString, kh, Kh, kh)
EVIDA_RECORD(DphDruh, dphdruh, id, FIELDS_DPHDRUH)

#define FIELDS_DENIKSLOUPEC(F) \
    F(int, sloupec, Sloupec, sloupec) \
    F(wxString, popis, Popis, popis) \
    F(bool, prijem, Prijem, prijem) \
    F(bool, danovy, Danovy, danovy)
EVIDA_RECORD(DenikSloupec, deniksloupec, sloupec, FIELDS_DENIKSLOUPEC)

#define FIELDS_PREDKONTACE(F) \
    F(int, id, Id, id) \
    F(wxString, zkratka, Zkratka, zkratka) \
    F(wxString, popis, Popis, popis) \
    F(bool, prijem, Prijem, prijem) \
    F(int, deniksloupecid, Deniksloupecid, deniksloupecid)
EVIDA_RECORD(Predkontace, predkontace, id, FIELDS_PREDKONTACE)

#define FIELDS_DENIK(F) \
    F(int, id, Id, id) \
    F(wxDateTime, datum, Datum, datum) \
    F(wxString, cislo, Cislo, cislo) \
    F(wxString, popis, Popis, popis) \
    F(double, castka, Castka, castka) \
    F(double, castkacizi, Castkacizi, castkacizi) \
    F(double, kurz, Kurz, kurz) \
    F(wxString, reference, Reference, reference) \
    F(int, pausal, Pausal, pausal) \
    F(int, menaid, Menaid, menaid) \
    F(int, predkontaceid, Predkontaceid, predkontaceid) \
    F(int, pokladnaid, Pokladnaid, pokladnaid) \
    F(int, bankaid, Bankaid, bankaid) \
    F(int, vypis, Vypis, vypis) \
    F(int, protistranaid, Protistranaid, protistranaid) \
    F(int, obdobirok, Obdobirok, obdobirok)
EVIDA_RECORD(Denik, denik, id, FIELDS_DENIK)

#define FIELDS_POKLADNA(F) \
    F(int, id, Id, id) \
    F(wxString, zkratka, Zkratka, zkratka) \
    F(wxString, popis, Popis, popis) \
    F(int, menaid, Menaid, menaid)
EVIDA_RECORD(Pokladna, pokladna, id, FIELDS_POKLADNA)

#define FIELDS_BANKA(F) \
    F(int, id, Id, id) \
    F(wxString, zkratka, Zkratka, zkratka) \
    F(wxString, popis, Popis, popis) \
    F(wxString, cislouctu, Cislouctu, cislouctu) \
    F(wxString, kodbanky, Kodbanky, kodbanky) \
    F(wxString, iban, Iban, iban) \
    F(wxString, bic, Bic, bic) \
    F(int, menaid, Menaid, menaid)
EVIDA_RECORD(Banka, banka, id, FIELDS_BANKA)

#define FIELDS_BANKOVNIUSTAV(F) \
    F(int, id, Id, id) \
    F(wxString, nazev, Nazev, nazev) \
    F(wxString, kod, Kod, kod) \
    F(wxString, bic, Bic, bic) \
    F(bool, aktivni, Aktivni, aktivni)
EVIDA_RECORD(BankovniUstav, bankovniustav, id, FIELDS_BANKOVNIUSTAV)

#define FIELDS_RADA(F) \
    F(wxString, id, Id, id) \
    F(wxString, popis, Popis, popis) \
    F(wxString, prefix, Prefix, prefix) \
    F(int, znaku, Znaku, znaku) \
    F(int, cislo, Cislo, cislo)
EVIDA_RECORD(Rada, rada, id, FIELDS_RADA)

#define FIELDS_KURZ(F) \
    F(int, id, Id, id) \
    F(wxDateTime, datum, Datum, datum) \
    F(double, hodnota, Hodnota, hodnota) \
    F(wxString, kod, Kod, kod) \
    F(bool, jednotny, Jednotny, jednotny)
EVIDA_RECORD(Kurz, kurz, id, FIELDS_KURZ)

#define FIELDS_MENA(F) \
    F(int, id, Id, id) \
    F(wxString, kod, Kod, kod) \
    F(wxString, nazev, Nazev, nazev) \
    F(wxDateTime, validFrom, ValidFrom, od) \
    F(wxDateTime, validTo, ValidTo, do)
EVIDA_RECORD(Mena, mena, id, FIELDS_MENA)

#define FIELDS_FATYP(F) \
    F(int, id, Id, id) \
    F(wxString, typ, Typ, typ)
EVIDA_RECORD(FaTyp, fatyp, id, FIELDS_FATYP)

#define FIELDS_FAUHRADA(F) \
    F(int, id, Id, id) \
    F(wxString, uhrada, Uhrada, uhrada) \
    F(bool, pokladnou, Pokladnou, pokladnou)
EVIDA_RECORD(FaUhrada, fauhrada, id, FIELDS_FAUHRADA)

#define FIELDS_FAKTURA(F) \
    F(int, id, Id, id) \
    F(int, protistranaid, Protistranaid, protistranaid) \
    F(wxString, popis, Popis, popis) \
    F(double, celkem, Celkem, celkem) \
    F(wxString, cislo, Cislo, cislo) \
    F(wxString, vs, Vs, vs) \
    F(wxString, ss, Ss, ss) \
    F(wxString, ks, Ks, ks) \
    F(int, typid, Typid, typid) \
    F(int, uhradaid, Uhradaid, uhradaid) \
    F(int, pokladnaid, Pokladnaid, pokladnaid) \
    F(int, bankaid, Bankaid, bankaid) \
    F(int, menaid, Menaid, menaid) \
    F(int, predkontaceid, Predkontaceid, predkontaceid) \
    F(int, obdobirok, Obdobirok, obdobirok) \
    F(bool, vydana, Vydana, vydana) \
    F(bool, platce, Platce, platce) \
    F(wxDateTime, vystaveni, Vystaveni, vystaveni) \
    F(wxDateTime, duzp, Duzp, duzp) \
    F(wxDateTime, dppd, Dppd, dppd) \
    F(wxDateTime, splatnost, Splatnost, splatnost) \
    F(int, dphdruhid, Dphdruhid, dphdruhid) \
    F(double, kurz, Kurz, kurz) \
    F(int, pausal, Pausal, pausal)
EVIDA_RECORD(Faktura, faktura, id, FIELDS_FAKTURA)

#define FIELDS_ZAVPOH(F) \
    F(int, id, Id, id) \
    F(int, protistranaid, Protistranaid, protistranaid) \
    F(wxString, popis, Popis, popis) \
    F(double, celkem, Celkem, celkem) \
    F(wxString, cislo, Cislo, cislo) \
    F(wxString, vs, Vs, vs) \
    F(int, uhradaid, Uhradaid, uhradaid) \
    F(int, pokladnaid, Pokladnaid, pokladnaid) \
    F(int, bankaid, Bankaid, bankaid) \
    F(int, menaid, Menaid, menaid) \
    F(int, predkontaceid, Predkontaceid, predkontaceid) \
    F(int, obdobirok, Obdobirok, obdobirok) \
    F(bool, zavazek, Zavazek, zavazek) \
    F(bool, platce, Platce, platce) \
    F(wxDateTime, vystaveni, Vystaveni, vystaveni) \
    F(wxDateTime, duzp, Duzp, duzp) \
    F(wxDateTime, dppd, Dppd, dppd) \
    F(wxDateTime, splatnost, Splatnost, splatnost) \
    F(int, dphdruhid, Dphdruhid, dphdruhid) \
    F(double, kurz, Kurz, kurz) \
    F(int, pausal, Pausal, pausal)
EVIDA_RECORD(ZavPoh, zavpoh, id, FIELDS_ZAVPOH)

#define FIELDS_FAPOLOZKA(F) \
    F(int, id, Id, id) \
    F(wxString, popis, Popis, popis) \
    F(wxString, mj, Mj, mj) \
    F(double, pocet, Pocet, pocet) \
    F(double, cenamj, Cenamj, cenamj) \
    F(int, sazbaid, Sazbaid, sazbaid) \
    F(double, dph, Dph, dph) \
    F(double, celkem, Celkem, celkem) \
    F(bool, bezdph, Bezdph, bezdph) \
    F(int, fakturaid, Fakturaid, fakturaid) \
    F(int, zavpohid, Zavpohid, zavpohid) \
    F(int, zasobaid, Zasobaid, zasobaid) \
    F(bool, zaokrouhleni, Zaokrouhleni, zaokrouhleni)
EVIDA_RECORD(FaPolozka, fapolozka, id, FIELDS_FAPOLOZKA)

#define FIELDS_UHRADA(F) \
    F(int, id, Id, id) \
    F(double, castka, Castka, castka) \
    F(int, denikid, Denikid, denikid) \
    F(int, fakturaid, Fakturaid, fakturaid) \
    F(int, zavpohid, Zavpohid, zavpohid) \
    F(int, obdobirok, Obdobirok, obdobirok)
EVIDA_RECORD(Uhrada, uhrada, id, FIELDS_UHRADA)

#define FIELDS_ODPISKUPINA(F) \
    F(int, id, Id, id) \
    F(wxString, popis, Popis, popis) \
    F(int, odpisovat, Odpisovat, odpisovat) \
    F(double, rov1, Rov1, rov1) \
    F(double, rov2, Rov2, rov2) \
    F(double, rovzvy, Rovzvy, rovzvy) \
    F(double, zry1, Zry1, zry1) \
    F(double, zry2, Zry2, zry2) \
    F(double, zryzvy, Zryzvy, zryzvy)
EVIDA_RECORD(Odpiskupina, odpiskupina, id, FIELDS_ODPISKUPINA)

#define FIELDS_MAJETEK(F) \
    F(int, id, Id, id) \
    F(wxString, cislo, Cislo, cislo) \
    F(wxString, nazev, Nazev, nazev) \
    F(wxString, popis, Popis, popis) \
    F(wxDateTime, porizen, Porizen, porizen) \
    F(bool, vyrazen, Vyrazen, vyrazen) \
    F(wxDateTime, datumvyrazeni, Datumvyrazeni, datumvyrazeni) \
    F(double, cena, Cena, cena) \
    F(int, typ, Typ, typ) \
    F(int, odpis, Odpis, odpis) \
    F(int, skupinaid, Skupinaid, skupinaid)
EVIDA_RECORD(Majetek, majetek, id, FIELDS_MAJETEK)

#define FIELDS_ODPIS(F) \
    F(int, id, Id, id) \
    F(int, rok, Rok, rok) \
    F(double, odpis, Odpis, odpis) \
    F(int, majetekid, Majetekid, majetekid)
EVIDA_RECORD(Odpis, odpis, id, FIELDS_ODPIS)

#define FIELDS_SETTINGS(F) \
    F(int, rok, Rok, rok) \
    F(int, splatnost, Splatnost, splatnost)
EVIDA_RECORD(Settings, settings, rok, FIELDS_SETTINGS)

#define FIELDS_SKLAD(F) \
    F(int, id, Id, id) \
    F(wxString, nazev, Nazev, nazev) \
    F(wxString, popis, Popis, popis) \
    F(int, ocenovani, Ocenovani, ocenovani)
EVIDA_RECORD(Sklad, sklad, id, FIELDS_SKLAD)

#define FIELDS_ZASOBA(F) \
    F(int, id, Id, id) \
    F(wxString, cislo, Cislo, cislo) \
    F(wxString, nazev, Nazev, nazev) \
    F(wxString, popis, Popis, popis) \
    F(int, ocenovani, Ocenovani, ocenovani) \
    F(wxString, mj, Mj, mj) \
    F(double, pocet, Pocet, pocet) \
    F(double, celkem, Celkem, celkem) \
    F(int, skladid, Skladid, skladid) \
    F(double, cenamj, Cenamj, cenamj) \
    F(bool, bezdph, Bezdph, bezdph) \
    F(int, dph, Dph, dph)
EVIDA_RECORD(Zasoba, zasoba, id, FIELDS_ZASOBA)

#define FIELDS_INVENTURA(F) \
    F(int, id, Id, id) \
    F(wxDateTime, datum, Datum, datum) \
    F(wxString, cislo, Cislo, cislo) \
    F(wxString, popis, Popis, popis) \
    F(wxString, provedl, Provedl, provedl) \
    F(int, skladid, Skladid, skladid) \
    F(int, obdobirok, Obdobirok, obdobirok)
EVIDA_RECORD(Inventura, inventura, id, FIELDS_INVENTURA)

#define FIELDS_IVPOLOZKA(F) \
    F(int, id, Id, id) \
    F(double, evidovano, Evidovano, evidovano) \
    F(double, zjisteno, Zjisteno, zjisteno) \
    F(int, zasobaid, Zasobaid, zasobaid) \
    F(int, inventuraid, Inventuraid, inventuraid)
EVIDA_RECORD(IvPolozka, ivpolozka, id, FIELDS_IVPOLOZKA)

#define FIELDS_POHYBZASOB(F) \
    F(int, id, Id, id) \
    F(wxDateTime, datum, Datum, datum) \
    F(wxString, cislo, Cislo, cislo) \
    F(double, pocet, Pocet, pocet) \
    F(double, cenamj, Cenamj, cenamj) \
    F(bool, prijemka, Prijemka, prijemka) \
    F(bool, pocatek, Pocatek, pocatek) \
    F(bool, inventura, Inventura, inventura) \
    F(int, inventuraid, Inventuraid, inventuraid) \
    F(int, fakturaid, Fakturaid, fakturaid) \
    F(int, zasobaid, Zasobaid, zasobaid) \
    F(int, obdobirok, Obdobirok, obdobirok)
EVIDA_RECORD(Pohybzasob, pohybzasob, id, FIELDS_POHYBZASOB)

#define FIELDS_VOZIDLO(F) \
    F(int, id, Id, id) \
    F(wxString, rz, Rz, rz) \
    F(wxString, jmeno, Jmeno, jmeno) \
    F(int, druhvozidlaid, Druhvozidlaid, druhvozidlaid) \
    F(double, spotreba, Spotreba, spotreba) \
    F(bool, soukrome, Soukrome, soukrome) \
    F(int, phmid, Phmid, phmid)
EVIDA_RECORD(Vozidlo, vozidlo, id, FIELDS_VOZIDLO)

#define FIELDS_JIZDA(F) \
    F(int, id, Id, id) \
    F(wxDateTime, startcas, Startcas, startcas) \
    F(wxDateTime, endcas, Endcas, endcas) \
    F(int, startkm, Startkm, startkm) \
    F(int, endkm, Endkm, endkm) \
    F(wxString, cesta, Cesta, cesta) \
    F(wxString, ucel, Ucel, ucel) \
    F(int, vozidloid, Vozidloid, vozidloid) \
    F(int, ridicid, Ridicid, ridicid)
EVIDA_RECORD(Jizda, jizda, id, FIELDS_JIZDA)

#define FIELDS_RIDIC(F) \
    F(int, id, Id, id) \
    F(wxString, jmeno, Jmeno, jmeno)
EVIDA_RECORD(Ridic, ridic, id, FIELDS_RIDIC)

#define FIELDS_PHM(F) \
    F(int, id, Id, id) \
    F(wxString, jmeno, Jmeno, jmeno)
EVIDA_RECORD(Phm, phm, id, FIELDS_PHM)

#define FIELDS_CENAPHM(F) \
    F(int, id, Id, id) \
    F(int, phmid, Phmid, phmid) \
    F(double, cena, Cena, cena) \
    F(wxDateTime, validFrom, ValidFrom, validfrom) \
    F(wxDateTime, validTo, ValidTo, validto)
EVIDA_RECORD(CenaPhm, cenaphm, id, FIELDS_CENAPHM)

#define FIELDS_DRUHVOZIDLA(F) \
    F(int, id, Id, id) \
    F(wxString, jmeno, Jmeno, jmeno)
EVIDA_RECORD(DruhVozidla, druhvozidla, id, FIELDS_DRUHVOZIDLA)

#define FIELDS_NAHRADAKM(F) \
    F(int, id, Id, id) \
    F(int, druhvozidlaid, Druhvozidlaid, druhvozidlaid) \
    F(double, nahrada, Nahrada, nahrada) \
    F(int, rok, Rok, rok)
EVIDA_RECORD(NahradaKm, nahradakm, id, FIELDS_NAHRADAKM)

#define FIELDS_SMTP(F) \
    F(wxString, server, Server, server) \
    F(int, port, Port, port) \
    F(bool, ssl, Ssl, ssl) \
    F(bool, autentifikace, Autentifikace, autentifikace) \
    F(wxString, username, Username, username) \
    F(wxString, password, Password, password) \
    F(wxString, sender, Sender, sender) \
    F(wxString, subject, Subject, subject) \
    F(wxString, text, Text, text)
EVIDA_RECORD(Smtp, smtp, NONE, FIELDS_SMTP)

#define FIELDS_PRIZNANI(F) \
    F(wxString, jmeno, Jmeno, jmeno) \
    F(wxString, prijmeni, Prijmeni, prijmeni) \
    F(wxString, titul, Titul, titul) \
    F(wxString, ulice, Ulice, ulice) \
    F(int, c_pop, C_pop, c_pop) \
    F(wxString, c_orient, C_orient, c_orient) \
    F(wxString, naz_obce, Naz_obce, naz_obce) \
    F(wxString, psc, Psc, psc) \
    F(wxString, stat, Stat, stat) \
    F(wxString, dic, Dic, dic) \
    F(wxString, email, Email, email) \
    F(wxString, id_dats, Id_dats, id_dats) \
    F(wxString, c_telef, C_telef, c_telef) \
    F(int, c_ufo, C_ufo, c_ufo) \
    F(int, c_pracufo, C_pracufo, c_pracufo) \
    F(int, c_okec, C_okec, c_okec) \
    F(wxString, opr_jmeno, Opr_jmeno, opr_jmeno) \
    F(wxString, opr_prijmeni, Opr_prijmeni, opr_prijmeni) \
    F(wxString, opr_postaveni, Opr_postaveni, opr_postaveni) \
    F(wxString, zast_dat_nar, Zast_dat_nar, zast_dat_nar) \
    F(wxString, zast_ev_cislo, Zast_ev_cislo, zast_ev_cislo) \
    F(wxString, zast_ic, Zast_ic, zast_ic) \
    F(wxString, zast_jmeno, Zast_jmeno, zast_jmeno) \
    F(wxString, zast_kod, Zast_kod, zast_kod) \
    F(wxString, zast_nazev, Zast_nazev, zast_nazev) \
    F(wxString, zast_prijmeni, Zast_prijmeni, zast_prijmeni) \
    F(wxString, zast_typ, Zast_typ, zast_typ)
EVIDA_RECORD(Priznani, priznani, NONE, FIELDS_PRIZNANI)

#define FIELDS_ODESLANY(F) \
    F(int, id, Id, id) \
    F(wxDateTime, cas, Cas, cas) \
    F(wxString, faktura, Faktura, faktura) \
    F(wxString, prijemce, Prijemce, prijemce)
EVIDA_RECORD(Odeslany, odeslany, id, FIELDS_ODESLANY)

#define FIELDS_ULOZENE(F) \
    F(int, id, Id, id) \
    F(int, typ, Typ, typ) \
    F(wxString, popis, Popis, popis) \
    F(wxString, forma, Forma, forma) \
    F(int, obdobi, Obdobi, obdobi) \
    F(int, mesic, Mesic, mesic) \
    F(int, ctvrtleti, Ctvrtleti, ctvrtleti) \
    F(int, rok, Rok, rok) \
    F(wxDateTime, datumOd, DatumOd, od) \
    F(wxDateTime, datumDo, DatumDo, do) \
    F(wxString, xml, Xml, xml)
EVIDA_RECORD(Ulozene, ulozene, id, FIELDS_ULOZENE)
