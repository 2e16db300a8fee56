// Logging of failed SQL statements at the model's edge. Failures the program expects (an
// upgrade step re-adding a column that exists, a seed statement that collides on purpose)
// go to the "evida-sql" trace mask (set WXTRACE=evida-sql to see them); others are warnings.
#pragma once

#include <wx/log.h>
#include <wx/wxsqlite3.h>

namespace sqllog {

inline void error(const wxString& sql, const wxSQLite3Exception& e) {
    wxLogWarning("SQL: %s: %s", sql, e.GetMessage());
}

inline void expected(const wxString& sql, const wxSQLite3Exception& e) {
    wxLogTrace("evida-sql", "SQL: %s: %s", sql, e.GetMessage());
}

} // namespace sqllog
