// Currencies and the stored exchange rates. Daily rates come from the national bank's list
// (jednotny 0), single yearly rates from the program's own file (jednotny 1); a rate is the
// home amount for one unit of the foreign currency.
#include <wx/wxsqlite3.h>

#include "dbmodel.h"
#include "recordio.h"
#include "sqllog.h"
#include "sqlvalue.h"

namespace {

const char* const HOME_CODE = "CZK";
const int HOME_ID = 1;

// Files from before yearly rates existed have no flag on their rows: those are daily rates.
const char* const DAILY = "coalesce(jednotny,0)=0";

wxString isoDate(const wxDateTime& date) { return date.FormatISODate(); }

wxString yearStart(int rok) { return wxString::Format("%04d-01-01", rok); }
wxString yearEnd(int rok) { return wxString::Format("%04d-12-31", rok); }

}  // namespace

lxMenaArray DbModel::meny() {
    if (isForeignStorage()) return {};
    int rok = currentRok();
    if (rok < 0) rok = wxDateTime::Today().GetYear();
    // A missing start or end of validity counts as open.
    return recordio::query<Mena>(m_db,
                                 "SELECT * FROM mena WHERE "
                                 "(od IS NULL OR od='' OR CAST(strftime('%Y',od) AS INTEGER)<=?) AND "
                                 "(do IS NULL OR do='' OR CAST(strftime('%Y',do) AS INTEGER)>=?) ORDER BY id",
                                 rok, rok);
}

Mena DbModel::getMena(const wxString& text) {
    if (isForeignStorage()) return Mena();
    // The text is compared with the id column; the column's integer affinity turns "2" into 2,
    // while a code such as "EUR" finds nothing.
    return recordio::queryOne<Mena>(m_db, "SELECT * FROM mena WHERE id=?", text);
}

bool DbModel::hasMena(const wxString& kod) {
    if (isForeignStorage()) return false;
    return sqlvalue::exists(m_db, "SELECT count(*) FROM mena WHERE kod=?", kod);
}

wxString DbModel::kodMena(int id) {
    if (isForeignStorage()) return wxString();
    return sqlvalue::text(m_db, "SELECT kod FROM mena WHERE id=?", id);
}

wxString DbModel::nazevMena(int id) {
    if (isForeignStorage()) return wxString();
    if (id == HOME_ID) return wxString::FromUTF8("Kč - Česká koruna");
    const Mena mena = getMena(id);
    if (!mena.isValid()) return wxString();
    return mena.kod() + " - " + mena.nazev();
}

bool DbModel::hasKurz(const wxString& kod) {
    if (isForeignStorage()) return false;
    return sqlvalue::exists(m_db, wxString::Format("SELECT count(*) FROM kurz WHERE kod=? AND %s", DAILY), kod);
}

bool DbModel::hasKurz(const wxString& kod, const wxDateTime& datum) {
    if (isForeignStorage() || !datum.IsValid()) return false;
    return sqlvalue::exists(m_db,
                            wxString::Format("SELECT count(*) FROM kurz WHERE kod=? AND date(datum)=? AND %s", DAILY),
                            kod, isoDate(datum));
}

Kurz DbModel::getKurz(const wxString& kod, const wxDateTime& datum) {
    if (isForeignStorage()) return Kurz();
    if (kod == HOME_CODE) return Kurz(-1, datum, 1.0, kod, false);
    if (!datum.IsValid()) return Kurz();
    // Days without a list (weekends, holidays) take the last list before them.
    return recordio::queryOne<Kurz>(m_db,
                                    wxString::Format("SELECT * FROM kurz WHERE kod=? AND date(datum)<=? AND %s "
                                                     "ORDER BY date(datum) DESC, id DESC LIMIT 1",
                                                     DAILY),
                                    kod, isoDate(datum));
}

bool DbModel::hasJednotnyKurz(int rok, const wxString& kod) {
    if (isForeignStorage()) return false;
    return sqlvalue::exists(m_db,
                            "SELECT count(*) FROM kurz WHERE kod=? AND jednotny=1 AND date(datum) BETWEEN ? AND ?", kod,
                            yearStart(rok), yearEnd(rok));
}

Kurz DbModel::getJednotnyKurz(const wxString& kod, int rok) {
    if (isForeignStorage()) return Kurz();
    return recordio::queryOne<Kurz>(
        m_db, "SELECT * FROM kurz WHERE kod=? AND jednotny=1 AND date(datum) BETWEEN ? AND ? ORDER BY id DESC LIMIT 1",
        kod, yearStart(rok), yearEnd(rok));
}

bool DbModel::addKurzy(const std::vector<Kurz>& kurzy) {
    if (isForeignStorage() || kurzy.empty()) return false;
    try {
        wxSQLite3Transaction tx(&m_db, WXSQLITE_TRANSACTION_IMMEDIATE);
        int id = getLastId("kurz");
        for (Kurz kurz : kurzy) {
            kurz.setId(id++);
            if (!recordio::insert(m_db, kurz)) return false;  // the transaction rolls back
        }
        tx.Commit();
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("kurz", e);
        return false;
    }
    fireUpdated(NAV_NONE);
    return true;
}
