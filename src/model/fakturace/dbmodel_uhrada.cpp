// Payments of invoices and receivables/liabilities: the paid totals, paid and overdue, the
// journal entries that pay a document, and the open balances of a year.
#include "clock.h"
#include "dbmodel.h"
#include "lxsettings.h"
#include "recordio.h"
#include "sqllog.h"
#include "sqlvalue.h"

namespace {

// The documents of one table picked by `where` and still open at `rok` with their currency
// and open amount (total − paid, in the document's currency), as one query.
struct Otevreny {
    wxString mena;
    double zbyva;
};

std::vector<Otevreny> otevrene(wxSQLite3Database& db, const char* table, const char* paidBy, const char* where, int rok) {
    const wxString sql = wxString::Format(
        "SELECT IFNULL(m.kod,''), f.menaid, IFNULL(f.celkem,0), IFNULL(u.uhrazeno,0) FROM %s f "
        "LEFT JOIN mena m ON f.menaid=m.id "
        "LEFT JOIN (SELECT %s AS dokladid, total(castka) AS uhrazeno FROM uhrada WHERE %s IS NOT NULL GROUP BY %s) u "
        "ON u.dokladid=f.id WHERE f.obdobirok<=? AND %s",
        table, paidBy, paidBy, paidBy, where);
    std::vector<Otevreny> rows;
    try {
        wxSQLite3Statement st = db.PrepareStatement(sql);
        recordio::bindValues(st, rok);
        wxSQLite3ResultSet rs = st.ExecuteQuery();
        while (rs.NextRow()) {
            const double celkem = rs.GetDouble(2), uhrazeno = rs.GetDouble(3);
            if (isDokladUhrazen(celkem, uhrazeno)) continue;
            // The home currency is row 1, whatever its code.
            rows.push_back({rs.GetInt(1) == 1 ? wxString() : rs.GetString(0), celkem - uhrazeno});
        }
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(sql, e);
    }
    return rows;
}

const char* const POHLEDAVKY[][3] = {{"faktura", "fakturaid", "f.vydana=1"},
                                     {"zavpoh", "zavpohid", "IFNULL(f.zavazek,0)<>1"}};
const char* const ZAVAZKY[][3] = {{"faktura", "fakturaid", "IFNULL(f.vydana,0)<>1"},
                                  {"zavpoh", "zavpohid", "f.zavazek=1"}};

std::vector<Otevreny> otevreneStrany(wxSQLite3Database& db, const char* const (&strana)[2][3], int rok) {
    std::vector<Otevreny> rows;
    for (const auto& t : strana) {
        const auto part = otevrene(db, t[0], t[1], t[2], rok);
        rows.insert(rows.end(), part.begin(), part.end());
    }
    return rows;
}

// The year whose single rate values open foreign documents at the end of `rok`: that year,
// except while it is still running by the system clock (its single rate is not published
// until the year is over), when the previous year's rate is taken.
int rokKurzu(int rok) { return rok == lxutils::today().GetYear() ? rok - 1 : rok; }

}  // namespace

double DbModel::uhrazenoByFakturaId(int id) {
    if (isForeignStorage()) return 0;
    return sqlvalue::real(m_db, 0, "SELECT total(castka) FROM uhrada WHERE fakturaid=?", id);
}

double DbModel::uhrazenoByZavpohId(int id) {
    if (isForeignStorage()) return 0;
    return sqlvalue::real(m_db, 0, "SELECT total(castka) FROM uhrada WHERE zavpohid=?", id);
}

bool DbModel::isFakturaUhrazena(int id) {
    const Faktura f = getFaktura(id);
    return f.isValid() && isDokladUhrazen(f.celkem(), uhrazenoByFakturaId(id));
}

bool DbModel::isZavpohUhrazena(int id) {
    const ZavPoh z = getZavPoh(id);
    return z.isValid() && isDokladUhrazen(z.celkem(), uhrazenoByZavpohId(id));
}

bool DbModel::isFakturaPosplatnosti(int id) {
    const Faktura f = getFaktura(id);
    return f.isValid() && isDokladPoSplatnosti(f.celkem(), uhrazenoByFakturaId(id), f.splatnost(), pracovniDen());
}

bool DbModel::isZavpohPosplatnosti(int id) {
    const ZavPoh z = getZavPoh(id);
    return z.isValid() && isDokladPoSplatnosti(z.celkem(), uhrazenoByZavpohId(id), z.splatnost(), pracovniDen());
}

bool DbModel::someUhradaForFaktura(int id) {
    return !isForeignStorage() && sqlvalue::exists(m_db, "SELECT count(*) FROM uhrada WHERE fakturaid=?", id);
}

bool DbModel::someUhradaForZavpoh(int id) {
    return !isForeignStorage() && sqlvalue::exists(m_db, "SELECT count(*) FROM uhrada WHERE zavpohid=?", id);
}

lxDenikArray DbModel::denikUhradForFaktura(int id) {
    if (isForeignStorage()) return {};
    return recordio::query<Denik>(
        m_db, "SELECT * FROM denik WHERE id IN (SELECT denikid FROM uhrada WHERE fakturaid=?) ORDER BY datum, id", id);
}

lxDenikArray DbModel::denikUhradForZavpoh(int id) {
    if (isForeignStorage()) return {};
    return recordio::query<Denik>(
        m_db, "SELECT * FROM denik WHERE id IN (SELECT denikid FROM uhrada WHERE zavpohid=?) ORDER BY datum, id", id);
}

// The payment rows go with their entries (the database cascades).
bool DbModel::deleteUhradaByFakturaId(int id) {
    return !isForeignStorage() &&
           sqlvalue::execute(m_db, "DELETE FROM denik WHERE id IN (SELECT denikid FROM uhrada WHERE fakturaid=?)", id);
}

bool DbModel::deleteUhradaByZavpohId(int id) {
    return !isForeignStorage() &&
           sqlvalue::execute(m_db, "DELETE FROM denik WHERE id IN (SELECT denikid FROM uhrada WHERE zavpohid=?)", id);
}

bool DbModel::someNeuhrazenaFakturaOrZavpoh() {
    if (isForeignStorage()) return false;
    return !neuhrazeneFakturyView().empty() || !neuhrazeneZavpohyView().empty();
}

double DbModel::getPohledavkyStav(int rok) {
    if (isForeignStorage()) return 0;
    double stav = 0;
    for (const Otevreny& o : otevreneStrany(m_db, POHLEDAVKY, rok))
        stav += o.mena.empty() ? o.zbyva : o.zbyva * getJednotnyKurz(o.mena, rokKurzu(rok)).hodnota();
    return stav;
}

double DbModel::getZavazkyStav(int rok) {
    if (isForeignStorage()) return 0;
    double stav = 0;
    for (const Otevreny& o : otevreneStrany(m_db, ZAVAZKY, rok))
        stav += o.mena.empty() ? o.zbyva : o.zbyva * getJednotnyKurz(o.mena, rokKurzu(rok)).hodnota();
    return stav;
}

bool DbModel::hasPohledavkyDluhyCizi(int rok) {
    if (isForeignStorage()) return false;
    for (const auto* strana : {&POHLEDAVKY, &ZAVAZKY})
        for (const Otevreny& o : otevreneStrany(m_db, *strana, rok))
            if (!o.mena.empty()) return true;
    return false;
}

bool DbModel::hasJednotneKurzyForPohledavkyDluhy(int rok) {
    if (isForeignStorage()) return false;
    for (const auto* strana : {&POHLEDAVKY, &ZAVAZKY})
        for (const Otevreny& o : otevreneStrany(m_db, *strana, rok))
            if (!o.mena.empty() && !hasJednotnyKurz(rokKurzu(rok), o.mena)) return false;
    return true;
}
