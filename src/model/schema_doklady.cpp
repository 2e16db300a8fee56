// Documents: the money journal, cash registers, bank accounts, invoices, liabilities and receivables, their items and payments, fixed assets and their depreciation.
// Each list: the CREATE TABLE text, then the rows written when the table is created.
#include "schema.h"

const char* const sqlite_tb_pokladna[] = {
    "CREATE TABLE pokladna (id INTEGER PRIMARY KEY AUTOINCREMENT, zkratka TEXT, popis TEXT, menaid INTEGER NOT NULL REFERENCES mena(id) ON UPDATE CASCADE)",
    "INSERT INTO pokladna(id,zkratka,popis,menaid) VALUES(1,'POK1','Výchozí pokladna',1)",
    nullptr};

const char* const sqlite_tb_banka[] = {
    "CREATE TABLE banka (id INTEGER PRIMARY KEY AUTOINCREMENT, zkratka TEXT, popis TEXT, cislouctu TEXT, kodbanky TEXT, iban TEXT, bic TEXT, menaid INTEGER NOT NULL REFERENCES mena(id) ON UPDATE CASCADE)",
    "INSERT INTO banka(id,zkratka,popis,cislouctu,kodbanky,menaid) VALUES(1,'BU1','Výchozí bankovní účet','0','0',1)",
    nullptr};

const char* const sqlite_tb_denik[] = {
    "CREATE TABLE denik (id INTEGER PRIMARY KEY AUTOINCREMENT, datum TEXT, cislo TEXT, popis TEXT, castka REAL, castkacizi REAL, kurz REAL, reference TEXT, pausal INTEGER NOT NULL, menaid INTEGER NOT NULL REFERENCES mena(id) ON UPDATE CASCADE, predkontaceid INTEGER NOT NULL REFERENCES predkontace(id) ON UPDATE CASCADE, pokladnaid INTEGER REFERENCES pokladna(id) ON UPDATE CASCADE, bankaid INTEGER REFERENCES banka(id) ON UPDATE CASCADE, vypis INTEGER, protistranaid INTEGER NOT NULL DEFAULT 0 REFERENCES kontakt(id) ON UPDATE CASCADE ON DELETE SET DEFAULT, obdobirok INTEGER NOT NULL REFERENCES obdobi(rok) ON UPDATE CASCADE ON DELETE CASCADE)",
    nullptr};

const char* const sqlite_tb_faktura[] = {
    "CREATE TABLE faktura (id INTEGER PRIMARY KEY AUTOINCREMENT, protistranaid INTEGER NOT NULL DEFAULT 0 REFERENCES kontakt(id) ON UPDATE CASCADE ON DELETE SET DEFAULT, popis TEXT, celkem REAL, cislo TEXT, vs TEXT, ss TEXT, ks TEXT, typid INTEGER NOT NULL REFERENCES fatyp(id) ON UPDATE CASCADE, uhradaid INTEGER NOT NULL REFERENCES fauhrada(id) ON UPDATE CASCADE, pokladnaid INTEGER REFERENCES pokladna(id) ON UPDATE CASCADE, bankaid INTEGER REFERENCES banka(id) ON UPDATE CASCADE, menaid INTEGER NOT NULL REFERENCES mena(id) ON UPDATE CASCADE, predkontaceid INTEGER NOT NULL REFERENCES predkontace(id) ON UPDATE CASCADE, obdobirok INTEGER NOT NULL REFERENCES obdobi(rok) ON UPDATE CASCADE ON DELETE CASCADE, vydana INTEGER, platce INTEGER, vystaveni TEXT, duzp TEXT, dppd TEXT, splatnost TEXT, dphdruhid INTEGER REFERENCES dphdruh(id) ON UPDATE CASCADE, kurz REAL, pausal INTEGER)",
    nullptr};

const char* const sqlite_tb_zavpoh[] = {
    "CREATE TABLE zavpoh (id INTEGER PRIMARY KEY AUTOINCREMENT, protistranaid INTEGER DEFAULT 0 REFERENCES kontakt(id) ON UPDATE CASCADE ON DELETE SET DEFAULT, popis TEXT, celkem REAL, cislo TEXT, vs TEXT, uhradaid INTEGER NOT NULL REFERENCES fauhrada(id) ON UPDATE CASCADE, pokladnaid INTEGER REFERENCES pokladna(id) ON UPDATE CASCADE, bankaid INTEGER REFERENCES banka(id) ON UPDATE CASCADE, menaid INTEGER NOT NULL REFERENCES mena(id) ON UPDATE CASCADE, predkontaceid INTEGER NOT NULL REFERENCES predkontace(id) ON UPDATE CASCADE, obdobirok INTEGER NOT NULL REFERENCES obdobi(rok) ON UPDATE CASCADE ON DELETE CASCADE, zavazek INTEGER, platce INTEGER, vystaveni TEXT, duzp TEXT, dppd TEXT, splatnost TEXT, dphdruhid INTEGER REFERENCES dphdruh(id) ON UPDATE CASCADE, kurz REAL, pausal INTEGER)",
    nullptr};

const char* const sqlite_tb_fapolozka[] = {
    "CREATE TABLE fapolozka (id INTEGER PRIMARY KEY AUTOINCREMENT, popis TEXT, mj TEXT, pocet REAL, cenamj REAL, sazbaid INTEGER REFERENCES dphsazba(id) ON UPDATE CASCADE ON DELETE CASCADE, dph REAL, celkem REAL, bezdph INTEGER, fakturaid INTEGER REFERENCES faktura(id) ON UPDATE CASCADE ON DELETE CASCADE, zavpohid INTEGER REFERENCES zavpoh(id) ON UPDATE CASCADE ON DELETE CASCADE, zasobaid INTEGER REFERENCES zasoba(id) ON UPDATE CASCADE ON DELETE SET NULL, zaokrouhleni INTEGER)",
    nullptr};

const char* const sqlite_indexes[] = {
    "CREATE INDEX IF NOT EXISTS fapolozka_fakturaid ON fapolozka(fakturaid)",
    "CREATE INDEX IF NOT EXISTS fapolozka_zavpohid ON fapolozka(zavpohid)",
    "CREATE INDEX IF NOT EXISTS uhrada_fakturaid ON uhrada(fakturaid)",
    "CREATE INDEX IF NOT EXISTS uhrada_zavpohid ON uhrada(zavpohid)",
    "CREATE INDEX IF NOT EXISTS uhrada_denikid ON uhrada(denikid)",
    nullptr};

const char* const sqlite_tb_uhrada[] = {
    "CREATE TABLE uhrada (id INTEGER PRIMARY KEY AUTOINCREMENT, castka REAL, denikid INTEGER NOT NULL REFERENCES denik(id) ON UPDATE CASCADE ON DELETE CASCADE, fakturaid INTEGER REFERENCES faktura(id) ON UPDATE CASCADE ON DELETE CASCADE, zavpohid INTEGER REFERENCES zavpoh(id) ON UPDATE CASCADE ON DELETE CASCADE, obdobirok INTEGER NOT NULL REFERENCES obdobi(rok) ON UPDATE CASCADE ON DELETE CASCADE)",
    nullptr};

const char* const sqlite_tb_majetek[] = {
    "CREATE TABLE majetek (id INTEGER PRIMARY KEY AUTOINCREMENT, cislo TEXT, nazev TEXT, popis TEXT, porizen TEXT, vyrazen INTEGER, datumvyrazeni TEXT, cena REAL, typ INTEGER NOT NULL, odpis INTEGER NOT NULL, skupinaid INTEGER REFERENCES odpiskupina(id) ON UPDATE CASCADE)",
    nullptr};

const char* const sqlite_tb_odpis[] = {
    "CREATE TABLE odpis (id INTEGER PRIMARY KEY AUTOINCREMENT, rok INTEGER NOT NULL, odpis REAL, majetekid INTEGER NOT NULL REFERENCES majetek(id) ON UPDATE CASCADE ON DELETE CASCADE)",
    nullptr};
