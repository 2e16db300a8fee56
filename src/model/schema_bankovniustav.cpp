// Czech bank codes (kódy platebního styku): name, four-digit code and BIC of every payment
// service provider offered when the user enters a bank account.
// Source: the Czech National Bank register "kody_bank_CR". Names and BICs are taken from the
// register as published in August 2017 (so e.g. 2100 is still "Hypoteční banka, a.s.");
// codes registered after that date (8190, 8198, 8255) are taken from the current register.
// An empty BIC means the register gives none for that provider.
// Codes marked "not checked" below are in neither of those copies of the register; their
// names and BICs are written from memory of the register of about 2020 and have not been
// checked against the published list (an empty BIC there may also just mean "not known").
#include "schema.h"

const char* const sqlite_tb_bankovniustav[] = {
    "CREATE TABLE bankovniustav (id INTEGER PRIMARY KEY AUTOINCREMENT, nazev TEXT, kod TEXT, bic TEXT, aktivni INTEGER)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Komerční banka, a.s.','0100','KOMBCZPP',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Československá obchodní banka, a.s.','0300','CEKOCZPP',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('MONETA Money Bank, a.s.','0600','AGBACZPP',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Česká národní banka','0710','CNBACZPP',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Česká spořitelna, a.s.','0800','GIBACZPX',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Fio banka, a.s.','2010','FIOBCZPP',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('MUFG Bank (Europe) N.V. Prague Branch','2020','BOTKCZPP',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Československé úvěrní družstvo','2030','',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Citfin, spořitelní družstvo','2060','CITFCZPP',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Moravský Peněžní Ústav – spořitelní družstvo','2070','MPUBCZPP',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Hypoteční banka, a.s.','2100','',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Peněžní dům, spořitelní družstvo','2200','',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Artesa, spořitelní družstvo','2220','ARTTCZPP',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Poštová banka, a.s., pobočka Česká republika','2240','POBNCZPP',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Banka CREDITAS a.s.','2250','CTASCZ22',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('ANO spořitelní družstvo','2260','',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Podnikatelská družstevní záložna','2275','',1)", // not checked against the register
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Citibank Europe plc, organizační složka','2600','CITICZPX',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('UniCredit Bank Czech Republic and Slovakia, a.s.','2700','BACXCZPP',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Air Bank a.s.','3030','AIRACZPP',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('BNP Paribas Personal Finance SA, odštěpný závod','3050','BPPFCZP1',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('PKO BP S.A., Czech Branch','3060','BPKOCZPP',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('ING Bank N.V.','3500','INGBCZPP',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Expobank CZ a.s.','4000','EXPNCZPP',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Českomoravská záruční a rozvojová banka, a.s.','4300','CMZRCZP1',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Raiffeisenbank a.s.','5500','RZBCCZPP',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('J & T BANKA, a.s.','5800','JTBPCZPP',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('PPF banka a.s.','6000','PMBPCZPP',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Equa bank a.s.','6100','EQBKCZPP',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('COMMERZBANK Aktiengesellschaft, pobočka Praha','6200','COBACZPX',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('mBank S.A., organizační složka','6210','BREXCZPP',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('BNP Paribas Fortis SA/NV, pobočka Česká republika','6300','GEBACZPP',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Všeobecná úverová banka a.s., pobočka Praha','6700','SUBACZPP',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Sberbank CZ, a.s.','6800','VBOECZ2X',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Deutsche Bank Aktiengesellschaft Filiale Prag, organizační složka','7910','DEUTCZPX',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Waldviertler Sparkasse Bank AG','7940','SPWTCZ21',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Raiffeisen stavební spořitelna a.s.','7950','',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Českomoravská stavební spořitelna, a.s.','7960','',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Wüstenrot-stavební spořitelna a.s.','7970','',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Wüstenrot hypoteční banka a.s.','7980','',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Modrá pyramida stavební spořitelna, a.s.','7990','',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Raiffeisenbank im Stiftland eG pobočka Cheb, odštěpný závod','8030','GENOCZ21',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Oberbank AG pobočka Česká republika','8040','OBKLCZ2X',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Stavební spořitelna České spořitelny, a.s.','8060','',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Česká exportní banka, a.s.','8090','CZEECZPP',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('HSBC Bank plc - pobočka Praha','8150','MIDLCZPP',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Sparkasse Oberlausitz-Niederschlesien','8190','',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('FAS finance company s.r.o.','8198','FFCSCZP1',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('MoneyPolo Europe s.r.o.','8199','MOUSCZP2',1)", // not checked against the register
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('PRIVAT BANK AG der Raiffeisenlandesbank Oberösterreich Aktiengesellschaft, pobočka Česká republika','8200','',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('ALTERNATIVE PAYMENT SOLUTIONS, s.r.o.','8215','ALSOCZP2',1)", // not checked against the register
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Payment Execution s.r.o.','8220','PAERCZP1',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('ORANGETRUST s.r.o.','8225','ORRRCZP1',1)", // not checked against the register
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('EEPAYS s.r.o.','8230','EEPSCZPP',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Družstevní záložna Kredit','8240','',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Bank of China (Hungary) Close Ltd. Prague branch, odštěpný závod','8250','BKCHCZPP',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Bank of Communications Co., Ltd., Prague Branch odštěpný závod','8255','COMMCZPP',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('PAYZEN SAS','8260','PYYMCZPP',1)", // not checked against the register
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Industrial and Commercial Bank of China Limited Prague Branch, odštěpný závod','8265','ICBKCZPP',1)",
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Fairplay Pay s.r.o.','8270','FAPOCZP1',1)", // not checked against the register
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('VIVA PAYMENT SERVICES S.A. odštěpný závod','8272','VPAYCZP2',1)", // not checked against the register
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('B-Efekt a.s.','8280','BEFKCZP1',1)", // not checked against the register
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Qpay s.r.o.','8283','QPSRCZPP',1)", // not checked against the register
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Business Credit s.r.o.','8291','',1)", // not checked against the register
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Money Change s.r.o.','8292','',1)", // not checked against the register
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('Mercurius partners s.r.o.','8293','MRPSCZPP',1)", // not checked against the register
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('GrisPayUnion s.r.o.','8294','',1)", // not checked against the register
    "INSERT INTO bankovniustav(nazev,kod,bic,aktivni) VALUES('PaySysEU s.r.o.','8296','PYSYCZPP',1)", // not checked against the register
    nullptr};
