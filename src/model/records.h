// Record classes of the company database tables.
#pragma once

#include "record.h"

#define FIELDS_FIRMA(F)                                                                                   \
    F(wxString, nazev, Nazev) F(wxString, ic, Ic) F(wxString, dic, Dic) F(wxString, registrace, Registrace) \
    F(bool, platce, Platce) F(bool, pausal, Pausal) F(wxString, telefon, Telefon) F(wxString, email, Email) \
    F(wxString, www, Www) F(wxString, logo, Logo) F(wxString, razitko, Razitko) F(int, adresaid, Adresaid)
EVIDA_RECORD(Firma, firma, FIELDS_FIRMA)

#define FIELDS_ADRESA(F)                                                                              \
    F(int, id, Id) F(wxString, ulice, Ulice) F(wxString, cp, Cp) F(wxString, misto, Misto) F(wxString, psc, Psc) \
    F(wxString, zeme, Zeme)
EVIDA_RECORD(Adresa, adresa, FIELDS_ADRESA)

#define FIELDS_OBDOBI(F) F(int, rok, Rok) F(bool, current, Current)
EVIDA_RECORD(Obdobi, obdobi, FIELDS_OBDOBI)

#define FIELDS_SMTP(F)                                                                                   \
    F(wxString, server, Server) F(int, port, Port) F(bool, ssl, Ssl) F(bool, autentifikace, Autentifikace) \
    F(wxString, username, Username) F(wxString, password, Password) F(wxString, sender, Sender)            \
    F(wxString, subject, Subject) F(wxString, text, Text)
EVIDA_RECORD(Smtp, smtp, FIELDS_SMTP)

#define FIELDS_PRIZNANI(F)                                                                                   \
    F(wxString, jmeno, Jmeno) F(wxString, prijmeni, Prijmeni) F(wxString, titul, Titul) F(wxString, ulice, Ulice) \
    F(int, c_pop, C_pop) F(wxString, c_orient, C_orient) F(wxString, naz_obce, Naz_obce) F(wxString, psc, Psc)    \
    F(wxString, stat, Stat) F(wxString, dic, Dic) F(wxString, email, Email) F(wxString, id_dats, Id_dats)         \
    F(wxString, c_telef, C_telef) F(int, c_ufo, C_ufo) F(int, c_pracufo, C_pracufo) F(int, c_okec, C_okec)        \
    F(wxString, opr_jmeno, Opr_jmeno) F(wxString, opr_prijmeni, Opr_prijmeni)                                     \
    F(wxString, opr_postaveni, Opr_postaveni) F(wxString, zast_dat_nar, Zast_dat_nar)                            \
    F(wxString, zast_ev_cislo, Zast_ev_cislo) F(wxString, zast_ic, Zast_ic) F(wxString, zast_jmeno, Zast_jmeno)   \
    F(wxString, zast_kod, Zast_kod) F(wxString, zast_nazev, Zast_nazev) F(wxString, zast_prijmeni, Zast_prijmeni) \
    F(wxString, zast_typ, Zast_typ)
EVIDA_RECORD(Priznani, priznani, FIELDS_PRIZNANI)
