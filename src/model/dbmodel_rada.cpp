// Number series: every new document takes its number ("PP0001", "FV000012") from a series of
// table rada, which holds the prefix, the total width and the next number to hand out. The
// per-year series restart each accounting year by recomputation from that year's documents.
#include <wx/wxsqlite3.h>

#include <algorithm>
#include <climits>
#include <utility>
#include <vector>

#include "dbmodel.h"
#include "rada.h"
#include "recordio.h"
#include "sqllog.h"
#include "sqlvalue.h"

namespace lxutils {

int pocetCislic(long number) {
    unsigned long rest = number < 0 ? 0UL - static_cast<unsigned long>(number) : static_cast<unsigned long>(number);
    int digits = 1;
    while (rest >= 10) {
        rest /= 10;
        ++digits;
    }
    return digits;
}

wxString cisloDokladu(const wxString& prefix, int znaku, long cislo) {
    const int zeros = znaku - static_cast<int>(prefix.length()) - pocetCislic(cislo);
    wxString text = prefix;
    if (zeros > 0) text += wxString('0', zeros);
    text << cislo;
    return text;
}

}  // namespace lxutils

namespace {

// The series a yearly recomputation derives from one table's documents. The code is matched
// literally at the start of a document number and `cut` characters are removed before the
// rest is read as the number. ZFP is cut by 2 like the two-letter codes, not by 3 like ZFV:
// its numbers then never read, and each counts as the last number that did read in the pass.
// Files written by earlier versions rely on the counters this gives, so it stays.
struct SeriesCut {
    const char* code;
    int cut;
};

struct TableSeries {
    const char* table;
    SeriesCut series[4];
    int count;
};

const TableSeries YEARLY_SERIES[] = {
    {"denik", {{"PP", 2}, {"PV", 2}, {"BP", 2}, {"BV", 2}}, 4},
    {"faktura", {{"FV", 2}, {"FP", 2}, {"ZFV", 3}, {"ZFP", 2}}, 4},
    {"zavpoh", {{"PO", 2}, {"ZA", 2}}, 2},
    {"pohybzasob", {{"PR", 2}, {"VY", 2}}, 2},
    {"inventura", {{"IV", 2}}, 1},
};

// Reads a whole text as a decimal integer; false (and `value` untouched) when it isn't one.
// Numbers beyond the counters' range are held just inside it, so that adding 1 stays an int.
bool readDecimal(const wxString& text, long* value) {
    long n = 0;
    if (!text.ToLong(&n, 10)) return false;
    *value = std::clamp<long>(n, INT_MIN, INT_MAX - 1);
    return true;
}

}  // namespace

lxRadaArray DbModel::rady() {
    if (isForeignStorage()) return {};
    return recordio::query<Rada>(m_db, "SELECT * FROM rada ORDER BY rowid");
}

bool DbModel::editRada(const Rada& rada) {
    if (isForeignStorage() || !hasRada(rada.id())) return false;
    return recordio::update(m_db, rada);
}

int DbModel::getRadaCislo(const wxString& id) {
    if (isForeignStorage()) return 0;
    return sqlvalue::integer(m_db, 0, "SELECT cislo FROM rada WHERE id=?", id);
}

wxString DbModel::getCisloDokladu(const wxString& id) {
    if (isForeignStorage()) return wxString();
    const Rada rada = getRada(id);
    if (!rada.isValid()) return wxString();
    return lxutils::cisloDokladu(rada.prefix(), rada.znaku(), rada.cislo());
}

bool DbModel::increaseRadaCislo(const wxString& id) {
    if (isForeignStorage()) return false;
    const wxString sql = "UPDATE rada SET cislo=cislo+1 WHERE id=?";
    try {
        wxSQLite3Statement st = m_db.PrepareStatement(sql);
        st.Bind(1, id);
        return st.ExecuteUpdate() > 0;
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(sql, e);
        return false;
    }
}

void DbModel::setDefaultRadaCislo() {
    if (isForeignStorage()) return;
    const int rok = currentRok();
    if (rok < 0) return;
    std::vector<std::pair<wxString, long>> counters;
    wxString sql;
    try {
        for (const TableSeries& table : YEARLY_SERIES) {
            const size_t first = counters.size();
            // The codes as wxString once, not once per document.
            std::vector<wxString> codes;
            for (int i = 0; i < table.count; ++i) {
                codes.emplace_back(table.series[i].code);
                counters.emplace_back(codes.back(), 1L);
            }
            // The number read last in this table; a document number that does not read keeps it.
            long n = 0;
            sql = wxString::Format("SELECT cislo FROM %s WHERE obdobirok=? ORDER BY rowid", table.table);
            wxSQLite3Statement st = m_db.PrepareStatement(sql);
            st.Bind(1, rok);
            wxSQLite3ResultSet rs = st.ExecuteQuery();
            while (rs.NextRow()) {
                if (rs.IsNull(0)) continue;
                const wxString cislo = rs.GetAsString(0);
                for (int i = 0; i < table.count; ++i) {
                    const SeriesCut& s = table.series[i];
                    if (!cislo.StartsWith(codes[i])) continue;
                    readDecimal(cislo.Mid(s.cut), &n);
                    long& counter = counters[first + i].second;
                    counter = std::max(counter, n + 1);
                }
            }
        }
        sql = "UPDATE rada SET cislo=? WHERE id=?";
        wxSQLite3Transaction tx(&m_db, WXSQLITE_TRANSACTION_IMMEDIATE);
        wxSQLite3Statement st = m_db.PrepareStatement(sql);
        for (const auto& [code, counter] : counters) {
            st.Bind(1, static_cast<int>(counter));
            st.Bind(2, code);
            st.ExecuteUpdate();
            st.Reset();
        }
        tx.Commit();
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(sql, e);
    }
}

int DbModel::getCisloZDokladu(const wxString& cislo, int prefixLength, int minimum) {
    long n = 0;
    readDecimal(cislo.Mid(std::max(prefixLength, 0)), &n);
    return static_cast<int>(std::max<long>(n + 1, minimum));
}
