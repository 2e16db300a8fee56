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

// ---------------------------------------------------------------- notifications

bool DbModel::isForeignStorage() { return lxSettings::instance()->dbmodel() != DBMODEL_SQLITE; }

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
