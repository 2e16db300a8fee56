// Single values read by a query whose "?" marks are bound to the given arguments: counts,
// numbers and texts that need no record class. A failing statement is logged and gives the
// fallback value.
#pragma once

#include <wx/arrstr.h>
#include <wx/wxsqlite3.h>

#include <vector>

#include "recordio.h"
#include "sqllog.h"

namespace sqlvalue {

// The first column of the first row as an integer; `fallback` for no row, NULL or an error.
template <class... Args>
int integer(wxSQLite3Database& db, int fallback, const wxString& sql, const Args&... args) {
    try {
        wxSQLite3Statement st = db.PrepareStatement(sql);
        recordio::bindValues(st, args...);
        wxSQLite3ResultSet rs = st.ExecuteQuery();
        if (rs.NextRow() && !rs.IsNull(0)) return rs.GetInt(0);
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(sql, e);
    }
    return fallback;
}

// The first column of the first row as text; empty for no row, NULL or an error.
template <class... Args>
wxString text(wxSQLite3Database& db, const wxString& sql, const Args&... args) {
    try {
        wxSQLite3Statement st = db.PrepareStatement(sql);
        recordio::bindValues(st, args...);
        wxSQLite3ResultSet rs = st.ExecuteQuery();
        if (rs.NextRow() && !rs.IsNull(0)) return rs.GetAsString(0);
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(sql, e);
    }
    return wxString();
}

// The first column of the first row as a double; `fallback` for no row, NULL or an error.
template <class... Args>
double real(wxSQLite3Database& db, double fallback, const wxString& sql, const Args&... args) {
    try {
        wxSQLite3Statement st = db.PrepareStatement(sql);
        recordio::bindValues(st, args...);
        wxSQLite3ResultSet rs = st.ExecuteQuery();
        if (rs.NextRow() && !rs.IsNull(0)) return rs.GetDouble(0);
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(sql, e);
    }
    return fallback;
}

// The first column of every row: as integers, or as texts (NULL as an empty text).
template <class... Args>
std::vector<int> integers(wxSQLite3Database& db, const wxString& sql, const Args&... args) {
    std::vector<int> values;
    try {
        wxSQLite3Statement st = db.PrepareStatement(sql);
        recordio::bindValues(st, args...);
        wxSQLite3ResultSet rs = st.ExecuteQuery();
        while (rs.NextRow()) values.push_back(rs.GetInt(0));
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(sql, e);
    }
    return values;
}

template <class... Args>
wxArrayString texts(wxSQLite3Database& db, const wxString& sql, const Args&... args) {
    wxArrayString values;
    try {
        wxSQLite3Statement st = db.PrepareStatement(sql);
        recordio::bindValues(st, args...);
        wxSQLite3ResultSet rs = st.ExecuteQuery();
        while (rs.NextRow()) values.Add(rs.IsNull(0) ? wxString() : rs.GetAsString(0));
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(sql, e);
    }
    return values;
}

// Runs a statement that changes rows; false when it fails.
template <class... Args>
bool execute(wxSQLite3Database& db, const wxString& sql, const Args&... args) {
    try {
        wxSQLite3Statement st = db.PrepareStatement(sql);
        recordio::bindValues(st, args...);
        st.ExecuteUpdate();
        return true;
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(sql, e);
        return false;
    }
}

// Whether `sql` (a count) gives more than zero.
template <class... Args>
bool exists(wxSQLite3Database& db, const wxString& sql, const Args&... args) {
    return integer(db, 0, sql, args...) > 0;
}

}  // namespace sqlvalue
