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
                                             cols.GetInt("notnull") != 0, cols.GetInt("pk") != 0});
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

} // namespace referenceschema
