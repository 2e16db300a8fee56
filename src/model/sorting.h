// Comparators of the records that pages sort by a clicked column. Each compares one field
// of two records and answers whether the first goes before the second:
//   bool lxSort<Record>By<Key>Asc(const Record& a, const Record& b);
//   bool lxSort<Record>By<Key>Dsc(const Record& a, const Record& b);
// Texts compare in Czech order (Ch after H, Ř after R; case and accents decide only ties),
// dates by time, numbers and flags by value. Both directions are strict orders, so a stable
// sort keeps the order of equal rows either way.
// The list below generates them all; add a (record, key, field) entry to get a new pair.
#pragma once

#include "records.h"
#include "views.h"

// clang-format off
#define EVIDA_SORT_KEYS(X)           \
    X(Denik, Datum, datum)           \
    X(Denik, Cislo, cislo)           \
    X(Denik, Popis, popis)           \
    X(Denik, Castka, castka)         \
    X(Denik, Castkacizi, castkacizi) \
    X(Denik, Kurz, kurz)             \
    X(Denik, Reference, reference)   \
    X(Denik, Vypis, vypis)           \
    X(Denik, Id, id)                 \
    X(DenikView, Datum, datum)       \
    X(DenikView, Cislo, cislo)       \
    X(DenikView, Popis, popis)       \
    X(DenikView, Castka, castka)     \
    X(DenikView, Prijem, prijem)     \
    X(DenikView, Zkratka, zkratka)   \
    X(DenikView, Vypis, vypis)       \
    X(DenikView, Id, id)             \
    X(FaPolozka, Popis, popis)       \
    X(FaPolozka, Mj, mj)             \
    X(FaPolozka, Pocet, pocet)       \
    X(FaPolozka, Cenamj, cenamj)     \
    X(FaPolozka, Sazbaid, sazbaid)   \
    X(FaPolozka, Dph, dph)           \
    X(FaPolozka, Celkem, celkem)     \
    X(FaPolozka, Id, id)             \
    X(DphDruh, Zkratka, zkratka)     \
    X(DphDruh, Popis, popis)         \
    X(DphDruh, Plneni, plneni)       \
    X(DphDruh, Radky, radky)         \
    X(DphDruh, Kpp, kpp)             \
    X(DphDruh, Kh, kh)               \
    X(DphDruh, Nabizet, nabizet)     \
    X(DphDruh, Id, id)
// clang-format on

#define EVIDA_DECLARE_SORT(Record, Key, field)                           \
    bool lxSort##Record##By##Key##Asc(const Record& a, const Record& b); \
    bool lxSort##Record##By##Key##Dsc(const Record& a, const Record& b);
EVIDA_SORT_KEYS(EVIDA_DECLARE_SORT)
#undef EVIDA_DECLARE_SORT
