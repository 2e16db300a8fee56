// Generic helpers over the tables of the open database: executing statement lists,
// reading columns, row counts and foreign-key signatures.
#include <algorithm>

#include "dbmodel.h"
#include "sqllog.h"

bool DbModel::tryExecuteUpdate(const wxString& sql) {
    if (!m_db.IsOpen()) return false;
    try {
        m_db.ExecuteUpdate(sql);
        return true;
    } catch (const wxSQLite3Exception& e) {
        sqllog::expected(sql, e);
        return false;
    }
}

void DbModel::createDatabaseTable(const char* const* list, bool onlyRows) {
    for (int i = onlyRows ? 1 : 0; list[i] != nullptr; ++i) tryExecuteUpdate(wxString::FromUTF8(list[i]));
}

int DbModel::rowsForInsertToTable(const char* const* list) {
    int n = 0;
    while (list[n + 1] != nullptr) ++n;
    return n;
}

wxArrayString DbModel::tableColumns(const wxString& table) {
    wxArrayString columns;
    const wxString sql = wxString::Format("PRAGMA table_info(%s)", table);
    try {
        wxSQLite3ResultSet rs = m_db.ExecuteQuery(sql);
        while (rs.NextRow()) columns.Add(rs.GetAsString("name"));
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(sql, e);
    }
    return columns;
}

bool DbModel::hasTableColumn(const wxString& table, const wxString& column) {
    return tableColumns(table).Index(column) != wxNOT_FOUND;
}

bool DbModel::hasSameColumns(const wxString& a, const wxString& b) {
    wxArrayString ca = tableColumns(a), cb = tableColumns(b);
    if (ca.size() != cb.size()) return false;
    ca.Sort();
    cb.Sort();
    for (size_t i = 0; i < ca.size(); ++i) {
        if (ca[i] != cb[i]) return false;
    }
    return true;
}

int DbModel::tableRows(const wxString& table) {
    int count = 0;
    execScalarInt("SELECT count(*) FROM " + table, &count);
    return count;
}

wxArrayString DbModel::tableKeys(const wxString& table) {
    wxArrayString keys;
    const wxString sql = wxString::Format("PRAGMA foreign_key_list(%s)", table);
    try {
        wxSQLite3ResultSet rs = m_db.ExecuteQuery(sql);
        while (rs.NextRow()) {
            keys.Add(rs.GetAsString("from") + "|" + rs.GetAsString("table") + "|" + rs.GetAsString("to") + "|" +
                     rs.GetAsString("on_update") + "|" + rs.GetAsString("on_delete"));
        }
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(sql, e);
    }
    return keys;
}

bool DbModel::hasTableId(const wxString& table, const wxString& column, const wxString& value) {
    const wxString sql = wxString::Format("SELECT %s FROM %s", column, table);
    try {
        wxSQLite3ResultSet rs = m_db.ExecuteQuery(sql);
        while (rs.NextRow()) {
            if (!rs.IsNull(0) && rs.GetAsString(0) == value) return true;
        }
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(sql, e);
    }
    return false;
}

bool DbModel::hasTableId(const wxString& table, const wxString& column, int value) {
    return hasTableId(table, column, wxString::Format("%d", value));
}

void DbModel::clearTable(const wxString& table) { tryExecuteUpdate("DELETE FROM " + table); }

wxString DbModel::getVersion() { return "SQLite3 " + wxSQLite3Database::GetVersion(); }

int DbModel::getLastId(const wxString& table) {
    int id = 0;
    execScalarInt(wxString::Format("SELECT max(id) FROM %s", table), &id);
    return id + 1;
}

bool DbModel::hasTable(const wxString& table) {
    try {
        return m_db.IsOpen() && m_db.TableExists(table);
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("table " + table, e);
        return false;
    }
}

bool DbModel::execScalarInt(const wxString& sql, int* value) {
    try {
        wxSQLite3ResultSet rs = m_db.ExecuteQuery(sql);
        if (!rs.NextRow()) return false;
        *value = rs.IsNull(0) ? 0 : rs.GetInt(0);
        return !rs.IsNull(0);
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(sql, e);
        return false;
    }
}
