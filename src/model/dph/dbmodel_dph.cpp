// VAT rates by year and the VAT classifications of documents. Both tables are the program's
// own code lists: the rates are fixed, and of a classification only whether the document
// dialogs offer it can change.
#include "dbmodel.h"
#include "recordio.h"
#include "sqlvalue.h"

namespace {

int rokOrCurrent(DbModel& model, int rok) { return rok == -1 ? model.currentRok() : rok; }

}  // namespace

int DbModel::getDphSazbaValue(int id) {
    if (isForeignStorage()) return 0;
    return sqlvalue::integer(m_db, 0, "SELECT sazba FROM dphsazba WHERE id=?", id);
}

int DbModel::getDphSazbaId(int sazba, int rok) {
    if (isForeignStorage()) return -1;
    // The zero rate is one row shared by every year.
    if (sazba == 0) return 0;
    return sqlvalue::integer(m_db, -1, "SELECT id FROM dphsazba WHERE sazba=? AND rok=? ORDER BY id LIMIT 1", sazba,
                             rokOrCurrent(*this, rok));
}

int DbModel::zakladniSazba(int rok) {
    if (isForeignStorage()) return 0;
    return sqlvalue::integer(m_db, 0, "SELECT max(sazba) FROM dphsazba WHERE rok=? AND zakladni=1",
                             rokOrCurrent(*this, rok));
}

int DbModel::prvniSnizenaSazba(int rok) {
    if (isForeignStorage()) return 0;
    return sqlvalue::integer(m_db, 0, "SELECT max(sazba) FROM dphsazba WHERE rok=? AND zakladni=0 AND id<>0",
                             rokOrCurrent(*this, rok));
}

int DbModel::druhaSnizenaSazba(int rok) {
    if (isForeignStorage()) return 0;
    return sqlvalue::integer(m_db, 0, "SELECT min(sazba) FROM dphsazba WHERE rok=? AND zakladni=0 AND id<>0",
                             rokOrCurrent(*this, rok));
}

lxDphDruhArray DbModel::dphdruhyNabizenePrijem() {
    if (isForeignStorage()) return {};
    return recordio::query<DphDruh>(m_db, "SELECT * FROM dphdruh WHERE nabizet=1 AND vydaj=0 ORDER BY id");
}

lxDphDruhArray DbModel::dphdruhyNabizeneVydaj() {
    if (isForeignStorage()) return {};
    return recordio::query<DphDruh>(m_db, "SELECT * FROM dphdruh WHERE nabizet=1 AND vydaj=1 ORDER BY id");
}

bool DbModel::hasDphDruh(const wxString& zkratka) {
    if (isForeignStorage()) return false;
    return sqlvalue::exists(m_db, "SELECT count(*) FROM dphdruh WHERE zkratka=?", zkratka);
}

wxArrayString DbModel::getDphDruhKpp() {
    if (isForeignStorage()) return {};
    return sqlvalue::texts(m_db, "SELECT DISTINCT IFNULL(kpp,0) FROM dphdruh ORDER BY kpp ASC");
}

wxArrayString DbModel::getDphDruhRadky() {
    if (isForeignStorage()) return {};
    return sqlvalue::texts(m_db, "SELECT DISTINCT radky FROM dphdruh ORDER BY radky ASC");
}

wxArrayString DbModel::getDphDruhKh() {
    if (isForeignStorage()) return {};
    return sqlvalue::texts(m_db, wxString::FromUTF8("SELECT DISTINCT IFNULL(kh,'Nepoužito') FROM dphdruh ORDER BY kh ASC"));
}

std::vector<int> DbModel::getDphDruhIdByRadek(const wxString& radky) {
    if (isForeignStorage()) return {};
    return sqlvalue::integers(m_db, "SELECT id FROM dphdruh WHERE radky=? ORDER BY id", radky);
}

std::vector<int> DbModel::getDphDruhIdByRadek(const wxArrayString& radky) {
    std::vector<int> ids;
    for (const wxString& r : radky) {
        const std::vector<int> part = getDphDruhIdByRadek(r);
        ids.insert(ids.end(), part.begin(), part.end());
    }
    return ids;
}

std::vector<int> DbModel::getDphDruhIdByKh(const wxString& kh) {
    if (isForeignStorage()) return {};
    return sqlvalue::integers(m_db, "SELECT id FROM dphdruh WHERE kh=? ORDER BY id", kh);
}

bool DbModel::nabizetDphDruh(int id) {
    if (isForeignStorage() || !hasDphDruh(id)) return false;
    if (!sqlvalue::execute(m_db, "UPDATE dphdruh SET nabizet=CASE WHEN nabizet=1 THEN 0 ELSE 1 END WHERE id=?", id))
        return false;
    fireUpdated(NAV_NONE);
    return true;
}

bool DbModel::isDphDruhValidForDatum(const wxString& zkratka, const wxDateTime& datum) {
    if (isForeignStorage() || !datum.IsValid()) return false;
    return sqlvalue::exists(m_db, "SELECT count(*) FROM dphdruh WHERE zkratka=? AND date(od)<=? AND date(do)>=?",
                            zkratka, datum.FormatISODate(), datum.FormatISODate());
}

bool DbModel::dphPlatiZakaznik(int id) {
    if (isForeignStorage()) return false;
    return sqlvalue::exists(m_db, "SELECT count(*) FROM dphdruh WHERE id=? AND radky LIKE '%25%'", id);
}

bool DbModel::kracenyDphDruh(int id) {
    if (isForeignStorage()) return false;
    return sqlvalue::integer(m_db, 0, "SELECT kraceny FROM dphdruh WHERE id=?", id) == 1;
}
