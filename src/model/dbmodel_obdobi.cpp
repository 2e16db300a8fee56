// Accounting periods (years) and the settings kept per year.
#include "dbmodel.h"
#include "recordio.h"
#include "sqllog.h"

namespace {

// The due period of new documents when the year has no settings row; the same default the
// program settings start with.
constexpr int DEFAULT_SPLATNOST = 14;

}  // namespace

bool DbModel::addObdobi(const Obdobi& o) {
    if (isForeignStorage()) return false;
    const wxString sql = "INSERT INTO obdobi(rok,current) VALUES(?,?)";
    try {
        wxSQLite3Statement st = m_db.PrepareStatement(sql);
        st.Bind(1, o.rok());
        st.Bind(2, o.current() ? 1 : 0);
        st.ExecuteUpdate();
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(sql, e);
        return false;
    }
    if (o.current()) m_currentRok = o.rok();
    fireUpdated(NAV_ALL);
    return true;
}

// Makes `year` the one current period, creating it when the file has no such year yet.
// Either all of it happens or nothing: a failure leaves the old current period in place.
bool DbModel::setCurrentRok(int year) {
    if (isForeignStorage() || year <= 0) return false;
    const wxString insert = "INSERT INTO obdobi(rok,current) VALUES(?,?)";
    try {
        wxSQLite3Transaction tx(&m_db, WXSQLITE_TRANSACTION_IMMEDIATE);
        m_db.ExecuteUpdate("UPDATE obdobi SET current=0 WHERE current=1");
        wxSQLite3Statement set = m_db.PrepareStatement("UPDATE obdobi SET current=1 WHERE rok=?");
        set.Bind(1, year);
        if (set.ExecuteUpdate() == 0) {
            wxSQLite3Statement add = m_db.PrepareStatement(insert);
            add.Bind(1, year);
            add.Bind(2, 1);
            add.ExecuteUpdate();
        }
        tx.Commit();
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(wxString::Format("setCurrentRok(%d)", year), e);
        return false;
    }
    m_currentRok = year;
    fireUpdated(NAV_ALL);
    return true;
}

int DbModel::currentRok() {
    if (isForeignStorage()) return -1;
    if (m_currentRok < 0) {
        int rok = -1;
        if (execScalarInt("SELECT rok FROM obdobi WHERE current=1", &rok)) m_currentRok = rok;
    }
    return m_currentRok;
}

// The latest year of the file; 0 when it has no period at all.
int DbModel::maxRok() {
    int rok = 0;
    if (isForeignStorage() || !execScalarInt("SELECT max(rok) FROM obdobi", &rok)) return 0;
    return rok;
}

bool DbModel::hasObdobiGreaterThan(int year) {
    int count = 0;
    if (isForeignStorage()) return false;
    execScalarInt(wxString::Format("SELECT count(*) FROM obdobi WHERE rok>%d", year), &count);
    return count != 0;
}

int DbModel::getObdobiCount() {
    int count = 0;
    if (isForeignStorage()) return 0;
    execScalarInt("SELECT count(*) FROM obdobi", &count);
    return count;
}

wxArrayString DbModel::getObdobiAsStrings(int after) {
    wxArrayString years;
    if (isForeignStorage()) return years;
    const wxString sql = wxString::Format("SELECT rok FROM obdobi WHERE rok>%d ORDER BY rok ASC", after);
    try {
        wxSQLite3ResultSet rs = m_db.ExecuteQuery(sql);
        while (rs.NextRow()) years.Add(rs.GetAsString(0));
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(sql, e);
    }
    return years;
}

// Days from issue to due date for new documents of a year.
int DbModel::getSplatnost(int year) {
    int splatnost = DEFAULT_SPLATNOST;
    if (isForeignStorage()) return splatnost;
    if (!execScalarInt(wxString::Format("SELECT splatnost FROM settings WHERE rok=%d", year), &splatnost))
        return DEFAULT_SPLATNOST;
    return splatnost;
}
