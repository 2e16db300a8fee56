// The generated comparators and the model's sort operations that pages call with the index
// of a clicked list column.
#include "sorting.h"

#include <algorithm>
#include <cstddef>

#include "collation.h"
#include "dbmodel.h"

namespace {

bool less(const wxString& a, const wxString& b) { return collation::czechCompare(a, b) < 0; }
// A missing date goes before every real one.
bool less(const wxDateTime& a, const wxDateTime& b) {
    if (!a.IsValid() || !b.IsValid()) return !a.IsValid() && b.IsValid();
    return a.IsEarlierThan(b);
}
bool less(int a, int b) { return a < b; }
bool less(double a, double b) { return a < b; }
bool less(bool a, bool b) { return !a && b; }

template <class R>
using Comparator = bool (*)(const R&, const R&);

template <class R>
struct SortColumn {
    Comparator<R> ascending;
    Comparator<R> descending;
};

// Sorts by one list column; an index outside the page's columns leaves the rows as they are.
template <class R, std::size_t N>
void sortByColumn(std::vector<std::unique_ptr<R>>& rows, const SortColumn<R> (&columns)[N], int column,
                  bool ascending) {
    if (column < 0 || static_cast<std::size_t>(column) >= N) return;
    const Comparator<R> before = ascending ? columns[column].ascending : columns[column].descending;
    std::stable_sort(rows.begin(), rows.end(), [before](const std::unique_ptr<R>& a, const std::unique_ptr<R>& b) {
        if (!a || !b) return a && !b;  // empty slots go last
        return before(*a, *b);
    });
}

}  // namespace

#define EVIDA_DEFINE_SORT(Record, Key, field)                                                                  \
    bool lxSort##Record##By##Key##Asc(const Record& a, const Record& b) { return less(a.field(), b.field()); } \
    bool lxSort##Record##By##Key##Dsc(const Record& a, const Record& b) { return less(b.field(), a.field()); }
EVIDA_SORT_KEYS(EVIDA_DEFINE_SORT)
#undef EVIDA_DEFINE_SORT

#define EVIDA_SORT_COLUMN(Record, Key) \
    { lxSort##Record##By##Key##Asc, lxSort##Record##By##Key##Dsc }

void DbModel::sortDenik(lxDenikArray& rows, int column, bool ascending) {
    static const SortColumn<Denik> columns[] = {
        EVIDA_SORT_COLUMN(Denik, Datum),     EVIDA_SORT_COLUMN(Denik, Cislo),      EVIDA_SORT_COLUMN(Denik, Popis),
        EVIDA_SORT_COLUMN(Denik, Castka),    EVIDA_SORT_COLUMN(Denik, Castkacizi), EVIDA_SORT_COLUMN(Denik, Kurz),
        EVIDA_SORT_COLUMN(Denik, Reference), EVIDA_SORT_COLUMN(Denik, Vypis),      EVIDA_SORT_COLUMN(Denik, Id)};
    sortByColumn(rows, columns, column, ascending);
}

void DbModel::sortDenikView(lxDenikViewArray& rows, int column, bool ascending) {
    static const SortColumn<DenikView> columns[] = {
        EVIDA_SORT_COLUMN(DenikView, Datum),  EVIDA_SORT_COLUMN(DenikView, Cislo),
        EVIDA_SORT_COLUMN(DenikView, Popis),  EVIDA_SORT_COLUMN(DenikView, Castka),
        EVIDA_SORT_COLUMN(DenikView, Prijem), EVIDA_SORT_COLUMN(DenikView, Zkratka),
        EVIDA_SORT_COLUMN(DenikView, Vypis)};
    sortByColumn(rows, columns, column, ascending);
}

void DbModel::sortFaPolozky(lxFaPolozkaArray& rows, int column, bool ascending) {
    static const SortColumn<FaPolozka> columns[] = {
        EVIDA_SORT_COLUMN(FaPolozka, Popis),   EVIDA_SORT_COLUMN(FaPolozka, Mj),
        EVIDA_SORT_COLUMN(FaPolozka, Pocet),   EVIDA_SORT_COLUMN(FaPolozka, Cenamj),
        EVIDA_SORT_COLUMN(FaPolozka, Sazbaid), EVIDA_SORT_COLUMN(FaPolozka, Dph),
        EVIDA_SORT_COLUMN(FaPolozka, Celkem)};
    sortByColumn(rows, columns, column, ascending);
}

void DbModel::sortDphDruh(lxDphDruhArray& rows, int column, bool ascending) {
    static const SortColumn<DphDruh> columns[] = {
        EVIDA_SORT_COLUMN(DphDruh, Zkratka), EVIDA_SORT_COLUMN(DphDruh, Popis), EVIDA_SORT_COLUMN(DphDruh, Plneni),
        EVIDA_SORT_COLUMN(DphDruh, Radky),   EVIDA_SORT_COLUMN(DphDruh, Kpp),   EVIDA_SORT_COLUMN(DphDruh, Kh),
        EVIDA_SORT_COLUMN(DphDruh, Nabizet), EVIDA_SORT_COLUMN(DphDruh, Id)};
    sortByColumn(rows, columns, column, ascending);
}
