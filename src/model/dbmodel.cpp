#include "dbmodel.h"

#include <wx/filename.h>
#include <wx/log.h>

#include <sqlite3.h>

#include "lxsettings.h"
#include "dbsafety.h"
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

namespace {

const char* const OPEN_FAILED = "Nepodařilo se otevřít databázi";

// SQLite's primary result code of a failure.
int primaryCode(const wxSQLite3Exception& e) { return e.GetErrorCode() & 0xff; }

bool isDamage(const wxSQLite3Exception& e) {
    return primaryCode(e) == SQLITE_CORRUPT || primaryCode(e) == SQLITE_NOTADB;
}

bool isSymlink(const wxString& path) {
    return wxFileName::Exists(path, wxFILE_EXISTS_SYMLINK | wxFILE_EXISTS_NO_FOLLOW);
}

}  // namespace

wxString DbModel::openError() const {
    return m_openError.empty() ? wxString::FromUTF8(OPEN_FAILED) : m_openError;
}

void DbModel::fail(const wxString& message) {
    closeDatabase();
    m_openError = message;
}


bool DbModel::openFile(const wxString& path, bool create) {
    closeDatabase();
    m_openError.clear();
    try {
        int flags = WXSQLITE_OPEN_READWRITE;
        if (create) flags |= WXSQLITE_OPEN_CREATE;
        m_db.Open(path, wxEmptyString, flags);
        if (m_db.IsReadOnly()) {
            fail(wxString::Format(wxString::FromUTF8("Do souboru firmy nelze zapisovat:\n%s"), path));
            return false;
        }
        // A company open in another program stays locked for as long as it is open there, so
        // waiting for the lock is pointless: fail at once instead of after wxSQLite3's minute.
        m_db.SetBusyTimeout(200);
        // Sorting and the checks' temporary tables stay in memory instead of temporary files.
        m_db.ExecuteUpdate("PRAGMA temp_store = MEMORY;");
        // The exclusive lock taken by this empty transaction stays until the file is closed,
        // so a second program cannot use the company while it is open here.
        m_db.ExecuteUpdate("PRAGMA locking_mode = EXCLUSIVE;");
        m_db.ExecuteUpdate("BEGIN EXCLUSIVE;");
        m_db.ExecuteUpdate("COMMIT;");
        m_path = path;
        return true;
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("open " + path, e);
        fail(isDamage(e) ? dbsafety::damagedMessage(path) : wxString());
        return false;
    }
}

// The file is examined before anything reads or writes its rows: a damaged file would
// otherwise be "repaired" from wrong rows and show wrong balances.
bool DbModel::quickCheck(IntegrityCheck check) {
    const wxString sql = check == IntegrityCheck::FULL ? "PRAGMA integrity_check" : "PRAGMA quick_check";
    wxString problems;
    try {
        wxSQLite3ResultSet rs = m_db.ExecuteQuery(sql);
        while (rs.NextRow()) {
            const wxString line = rs.GetAsString(0);
            if (line != "ok") problems += line + "\n";
        }
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(sql, e);
        if (!isDamage(e)) {
            fail(wxString());  // locked or unreadable: the general message
            return false;
        }
        problems = e.GetMessage();
    }
    if (problems.empty()) return true;
    wxLogWarning("%s: %s", m_path, problems);
    fail(dbsafety::damagedMessage(m_path));
    return false;
}

bool DbModel::openDatabase() {
    if (lxSettings::instance()->dbmodel() != DBMODEL_SQLITE) return true;
    return openDatabase(lxutils::dataDir() + "/" + lxSettings::instance()->dbname());
}

bool DbModel::newDatabase() {
    if (lxSettings::instance()->dbmodel() != DBMODEL_SQLITE) return true;
    return newDatabase(lxutils::dataDir() + "/" + lxSettings::instance()->dbname());
}

bool DbModel::openDatabase(const wxString& path, IntegrityCheck check) {
    closeDatabase();
    m_openError.clear();
    // Only newDatabase makes files; an empty file is not a company (SQLite would take it
    // for a new database and the checks would fill it).
    if (!wxFileName::FileExists(path)) {
        m_openError = dbsafety::missingFileMessage(path);
        return false;
    }
    if (wxFileName::GetSize(path) == 0) {
        m_openError = dbsafety::emptyFileMessage(path);
        return false;
    }
    if (!openFile(path, false)) return false;
    try {
        m_db.ExecuteScalar("SELECT count(*) FROM sqlite_master WHERE type='table'");
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("open " + path, e);
        fail(isDamage(e) ? dbsafety::damagedMessage(path) : wxString());
        return false;
    }
    if (!quickCheck(check)) return false;
    try {
        if (!runChecks()) return false;
        m_db.EnableForeignKeySupport(true);
        m_currentRok = -1;
        return true;
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("open " + path, e);
        fail(isDamage(e) ? dbsafety::damagedMessage(path) : wxString());
        return false;
    }
}

bool DbModel::newDatabase(const wxString& path) {
    closeDatabase();
    m_openError.clear();
    // A link would make the file somewhere else than where the user asked for it.
    if (isSymlink(path)) {
        m_openError = wxString::Format(wxString::FromUTF8("Soubor nelze vytvořit, cesta je symbolický odkaz:\n%s"), path);
        return false;
    }
    if (wxFileName::FileExists(path)) {
        m_openError = wxString::Format(wxString::FromUTF8("Soubor už existuje:\n%s"), path);
        return false;
    }
    if (!openFile(path, true)) {
        m_openError = dbsafety::createFailedMessage(path, SQLITE_CANTOPEN);
        wxRemoveFile(path);
        return false;
    }
    try {
        m_db.EnableForeignKeySupport(true);
        m_db.ExecuteScalar("SELECT count(*) FROM sqlite_master WHERE type='table'");
        createTables();
        m_currentRok = -1;
        return true;
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("create " + path, e);
        fail(dbsafety::createFailedMessage(path, primaryCode(e)));
        // Nothing half-made stays behind: the file did not exist before.
        for (const char* suffix : {"", "-journal"}) {
            if (wxFileName::FileExists(path + suffix)) wxRemoveFile(path + suffix);
        }
        return false;
    }
}

void DbModel::createDatabase() {
    try {
        createTables();
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("create", e);
    }
}

// Every table with its seed rows in one transaction: a new file has all of them or none. A
// seed statement may collide with an earlier one on purpose; any other failure (a full disk)
// throws after the transaction was rolled back.
void DbModel::createTables() {
    int count = 0;
    const schema::TableDef* tables = schema::creationOrder(&count);
    m_db.ExecuteUpdate("BEGIN IMMEDIATE");
    try {
        for (int i = 0; i < count; ++i) {
            const char* const* list = tables[i].statements;
            for (int s = 0; list[s] != nullptr; ++s) {
                try {
                    m_db.ExecuteUpdate(wxString::FromUTF8(list[s]));
                } catch (const wxSQLite3Exception& e) {
                    if (s == 0 || primaryCode(e) != SQLITE_CONSTRAINT) throw;
                    sqllog::expected(wxString::FromUTF8(list[s]), e);
                }
            }
        }
        m_db.ExecuteUpdate("COMMIT");
    } catch (const wxSQLite3Exception&) {
        // SQLite may have rolled back by itself (a full disk); only roll back what is open.
        if (!m_db.GetAutoCommit()) {
            try {
                m_db.ExecuteUpdate("ROLLBACK");
            } catch (const wxSQLite3Exception& e) {
                sqllog::expected("ROLLBACK", e);
            }
        }
        throw;
    }
}

void DbModel::closeDatabase() {
    // A message belongs to the open that failed; the next one starts without it.
    m_openError.clear();
    if (!m_db.IsOpen()) return;
    try {
        m_db.ExecuteUpdate("PRAGMA locking_mode = NORMAL;");
        m_db.Close();
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("close", e);
        try {
            if (m_db.IsOpen()) m_db.Close();
        } catch (const wxSQLite3Exception&) {
        }
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
