// Reading records from result rows, binding them to prepared statements, and the generic
// statements over a record's table, all driven by the record's field list so that each
// table's SQL is written once for all its columns.
#pragma once

#include <wx/wxsqlite3.h>

#include "record.h"
#include "sqllog.h"

namespace recordio {

// Columns naming a row of another table (and "id" itself) keep -1 for an empty reference.
inline bool isReference(const char* column) {
    const wxString c(column);
    return c == "id" || c.EndsWith("id");
}

inline void readField(wxSQLite3ResultSet& rs, const char* column, int& value) {
    value = rs.IsNull(column) ? (isReference(column) ? -1 : 0) : rs.GetInt(column);
}
inline void readField(wxSQLite3ResultSet& rs, const char* column, double& value) {
    value = rs.IsNull(column) ? 0.0 : rs.GetDouble(column);
}
inline void readField(wxSQLite3ResultSet& rs, const char* column, bool& value) {
    value = !rs.IsNull(column) && rs.GetInt(column) != 0;
}
inline void readField(wxSQLite3ResultSet& rs, const char* column, wxString& value) {
    value = rs.IsNull(column) ? wxString() : rs.GetAsString(column);
}
// Dates are ISO text; a date with a time of day is "YYYY-MM-DD HH:MM:SS".
inline void readField(wxSQLite3ResultSet& rs, const char* column, wxDateTime& value) {
    value = wxDateTime();
    if (rs.IsNull(column)) return;
    const wxString text = rs.GetAsString(column);
    if (!value.ParseISOCombined(text, ' ') && !value.ParseISOCombined(text, 'T') && !value.ParseISODate(text))
        value = wxDateTime();
}

inline void bindField(wxSQLite3Statement& st, int index, const char* column, int value) {
    if (value == -1 && isReference(column)) {
        st.BindNull(index);
    } else {
        st.Bind(index, value);
    }
}
inline void bindField(wxSQLite3Statement& st, int index, const char*, double value) { st.Bind(index, value); }
inline void bindField(wxSQLite3Statement& st, int index, const char*, bool value) { st.Bind(index, value ? 1 : 0); }
inline void bindField(wxSQLite3Statement& st, int index, const char*, const wxString& value) { st.Bind(index, value); }
inline void bindField(wxSQLite3Statement& st, int index, const char*, const wxDateTime& value) {
    if (!value.IsValid()) {
        st.BindNull(index);
    } else if (value.GetHour() == 0 && value.GetMinute() == 0 && value.GetSecond() == 0) {
        st.Bind(index, value.FormatISODate());
    } else {
        st.Bind(index, value.FormatISOCombined(' '));
    }
}

// Binding of plain values given to a query.
inline void bindValue(wxSQLite3Statement& st, int index, int value) { st.Bind(index, value); }
inline void bindValue(wxSQLite3Statement& st, int index, double value) { st.Bind(index, value); }
inline void bindValue(wxSQLite3Statement& st, int index, const wxString& value) { st.Bind(index, value); }
inline void bindValue(wxSQLite3Statement& st, int index, const char* value) { st.Bind(index, wxString(value)); }
inline void bindValue(wxSQLite3Statement& st, int index, const wxDateTime& value) {
    bindField(st, index, "", value);
}
template <class... Args>
void bindValues(wxSQLite3Statement& st, const Args&... args) {
    int index = 1;
    (bindValue(st, index++, args), ...);
}

// Fills a record from the current row; columns are looked up by name.
template <class Record>
Record read(wxSQLite3ResultSet& rs) {
    Record r;
    r.visit([&rs](const char* column, auto& field) { readField(rs, column, field); });
    r.setValid(true);
    return r;
}

template <class Record>
wxString columnList() {
    wxString s;
    Record().visit([&s](const char* column, const auto&) {
        if (!s.empty()) s += ",";
        s += column;
    });
    return s;
}

// "INSERT INTO t(c1,c2,...) VALUES(?,?,...)" over every column.
template <class Record>
wxString insertSql() {
    wxString marks;
    Record().visit([&marks](const char*, const auto&) { marks += marks.empty() ? "?" : ",?"; });
    return wxString::Format("INSERT INTO %s(%s) VALUES(%s)", Record::TABLE, columnList<Record>(), marks);
}

// "UPDATE t SET c1=?,... WHERE key=?" over every column but the key.
template <class Record>
wxString updateSql() {
    wxString sets;
    Record().visit([&sets](const char* column, const auto&) {
        if (wxString(column) == Record::KEY) return;
        if (!sets.empty()) sets += ",";
        sets += wxString(column) + "=?";
    });
    return wxString::Format("UPDATE %s SET %s WHERE %s=?", Record::TABLE, sets, Record::KEY);
}

template <class Record>
bool insert(wxSQLite3Database& db, const Record& r) {
    const wxString sql = insertSql<Record>();
    try {
        wxSQLite3Statement st = db.PrepareStatement(sql);
        int i = 1;
        r.visit([&](const char* column, const auto& field) { bindField(st, i++, column, field); });
        st.ExecuteUpdate();
        return true;
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(sql, e);
        return false;
    }
}

// Updates every column of the row with the record's key; false when it fails or no row has the key.
template <class Record>
bool update(wxSQLite3Database& db, const Record& r) {
    const wxString sql = updateSql<Record>();
    try {
        wxSQLite3Statement st = db.PrepareStatement(sql);
        int i = 1;
        r.visit([&](const char* column, const auto& field) {
            if (wxString(column) != Record::KEY) bindField(st, i++, column, field);
        });
        r.visit([&](const char* column, const auto& field) {
            if (wxString(column) == Record::KEY) bindField(st, i, column, field);
        });
        return st.ExecuteUpdate() > 0;
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(sql, e);
        return false;
    }
}

// All records that `sql` selects (with "?" bound to `args` in order), as an owning array.
template <class Record, class... Args>
std::vector<std::unique_ptr<Record>> query(wxSQLite3Database& db, const wxString& sql, const Args&... args) {
    std::vector<std::unique_ptr<Record>> rows;
    try {
        wxSQLite3Statement st = db.PrepareStatement(sql);
        bindValues(st, args...);
        wxSQLite3ResultSet rs = st.ExecuteQuery();
        while (rs.NextRow()) rows.push_back(std::make_unique<Record>(read<Record>(rs)));
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(sql, e);
    }
    return rows;
}

// The first record `sql` selects, or an invalid record.
template <class Record, class... Args>
Record queryOne(wxSQLite3Database& db, const wxString& sql, const Args&... args) {
    try {
        wxSQLite3Statement st = db.PrepareStatement(sql);
        bindValues(st, args...);
        wxSQLite3ResultSet rs = st.ExecuteQuery();
        if (rs.NextRow()) return read<Record>(rs);
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(sql, e);
    }
    return Record();
}

template <class Record, class Key>
Record get(wxSQLite3Database& db, const Key& key) {
    return queryOne<Record>(db, wxString::Format("SELECT * FROM %s WHERE %s=?", Record::TABLE, Record::KEY), key);
}

} // namespace recordio
