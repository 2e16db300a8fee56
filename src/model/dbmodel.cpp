#include "dbmodel.h"

#include <wx/filename.h>
#include <wx/log.h>

#include "lxsettings.h"
#include "lxutils.h"
#include "recordio.h"
#include "schema.h"
#include "sqllog.h"

wxDEFINE_EVENT(MODEL_UPDATED, wxCommandEvent);
wxDEFINE_EVENT(MODEL_MSG, wxCommandEvent);

DbModel* DbModel::s_instance = nullptr;

DbModel::DbModel(wxEvtHandler* parent) : m_parent(parent) { s_instance = this; }

DbModel::~DbModel() {
    closeDatabase();
    if (s_instance == this) s_instance = nullptr;
}

DbModel* DbModel::instance() { return s_instance; }

void DbModel::initModel() {
    m_currentRok = -1;
    m_firma = Firma();
    m_smtp = Smtp();
    m_priznani = Priznani();
}

void DbModel::shutdownModel() {
    closeDatabase();
    initModel();
}

// ---------------------------------------------------------------- lifecycle

bool DbModel::openFile(const wxString& path) {
    closeDatabase();
    try {
        m_db.Open(path, wxEmptyString, WXSQLITE_OPEN_READWRITE | WXSQLITE_OPEN_CREATE);
        if (m_db.IsReadOnly()) {
            wxLogWarning(wxString::FromUTF8("Databázi %s nelze zapisovat"), path);
            m_db.Close();
            return false;
        }
        // A company open in another program stays locked for as long as it is open there, so
        // waiting for the lock is pointless: fail at once instead of after wxSQLite3's minute.
        m_db.SetBusyTimeout(200);
        // The exclusive lock taken by this empty transaction stays until the file is closed,
        // so a second program cannot use the company while it is open here.
        m_db.ExecuteUpdate("PRAGMA locking_mode = EXCLUSIVE;");
        m_db.ExecuteUpdate("BEGIN EXCLUSIVE;");
        m_db.ExecuteUpdate("COMMIT;");
        m_path = path;
        return true;
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("open " + path, e);
        if (m_db.IsOpen()) m_db.Close();
        return false;
    }
}

bool DbModel::openDatabase() {
    if (lxSettings::instance()->dbmodel() != DBMODEL_SQLITE) return true;
    return openDatabase(lxutils::dataDir() + "/" + lxSettings::instance()->dbname());
}

bool DbModel::newDatabase() {
    if (lxSettings::instance()->dbmodel() != DBMODEL_SQLITE) return true;
    return newDatabase(lxutils::dataDir() + "/" + lxSettings::instance()->dbname());
}

bool DbModel::openDatabase(const wxString& path) {
    if (!openFile(path)) return false;
    try {
        m_db.ExecuteScalar("SELECT count(*) FROM sqlite_master WHERE type='table'");
        checkDb();
        m_db.EnableForeignKeySupport(true);
        m_currentRok = -1;
        return true;
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("open " + path, e);
        closeDatabase();
        return false;
    }
}

bool DbModel::newDatabase(const wxString& path) {
    if (!openFile(path)) return false;
    try {
        m_db.EnableForeignKeySupport(true);
        m_db.ExecuteScalar("SELECT count(*) FROM sqlite_master WHERE type='table'");
        createDatabase();
        m_currentRok = -1;
        return true;
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("create " + path, e);
        closeDatabase();
        return false;
    }
}

void DbModel::createDatabase() {
    int count = 0;
    const schema::TableDef* tables = schema::creationOrder(&count);
    // One transaction: a new file either has every table or none.
    wxSQLite3Transaction tx(&m_db, WXSQLITE_TRANSACTION_IMMEDIATE);
    for (int i = 0; i < count; ++i) createDatabaseTable(tables[i].statements, false);
    tx.Commit();
}

void DbModel::closeDatabase() {
    if (!m_db.IsOpen()) return;
    try {
        m_db.ExecuteUpdate("PRAGMA locking_mode = NORMAL;");
        m_db.Close();
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("close", e);
    }
    m_path.clear();
    m_currentRok = -1;
}

bool DbModel::isOpen() const { return m_db.IsOpen(); }

void DbModel::updateDbFirma() {
    lxSettings* settings = lxSettings::instance();
    if (settings->dbmodel() != DBMODEL_SQLITE) return;
    std::map<wxString, wxString> map = settings->dbmap();
    for (auto& [dbname, key] : map) {
        if (key.Contains("_")) continue;
        const wxString path = lxutils::dataDir() + "/" + dbname;
        if (!wxFileName::FileExists(path)) continue;
        try {
            wxSQLite3Database old;
            old.Open(path, wxEmptyString, WXSQLITE_OPEN_READWRITE);
            wxSQLite3ResultSet cols = old.ExecuteQuery("PRAGMA table_info(firma)");
            bool hasNazev = false;
            while (cols.NextRow()) hasNazev = hasNazev || cols.GetAsString(1) == "nazev";
            cols.Finalize();
            if (hasNazev) {
                wxSQLite3ResultSet rs = old.ExecuteQuery("select nazev || '_' || ic from firma");
                if (rs.NextRow() && !rs.IsNull(0)) key = rs.GetAsString(0);
            }
            old.Close();
        } catch (const wxSQLite3Exception& e) {
            sqllog::error("updateDbFirma " + path, e);
        }
    }
    settings->setDbmap(map);
}

// ---------------------------------------------------------------- cached records

void DbModel::fillData() {
    fillFirma();
    fillSmtp();
    fillPriznani();
}

namespace {
template <class Record>
Record readOneRow(wxSQLite3Database& db, const wxString& sql) {
    try {
        wxSQLite3ResultSet rs = db.ExecuteQuery(sql);
        if (rs.NextRow()) return recordio::read<Record>(rs);
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(sql, e);
    }
    return Record();
}
} // namespace

void DbModel::fillFirma() { m_firma = readOneRow<Firma>(m_db, "SELECT * FROM firma"); }
void DbModel::fillSmtp() { m_smtp = readOneRow<Smtp>(m_db, "SELECT * FROM smtp"); }
void DbModel::fillPriznani() { m_priznani = readOneRow<Priznani>(m_db, "SELECT * FROM priznani"); }

bool DbModel::setFirma(const Firma& f) {
    int count = 0;
    if (!execScalarInt("SELECT count(*) FROM firma", &count)) return false;
    const bool insert = count == 0;
    const wxString sql = insert ? "INSERT INTO firma(nazev,ic,dic,registrace,platce,telefon,email,www,logo,razitko,"
                                  "adresaid,pausal) VALUES(?,?,?,?,?,?,?,?,?,?,?,?)"
                                : "UPDATE firma SET nazev=?,ic=?,dic=?,registrace=?,platce=?,telefon=?,email=?,www=?,"
                                  "logo=?,razitko=?,pausal=?";
    try {
        wxSQLite3Statement st = m_db.PrepareStatement(sql);
        int i = 1;
        for (const wxString* text : {&f.nazev(), &f.ic(), &f.dic(), &f.registrace()}) st.Bind(i++, *text);
        st.Bind(i++, f.platce() ? 1 : 0);
        for (const wxString* text : {&f.telefon(), &f.email(), &f.www(), &f.logo(), &f.razitko()}) st.Bind(i++, *text);
        if (insert) st.Bind(i++, f.adresaid());  // an update never moves the company to another address
        st.Bind(i++, f.pausal() ? 1 : 0);
        st.ExecuteUpdate();
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(sql, e);
        return false;
    }
    fillFirma();
    fireUpdated(NAV_ALL);
    return true;
}

bool DbModel::addAdresa(const Adresa& a) {
    const wxString sql = "INSERT INTO adresa(id,ulice,cp,misto,psc,zeme) VALUES(?,?,?,?,?,?)";
    try {
        wxSQLite3Statement st = m_db.PrepareStatement(sql);
        int i = 1;
        a.visit([&](const char*, const auto& field) { recordio::bindField(st, i++, field); });
        st.ExecuteUpdate();
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(sql, e);
        return false;
    }
    fireUpdated(NAV_NONE);
    return true;
}

bool DbModel::addObdobi(const Obdobi& o) {
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

int DbModel::currentRok() {
    if (m_currentRok < 0) {
        int rok = -1;
        if (execScalarInt("SELECT rok FROM obdobi WHERE current=1", &rok)) m_currentRok = rok;
    }
    return m_currentRok;
}

wxArrayString DbModel::getObdobiAsStrings(int after) {
    wxArrayString years;
    const wxString sql = wxString::Format("SELECT rok FROM obdobi WHERE rok>%d ORDER BY rok ASC", after);
    try {
        wxSQLite3ResultSet rs = m_db.ExecuteQuery(sql);
        while (rs.NextRow()) years.Add(rs.GetAsString(0));
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(sql, e);
    }
    return years;
}

// ---------------------------------------------------------------- notifications

void DbModel::fireUpdated(int page) {
    if (!m_parent) return;
    wxCommandEvent event(MODEL_UPDATED);
    event.SetInt(page);
    m_parent->ProcessEvent(event);
}

void DbModel::fireMsg(const wxString& text) {
    if (!m_parent) return;
    wxCommandEvent event(MODEL_MSG);
    event.SetString(text);
    m_parent->ProcessEvent(event);
}
