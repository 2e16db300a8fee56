// VAT classification of document amounts (table dphdruh): for each kind of supply, the rows of the
// VAT return and the control-statement sections its amounts go to, whether it belongs to income or
// expense documents, the reverse-charge subject code, the special regime and the validity dates.
// Ids are assigned 1..119 in the order of the INSERT statements; other code refers to them.
#include "schema.h"

const char* const sqlite_tb_dphdruh[] = {
    "CREATE TABLE dphdruh (id INTEGER PRIMARY KEY AUTOINCREMENT, zkratka TEXT, popis TEXT, radky TEXT, plneni INTEGER, vydaj INTEGER, nabizet INTEGER, kpp TEXT, krp INTEGER, od TEXT, do TEXT, kraceny INTEGER, kh TEXT)",
    // id 1
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R1,2',"
        "'Dodání zboží nebo poskytnutí služby s místem plnění v tuzemsku (např. §13, §14, §8)',"
        "'1,2',0,0,1,NULL,0,'2011-01-01','2100-01-01',0,'A4,A5')",
    // id 2
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R3,4',"
        "'Pořízení zboží z jiného členského státu (§16; §17 odst.6 písm e); §19 odst.3)',"
        "'3,4',0,1,0,NULL,NULL,'2011-01-01','2100-01-01',0,'A2')",
    // id 3
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R3,4,43,44',"
        "'Pořízení zboží z jiného členského státu (§16; §17 odst.6 písm e); §19 odst.3) - v plné výši',"
        "'3,4,43,44',0,1,0,NULL,NULL,'2011-01-01','2100-01-01',0,'A2')",
    // id 4
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R3,4,43,44-K',"
        "'Pořízení zboží z jiného členského státu (§16; §17 odst.6 písm e); §19 odst.3) - krácený odpočet',"
        "'3,4,43,44',0,1,0,NULL,NULL,'2011-01-01','2100-01-01',1,'A2')",
    // id 5
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R5,6',"
        "'Přijetí služby s místem plnění podle §9 odst.1 od osoby registrované k dani v jiném členském státě',"
        "'5,6',0,1,0,NULL,NULL,'2011-01-01','2100-01-01',0,'A2')",
    // id 6
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R5,6,43,44',"
        "'Přijetí služby s místem plnění podle §9 odst.1 od osoby registrované k dani v jiném členském státě"
        " - v plné výši',"
        "'5,6,43,44',0,1,0,NULL,NULL,'2011-01-01','2100-01-01',0,'A2')",
    // id 7
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R5,6,43,44-K',"
        "'Přijetí služby s místem plnění podle §9 odst.1 od osoby registrované k dani v jiném členském státě"
        " - krácený odpočet',"
        "'5,6,43,44',0,1,0,NULL,NULL,'2011-01-01','2100-01-01',1,'A2')",
    // id 8
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R7,8',"
        "'Dovoz zboží (§23 odst.3 - 5)',"
        "'7,8',0,1,0,NULL,NULL,'2011-01-01','2100-01-01',0,NULL)",
    // id 9
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R7,8,42',"
        "'Dovoz zboží (§23 odst.3 - 5) - v plné výši',"
        "'7,8,42',0,1,0,NULL,NULL,'2011-01-01','2100-01-01',0,NULL)",
    // id 10
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R7,8,42-K',"
        "'Dovoz zboží (§23 odst.3 - 5) - krácený odpočet',"
        "'7,8,42',0,1,0,NULL,NULL,'2011-01-01','2100-01-01',1,NULL)",
    // id 11
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R9',"
        "'Pořízení nového dopravního prostředku (§19 odst.4)',"
        "'9',0,1,0,NULL,NULL,'2011-01-01','2100-01-01',0,'A2')",
    // id 12
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R9,43,44',"
        "'Pořízení nového dopravního prostředku (§19 odst.4) - v plné výši',"
        "'9,43,44',0,1,0,NULL,NULL,'2011-01-01','2100-01-01',0,'A2')",
    // id 13
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R9,43,44-K',"
        "'Pořízení nového dopravního prostředku (§19 odst.4) - krácený odpočet',"
        "'9,43,44',0,1,0,NULL,NULL,'2011-01-01','2100-01-01',1,'A2')",
    // id 14
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11-1',"
        "'Režim přenesení daňové povinnosti (§92a) - odběratel zboží nebo příjemce služeb - Zlato',"
        "'10,11',0,1,0,'1',NULL,'2011-01-01','2100-01-01',0,'B1')",
    // id 15
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-1',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Zlato"
        " - v plné výši',"
        "'10,11,43,44',0,1,0,'1',NULL,'2011-01-01','2100-01-01',0,'B1')",
    // id 16
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-1-K',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Zlato"
        " - krácený odpočet',"
        "'10,11,43,44',0,1,0,'1',NULL,'2011-01-01','2100-01-01',1,'B1')",
    // id 17
    // Subject name of reverse-charge code 3 is not checked against the official code list.
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11-3',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Zboží uvedené v příloze č. 5 zákona',"
        "'10,11',0,1,0,'3',NULL,'2011-01-01','2100-01-01',0,'B1')",
    // id 18
    // Subject name of reverse-charge code 3 is not checked against the official code list.
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-3',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Zboží uvedené v příloze č. 5 zákona"
        " - v plné výši',"
        "'10,11,43,44',0,1,0,'3',NULL,'2011-01-01','2100-01-01',0,'B1')",
    // id 19
    // Subject name of reverse-charge code 3 is not checked against the official code list.
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-3-K',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Zboží uvedené v příloze č. 5 zákona"
        " - krácený odpočet',"
        "'10,11,43,44',0,1,0,'3',NULL,'2011-01-01','2100-01-01',1,'B1')",
    // id 20
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11-4',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Stavební a montážní práce',"
        "'10,11',0,1,0,'4',NULL,'2011-01-01','2100-01-01',0,'B1')",
    // id 21
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-4',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Stavební a montážní práce"
        " - v plné výši',"
        "'10,11,43,44',0,1,0,'4',NULL,'2011-01-01','2100-01-01',0,'B1')",
    // id 22
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-4-K',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Stavební a montážní práce"
        " - krácený odpočet',"
        "'10,11,43,44',0,1,0,'4',NULL,'2011-01-01','2100-01-01',1,'B1')",
    // id 23
    // Subject name of reverse-charge code 5 is not checked against the official code list.
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11-5',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Zboží poskytnuté jako záruka a zboží po postoupení výhrady vlastnictví',"
        "'10,11',0,1,0,'5',NULL,'2011-01-01','2100-01-01',0,'B1')",
    // id 24
    // Subject name of reverse-charge code 5 is not checked against the official code list.
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-5',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Zboží poskytnuté jako záruka a zboží po postoupení výhrady vlastnictví"
        " - v plné výši',"
        "'10,11,43,44',0,1,0,'5',NULL,'2011-01-01','2100-01-01',0,'B1')",
    // id 25
    // Subject name of reverse-charge code 5 is not checked against the official code list.
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-5-K',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Zboží poskytnuté jako záruka a zboží po postoupení výhrady vlastnictví"
        " - krácený odpočet',"
        "'10,11,43,44',0,1,0,'5',NULL,'2011-01-01','2100-01-01',1,'B1')",
    // id 26
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11-11',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Povolenky na emise skleníkových plynů',"
        "'10,11',0,1,0,'11',NULL,'2011-01-01','2100-01-01',0,'B1')",
    // id 27
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-11',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Povolenky na emise skleníkových plynů"
        " - v plné výši',"
        "'10,11,43,44',0,1,0,'11',NULL,'2011-01-01','2100-01-01',0,'B1')",
    // id 28
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-11-K',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Povolenky na emise skleníkových plynů"
        " - krácený odpočet',"
        "'10,11,43,44',0,1,0,'11',NULL,'2011-01-01','2100-01-01',1,'B1')",
    // id 29
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11-12',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Obilniny a technické plodiny',"
        "'10,11',0,1,0,'12',NULL,'2011-01-01','2100-01-01',0,'B1')",
    // id 30
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-12',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Obilniny a technické plodiny"
        " - v plné výši',"
        "'10,11,43,44',0,1,0,'12',NULL,'2011-01-01','2100-01-01',0,'B1')",
    // id 31
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-12-K',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Obilniny a technické plodiny"
        " - krácený odpočet',"
        "'10,11,43,44',0,1,0,'12',NULL,'2011-01-01','2100-01-01',1,'B1')",
    // id 32
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11-13',"
        "'Režim přenesení daňové povinnosti (§92a) - odběratel zboží nebo příjemce služeb - Kovy',"
        "'10,11',0,1,0,'13',NULL,'2011-01-01','2100-01-01',0,'B1')",
    // id 33
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-13',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Kovy"
        " - v plné výši',"
        "'10,11,43,44',0,1,0,'13',NULL,'2011-01-01','2100-01-01',0,'B1')",
    // id 34
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-13-K',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Kovy"
        " - krácený odpočet',"
        "'10,11,43,44',0,1,0,'13',NULL,'2011-01-01','2100-01-01',1,'B1')",
    // id 35
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11-14',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Mobilní telefony',"
        "'10,11',0,1,0,'14',NULL,'2011-01-01','2100-01-01',0,'B1')",
    // id 36
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-14',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Mobilní telefony"
        " - v plné výši',"
        "'10,11,43,44',0,1,0,'14',NULL,'2011-01-01','2100-01-01',0,'B1')",
    // id 37
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-14-K',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Mobilní telefony"
        " - krácený odpočet',"
        "'10,11,43,44',0,1,0,'14',NULL,'2011-01-01','2100-01-01',1,'B1')",
    // id 38
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11-15',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Integrované obvody',"
        "'10,11',0,1,0,'15',NULL,'2011-01-01','2100-01-01',0,'B1')",
    // id 39
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-15',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Integrované obvody"
        " - v plné výši',"
        "'10,11,43,44',0,1,0,'15',NULL,'2011-01-01','2100-01-01',0,'B1')",
    // id 40
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-15-K',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Integrované obvody"
        " - krácený odpočet',"
        "'10,11,43,44',0,1,0,'15',NULL,'2011-01-01','2100-01-01',1,'B1')",
    // id 41
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11-16',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Přenosná zařízení pro automatizované zpracování dat',"
        "'10,11',0,1,0,'16',NULL,'2011-01-01','2100-01-01',0,'B1')",
    // id 42
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-16',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Přenosná zařízení pro automatizované zpracování dat"
        " - v plné výši',"
        "'10,11,43,44',0,1,0,'16',NULL,'2011-01-01','2100-01-01',0,'B1')",
    // id 43
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-16-K',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Přenosná zařízení pro automatizované zpracování dat"
        " - krácený odpočet',"
        "'10,11,43,44',0,1,0,'16',NULL,'2011-01-01','2100-01-01',1,'B1')",
    // id 44
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11-17',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Videoherní konzole',"
        "'10,11',0,1,0,'17',NULL,'2011-01-01','2100-01-01',0,'B1')",
    // id 45
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-17',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Videoherní konzole"
        " - v plné výši',"
        "'10,11,43,44',0,1,0,'17',NULL,'2011-01-01','2100-01-01',0,'B1')",
    // id 46
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-17-K',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Videoherní konzole"
        " - krácený odpočet',"
        "'10,11,43,44',0,1,0,'17',NULL,'2011-01-01','2100-01-01',1,'B1')",
    // id 47
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R12,13',"
        "'Ostatní zdanitelná plnění, u kterých je povinen přiznat daň plátce při jejich přijetí (§108)',"
        "'12,13',0,1,0,NULL,NULL,'2011-01-01','2100-01-01',0,'A2')",
    // id 48
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R12,13,43,44',"
        "'Ostatní zdanitelná plnění, u kterých je povinen přiznat daň plátce při jejich přijetí (§108)"
        " - v plné výši',"
        "'12,13,43,44',0,1,0,NULL,NULL,'2011-01-01','2100-01-01',0,'A2')",
    // id 49
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R12,13,43,44-K',"
        "'Ostatní zdanitelná plnění, u kterých je povinen přiznat daň plátce při jejich přijetí (§108)"
        " - krácený odpočet',"
        "'12,13,43,44',0,1,0,NULL,NULL,'2011-01-01','2100-01-01',1,'A2')",
    // id 50
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R20',"
        "'Dodání zboží do jiného členského státu (§64)',"
        "'20',0,0,0,NULL,NULL,'2011-01-01','2100-01-01',0,NULL)",
    // id 51
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R21',"
        "'Poskytnutí služeb s místem plnění v jiném členském státě vymezených v §102 odst.1 písm.d) a odst.2',"
        "'21',0,0,0,NULL,NULL,'2011-01-01','2100-01-01',0,NULL)",
    // id 52
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R22',"
        "'Vývoz zboží (§66)',"
        "'22',0,0,0,NULL,NULL,'2011-01-01','2100-01-01',0,NULL)",
    // id 53
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R23',"
        "'Dodání nového dopravního prostředku osobě neregistrované k dani v jiném členském státě (§19 odst.4)',"
        "'23',0,0,0,NULL,NULL,'2011-01-01','2100-01-01',0,NULL)",
    // id 54
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R24',"
        "'Zasílání zboží do jiného členského státu (§8)',"
        "'24',0,0,0,NULL,NULL,'2011-01-01','2021-09-30',0,NULL)",
    // id 55
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R24',"
        "'Vybraná plnění (§ 110b odst. 2)',"
        "'24',0,0,0,NULL,NULL,'2021-10-01','2100-01-01',0,NULL)",
    // id 56
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R25-1',"
        "'Režim přenesení daňové povinnosti (§92a) - dodavatel zboží nebo poskytovatel služeb - Zlato',"
        "'25',0,0,0,'1',NULL,'2011-01-01','2100-01-01',0,'A1')",
    // id 57
    // Subject name of reverse-charge code 3 is not checked against the official code list.
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R25-3',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - dodavatel zboží nebo poskytovatel služeb"
        " - Zboží uvedené v příloze č. 5 zákona',"
        "'25',0,0,0,'3',NULL,'2011-01-01','2100-01-01',0,'A1')",
    // id 58
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R25-4',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - dodavatel zboží nebo poskytovatel služeb"
        " - Stavební a montážní práce',"
        "'25',0,0,0,'4',NULL,'2011-01-01','2100-01-01',0,'A1')",
    // id 59
    // Subject name of reverse-charge code 5 is not checked against the official code list.
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R25-5',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - dodavatel zboží nebo poskytovatel služeb"
        " - Zboží poskytnuté jako záruka a zboží po postoupení výhrady vlastnictví',"
        "'25',0,0,0,'5',NULL,'2011-01-01','2100-01-01',0,'A1')",
    // id 60
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R25-11',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - dodavatel zboží nebo poskytovatel služeb"
        " - Povolenky na emise skleníkových plynů',"
        "'25',0,0,0,'11',NULL,'2011-01-01','2100-01-01',0,'A1')",
    // id 61
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R25-12',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - dodavatel zboží nebo poskytovatel služeb"
        " - Obilniny a technické plodiny',"
        "'25',0,0,0,'12',NULL,'2011-01-01','2100-01-01',0,'A1')",
    // id 62
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R25-13',"
        "'Režim přenesení daňové povinnosti (§92a) - dodavatel zboží nebo poskytovatel služeb - Kovy',"
        "'25',0,0,0,'13',NULL,'2011-01-01','2100-01-01',0,'A1')",
    // id 63
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R25-14',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - dodavatel zboží nebo poskytovatel služeb"
        " - Mobilní telefony',"
        "'25',0,0,0,'14',NULL,'2011-01-01','2100-01-01',0,'A1')",
    // id 64
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R25-15',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - dodavatel zboží nebo poskytovatel služeb"
        " - Integrované obvody',"
        "'25',0,0,0,'15',NULL,'2011-01-01','2100-01-01',0,'A1')",
    // id 65
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R25-16',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - dodavatel zboží nebo poskytovatel služeb"
        " - Přenosná zařízení pro automatizované zpracování dat',"
        "'25',0,0,0,'16',NULL,'2011-01-01','2100-01-01',0,'A1')",
    // id 66
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R25-17',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - dodavatel zboží nebo poskytovatel služeb"
        " - Videoherní konzole',"
        "'25',0,0,0,'17',NULL,'2011-01-01','2100-01-01',0,'A1')",
    // id 67
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R26',"
        "'Ostatní uskutečněná plnění s nárokem na odpočet daně (např. §24a, §67, §68, §69, §70, §89, §90, §92)',"
        "'26',0,0,0,NULL,NULL,'2011-01-01','2100-01-01',0,NULL)",
    // id 68
    // Wording follows the form's pattern; not checked against the official form.
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R26-Z',"
        "'Ostatní uskutečněná plnění s nárokem na odpočet daně (např. §24a, §67, §68, §69, §70, §89, §90, §92)"
        " - investiční zlato',"
        "'26',0,0,0,NULL,NULL,'2011-01-01','2100-01-01',0,'A3')",
    // id 69
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R30',"
        "'Zjednodušený postup při dodání zboží formou třístranného obchodu (§17) prostřední osobou"
        " - Pořízení zboží',"
        "'30',1,1,0,NULL,NULL,'2011-01-01','2100-01-01',0,NULL)",
    // id 70
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R31',"
        "'Zjednodušený postup při dodání zboží formou třístranného obchodu (§17) prostřední osobou"
        " - Dodání zboží',"
        "'31',0,0,0,NULL,NULL,'2011-01-01','2100-01-01',0,NULL)",
    // id 71
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R32',"
        "'Dovoz zboží osvobozený podle §71g',"
        "'32',1,1,0,NULL,NULL,'2011-01-01','2100-01-01',0,NULL)",
    // id 72
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R33',"
        "'Oprava výše daně u pohledávek za dlužníky v insolvenčním řízení (§44) - Věřitel',"
        "'33',0,0,0,NULL,NULL,'2011-01-01','2100-01-01',0,NULL)",
    // id 73
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R34',"
        "'Oprava výše daně u pohledávek za dlužníky v insolvenčním řízení (§44) - Dlužník',"
        "'34',1,1,0,NULL,NULL,'2011-01-01','2100-01-01',0,NULL)",
    // id 74
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R40,41',"
        "'Z přijatých zdanitelných plnění od plátců',"
        "'40,41',1,1,1,NULL,NULL,'2011-01-01','2100-01-01',0,'B2,B3')",
    // id 75
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R40,41-K',"
        "'Z přijatých zdanitelných plnění od plátců - krácený odpočet',"
        "'40,41',1,1,1,NULL,NULL,'2011-01-01','2100-01-01',1,'B2,B3')",
    // id 76
    // Wording follows the form's pattern; not checked against the official form.
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R40,41,47',"
        "'Z přijatých zdanitelných plnění od plátců - pořízení majetku (§ 4 odst. 4 písm. d) a e))',"
        "'40,41,47',1,1,0,NULL,NULL,'2011-01-01','2100-01-01',0,'B2,B3')",
    // id 77
    // Wording follows the form's pattern; not checked against the official form.
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R40,41,47-K',"
        "'Z přijatých zdanitelných plnění od plátců"
        " - pořízení majetku (§ 4 odst. 4 písm. d) a e))"
        " - krácený odpočet',"
        "'40,41,47',1,1,0,NULL,NULL,'2011-01-01','2100-01-01',1,'B2,B3')",
    // id 78
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R50',"
        "'Plnění osvobozená od daně bez nároku na odpočet daně',"
        "'50',0,0,0,NULL,NULL,'2011-01-01','2100-01-01',0,NULL)",
    // id 79
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R61',"
        "'Vrácení daně (§ 84)',"
        "'61',1,1,0,NULL,NULL,'2011-01-01','2100-01-01',0,NULL)",
    // id 80
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R0P',"
        "'Bez vlivu na DPH - na vstupu',"
        "'0',1,1,1,NULL,NULL,'2011-01-01','2100-01-01',0,NULL)",
    // id 81
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R0P',"
        "'Bez vlivu na DPH - na výstupu',"
        "'0',0,0,1,NULL,NULL,'2011-01-01','2100-01-01',0,NULL)",
    // id 82
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11-18',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Certifikáty elektřiny',"
        "'10,11',0,1,0,'18',NULL,'2016-02-01','2100-01-01',0,'B1')",
    // id 83
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-18',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Certifikáty elektřiny"
        " - v plné výši',"
        "'10,11,43,44',0,1,0,'18',NULL,'2016-02-01','2100-01-01',0,'B1')",
    // id 84
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-18-K',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Certifikáty elektřiny"
        " - krácený odpočet',"
        "'10,11,43,44',0,1,0,'18',NULL,'2016-02-01','2100-01-01',1,'B1')",
    // id 85
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11-19',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Dodání elektřiny prostřednictvím soustav nebo sítí obchodníkovi',"
        "'10,11',0,1,0,'19',NULL,'2016-02-01','2100-01-01',0,'B1')",
    // id 86
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-19',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Dodání elektřiny prostřednictvím soustav nebo sítí obchodníkovi"
        " - v plné výši',"
        "'10,11,43,44',0,1,0,'19',NULL,'2016-02-01','2100-01-01',0,'B1')",
    // id 87
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-19-K',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Dodání elektřiny prostřednictvím soustav nebo sítí obchodníkovi"
        " - krácený odpočet',"
        "'10,11,43,44',0,1,0,'19',NULL,'2016-02-01','2100-01-01',1,'B1')",
    // id 88
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11-20',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Dodání plynu prostřednictvím soustav nebo sítí obchodníkovi',"
        "'10,11',0,1,0,'20',NULL,'2016-02-01','2100-01-01',0,'B1')",
    // id 89
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-20',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Dodání plynu prostřednictvím soustav nebo sítí obchodníkovi"
        " - v plné výši',"
        "'10,11,43,44',0,1,0,'20',NULL,'2016-02-01','2100-01-01',0,'B1')",
    // id 90
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-20-K',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Dodání plynu prostřednictvím soustav nebo sítí obchodníkovi"
        " - krácený odpočet',"
        "'10,11,43,44',0,1,0,'20',NULL,'2016-02-01','2100-01-01',1,'B1')",
    // id 91
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R25-18',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - dodavatel zboží nebo poskytovatel služeb"
        " - Certifikáty elektřiny',"
        "'25',0,0,0,'18',NULL,'2016-02-01','2100-01-01',0,'A1')",
    // id 92
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R25-19',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - dodavatel zboží nebo poskytovatel služeb"
        " - Dodání elektřiny prostřednictvím soustav nebo sítí obchodníkovi',"
        "'25',0,0,0,'19',NULL,'2016-02-01','2100-01-01',0,'A1')",
    // id 93
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R25-20',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - dodavatel zboží nebo poskytovatel služeb"
        " - Dodání plynu prostřednictvím soustav nebo sítí obchodníkovi',"
        "'25',0,0,0,'20',NULL,'2016-02-01','2100-01-01',0,'A1')",
    // id 94
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R1,2-C',"
        "'Dodání zboží nebo poskytnutí služby s místem plnění v tuzemsku (např. §13, §14, §8)"
        " - zvláštní režim pro cestovní službu',"
        "'1,2',0,0,0,NULL,1,'2016-01-01','2100-01-01',0,'A4,A5')",
    // id 95
    // Wording follows the form's pattern; not checked against the official form.
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R1,2-P',"
        "'Dodání zboží nebo poskytnutí služby s místem plnění v tuzemsku (např. §13, §14, §8)"
        " - zvláštní režim pro použité zboží',"
        "'1,2',0,0,0,NULL,2,'2016-01-01','2100-01-01',0,'A4,A5')",
    // id 96
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11-21',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Poskytnutí vyjmenovaných telekomunikačních služeb',"
        "'10,11',0,1,0,'21',NULL,'2016-10-01','2100-01-01',0,'B1')",
    // id 97
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-21',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Poskytnutí vyjmenovaných telekomunikačních služeb"
        " - v plné výši',"
        "'10,11,43,44',0,1,0,'21',NULL,'2016-10-01','2100-01-01',0,'B1')",
    // id 98
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-21-K',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Poskytnutí vyjmenovaných telekomunikačních služeb"
        " - krácený odpočet',"
        "'10,11,43,44',0,1,0,'21',NULL,'2016-10-01','2100-01-01',1,'B1')",
    // id 99
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R25-21',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - dodavatel zboží nebo poskytovatel služeb"
        " - Poskytnutí vyjmenovaných telekomunikačních služeb',"
        "'25',0,0,0,'21',NULL,'2016-10-01','2100-01-01',0,'A1')",
    // id 100
    // Subject name of reverse-charge code 1a is not checked against the official code list.
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11-1a',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Dodání zboží uvedeného v příloze č. 5 zákona',"
        "'10,11',0,1,0,'1a',NULL,'2017-07-01','2100-01-01',0,'B1')",
    // id 101
    // Subject name of reverse-charge code 1a is not checked against the official code list.
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-1a',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Dodání zboží uvedeného v příloze č. 5 zákona"
        " - v plné výši',"
        "'10,11,43,44',0,1,0,'1a',NULL,'2017-07-01','2100-01-01',0,'B1')",
    // id 102
    // Subject name of reverse-charge code 1a is not checked against the official code list.
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-1a-K',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Dodání zboží uvedeného v příloze č. 5 zákona"
        " - krácený odpočet',"
        "'10,11,43,44',0,1,0,'1a',NULL,'2017-07-01','2100-01-01',1,'B1')",
    // id 103
    // Subject name of reverse-charge code 1a is not checked against the official code list.
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R25-1a',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - dodavatel zboží nebo poskytovatel služeb"
        " - Dodání zboží uvedeného v příloze č. 5 zákona',"
        "'25',0,0,0,'1a',NULL,'2017-07-01','2100-01-01',0,'A1')",
    // id 104
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11-3a',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Dodání nemovité věci v nuceném prodeji',"
        "'10,11',0,1,0,'3a',NULL,'2017-07-01','2100-01-01',0,'B1')",
    // id 105
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-3a',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Dodání nemovité věci v nuceném prodeji"
        " - v plné výši',"
        "'10,11,43,44',0,1,0,'3a',NULL,'2017-07-01','2100-01-01',0,'B1')",
    // id 106
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-3a-K',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Dodání nemovité věci v nuceném prodeji"
        " - krácený odpočet',"
        "'10,11,43,44',0,1,0,'3a',NULL,'2017-07-01','2100-01-01',1,'B1')",
    // id 107
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R25-3a',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - dodavatel zboží nebo poskytovatel služeb"
        " - Dodání nemovité věci v nuceném prodeji',"
        "'25',0,0,0,'3a',NULL,'2017-07-01','2100-01-01',0,'A1')",
    // id 108
    // Subject name of reverse-charge code 4a is not checked against the official code list.
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11-4a',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Dodání zboží poskytnutého jako záruka',"
        "'10,11',0,1,0,'4a',NULL,'2017-07-01','2100-01-01',0,'B1')",
    // id 109
    // Subject name of reverse-charge code 4a is not checked against the official code list.
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-4a',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Dodání zboží poskytnutého jako záruka"
        " - v plné výši',"
        "'10,11,43,44',0,1,0,'4a',NULL,'2017-07-01','2100-01-01',0,'B1')",
    // id 110
    // Subject name of reverse-charge code 4a is not checked against the official code list.
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-4a-K',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Dodání zboží poskytnutého jako záruka"
        " - krácený odpočet',"
        "'10,11,43,44',0,1,0,'4a',NULL,'2017-07-01','2100-01-01',1,'B1')",
    // id 111
    // Subject name of reverse-charge code 4a is not checked against the official code list.
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R25-4a',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - dodavatel zboží nebo poskytovatel služeb"
        " - Dodání zboží poskytnutého jako záruka',"
        "'25',0,0,0,'4a',NULL,'2017-07-01','2100-01-01',0,'A1')",
    // id 112
    // Subject name of reverse-charge code 6 is not checked against the official code list.
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11-6',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Dodání zboží po postoupení výhrady vlastnictví',"
        "'10,11',0,1,0,'6',NULL,'2017-07-01','2100-01-01',0,'B1')",
    // id 113
    // Subject name of reverse-charge code 6 is not checked against the official code list.
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-6',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Dodání zboží po postoupení výhrady vlastnictví"
        " - v plné výši',"
        "'10,11,43,44',0,1,0,'6',NULL,'2017-07-01','2100-01-01',0,'B1')",
    // id 114
    // Subject name of reverse-charge code 6 is not checked against the official code list.
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-6-K',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Dodání zboží po postoupení výhrady vlastnictví"
        " - krácený odpočet',"
        "'10,11,43,44',0,1,0,'6',NULL,'2017-07-01','2100-01-01',1,'B1')",
    // id 115
    // Subject name of reverse-charge code 6 is not checked against the official code list.
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R25-6',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - dodavatel zboží nebo poskytovatel služeb"
        " - Dodání zboží po postoupení výhrady vlastnictví',"
        "'25',0,0,0,'6',NULL,'2017-07-01','2100-01-01',0,'A1')",
    // id 116
    // Subject name of reverse-charge code 7 is not checked against the official code list.
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11-7',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Poskytnutí pracovníků pro stavební nebo montážní práce',"
        "'10,11',0,1,0,'7',NULL,'2017-07-01','2100-01-01',0,'B1')",
    // id 117
    // Subject name of reverse-charge code 7 is not checked against the official code list.
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-7',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Poskytnutí pracovníků pro stavební nebo montážní práce"
        " - v plné výši',"
        "'10,11,43,44',0,1,0,'7',NULL,'2017-07-01','2100-01-01',0,'B1')",
    // id 118
    // Subject name of reverse-charge code 7 is not checked against the official code list.
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R10,11,43,44-7-K',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - odběratel zboží nebo příjemce služeb"
        " - Poskytnutí pracovníků pro stavební nebo montážní práce"
        " - krácený odpočet',"
        "'10,11,43,44',0,1,0,'7',NULL,'2017-07-01','2100-01-01',1,'B1')",
    // id 119
    // Subject name of reverse-charge code 7 is not checked against the official code list.
    "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) VALUES("
        "'R25-7',"
        "'Režim přenesení daňové povinnosti (§92a)"
        " - dodavatel zboží nebo poskytovatel služeb"
        " - Poskytnutí pracovníků pro stavební nebo montážní práce',"
        "'25',0,0,0,'7',NULL,'2017-07-01','2100-01-01',0,'A1')",
    nullptr};
