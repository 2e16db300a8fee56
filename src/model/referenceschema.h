// The shape every table should have, read from the program's own CREATE TABLE texts by
// running them in a private in-memory database. The open-time checks compare a company
// file against it, so the expected columns and foreign keys are never written twice.
#pragma once

#include <wx/arrstr.h>
#include <wx/string.h>

#include <vector>

namespace referenceschema {

struct Column {
    wxString name;
    wxString type;  // "INTEGER", "TEXT", "REAL"
    bool notNull;
    bool primaryKey;
    wxString defaultValue;  // as written in the CREATE text, empty when none
};

// Columns of a table in column order; empty for an unknown table.
const std::vector<Column>& columns(const wxString& table);

// The definition with which a missing column is added to an existing table: its type, a
// constant default and its reference. NOT NULL is left out, as SQLite cannot add such a
// column to a table with rows; the caller fills the column instead.
wxString addColumnDefinition(const wxString& table, const wxString& column);

// Foreign-key signature of a table as DbModel::tableKeys gives it for a sound file.
const wxArrayString& keys(const wxString& table);

} // namespace referenceschema
