// Saved filings: the VAT returns, EC sales lists and control statements kept with their XML.
#include "dbmodel.h"
#include "recordio.h"
#include "sqlvalue.h"

#include <algorithm>

namespace {

wxString iso(const wxDateTime& d) { return d.IsValid() ? d.FormatISODate() : wxString(); }

// Follow-up filings of a period that already has one: a supplementary VAT return ("D", "E")
// and a follow-up control statement or EC sales list ("N").
bool isNavazujici(const Ulozene& u) {
    return (u.typ() == 0 && (u.forma() == "D" || u.forma() == "E")) || (u.typ() != 0 && u.forma() == "N");
}

}  // namespace

lxUlozeneArray DbModel::ulozene() {
    if (isForeignStorage()) return {};
    lxUlozeneArray rows = recordio::query<Ulozene>(m_db, "SELECT * FROM ulozene");
    sortUlozene(rows);
    return rows;
}

void DbModel::sortUlozene(lxUlozeneArray& rows) {
    // By kind, then by the period's first day, then in the order of saving.
    std::stable_sort(rows.begin(), rows.end(), [](const auto& a, const auto& b) {
        if (a->typ() != b->typ()) return a->typ() < b->typ();
        if (a->datumOd() != b->datumOd()) return a->datumOd().IsEarlierThan(b->datumOd());
        return a->id() < b->id();
    });
}

int DbModel::getUlozeneCount() {
    return isForeignStorage() ? 0 : sqlvalue::integer(m_db, 0, "SELECT count(*) FROM ulozene");
}

int DbModel::getUlozeneId(int typ, const wxString& forma, int obdobi, const wxDateTime& od, const wxDateTime& doDne) {
    if (isForeignStorage()) return 0;
    return sqlvalue::integer(m_db, 0,
                             "SELECT id FROM ulozene WHERE typ=? AND forma=? AND obdobi=? AND od=date(?) AND "
                             "do=date(?) ORDER BY id DESC LIMIT 1",
                             typ, forma, obdobi, iso(od), iso(doDne));
}

bool DbModel::hasUlozene(int typ, const wxString& forma, int obdobi, const wxDateTime& od, const wxDateTime& doDne) {
    return getUlozeneId(typ, forma, obdobi, od, doDne) > 0;
}

bool DbModel::someUlozeneDphShv() {
    return !isForeignStorage() && sqlvalue::exists(m_db, "SELECT 1 FROM ulozene WHERE typ=1");
}

lxUlozeneArray DbModel::ulozeneDphShv() {
    if (isForeignStorage()) return {};
    lxUlozeneArray rows = recordio::query<Ulozene>(m_db, "SELECT * FROM ulozene WHERE typ=1");
    sortUlozene(rows);
    return rows;
}

namespace {
const char* const DP3_SQL = "SELECT * FROM ulozene WHERE rok=? AND typ=0";
const char* const DP3_RADNE_SQL = "SELECT * FROM ulozene WHERE rok=? AND typ=0 AND (forma='B' OR forma='O')";
}  // namespace

bool DbModel::someUlozeneDphDp3(int rok, bool onlyRegular) {
    if (isForeignStorage()) return false;
    return sqlvalue::exists(m_db, onlyRegular ? DP3_RADNE_SQL : DP3_SQL, rok);
}

lxUlozeneArray DbModel::ulozeneDphDp3(int rok, bool onlyRegular) {
    if (isForeignStorage()) return {};
    lxUlozeneArray rows = recordio::query<Ulozene>(m_db, onlyRegular ? DP3_RADNE_SQL : DP3_SQL, rok);
    sortUlozene(rows);
    return rows;
}

wxString DbModel::ulozeneXml(int id) {
    return isForeignStorage() ? wxString() : sqlvalue::text(m_db, "SELECT xml FROM ulozene WHERE id=?", id);
}

int DbModel::ulozitPodani(Ulozene u) {
    if (isForeignStorage()) return 0;
    // A filing saved again for the same kind, form and period replaces the stored one: it is
    // the same filing recomputed, and two of them would make "which one was filed" and the
    // base of a supplementary filing ambiguous. A follow-up filing is always added, since a
    // period can have several supplementary returns, each filed on its own.
    const int existing = isNavazujici(u) ? 0 : getUlozeneId(u.typ(), u.forma(), u.obdobi(), u.datumOd(), u.datumDo());
    u.setId(existing > 0 ? existing : getLastId("ulozene"));
    const bool ok = existing > 0 ? editUlozene(u) : addUlozene(u);
    return ok ? u.id() : 0;
}
