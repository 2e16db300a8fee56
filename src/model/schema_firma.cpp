// Tables of the company itself, its contacts, periods, settings, e-mail and filings.
// Each list: the CREATE TABLE text, then the rows written when the table is created.
#include "schema.h"

const char* const sqlite_tb_version[] = {
    "CREATE TABLE version (verze TEXT)",
    "INSERT INTO version(verze) VALUES('1.40.14')",
    nullptr};

const char* const sqlite_tb_smtp[] = {
    "CREATE TABLE smtp (server TEXT, port INTEGER, ssl INTEGER, autentifikace INTEGER, username TEXT, password TEXT, sender TEXT, subject TEXT, text TEXT)",
    "INSERT INTO smtp(port,ssl,subject,text) VALUES(25,0,'Faktura','Dobrý den,\nv příloze Vám zasíláme fakturu')",
    nullptr};

const char* const sqlite_tb_odeslany[] = {
    "CREATE TABLE odeslany (id INTEGER PRIMARY KEY AUTOINCREMENT, cas TEXT, faktura TEXT, prijemce TEXT)",
    nullptr};

const char* const sqlite_tb_priznani[] = {
    "CREATE TABLE priznani (jmeno TEXT, prijmeni TEXT, titul TEXT, ulice TEXT, c_pop INTEGER, c_orient TEXT, naz_obce TEXT, psc TEXT, stat TEXT, dic TEXT, email TEXT, id_dats TEXT, c_telef TEXT, c_ufo INTEGER, c_pracufo INTEGER, c_okec INTEGER, opr_jmeno TEXT, opr_prijmeni TEXT, opr_postaveni TEXT, zast_dat_nar TEXT, zast_ev_cislo TEXT, zast_ic TEXT, zast_jmeno TEXT, zast_kod TEXT, zast_nazev TEXT, zast_prijmeni TEXT, zast_typ TEXT)",
    nullptr};

const char* const sqlite_tb_ulozene[] = {
    "CREATE TABLE ulozene (id INTEGER PRIMARY KEY AUTOINCREMENT, typ INTEGER NOT NULL, popis TEXT NOT NULL, forma TEXT NOT NULL, obdobi INTEGER NOT NULL, mesic INTEGER, ctvrtleti INTEGER, rok INTEGER, od TEXT, do TEXT, xml TEXT)",
    nullptr};

const char* const sqlite_tb_adresa[] = {
    "CREATE TABLE adresa (id INTEGER PRIMARY KEY AUTOINCREMENT, ulice TEXT, cp TEXT, misto TEXT, psc TEXT, zeme TEXT)",
    "INSERT INTO adresa(id) VALUES(0)",
    nullptr};

const char* const sqlite_tb_kontakt[] = {
    "CREATE TABLE kontakt (id INTEGER PRIMARY KEY AUTOINCREMENT, nazev TEXT, jmeno TEXT, ic TEXT, dic TEXT, email TEXT, public INTEGER, adresaid INTEGER NOT NULL REFERENCES adresa(id) ON UPDATE CASCADE)",
    "INSERT INTO kontakt(id,public,adresaid) VALUES(0,0,0)",
    nullptr};

const char* const sqlite_tb_firma[] = {
    "CREATE TABLE firma (nazev TEXT, ic TEXT, dic TEXT, registrace TEXT, platce INTEGER, pausal INTEGER, telefon TEXT, email TEXT, www TEXT, logo TEXT, razitko TEXT, adresaid INTEGER NOT NULL REFERENCES adresa(id) ON UPDATE CASCADE)",
    nullptr};

const char* const sqlite_tb_obdobi[] = {
    "CREATE TABLE obdobi (rok INTEGER PRIMARY KEY, current INTEGER NOT NULL)",
    nullptr};

const char* const sqlite_tb_settings[] = {
    "CREATE TABLE settings (rok INTEGER PRIMARY KEY, splatnost INTEGER)",
    nullptr};
