// The money journal: entries of the current year, the properties an entry takes from its
// pre-posting (direction, journal column, tax effect), the journal columns and the
// pre-postings themselves. An entry carries no direction of its own: its pre-posting names a
// journal column, and the column says whether it is income and whether it is taxable.
#include "dbmodel.h"
#include "recordio.h"
#include "sqllog.h"
#include "sqlvalue.h"

namespace {

// The entry with its register and account references checked: a reference to a row that
// does not exist is stored empty, so that an entry never points at a vanished register.
Denik withExistingRegisters(DbModel& model, const Denik& d) {
    Denik row = d;
    if (row.pokladnaid() != -1 && !model.hasPokladna(row.pokladnaid())) row.setPokladnaid(-1);
    if (row.bankaid() != -1 && !model.hasBanka(row.bankaid())) row.setBankaid(-1);
    return row;
}

// List rows of the journal pages for a year in one pass over the journal: bank entries
// (part 0, with the account's code) before cash entries (part 1, with the register's code),
// each part by date. An entry whose account or register no longer exists is left out;
// `only` narrows the rows to one part.
wxString denikViewSql(const char* only) {
    return wxString::Format(
        "SELECT CASE WHEN b.id IS NOT NULL THEN 0 ELSE 1 END AS part, d.id AS id, d.datum AS datum, "
        "d.cislo AS cislo, d.popis AS popis, d.castka AS castka, p.prijem AS prijem, "
        "IFNULL(b.zkratka, r.zkratka) AS zkratka, d.vypis AS vypis "
        "FROM denik d LEFT JOIN banka b ON d.bankaid=b.id LEFT JOIN pokladna r ON d.pokladnaid=r.id "
        "LEFT JOIN predkontace p ON d.predkontaceid=p.id "
        "WHERE d.obdobirok=? AND %s ORDER BY part, d.datum, d.id",
        only);
}

}  // namespace

DbModel::WriteTransaction::WriteTransaction(wxSQLite3Database& db) {
    if (db.GetAutoCommit()) m_tx.emplace(&db, WXSQLITE_TRANSACTION_IMMEDIATE);
}

DbModel::WriteTransaction::~WriteTransaction() = default;

void DbModel::WriteTransaction::commit() {
    if (m_tx) m_tx->Commit();
}

// ---------------------------------------------------------------- journal lists

lxDenikArray DbModel::denik() {
    if (isForeignStorage()) return {};
    return recordio::query<Denik>(m_db, "SELECT * FROM denik WHERE obdobirok=? ORDER BY datum, id", currentRok());
}

lxDenikArray DbModel::denikPokladna() {
    if (isForeignStorage()) return {};
    return recordio::query<Denik>(
        m_db, "SELECT * FROM denik WHERE obdobirok=? AND pokladnaid IS NOT NULL ORDER BY datum, id", currentRok());
}

lxDenikArray DbModel::denikBanka() {
    if (isForeignStorage()) return {};
    return recordio::query<Denik>(
        m_db, "SELECT * FROM denik WHERE obdobirok=? AND bankaid IS NOT NULL ORDER BY datum, id", currentRok());
}

lxDenikArray DbModel::denikPokladnaById(int id) {
    if (isForeignStorage()) return {};
    return recordio::query<Denik>(m_db, "SELECT * FROM denik WHERE obdobirok=? AND pokladnaid=? ORDER BY datum, id",
                                  currentRok(), id);
}

lxDenikArray DbModel::denikBankaById(int id) {
    if (isForeignStorage()) return {};
    return recordio::query<Denik>(m_db, "SELECT * FROM denik WHERE obdobirok=? AND bankaid=? ORDER BY datum, id",
                                  currentRok(), id);
}

lxDenikArray DbModel::danovePrijmyVydajeForRok(int rok) {
    if (isForeignStorage()) return {};
    return recordio::query<Denik>(m_db,
                                  "SELECT d.* FROM denik d JOIN predkontace p ON d.predkontaceid=p.id "
                                  "JOIN deniksloupec s ON p.deniksloupecid=s.sloupec "
                                  "WHERE d.obdobirok=? AND s.danovy=1 ORDER BY d.rowid",
                                  rok);
}

lxDenikViewArray DbModel::denikview() {
    if (isForeignStorage()) return {};
    return recordio::query<DenikView>(m_db, denikViewSql("(b.id IS NOT NULL OR r.id IS NOT NULL)"), currentRok());
}

lxDenikViewArray DbModel::denikviewPokladna() {
    if (isForeignStorage()) return {};
    return recordio::query<DenikView>(m_db, denikViewSql("r.id IS NOT NULL"), currentRok());
}

lxDenikViewArray DbModel::denikviewBanka() {
    if (isForeignStorage()) return {};
    return recordio::query<DenikView>(m_db, denikViewSql("b.id IS NOT NULL"), currentRok());
}

// ---------------------------------------------------------------- row access

bool DbModel::insertDenik(const Denik& d) {
    if (isForeignStorage()) return false;
    return recordio::insert(m_db, withExistingRegisters(*this, d));
}

bool DbModel::updateDenik(const Denik& d) {
    if (isForeignStorage() || !hasDenik(d.id())) return false;
    const wxString sync = "UPDATE uhrada SET castka=? WHERE denikid=?";
    try {
        WriteTransaction tx(m_db);
        if (!recordio::update(m_db, withExistingRegisters(*this, d))) return false;
        // A payment edited in the journal keeps the amount it settles in step with itself. The
        // payment rows count in the paid document's currency, which is the entry's currency: the
        // home amount for a home entry, the foreign amount for a foreign one (the home amount
        // would pay a euro invoice twenty-five times over).
        wxSQLite3Statement st = m_db.PrepareStatement(sync);
        recordio::bindValues(st, d.menaid() > 1 ? d.castkacizi() : d.castka(), d.id());
        st.ExecuteUpdate();
        tx.commit();
        return true;
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(sync, e);
        return false;
    }
}

bool DbModel::addDenik(const Denik& d) {
    if (!insertDenik(d)) return false;
    fireUpdated(NAV_DENIK);
    return true;
}

bool DbModel::editDenik(const Denik& d) {
    if (!updateDenik(d)) return false;
    // A payment's invoice or liability may have changed from paid to unpaid.
    fireUpdated(isDenikUhrada(d.id()) ? NAV_ALL : NAV_DENIK);
    return true;
}

// ---------------------------------------------------------------- derived properties

bool DbModel::isDenikUhrada(int id) {
    if (isForeignStorage()) return false;
    return sqlvalue::exists(m_db, "SELECT count(*) FROM uhrada WHERE denikid=?", id);
}

bool DbModel::isDenikPrijem(int id) {
    if (isForeignStorage()) return false;
    return sqlvalue::integer(m_db, 0,
                             "SELECT p.prijem FROM denik d JOIN predkontace p ON d.predkontaceid=p.id WHERE d.id=?",
                             id) == 1;
}

bool DbModel::isDenikDanovy(int id) {
    if (isForeignStorage()) return false;
    return sqlvalue::integer(m_db, 0,
                             "SELECT s.danovy FROM denik d JOIN predkontace p ON d.predkontaceid=p.id "
                             "JOIN deniksloupec s ON p.deniksloupecid=s.sloupec WHERE d.id=?",
                             id) == 1;
}

int DbModel::denikSloupecByDenikId(int id) {
    if (isForeignStorage()) return -1;
    return sqlvalue::integer(
        m_db, -1, "SELECT p.deniksloupecid FROM denik d JOIN predkontace p ON d.predkontaceid=p.id WHERE d.id=?", id);
}

int DbModel::getLastVypis(int bankaid) {
    if (isForeignStorage()) return 0;
    return sqlvalue::integer(m_db, 0, "SELECT max(vypis) FROM denik WHERE bankaid=? AND obdobirok=?", bankaid,
                             currentRok());
}

bool DbModel::hasDenikCislo(const wxString& cislo, int rok, int exceptId) {
    if (isForeignStorage()) return false;
    return sqlvalue::exists(m_db, "SELECT count(*) FROM denik WHERE cislo=? AND obdobirok=? AND id<>?", cislo, rok,
                            exceptId);
}

std::vector<DbModel::DenniPohyb> DbModel::pokladnaPohybyPoDnech(int id, int exceptId) {
    std::vector<DenniPohyb> pohyby;
    if (isForeignStorage()) return pohyby;
    const wxString sql =
        "SELECT date(d.datum) AS den, total(CASE WHEN r.menaid=1 THEN d.castka ELSE d.castkacizi END * "
        "CASE WHEN p.prijem=1 THEN 1 ELSE -1 END) FROM denik d JOIN pokladna r ON d.pokladnaid=r.id "
        "LEFT JOIN predkontace p ON d.predkontaceid=p.id WHERE d.pokladnaid=? AND d.id<>? "
        "GROUP BY den ORDER BY den";
    try {
        wxSQLite3Statement st = m_db.PrepareStatement(sql);
        recordio::bindValues(st, id, exceptId);
        wxSQLite3ResultSet rs = st.ExecuteQuery();
        while (rs.NextRow()) {
            wxDateTime den;
            if (!rs.IsNull(0) && den.ParseISODate(rs.GetAsString(0))) pohyby.push_back({den, rs.GetDouble(1)});
        }
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(sql, e);
        pohyby.clear();
    }
    return pohyby;
}

// ---------------------------------------------------------------- journal columns

lxDenikSloupecArray DbModel::deniksloupcePrijem() {
    if (isForeignStorage()) return {};
    return recordio::query<DenikSloupec>(m_db, "SELECT * FROM deniksloupec WHERE prijem=1 ORDER BY sloupec");
}

lxDenikSloupecArray DbModel::deniksloupceVydaj() {
    if (isForeignStorage()) return {};
    return recordio::query<DenikSloupec>(m_db, "SELECT * FROM deniksloupec WHERE prijem=0 ORDER BY sloupec");
}

// ---------------------------------------------------------------- pre-postings

lxPredkontaceArray DbModel::predkontacePrijem() {
    if (isForeignStorage()) return {};
    return recordio::query<Predkontace>(m_db,
                                        "SELECT * FROM predkontace WHERE prijem=1 ORDER BY zkratka COLLATE NOCASE, id");
}

lxPredkontaceArray DbModel::predkontaceVydaj() {
    if (isForeignStorage()) return {};
    return recordio::query<Predkontace>(
        m_db, "SELECT * FROM predkontace WHERE IFNULL(prijem,0)<>1 ORDER BY zkratka COLLATE NOCASE, id");
}

Predkontace DbModel::getPredkontace(const wxString& zkratka) {
    if (isForeignStorage()) return Predkontace();
    return recordio::queryOne<Predkontace>(m_db, "SELECT * FROM predkontace WHERE zkratka=? ORDER BY id LIMIT 1",
                                           zkratka);
}

bool DbModel::hasPredkontace(const wxString& zkratka) {
    if (isForeignStorage()) return false;
    return sqlvalue::exists(m_db, "SELECT count(*) FROM predkontace WHERE zkratka=?", zkratka);
}

bool DbModel::isPredkontacePrijem(int id) {
    if (isForeignStorage()) return false;
    return sqlvalue::integer(m_db, 0, "SELECT prijem FROM predkontace WHERE id=?", id) == 1;
}

bool DbModel::isPredkontaceDanova(int id) {
    if (isForeignStorage()) return false;
    return sqlvalue::integer(m_db, 0,
                             "SELECT s.danovy FROM predkontace p JOIN deniksloupec s ON p.deniksloupecid=s.sloupec "
                             "WHERE p.id=?",
                             id) == 1;
}

int DbModel::firstPredkontace() {
    if (isForeignStorage()) return -1;
    return sqlvalue::integer(m_db, -1, "SELECT id FROM predkontace ORDER BY id LIMIT 1");
}

bool DbModel::deletePredkontace(int id) { return deletePredkontace(id, nullptr); }

bool DbModel::deletePredkontace(int id, wxString* duvod) {
    if (duvod) duvod->clear();
    if (isForeignStorage()) return false;
    const Predkontace p = getPredkontace(id);
    if (!p.isValid()) return false;
    if (isPredkontaceUsed(id)) {
        if (duvod) {
            *duvod =
                wxString::Format(wxString::FromUTF8("Nelze smazat předkontaci\n%s\n%s\nprotože je použita v dokladech"),
                                 p.zkratka(), p.popis());
        }
        return false;
    }
    const wxString sql = "DELETE FROM predkontace WHERE id=?";
    try {
        wxSQLite3Statement st = m_db.PrepareStatement(sql);
        st.Bind(1, id);
        if (st.ExecuteUpdate() == 0) return false;
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(sql, e);
        return false;
    }
    fireUpdated(NAV_DENIK);
    return true;
}
