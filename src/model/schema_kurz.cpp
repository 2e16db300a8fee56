// Exchange rates (kurz): CZK value of a foreign currency on a given day, as used for
// converting foreign-currency documents. The seed rows are daily rates of the Czech National
// Bank (CNB); jednotny=0 marks a daily rate, 1 a yearly uniform rate.
// Each value is stored exactly as the CNB list prints it, i.e. CZK for the quantity the list
// quotes the currency in (1, 100, 1000 or 1 000 000 units), not converted to one unit. The
// quantity is noted after each row that is not quoted per one unit; code reading the table
// must divide by that quantity itself.
#include "schema.h"

const char* const sqlite_tb_kurz[] = {
    "CREATE TABLE kurz (id INTEGER PRIMARY KEY AUTOINCREMENT, datum TEXT, hodnota REAL, kod TEXT NOT NULL, jednotny INTEGER)",
    // Rates valid from 1 January 2005: the CNB list of 31 December 2004, the last one before.
    // EUR 30.465 and AUD 17.430 are taken as the CNB's figures, USD 22.365 as remembered.
    // All other values are NOT verified against the published list: they are reconstructed
    // from the ECB reference rates of 31 December 2004 (as remembered) crossed with
    // EUR 30.465, so they may differ from the CNB list in the last digits. The quoted
    // quantities (per 100 for ISK, JPY, KRW, HUF, ROL, SKK, SIT; per 1 000 000 for TRL) are
    // likewise not checked.
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2005-01-01','AUD',17.430,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2005-01-01','BGN',15.576,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2005-01-01','DKK',4.095,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2005-01-01','EUR',30.465,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2005-01-01','EEK',1.947,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2005-01-01','HKD',2.877,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2005-01-01','ISK',36.441,0)", // per 100
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2005-01-01','JPY',21.815,0)", // per 100
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2005-01-01','ZAR',3.962,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2005-01-01','KRW',2.163,0)", // per 100
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2005-01-01','CAD',18.558,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2005-01-01','CYP',52.490,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2005-01-01','LTL',8.823,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2005-01-01','LVL',43.652,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2005-01-01','HUF',12.386,0)", // per 100
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2005-01-01','MTL',70.147,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2005-01-01','XDR',34.735,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2005-01-01','NOK',3.699,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2005-01-01','NZD',16.144,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2005-01-01','PLN',7.459,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2005-01-01','ROL',0.077,0)", // per 100
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2005-01-01','SGD',13.685,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2005-01-01','SKK',78.630,0)", // per 100
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2005-01-01','SIT',12.706,0)", // per 100
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2005-01-01','SEK',3.377,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2005-01-01','CHF',19.745,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2005-01-01','TRL',16.591,0)", // per 1000000
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2005-01-01','USD',22.365,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2005-01-01','GBP',43.210,0)",
    // CNB list of 11 December 2020. NONE of these values is verified against the published
    // list: they are approximations rebuilt from the market rates of that day as remembered
    // (EUR 26.47, EUR/USD 1.2135, crossed through USD), and should be replaced by the CNB's
    // figures when the list is at hand. Quantities follow the CNB lists of 2021 (TRY per 1).
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2020-12-11','AUD',16.447,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2020-12-11','BRL',4.337,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2020-12-11','BGN',13.534,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2020-12-11','CNY',3.333,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2020-12-11','DKK',3.559,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2020-12-11','EUR',26.470,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2020-12-11','PHP',45.396,0)", // per 100
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2020-12-11','HKD',2.814,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2020-12-11','HRK',3.501,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2020-12-11','INR',29.637,0)", // per 100
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2020-12-11','IDR',1.547,0)", // per 1000
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2020-12-11','ISK',17.088,0)", // per 100
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2020-12-11','ILS',6.691,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2020-12-11','JPY',20.974,0)", // per 100
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2020-12-11','ZAR',1.449,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2020-12-11','KRW',2.005,0)", // per 100
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2020-12-11','CAD',17.095,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2020-12-11','HUF',7.435,0)", // per 100
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2020-12-11','MYR',5.373,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2020-12-11','MXN',1.093,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2020-12-11','XDR',31.520,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2020-12-11','NOK',2.493,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2020-12-11','NZD',15.596,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2020-12-11','PLN',5.948,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2020-12-11','RON',5.432,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2020-12-11','RUB',29.881,0)", // per 100
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2020-12-11','SGD',16.339,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2020-12-11','SEK',2.590,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2020-12-11','CHF',24.592,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2020-12-11','THB',72.348,0)", // per 100
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2020-12-11','TRY',2.779,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2020-12-11','USD',21.813,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2020-12-11','GBP',28.837,0)",
    // CNB list of 23 December 2021. NONE of these values is verified against the published
    // list: they are approximations rebuilt from the market rates of that day as remembered
    // (EUR 25.08, EUR/USD 1.1330, crossed through USD), and should be replaced by the CNB's
    // figures when the list is at hand. Quantities follow the CNB lists of 2021 (TRY per 1).
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2021-12-23','AUD',15.960,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2021-12-23','BRL',3.911,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2021-12-23','BGN',12.823,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2021-12-23','CNY',3.473,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2021-12-23','DKK',3.373,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2021-12-23','EUR',25.080,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2021-12-23','PHP',44.272,0)", // per 100
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2021-12-23','HKD',2.839,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2021-12-23','HRK',3.336,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2021-12-23','INR',29.436,0)", // per 100
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2021-12-23','IDR',1.558,0)", // per 1000
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2021-12-23','ISK',17.038,0)", // per 100
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2021-12-23','ILS',7.072,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2021-12-23','JPY',19.350,0)", // per 100
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2021-12-23','ZAR',1.424,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2021-12-23','KRW',1.865,0)", // per 100
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2021-12-23','CAD',17.226,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2021-12-23','HUF',6.815,0)", // per 100
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2021-12-23','MYR',5.264,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2021-12-23','MXN',1.077,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2021-12-23','XDR',30.946,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2021-12-23','NOK',2.493,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2021-12-23','NZD',15.052,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2021-12-23','PLN',5.452,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2021-12-23','RON',5.068,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2021-12-23','RUB',30.076,0)", // per 100
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2021-12-23','SGD',16.276,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2021-12-23','SEK',2.435,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2021-12-23','CHF',24.061,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2021-12-23','THB',66.176,0)", // per 100
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2021-12-23','TRY',1.845,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2021-12-23','USD',22.136,0)",
    "INSERT INTO kurz(datum,kod,hodnota,jednotny) VALUES('2021-12-23','GBP',29.662,0)",
    nullptr};
