#include "referenceschema.h"

#include <wx/wxsqlite3.h>

#include <map>

#include "schema.h"
#include "sqllog.h"

namespace referenceschema {
namespace {

struct Shape {
    std::vector<Column> columns;
    wxArrayString keys;
};

const std::map<wxString, Shape>& shapes() {
    static const std::map<wxString, Shape> all = [] {
        std::map<wxString, Shape> result;
        try {
            wxSQLite3Database db;
            db.Open(":memory:");
            int count = 0;
            const schema::TableDef* tables = schema::checkOrder(&count);
            for (int i = 0; i < count; ++i) db.ExecuteUpdate(wxString::FromUTF8(tables[i].statements[0]));
            for (int i = 0; i < count; ++i) {
                Shape& shape = result[tables[i].name];
                wxSQLite3ResultSet cols = db.ExecuteQuery(wxString::Format("PRAGMA table_info(%s)", tables[i].name));
                while (cols.NextRow()) {
                    shape.columns.push_back({cols.GetAsString("name"), cols.GetAsString("type").Upper(),
                                             cols.GetInt("notnull") != 0, cols.GetInt("pk") != 0,
                                             cols.IsNull("dflt_value") ? wxString() : cols.GetAsString("dflt_value")});
                }
                cols.Finalize();
                wxSQLite3ResultSet fks = db.ExecuteQuery(wxString::Format("PRAGMA foreign_key_list(%s)", tables[i].name));
                while (fks.NextRow()) {
                    shape.keys.Add(fks.GetAsString("from") + "|" + fks.GetAsString("table") + "|" + fks.GetAsString("to") +
                                   "|" + fks.GetAsString("on_update") + "|" + fks.GetAsString("on_delete"));
                }
            }
            db.Close();
        } catch (const wxSQLite3Exception& e) {
            sqllog::error("reference schema", e);
        }
        return result;
    }();
    return all;
}

} // namespace

const std::vector<Column>& columns(const wxString& table) {
    static const std::vector<Column> none;
    auto it = shapes().find(table);
    return it == shapes().end() ? none : it->second.columns;
}

const wxArrayString& keys(const wxString& table) {
    static const wxArrayString none;
    auto it = shapes().find(table);
    return it == shapes().end() ? none : it->second.keys;
}

wxString addColumnDefinition(const wxString& table, const wxString& column) {
    wxString definition = column;
    for (const Column& col : columns(table)) {
        if (col.name != column) continue;
        definition += " " + col.type;
        if (!col.defaultValue.empty()) definition += " DEFAULT " + col.defaultValue;
    }
    for (const wxString& key : keys(table)) {
        const wxArrayString parts = wxSplit(key, '|');
        if (parts.size() == 5 && parts[0] == column) {
            definition += wxString::Format(" REFERENCES %s(%s) ON UPDATE %s", parts[1], parts[2], parts[3]);
            if (parts[4] != "NO ACTION") definition += " ON DELETE " + parts[4];
        }
    }
    return definition;
}

} // namespace referenceschema
