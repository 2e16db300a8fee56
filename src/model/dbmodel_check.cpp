// The table checks run at every open after the upgrade cascade. Code lists that differ
// from the program's rows are replaced wholesale; tables of user data are repaired in
// place: missing columns are added with a sensible value, a table whose foreign keys
// differ is rebuilt with its rows, and references to rows that no longer exist are
// pointed at a valid row. A repair never removes a user's row.
#include <map>
#include <vector>

#include "dbmodel.h"
#include "referenceschema.h"
#include "schema.h"
#include "sqllog.h"

namespace {

const char* const CURRENT_ROK = "(SELECT rok FROM obdobi WHERE current=1)";

// The value a column gets when it is added to an existing table. An empty text leaves NULL.
wxString fillValue(const wxString& table, const referenceschema::Column& col) {
    static const std::map<wxString, wxString> byName = {
        {"protistranaid", "0"},
        {"obdobirok", CURRENT_ROK},
        {"menaid", "1"},
        {"predkontaceid", "(SELECT min(id) FROM predkontace)"},
        {"pokladnaid", "(SELECT min(id) FROM pokladna)"},
        {"deniksloupecid", "(SELECT min(sloupec) FROM deniksloupec)"},
        {"uhradaid", "(SELECT min(id) FROM fauhrada)"},
        {"typid", "(SELECT min(id) FROM fatyp)"},
        {"skladid", "(SELECT min(id) FROM sklad)"},
        {"adresaid", "0"},
        {"sazbaid", "0"},
        {"vypis", "-1"},
        {"kurz", "1"},
    };
    if (table == "odpis" && col.name == "rok") return CURRENT_ROK;
    auto it = byName.find(col.name);
    if (it != byName.end()) return it->second;
    if (col.name.EndsWith("id")) return wxString();  // other references stay empty
    if (col.type == "REAL" || col.type == "INTEGER") return "0";
    return col.notNull ? "''" : wxString();
}

// The value a reference to a vanished row is set to; empty means NULL.
wxString danglingValue(const wxString& table, const referenceschema::Column& col) {
    if (col.name == "bankaid") return "(SELECT min(id) FROM banka)";
    return fillValue(table, col);
}

// Columns that form the primary key of a table in the open file.
wxArrayString primaryKey(wxSQLite3Database& db, const wxString& table) {
    wxArrayString pk;
    wxSQLite3ResultSet rs = db.ExecuteQuery(wxString::Format("PRAGMA table_info(%s)", table));
    while (rs.NextRow()) {
        if (rs.GetInt("pk") != 0) pk.Add(rs.GetAsString("name"));
    }
    return pk;
}

wxArrayString expectedPrimaryKey(const wxString& table) {
    wxArrayString pk;
    for (const auto& col : referenceschema::columns(table)) {
        if (col.primaryKey) pk.Add(col.name);
    }
    return pk;
}

const referenceschema::Column* findColumn(const wxString& table, const wxString& name) {
    for (const auto& col : referenceschema::columns(table)) {
        if (col.name == name) return &col;
    }
    return nullptr;
}

} // namespace

void DbModel::checkDb() {
    if (!m_db.IsOpen()) return;
    upgradeDb();

    wxString report;
    int count = 0;
    const schema::TableDef* tables = schema::checkOrder(&count);
    for (int i = 0; i < count; ++i) {
        if (!checkTable(tables[i]) && tables[i].label) report += wxString::FromUTF8(tables[i].label) + "\n";
    }
    if (!report.empty()) {
        fireMsg(wxString::FromUTF8("Struktura databáze byla poškozená.\nByla obnovena, ale data mohou obsahovat chyby:\n") +
                report);
    }
}

bool DbModel::checkTable(const schema::TableDef& table) {
    switch (table.kind) {
        case schema::TableKind::VERSION:
            return checkTableVersion();
        case schema::TableKind::CODE_LIST:
            return checkCodeListTable(table);
        case schema::TableKind::USER_DATA:
            return checkUserTable(table);
    }
    return true;
}

bool DbModel::checkTableNamed(const char* table) {
    const schema::TableDef* def = schema::table(table);
    return def ? checkTable(*def) : true;
}

bool DbModel::checkTableVersion() {
    if (!hasTable("version") || !hasTableColumn("version", "verze") || tableRows("version") == 0) {
        tryExecuteUpdate("DROP TABLE IF EXISTS version");
        createDatabaseTable(sqlite_tb_version, false);
    }
    return true;
}

bool DbModel::checkCodeListTable(const schema::TableDef& table) {
    const wxString name = table.name;
    if (!hasTable(name)) {
        createDatabaseTable(table.statements, false);
        return true;
    }
    const wxArrayString present = tableColumns(name);
    bool damaged = tableRows(name) != rowsForInsertToTable(table.statements);
    for (const auto& col : referenceschema::columns(name)) damaged = damaged || present.Index(col.name) == wxNOT_FOUND;
    if (damaged) {
        // The program's own list replaces the table; changes made to a code list are not kept.
        wxSQLite3Transaction tx(&m_db, WXSQLITE_TRANSACTION_IMMEDIATE);
        tryExecuteUpdate("DROP TABLE " + name);
        createDatabaseTable(table.statements, false);
        tx.Commit();
    }
    return true;
}

bool DbModel::checkUserTable(const schema::TableDef& table) {
    const wxString name = table.name;
    if (!hasTable(name)) {
        createDatabaseTable(table.statements, false);
        return true;
    }
    bool intact = true;
    if ((name == "adresa" || name == "kontakt") && !hasTableId(name, "id", 0)) {
        // Row 0 is the permanent "no counterparty"; documents point at it.
        createDatabaseTable(table.statements, true);
        intact = false;
    }
    const wxArrayString present = tableColumns(name);
    bool needsRebuild = false;
    try {
        wxSQLite3Transaction tx(&m_db, WXSQLITE_TRANSACTION_IMMEDIATE);
        for (const auto& col : referenceschema::columns(name)) {
            if (present.Index(col.name) != wxNOT_FOUND) continue;
            intact = false;
            if (col.primaryKey) {
                // Without its key the table cannot be altered; the rebuild below gives the rows new ids.
                needsRebuild = true;
                continue;
            }
            tryExecuteUpdate(wxString::Format("ALTER TABLE %s ADD COLUMN %s", name,
                                              referenceschema::addColumnDefinition(name, col.name)));
            if (name == "denik" && col.name == "kurz") {
                // Kept as it has always been: the statement names the rate table, fails, and the
                // added column stays empty.
                tryExecuteUpdate("UPDATE kurz SET castka=1");
                continue;
            }
            const wxString fill = fillValue(name, col);
            if (!fill.empty()) tryExecuteUpdate(wxString::Format("UPDATE %s SET %s=%s", name, col.name, fill));
        }
        tx.Commit();
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("check " + name, e);
    }

    // Keys are compared as sets: a column added later lists its reference in another place.
    wxArrayString actualKeys = tableKeys(name), expectedKeys = referenceschema::keys(name);
    actualKeys.Sort();
    expectedKeys.Sort();
    // A table copied without its key (for example by CREATE TABLE ... AS) cannot be referenced.
    if (needsRebuild || actualKeys != expectedKeys || primaryKey(m_db, name) != expectedPrimaryKey(name)) {
        intact = false;
        rebuildTable(table);
    }
    if (!repairDanglingReferences(table)) intact = false;
    return intact;
}

bool DbModel::rebuildTable(const schema::TableDef& table) {
    const wxString name = table.name;
    const wxString temp = name + "_t";
    const wxArrayString present = tableColumns(name);
    wxString targets, sources;
    for (const auto& col : referenceschema::columns(name)) {
        if (present.Index(col.name) == wxNOT_FOUND) continue;
        if (!targets.empty()) {
            targets += ",";
            sources += ",";
        }
        targets += col.name;
        const wxString fill = fillValue(name, col);
        // A value missing where the table demands one gets the column's fill value.
        sources += col.notNull && !fill.empty() ? wxString::Format("IFNULL(%s,%s)", col.name, fill) : col.name;
    }
    wxString create = wxString::FromUTF8(table.statements[0]);
    create.Replace("CREATE TABLE " + name + " (", "CREATE TABLE " + temp + " (", false);
    try {
        wxSQLite3Transaction tx(&m_db, WXSQLITE_TRANSACTION_IMMEDIATE);
        m_db.ExecuteUpdate("DROP TABLE IF EXISTS " + temp);
        m_db.ExecuteUpdate(create);
        m_db.ExecuteUpdate(wxString::Format("INSERT INTO %s(%s) SELECT %s FROM %s", temp, targets, sources, name));
        m_db.ExecuteUpdate("DROP TABLE " + name);
        m_db.ExecuteUpdate(wxString::FromUTF8(table.statements[0]));
        m_db.ExecuteUpdate(wxString::Format("INSERT INTO %s SELECT * FROM %s", name, temp));
        m_db.ExecuteUpdate("DROP TABLE " + temp);
        tx.Commit();
        return true;
    } catch (const wxSQLite3Exception& e) {
        // The transaction rolls back: the table stays as it was, with all its rows.
        sqllog::error("rebuild " + name, e);
        return false;
    }
}

bool DbModel::repairDanglingReferences(const schema::TableDef& table) {
    const wxString name = table.name;
    // The repairs, each with the rows it applies to. A file in order has no such rows, which
    // one pass over the table shows; only then does each repair run, one pass each.
    struct Repair {
        wxString orphan;
        wxString sql;
    };
    std::vector<Repair> repairs;
    for (const wxString& key : referenceschema::keys(name)) {
        const wxArrayString parts = wxSplit(key, '|');
        const wxString& from = parts[0];
        const wxString& target = parts[1];
        const wxString& to = parts[2];
        const wxString& onDelete = parts[4];
        const wxString orphan =
            wxString::Format("%s IS NOT NULL AND %s NOT IN (SELECT %s FROM %s)", from, from, to, target);
        if (from == "obdobirok") {
            // Rows of a year whose period row vanished get their period back rather than move.
            repairs.push_back({orphan, wxString::Format("INSERT INTO obdobi(rok,current) SELECT DISTINCT %s,0 FROM %s "
                                                        "WHERE %s",
                                                        from, name, orphan)});
            continue;
        }
        // A row that belongs to a vanished parent is left alone: it is the user's and
        // there is no right parent to give it.
        if (onDelete == "CASCADE") continue;
        const referenceschema::Column* col = findColumn(name, from);
        if (!col) continue;
        const wxString value = danglingValue(name, *col);
        if (value.empty() && col->notNull) continue;
        // A row already holding the replacement (contact 0 when row 0 itself is gone) is not counted.
        const wxString already = value.empty() ? wxString() : wxString::Format(" AND %s IS NOT %s", from, value);
        repairs.push_back({orphan + already, wxString::Format("UPDATE %s SET %s=%s WHERE %s%s", name, from,
                                                              value.empty() ? wxString("NULL") : value, orphan, already)});
    }
    if (repairs.empty()) return true;
    wxString any;
    for (const Repair& r : repairs) any += (any.empty() ? "(" : " OR (") + r.orphan + ")";
    int changed = 0;
    try {
        if (!m_db.ExecuteScalar(wxString::Format("SELECT EXISTS(SELECT 1 FROM %s WHERE %s)", name, any))) return true;
        wxSQLite3Transaction tx(&m_db, WXSQLITE_TRANSACTION_IMMEDIATE);
        for (const Repair& r : repairs) changed += m_db.ExecuteUpdate(r.sql);
        tx.Commit();
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("references of " + name, e);
    }
    return changed == 0;
}
