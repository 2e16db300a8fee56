// The schema of a company database: one null-terminated statement list per table.
// Element 0 of each list is the table's CREATE TABLE text, the following elements are the
// rows the table receives when it is created. Creation, repair and the row-count checks
// of code lists all read these lists, so they are the single source of the schema.
#pragma once

extern const char* const sqlite_tb_version[];
extern const char* const sqlite_tb_smtp[];
extern const char* const sqlite_tb_odeslany[];
extern const char* const sqlite_tb_priznani[];
extern const char* const sqlite_tb_dphdruh[];
extern const char* const sqlite_tb_ulozene[];
extern const char* const sqlite_tb_dphsazba[];
extern const char* const sqlite_tb_sklad[];
extern const char* const sqlite_tb_zasoba[];
extern const char* const sqlite_tb_inventura[];
extern const char* const sqlite_tb_ivpolozka[];
extern const char* const sqlite_tb_pohybzasob[];
extern const char* const sqlite_tb_mena[];
extern const char* const sqlite_tb_ridic[];
extern const char* const sqlite_tb_phm[];
extern const char* const sqlite_tb_cenaphm[];
extern const char* const sqlite_tb_druhvozidla[];
extern const char* const sqlite_tb_nahradakm[];
extern const char* const sqlite_tb_vozidlo[];
extern const char* const sqlite_tb_jizda[];
extern const char* const sqlite_tb_bankovniustav[];
extern const char* const sqlite_tb_adresa[];
extern const char* const sqlite_tb_kontakt[];
extern const char* const sqlite_tb_firma[];
extern const char* const sqlite_tb_obdobi[];
extern const char* const sqlite_tb_kurz[];
extern const char* const sqlite_tb_pokladna[];
extern const char* const sqlite_tb_banka[];
extern const char* const sqlite_tb_deniksloupec[];
extern const char* const sqlite_tb_predkontace[];
extern const char* const sqlite_tb_denik[];
extern const char* const sqlite_tb_rada[];
extern const char* const sqlite_tb_fatyp[];
extern const char* const sqlite_tb_fauhrada[];
extern const char* const sqlite_tb_faktura[];
extern const char* const sqlite_tb_zavpoh[];
extern const char* const sqlite_tb_fapolozka[];
extern const char* const sqlite_tb_uhrada[];
extern const char* const sqlite_tb_odpiskupina[];
extern const char* const sqlite_tb_majetek[];
extern const char* const sqlite_tb_odpis[];
extern const char* const sqlite_tb_settings[];
// Indexes on the columns that lead from a document to its items and payments, null-terminated.
// They are created with every table and again on every open, so old files get them too.
extern const char* const sqlite_indexes[];

namespace schema {

// What a table holds decides how the open-time check repairs it.
enum class TableKind {
    VERSION,   // the one-row version table
    CODE_LIST, // fixed rows of the program: replaced wholesale when damaged
    USER_DATA  // the user's rows: repaired column by column, never dropped
};

struct TableDef {
    const char* name;
    const char* const* statements;
    TableKind kind;
    const char* label; // named in the repair report when user data were touched; null for code lists
};

// All 42 tables in the order in which a new database creates them.
const TableDef* creationOrder(int* count);

// All 42 tables in the order in which an opened database is checked.
const TableDef* checkOrder(int* count);

// The definition of one table, or null.
const TableDef* table(const char* name);

} // namespace schema
