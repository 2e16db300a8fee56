#include "schema.h"

#include <cstring>

namespace schema {
namespace {

using K = TableKind;

// The order in which an opened database is checked, with the label that the repair report
// uses for each table holding user data.
const TableDef CHECK_ORDER[] = {
    {"version", sqlite_tb_version, K::VERSION, nullptr},
    {"adresa", sqlite_tb_adresa, K::USER_DATA, "Adresy"},
    {"kontakt", sqlite_tb_kontakt, K::USER_DATA, "Odběratelé a dodavatelé"},
    {"firma", sqlite_tb_firma, K::USER_DATA, "Firma"},
    {"obdobi", sqlite_tb_obdobi, K::USER_DATA, "Období"},
    {"dphsazba", sqlite_tb_dphsazba, K::CODE_LIST, nullptr},
    {"dphdruh", sqlite_tb_dphdruh, K::CODE_LIST, nullptr},
    {"mena", sqlite_tb_mena, K::CODE_LIST, nullptr},
    {"kurz", sqlite_tb_kurz, K::CODE_LIST, nullptr},
    {"pokladna", sqlite_tb_pokladna, K::USER_DATA, "Pokladny"},
    {"bankovniustav", sqlite_tb_bankovniustav, K::CODE_LIST, nullptr},
    {"banka", sqlite_tb_banka, K::USER_DATA, "Bankovní účty"},
    {"deniksloupec", sqlite_tb_deniksloupec, K::CODE_LIST, nullptr},
    {"predkontace", sqlite_tb_predkontace, K::USER_DATA, "Předkontace"},
    {"denik", sqlite_tb_denik, K::USER_DATA, "Peněžní deník"},
    {"rada", sqlite_tb_rada, K::CODE_LIST, nullptr},
    {"fatyp", sqlite_tb_fatyp, K::CODE_LIST, nullptr},
    {"fauhrada", sqlite_tb_fauhrada, K::USER_DATA, "Typy úhrad faktur, závazků a pohledávek"},
    {"faktura", sqlite_tb_faktura, K::USER_DATA, "Faktury"},
    {"zavpoh", sqlite_tb_zavpoh, K::USER_DATA, "Závazky a pohledávky"},
    {"sklad", sqlite_tb_sklad, K::USER_DATA, "Sklady"},
    {"zasoba", sqlite_tb_zasoba, K::USER_DATA, "Zásoby"},
    {"fapolozka", sqlite_tb_fapolozka, K::USER_DATA, "Položky faktur, závazků a pohledávek"},
    {"uhrada", sqlite_tb_uhrada, K::USER_DATA, "Úhrady faktur, závazků a pohledávek"},
    {"odpiskupina", sqlite_tb_odpiskupina, K::CODE_LIST, nullptr},
    {"majetek", sqlite_tb_majetek, K::USER_DATA, "Majetek"},
    {"odpis", sqlite_tb_odpis, K::USER_DATA, "Odpisy majetku"},
    {"settings", sqlite_tb_settings, K::USER_DATA, "Nastavení"},
    {"smtp", sqlite_tb_smtp, K::USER_DATA, "SMTP"},
    {"odeslany", sqlite_tb_odeslany, K::USER_DATA, "Odeslané faktury"},
    {"priznani", sqlite_tb_priznani, K::USER_DATA, "Nastavení plátce"},
    {"ulozene", sqlite_tb_ulozene, K::USER_DATA, "Uložená přiznání"},
    {"inventura", sqlite_tb_inventura, K::USER_DATA, "Inventury"},
    {"ivpolozka", sqlite_tb_ivpolozka, K::USER_DATA, "Položky inventur"},
    {"pohybzasob", sqlite_tb_pohybzasob, K::USER_DATA, "Pohyb zásob"},
    {"ridic", sqlite_tb_ridic, K::USER_DATA, "Řidiči"},
    {"phm", sqlite_tb_phm, K::USER_DATA, "Pohonné hmoty"},
    {"cenaphm", sqlite_tb_cenaphm, K::USER_DATA, "Cena pohonných hmot"},
    {"druhvozidla", sqlite_tb_druhvozidla, K::USER_DATA, "Druh vozidel"},
    {"nahradakm", sqlite_tb_nahradakm, K::USER_DATA, "Náhrada za km"},
    {"vozidlo", sqlite_tb_vozidlo, K::USER_DATA, "Vozidla"},
    {"jizda", sqlite_tb_jizda, K::USER_DATA, "Jízdy"},
};
constexpr int TABLE_COUNT = sizeof(CHECK_ORDER) / sizeof(CHECK_ORDER[0]);
static_assert(TABLE_COUNT == 42, "a company database has 42 tables");

// A new database creates the tables that others reference first; the rest follow in check order.
const char* const CREATION_HEAD[] = {"version",  "adresa",   "kontakt",       "firma",        "obdobi",
                                     "dphsazba", "dphdruh",  "mena",          "kurz",         "pokladna",
                                     "banka",    "bankovniustav", "deniksloupec", "predkontace", "denik",
                                     "rada",     "fatyp",    "fauhrada",      "faktura",      "zavpoh",
                                     "sklad",    "zasoba",   "fapolozka",     "uhrada",       "odpiskupina",
                                     "majetek",  "odpis"};

struct CreationOrder {
    TableDef tables[TABLE_COUNT];
    CreationOrder() {
        int n = 0;
        for (const char* name : CREATION_HEAD) tables[n++] = *table(name);
        for (const TableDef& def : CHECK_ORDER) {
            bool inHead = false;
            for (const char* name : CREATION_HEAD) inHead = inHead || std::strcmp(name, def.name) == 0;
            if (!inHead) tables[n++] = def;
        }
    }
};

} // namespace

const TableDef* checkOrder(int* count) {
    *count = TABLE_COUNT;
    return CHECK_ORDER;
}

const TableDef* creationOrder(int* count) {
    static const CreationOrder order;
    *count = TABLE_COUNT;
    return order.tables;
}

const TableDef* table(const char* name) {
    for (const TableDef& def : CHECK_ORDER) {
        if (std::strcmp(def.name, name) == 0) return &def;
    }
    return nullptr;
}

} // namespace schema
