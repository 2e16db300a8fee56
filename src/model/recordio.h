// Reading records from result rows and binding them to prepared statements, driven by the
// record's field list, so that each table's SQL is written once for all its columns.
#pragma once

#include <wx/wxsqlite3.h>

#include "record.h"

namespace recordio {

inline void readField(wxSQLite3ResultSet& rs, const char* column, int& value) {
    value = rs.IsNull(column) ? 0 : rs.GetInt(column);
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
inline void readField(wxSQLite3ResultSet& rs, const char* column, wxDateTime& value) {
    value = wxDateTime();
    if (!rs.IsNull(column)) {
        const wxString text = rs.GetAsString(column);
        wxString::const_iterator end;
        if (!value.ParseISOCombined(text, ' ') && !value.ParseISOCombined(text, 'T')) {
            if (!value.ParseISODate(text)) value = wxDateTime();
        }
    }
}

// Fills a record from the current row; columns are looked up by name.
template <class Record>
Record read(wxSQLite3ResultSet& rs) {
    Record r;
    r.visit([&rs](const char* column, auto& field) { readField(rs, column, field); });
    r.setValid(true);
    return r;
}

inline void bindField(wxSQLite3Statement& st, int index, int value) { st.Bind(index, value); }
inline void bindField(wxSQLite3Statement& st, int index, double value) { st.Bind(index, value); }
inline void bindField(wxSQLite3Statement& st, int index, bool value) { st.Bind(index, value ? 1 : 0); }
inline void bindField(wxSQLite3Statement& st, int index, const wxString& value) { st.Bind(index, value); }
inline void bindField(wxSQLite3Statement& st, int index, const wxDateTime& value) {
    if (value.IsValid()) {
        st.Bind(index, value.FormatISODate());
    } else {
        st.BindNull(index);
    }
}

// Column names of a record in column order, joined with commas.
template <class Record>
wxString columnList(const Record& r) {
    wxString s;
    r.visit([&s](const char* column, const auto&) {
        if (!s.empty()) s += ",";
        s += column;
    });
    return s;
}

} // namespace recordio
