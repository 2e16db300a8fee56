// Reading records from result rows, binding them to prepared statements, and the generic
// statements over a record's table, all driven by the record's field list so that each
// table's SQL is written once for all its columns.
#pragma once

#include <wx/wxsqlite3.h>

#include <unordered_map>

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
inline wxDateTime parseDateText(const wxString& text) {
    wxDateTime value;
    // A plain date (the common case) cannot be a combined one. Lists read thousands of rows
    // over a few hundred days, and turning a day into a time is slow (the C library looks at
    // the time zone file every time), so each day is converted once and remembered. The model
    // runs on one thread only.
    if (text.length() == 10) {
        static std::unordered_map<int, wxDateTime> days;
        int key = 0;
        for (size_t i = 0; i < 10 && key >= 0; ++i) {
            const wxUniChar c = text[i];
            if (i == 4 || i == 7) {
                if (c != '-') key = -1;
            } else if (c >= '0' && c <= '9') {
                key = key * 10 + static_cast<int>(c.GetValue() - '0');
            } else {
                key = -1;
            }
        }
        if (key >= 0) {
            const auto found = days.find(key);
            if (found != days.end()) return found->second;
        }
        if (!value.ParseISODate(text)) value = wxDateTime();
        if (key >= 0) {
            if (days.size() > 100000) days.clear();
            days.emplace(key, value);
        }
        return value;
    }
    if (!value.ParseISOCombined(text, ' ') && !value.ParseISOCombined(text, 'T') && !value.ParseISODate(text))
        value = wxDateTime();
    return value;
}
inline void readField(wxSQLite3ResultSet& rs, const char* column, wxDateTime& value) {
    value = rs.IsNull(column) ? wxDateTime() : parseDateText(rs.GetAsString(column));
}

// The same by the column's position in the result, for reading many rows of one query.
inline void readFieldAt(wxSQLite3ResultSet& rs, int index, bool reference, int& value) {
    value = rs.IsNull(index) ? (reference ? -1 : 0) : rs.GetInt(index);
}
inline void readFieldAt(wxSQLite3ResultSet& rs, int index, bool, double& value) {
    value = rs.IsNull(index) ? 0.0 : rs.GetDouble(index);
}
inline void readFieldAt(wxSQLite3ResultSet& rs, int index, bool, bool& value) {
    value = !rs.IsNull(index) && rs.GetInt(index) != 0;
}
inline void readFieldAt(wxSQLite3ResultSet& rs, int index, bool, wxString& value) {
    value = rs.IsNull(index) ? wxString() : rs.GetAsString(index);
}
inline void readFieldAt(wxSQLite3ResultSet& rs, int index, bool, wxDateTime& value) {
    value = rs.IsNull(index) ? wxDateTime() : parseDateText(rs.GetAsString(index));
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

// Where each field of the record is in a result: its column index (-1 when the result lacks
// it) and whether it is a reference. Found once per query instead of once per row and field.
struct FieldColumn {
    int index;
    bool reference;
};
template <class Record>
std::vector<FieldColumn> fieldColumns(wxSQLite3ResultSet& rs) {
    std::vector<wxString> names;
    for (int i = 0; i < rs.GetColumnCount(); ++i) names.push_back(rs.GetColumnName(i));
    std::vector<FieldColumn> columns;
    Record().visit([&](const char* column, const auto&) {
        const wxString name(column);
        int index = -1;
        for (size_t i = 0; i < names.size() && index < 0; ++i) {
            if (names[i] == name) index = static_cast<int>(i);
        }
        columns.push_back(FieldColumn{index, isReference(column)});
    });
    return columns;
}

template <class Record>
Record readAt(wxSQLite3ResultSet& rs, const std::vector<FieldColumn>& columns) {
    Record r;
    size_t i = 0;
    r.visit([&](const char*, auto& field) {
        const FieldColumn& c = columns[i++];
        readFieldAt(rs, c.index, c.reference, field);
    });
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
        const std::vector<FieldColumn> columns = fieldColumns<Record>(rs);
        bool complete = true;
        for (const FieldColumn& c : columns) complete = complete && c.index >= 0;
        while (rs.NextRow()) {
            // A result without some field's column is read by name, which reports the column.
            rows.push_back(std::make_unique<Record>(complete ? readAt<Record>(rs, columns) : read<Record>(rs)));
        }
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
