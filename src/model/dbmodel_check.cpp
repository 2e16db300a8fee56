// The table checks run at every open after the upgrade cascade. Code lists that differ
// from the program's rows are replaced by them, keeping the rows documents use; tables of
// user data are repaired in place: missing columns are added with a sensible value, a table
// whose foreign keys differ is rebuilt with its rows, and a row that documents refer to but
// that no longer exists is recreated as "OBNOVENO-<id>" so that no document moves to
// another register, account or classification. Only a missing currency is replaced (by the
// home currency). Before the first change to a user's rows the file is copied beside
// itself, and the report names the copy and every recreated or moved row.
#include <wx/filename.h>

#include <map>
#include <set>
#include <vector>

#include "dbmodel.h"
#include "dbsafety.h"
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


// How the report names a table: its label, or for code lists a name of their own.
wxString tableTitle(const wxString& table) {
    static const std::map<wxString, const char*> codeLists = {
        {"dphsazba", "Sazby DPH"},       {"dphdruh", "Druhy plnění DPH"},    {"mena", "Měny"},
        {"kurz", "Kurzy"},               {"deniksloupec", "Sloupce deníku"}, {"fatyp", "Typy faktur"},
        {"odpiskupina", "Odpisové skupiny"}, {"rada", "Číselné řady"},    {"bankovniustav", "Banky"},
    };
    const schema::TableDef* def = schema::table(table.utf8_str());
    if (def && def->label) return wxString::FromUTF8(def->label);
    auto it = codeLists.find(table);
    return it != codeLists.end() ? wxString::FromUTF8(it->second) : table;
}

// The column in which a recreated row carries its mark, so the user finds it in the lists.
wxString markColumn(const wxString& table) {
    for (const char* name : {"zkratka", "nazev", "cislo", "kod", "popis", "ulice"}) {
        const referenceschema::Column* col = findColumn(table, name);
        if (col && col->type == "TEXT") return name;
    }
    return wxString();
}

struct Reference {
    wxString table, column;
};

// Every column of a user-data table that refers to `target`, with the column it refers to.
std::vector<Reference> referencesTo(const wxString& target, wxString* targetColumn) {
    std::vector<Reference> refs;
    int count = 0;
    const schema::TableDef* tables = schema::checkOrder(&count);
    for (int i = 0; i < count; ++i) {
        for (const wxString& key : referenceschema::keys(tables[i].name)) {
            const wxArrayString parts = wxSplit(key, '|');
            if (parts[1] != target) continue;
            refs.push_back({tables[i].name, parts[0]});
            *targetColumn = parts[2];
        }
    }
    return refs;
}

// The keys of a code list's own rows, read once from its seed statements.
const std::set<wxString>& seedKeys(const schema::TableDef& def, const wxString& key) {
    static std::map<wxString, std::set<wxString>> cache;
    auto it = cache.find(def.name);
    if (it != cache.end()) return it->second;
    std::set<wxString>& keys = cache[def.name];
    try {
        wxSQLite3Database mem;
        mem.Open(":memory:");
        for (int i = 0; def.statements[i]; ++i) {
            try {
                mem.ExecuteUpdate(wxString::FromUTF8(def.statements[i]));
            } catch (const wxSQLite3Exception& e) {
                sqllog::expected(wxString::FromUTF8(def.statements[i]), e);
            }
        }
        wxSQLite3ResultSet rs = mem.ExecuteQuery(wxString::Format("SELECT %s FROM %s", key, def.name));
        while (rs.NextRow()) keys.insert(rs.GetAsString(0));
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(wxString("seed keys of ") + def.name, e);
    }
    return keys;
}

// Lists at most a few of many rows in the report.
const size_t NOTE_LIMIT = 20;

} // namespace

void DbModel::checkDb() { runChecks(); }

bool DbModel::runChecks() {
    if (!m_db.IsOpen()) return true;
    m_safetyCopy.clear();
    m_repairNotes.Clear();
    wxString report;
    try {
        if (!upgradeDb()) return false;
        int count = 0;
        const schema::TableDef* tables = schema::checkOrder(&count);
        for (int i = 0; i < count; ++i) {
            if (!checkTable(tables[i]) && tables[i].label) report += wxString::FromUTF8(tables[i].label) + "\n";
        }
        // After the checks, since rebuilding a damaged table drops its indexes. A file that
        // cannot take them still opens; it is only slower.
        for (int i = 0; sqlite_indexes[i]; ++i) {
            try {
                m_db.ExecuteUpdate(sqlite_indexes[i]);
            } catch (const wxSQLite3Exception& e) {
                sqllog::error(sqlite_indexes[i], e);
            }
        }
    } catch (const SafetyCopyFailed&) {
        fail(dbsafety::copyFailedMessage(m_path));
        return false;
    }
    wxString text;
    if (!report.empty())
        text = wxString::FromUTF8("Struktura databáze byla poškozená.\nByla obnovena, ale data mohou obsahovat chyby:\n") +
               report;
    if (!m_repairNotes.empty()) text += (text.empty() ? "" : "\n") + wxJoin(m_repairNotes, '\n', 0) + "\n";
    if (!m_safetyCopy.empty())
        text += wxString::FromUTF8("\nPřed úpravou byla databáze zkopírována do souboru:\n") + m_safetyCopy + "\n";
    if (!text.empty()) fireMsg(text);
    return true;
}

void DbModel::ensureSafetyCopy() {
    if (!m_safetyCopy.empty()) return;
    const wxString target = dbsafety::copyPath(m_path, wxDateTime::Now());
    // Written under a temporary name first: a copy cut short (a crash, a full disk) never
    // carries the name of a whole one.
    const wxString partial = target + ".part";
    try {
        // SQLite's online backup reads through this connection, so the copy is consistent.
        m_db.Backup(partial);
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("backup " + target, e);
        if (wxFileName::FileExists(partial)) wxRemoveFile(partial);
        throw SafetyCopyFailed();
    }
    if (!wxRenameFile(partial, target, false)) {
        wxRemoveFile(partial);
        throw SafetyCopyFailed();
    }
    m_safetyCopy = target;
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
    bool columnsOk = true;
    for (const auto& col : referenceschema::columns(name)) columnsOk = columnsOk && present.Index(col.name) != wxNOT_FOUND;
    if (columnsOk) {
        const int rows = tableRows(name), seeds = rowsForInsertToTable(table.statements);
        if (name == "kurz") fixKurzSeedsPerUnit();
        if (rows == seeds) return true;
        // A newer program's list holds more currencies than ours; they are all kept.
        if (name == "mena" && rows > seeds) return true;
        // Rows an earlier reseed kept because documents use them do not count.
        if (rows > seeds && rows - keptCodeListRows(name) == seeds) return true;
    }
    // The program's own list replaces the table; changes made to a code list are not kept,
    // except rows that documents still use.
    reseedCodeList(table.name);
    return true;
}

// Files made before the seeded rates were stored per one unit hold the national bank's
// figure per 100, 1000 or 1 000 000 units for some currencies (JPY, HUF, IDR, …), which made
// every amount converted at them that many times too high. A stored seed row that is exactly
// such a multiple of today's seed, on the seed's own day, is set to the per-unit value; a
// rate the user downloaded is already per unit and is never such a multiple.
void DbModel::fixKurzSeedsPerUnit() {
    try {
        WriteTransaction tx(m_db);
        m_db.ExecuteUpdate("DROP TABLE IF EXISTS temp.kurz_seed");
        m_db.ExecuteUpdate("CREATE TEMP TABLE kurz_seed (datum TEXT, hodnota REAL, kod TEXT, jednotny INTEGER)");
        for (const char* const* st = sqlite_tb_kurz + 1; *st; ++st) {
            wxString insert = wxString::FromUTF8(*st);
            insert.Replace("INSERT INTO kurz(", "INSERT INTO temp.kurz_seed(");
            m_db.ExecuteUpdate(insert);
        }
        m_db.ExecuteUpdate(
            "UPDATE kurz SET hodnota=(SELECT s.hodnota FROM temp.kurz_seed s WHERE s.datum=kurz.datum AND "
            "s.kod=kurz.kod AND s.jednotny=kurz.jednotny) WHERE EXISTS (SELECT 1 FROM temp.kurz_seed s, "
            "(SELECT 100 AS n UNION ALL SELECT 1000 UNION ALL SELECT 1000000) q WHERE s.datum=kurz.datum AND "
            "s.kod=kurz.kod AND s.jednotny=kurz.jednotny AND abs(kurz.hodnota - s.hodnota*q.n) <= 1e-9*s.hodnota*q.n)");
        m_db.ExecuteUpdate("DROP TABLE temp.kurz_seed");
        tx.commit();
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("kurz per unit", e);
    }
}

int DbModel::keptCodeListRows(const wxString& table) {
    wxString key;
    const std::vector<Reference> refs = referencesTo(table, &key);
    const schema::TableDef* def = schema::table(table.utf8_str());
    if (refs.empty() || !def) return 0;
    wxString used;
    for (const Reference& r : refs) {
        if (!hasTableColumn(r.table, r.column)) continue;
        used += wxString(used.empty() ? "" : " UNION ") + wxString::Format("SELECT %s FROM %s", r.column, r.table);
    }
    if (used.empty()) return 0;
    const std::set<wxString>& seeds = seedKeys(*def, key);
    int kept = 0;
    const wxString sql = wxString::Format("SELECT %s FROM %s WHERE %s IN (%s)", key, table, key, used);
    try {
        wxSQLite3ResultSet rs = m_db.ExecuteQuery(sql);
        while (rs.NextRow()) kept += seeds.count(rs.GetAsString(0)) == 0 ? 1 : 0;
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(sql, e);
    }
    return kept;
}

void DbModel::reseedCodeList(const char* tableName) {
    const schema::TableDef* def = schema::table(tableName);
    if (!def) return;
    const wxString name = tableName;
    wxString key;
    const std::vector<Reference> refs = referencesTo(name, &key);
    // The rows documents refer to, with the columns today's table has.
    wxString used, common;
    if (hasTable(name) && !key.empty() && hasTableColumn(name, key)) {
        for (const Reference& r : refs) {
            if (!hasTable(r.table) || !hasTableColumn(r.table, r.column)) continue;
            used += wxString(used.empty() ? "" : " UNION ") +
                    wxString::Format("SELECT %s FROM %s WHERE %s IS NOT NULL", r.column, r.table, r.column);
        }
        const wxArrayString present = tableColumns(name);
        for (const auto& col : referenceschema::columns(name)) {
            if (present.Index(col.name) != wxNOT_FOUND) common += (common.empty() ? "" : ",") + col.name;
        }
    }
    const bool keep = !used.empty();
    try {
        WriteTransaction tx(m_db);
        tryExecuteUpdate("DROP TABLE IF EXISTS temp.evida_keep");
        if (keep)
            m_db.ExecuteUpdate(wxString::Format("CREATE TEMP TABLE evida_keep AS SELECT %s FROM %s WHERE %s IN (%s)",
                                                common, name, key, used));
        tryExecuteUpdate("DROP TABLE IF EXISTS " + name);
        createDatabaseTable(def->statements, false);
        if (keep) {
            m_db.ExecuteUpdate(wxString::Format("INSERT INTO %s(%s) SELECT %s FROM temp.evida_keep WHERE %s NOT IN "
                                                "(SELECT %s FROM %s)",
                                                name, common, common, key, key, name));
            // A currency whose id the program's list gives to another currency stays what
            // the documents were written in.
            if (wxSplit(common, ',').Index("kod") != wxNOT_FOUND)
                m_db.ExecuteUpdate(wxString::Format("INSERT OR REPLACE INTO %s(%s) SELECT %s FROM temp.evida_keep k "
                                                    "WHERE kod IS NOT (SELECT kod FROM %s WHERE %s=k.%s)",
                                                    name, common, common, name, key, key));
            m_db.ExecuteUpdate("DROP TABLE temp.evida_keep");
        }
        tx.commit();
    } catch (const wxSQLite3Exception& e) {
        // The transaction rolls back: the list stays as it was.
        sqllog::error("reseed " + name, e);
    }
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
        ensureSafetyCopy();
        createDatabaseTable(table.statements, true);
        addRepairNote(tableTitle(name) + wxString::FromUTF8(": doplněn chybějící záznam 0"));
        intact = false;
    }
    const wxArrayString present = tableColumns(name);
    std::vector<referenceschema::Column> missing;
    for (const auto& col : referenceschema::columns(name)) {
        if (present.Index(col.name) == wxNOT_FOUND) missing.push_back(col);
    }
    bool needsRebuild = false;
    if (!missing.empty()) {
        intact = false;
        ensureSafetyCopy();
        try {
            wxSQLite3Transaction tx(&m_db, WXSQLITE_TRANSACTION_IMMEDIATE);
            for (const auto& col : missing) {
                if (col.primaryKey) {
                    // Without its key the table cannot be altered; the rebuild below gives the rows new ids.
                    needsRebuild = true;
                    continue;
                }
                // A column that could not be added is not filled: the fill would overwrite it.
                if (!tryExecuteUpdate(wxString::Format("ALTER TABLE %s ADD COLUMN %s", name,
                                                       referenceschema::addColumnDefinition(name, col.name))))
                    continue;
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
    }

    // Keys are compared as sets: a column added later lists its reference in another place.
    wxArrayString actualKeys = tableKeys(name), expectedKeys = referenceschema::keys(name);
    actualKeys.Sort();
    expectedKeys.Sort();
    // A table copied without its key (for example by CREATE TABLE ... AS) cannot be referenced.
    if (needsRebuild || actualKeys != expectedKeys || primaryKey(m_db, name) != expectedPrimaryKey(name)) {
        intact = false;
        ensureSafetyCopy();
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
    struct Dangling {
        wxString from, target, to, orphan;
    };
    std::vector<Dangling> refs;
    const wxArrayString present = tableColumns(name);
    for (const wxString& key : referenceschema::keys(name)) {
        const wxArrayString parts = wxSplit(key, '|');
        if (present.Index(parts[0]) == wxNOT_FOUND || !hasTable(parts[1])) continue;
        refs.push_back({parts[0], parts[1], parts[2],
                        wxString::Format("%s IS NOT NULL AND %s NOT IN (SELECT %s FROM %s)", parts[0], parts[0],
                                         parts[2], parts[1])});
    }
    if (refs.empty()) return true;
    // A file in order has no such rows, which one pass over the table shows.
    wxString any;
    for (const Dangling& r : refs) any += (any.empty() ? "(" : " OR (") + r.orphan + ")";
    try {
        if (!m_db.ExecuteScalar(wxString::Format("SELECT EXISTS(SELECT 1 FROM %s WHERE %s)", name, any))) return true;
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("references of " + name, e);
        return true;
    }
    ensureSafetyCopy();
    int changed = 0;
    try {
        WriteTransaction tx(m_db);
        for (const Dangling& r : refs) {
            if (r.from == "menaid" && present.Index("id") != wxNOT_FOUND) {
                // The one reference a repair moves: to the home currency, each row named.
                wxSQLite3ResultSet rs = m_db.ExecuteQuery(
                    wxString::Format("SELECT id,%s FROM %s WHERE %s ORDER BY id", r.from, name, r.orphan));
                size_t n = 0;
                while (rs.NextRow()) {
                    if (++n <= NOTE_LIMIT)
                        addRepairNote(wxString::Format(
                            wxString::FromUTF8("%s: záznam %s měl neexistující měnu %s, nastavena měna CZK"),
                            tableTitle(name), rs.GetAsString(0), rs.GetAsString(1)));
                }
                rs.Finalize();
                if (n > NOTE_LIMIT)
                    addRepairNote(wxString::Format(wxString::FromUTF8("%s: další záznamy s neexistující měnou: %zu"),
                                                   tableTitle(name), n - NOTE_LIMIT));
                changed += m_db.ExecuteUpdate(
                    wxString::Format("UPDATE %s SET %s=1 WHERE %s", name, r.from, r.orphan));
            } else {
                changed += recreateMissingRows(name, r.from, r.target, r.to, r.orphan);
            }
        }
        tx.commit();
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("references of " + name, e);
    }
    return changed == 0;
}

int DbModel::recreateMissingRows(const wxString& table, const wxString& column, const wxString& target,
                                 const wxString& targetColumn, const wxString& orphan) {
    wxArrayString ids;
    wxSQLite3ResultSet rs = m_db.ExecuteQuery(
        wxString::Format("SELECT DISTINCT %s FROM %s WHERE %s ORDER BY 1", column, table, orphan));
    while (rs.NextRow()) ids.Add(rs.GetAsString(0));
    rs.Finalize();
    if (ids.empty()) return 0;

    // The missing row comes back under its id, marked, with what its own columns demand.
    const wxArrayString present = tableColumns(target);
    const wxString mark = target == "obdobi" ? wxString() : markColumn(target);
    wxString columns = targetColumn, values = column;
    if (!mark.empty() && present.Index(mark) != wxNOT_FOUND) {
        columns += "," + mark;
        values += ",'OBNOVENO-' || " + column;
    }
    for (const auto& col : referenceschema::columns(target)) {
        if (col.name == targetColumn || col.name == mark || present.Index(col.name) == wxNOT_FOUND) continue;
        if (!col.notNull || !col.defaultValue.empty() || col.primaryKey) continue;
        wxString fill = fillValue(target, col);
        if (fill.empty()) fill = col.type == "TEXT" ? "''" : "0";
        columns += "," + col.name;
        values += "," + fill;
    }
    const int added = m_db.ExecuteUpdate(wxString::Format("INSERT INTO %s(%s) SELECT DISTINCT %s FROM %s WHERE %s",
                                                          target, columns, values, table, orphan));
    for (size_t i = 0; i < ids.size() && i < NOTE_LIMIT; ++i) {
        addRepairNote(target == "obdobi"
                          ? wxString::Format(wxString::FromUTF8("%s: doplněno období %s (odkazuje na něj %s)"),
                                             tableTitle(target), ids[i], tableTitle(table))
                          : wxString::Format(wxString::FromUTF8("%s: doplněn chybějící záznam OBNOVENO-%s (odkazuje "
                                                                "na něj %s)"),
                                             tableTitle(target), ids[i], tableTitle(table)));
    }
    if (ids.size() > NOTE_LIMIT)
        addRepairNote(wxString::Format(wxString::FromUTF8("%s: další doplněné záznamy: %zu"), tableTitle(target),
                                       ids.size() - NOTE_LIMIT));
    return added;
}
