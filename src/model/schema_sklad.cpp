// Stock: warehouses, stock items, stock-takings and stock movements.
// Each list: the CREATE TABLE text, then the rows written when the table is created.
#include "schema.h"

const char* const sqlite_tb_sklad[] = {
    "CREATE TABLE sklad (id INTEGER PRIMARY KEY AUTOINCREMENT, nazev TEXT, popis TEXT, ocenovani INTEGER NOT NULL)",
    nullptr};

const char* const sqlite_tb_zasoba[] = {
    "CREATE TABLE zasoba (id INTEGER PRIMARY KEY AUTOINCREMENT, cislo TEXT, nazev TEXT, popis TEXT, ocenovani INTEGER NOT NULL, mj TEXT, pocet REAL, celkem REAL, skladid INTEGER NOT NULL REFERENCES sklad(id) ON UPDATE CASCADE, cenamj REAL, bezdph INTEGER, dph INTEGER)",
    nullptr};

const char* const sqlite_tb_inventura[] = {
    "CREATE TABLE inventura (id INTEGER PRIMARY KEY AUTOINCREMENT, datum TEXT, cislo TEXT, popis TEXT, provedl TEXT, skladid INTEGER NOT NULL REFERENCES sklad(id) ON UPDATE CASCADE, obdobirok INTEGER NOT NULL REFERENCES obdobi(rok) ON UPDATE CASCADE ON DELETE CASCADE)",
    nullptr};

const char* const sqlite_tb_ivpolozka[] = {
    "CREATE TABLE ivpolozka (id INTEGER PRIMARY KEY AUTOINCREMENT, evidovano REAL, zjisteno REAL, zasobaid INTEGER NOT NULL REFERENCES zasoba(id) ON UPDATE CASCADE ON DELETE CASCADE, inventuraid INTEGER NOT NULL REFERENCES inventura(id) ON UPDATE CASCADE ON DELETE CASCADE)",
    nullptr};

const char* const sqlite_tb_pohybzasob[] = {
    "CREATE TABLE pohybzasob (id INTEGER PRIMARY KEY AUTOINCREMENT, datum TEXT, cislo TEXT, pocet REAL, cenamj REAL, prijemka INTEGER, pocatek INTEGER, inventura INTEGER, inventuraid INTEGER REFERENCES inventura(id) ON UPDATE CASCADE ON DELETE CASCADE, fakturaid INTEGER REFERENCES faktura(id) ON UPDATE CASCADE ON DELETE CASCADE, zasobaid INTEGER NOT NULL REFERENCES zasoba(id) ON UPDATE CASCADE ON DELETE CASCADE, obdobirok INTEGER NOT NULL REFERENCES obdobi(rok) ON UPDATE CASCADE ON DELETE CASCADE)",
    nullptr};
