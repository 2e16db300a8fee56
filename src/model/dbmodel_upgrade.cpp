// The upgrade cascade run at every open: each step brings a file written by an older
// version of the program one version further. A step runs when the file's version is at
// most the step's threshold, and ends by writing its own version into the file. The file is
// copied beside itself before the first step. A version that cannot be read, or one newer
// than this program, never starts the cascade: such a file is refused, not "upgraded" from
// the oldest version over today's data.
#include <functional>
#include <vector>

#include "dbmodel.h"
#include "dbsafety.h"
#include "lxutils.h"
#include "referenceschema.h"
#include "schema.h"
#include "sqllog.h"

namespace {

struct UpgradeStep {
    int threshold;
    const char* version;
    std::function<void(DbModel&)> work;
};

void createIfMissing(DbModel& m, const char* table, const char* const* list) {
    if (!m.hasTable(table)) m.createDatabaseTable(list, false);
}

// A code list replaced by the program's rows; rows that documents use stay.
void recreate(DbModel& m, const char* table) { m.reseedCodeList(table); }

// Adds a column as today's table defines it (type and reference), then fills it. A column
// that could not be added (it is there already) keeps its values. Returns whether it was added.
bool addColumn(DbModel& m, const char* table, const char* column, const char* fill = nullptr) {
    if (!m.tryExecuteUpdate(wxString::Format("ALTER TABLE %s ADD COLUMN %s", table,
                                             referenceschema::addColumnDefinition(table, column))))
        return false;
    if (fill) m.tryExecuteUpdate(wxString::Format("UPDATE %s SET %s=%s", table, column, fill));
    return true;
}

void upgradeTo130(DbModel& m) {
    createIfMissing(m, "smtp", sqlite_tb_smtp);
    createIfMissing(m, "odeslany", sqlite_tb_odeslany);
    createIfMissing(m, "priznani", sqlite_tb_priznani);
    createIfMissing(m, "dphdruh", sqlite_tb_dphdruh);
    createIfMissing(m, "ulozene", sqlite_tb_ulozene);
    recreate(m, "dphsazba");
    for (const char* table : {"faktura", "zavpoh"}) {
        addColumn(m, table, "dppd", "duzp");
        addColumn(m, table, "dphdruhid");
        addColumn(m, table, "kurz");
        addColumn(m, table, "pausal", "0");
    }
    for (const char* table : {"firma", "denik"}) addColumn(m, table, "pausal", "0");
}

void upgradeTo1400(DbModel& m) {
    // Journal entries in the home currency carry their amount in castkacizi too.
    std::vector<int> ids;
    try {
        wxSQLite3ResultSet rs = m.db().ExecuteQuery("SELECT id,castka,castkacizi FROM denik");
        while (rs.NextRow()) {
            const double cizi = rs.IsNull(2) ? 0.0 : rs.GetDouble(2);
            if (lxutils::isSameDouble(cizi, 0.0)) ids.push_back(rs.GetInt(0));
        }
    } catch (const wxSQLite3Exception& e) {
        sqllog::expected("SELECT id,castka,castkacizi FROM denik", e);
    }
    for (int id : ids) m.tryExecuteUpdate(wxString::Format("UPDATE denik SET castkacizi=castka WHERE id=%d", id));

    createIfMissing(m, "sklad", sqlite_tb_sklad);
    static const char* const NEW_SERIES[][2] = {
        {"ZB", "Zásoba"}, {"PR", "Příjemka"}, {"VY", "Výdejka"}, {"IV", "Inventura"}};
    for (const auto& rada : NEW_SERIES) {
        if (!m.hasTableId("rada", "id", wxString(rada[0]))) {
            m.tryExecuteUpdate(wxString::Format("INSERT INTO rada(id,popis,prefix,znaku,cislo) VALUES('%s','%s','%s',6,1)",
                                                rada[0], wxString::FromUTF8(rada[1]), rada[0]));
        }
    }
    createIfMissing(m, "zasoba", sqlite_tb_zasoba);
    addColumn(m, "fapolozka", "zasobaid");
    createIfMissing(m, "inventura", sqlite_tb_inventura);
    createIfMissing(m, "ivpolozka", sqlite_tb_ivpolozka);
    createIfMissing(m, "pohybzasob", sqlite_tb_pohybzasob);
    addColumn(m, "kurz", "jednotny", "0");
    if (!m.hasTableColumn("mena", "od") || !m.hasTableColumn("mena", "do")) recreate(m, "mena");
    recreate(m, "dphdruh");
}

void upgradeTo1401(DbModel& m) {
    addColumn(m, "kontakt", "jmeno", "nazev");
    createIfMissing(m, "ridic", sqlite_tb_ridic);
    createIfMissing(m, "phm", sqlite_tb_phm);
    createIfMissing(m, "cenaphm", sqlite_tb_cenaphm);
    createIfMissing(m, "druhvozidla", sqlite_tb_druhvozidla);
    createIfMissing(m, "nahradakm", sqlite_tb_nahradakm);
    createIfMissing(m, "vozidlo", sqlite_tb_vozidlo);
    createIfMissing(m, "jizda", sqlite_tb_jizda);
}

void upgradeTo1404(DbModel& m) { addColumn(m, "fapolozka", "zaokrouhleni", "0"); }

void upgradeTo1407(DbModel& m) {
    createIfMissing(m, "bankovniustav", sqlite_tb_bankovniustav);
    const bool newIban = addColumn(m, "banka", "iban");
    const bool newBic = addColumn(m, "banka", "bic");
    if (!newIban && !newBic) return;
    struct Account {
        int id;
        wxString cislo, kod;
    };
    std::vector<Account> accounts;
    try {
        wxSQLite3ResultSet rs = m.db().ExecuteQuery("SELECT id,cislouctu,kodbanky FROM banka");
        while (rs.NextRow()) accounts.push_back({rs.GetInt(0), rs.GetAsString(1), rs.GetAsString(2)});
    } catch (const wxSQLite3Exception& e) {
        sqllog::expected("SELECT id,cislouctu,kodbanky FROM banka", e);
    }
    for (const Account& a : accounts) {
        try {
            if (newIban) {
                wxSQLite3Statement iban = m.db().PrepareStatement("UPDATE banka SET iban=? WHERE id=?");
                iban.Bind(1, lxutils::ibanFromUcet(a.cislo, a.kod));
                iban.Bind(2, a.id);
                iban.ExecuteUpdate();
            }
            if (!newBic) continue;
            wxSQLite3Statement find = m.db().PrepareStatement("SELECT bic FROM bankovniustav WHERE kod=?");
            find.Bind(1, a.kod);
            wxSQLite3ResultSet rs = find.ExecuteQuery();
            if (rs.NextRow() && !rs.IsNull(0)) {
                wxSQLite3Statement bic = m.db().PrepareStatement("UPDATE banka SET bic=? WHERE id=?");
                bic.Bind(1, rs.GetAsString(0));
                bic.Bind(2, a.id);
                bic.ExecuteUpdate();
            }
        } catch (const wxSQLite3Exception& e) {
            sqllog::expected("UPDATE banka SET iban/bic", e);
        }
    }
}

void upgradeTo1408(DbModel& m) { recreate(m, "cenaphm"); }

// Whether a well-formed version is later than this program's own. The parts are compared
// one by one: the number versionToInt gives ranks "1.41.0" (1410) below "1.40.14" (1414).
bool isNewerThanProgram(const wxString& version) {
    const wxArrayString mine = wxSplit(lxutils::EVIDA_VERSION, '.'), theirs = wxSplit(version, '.');
    for (size_t i = 0; i < 3; ++i) {
        long a = 0, b = 0;
        theirs[i].ToLong(&a);
        mine[i].ToLong(&b);
        if (a != b) return a > b;
    }
    return false;
}

const std::vector<UpgradeStep>& upgradeSteps() {
    static const std::vector<UpgradeStep> steps = {
        {1199, "1.20", nullptr},          {1299, "1.30", upgradeTo130},     {1399, "1.40.0", upgradeTo1400},
        {1400, "1.40.1", upgradeTo1401},  {1401, "1.40.2", nullptr},        {1402, "1.40.3", nullptr},
        {1403, "1.40.4", upgradeTo1404},  {1404, "1.40.5", nullptr},        {1405, "1.40.6", nullptr},
        {1406, "1.40.7", upgradeTo1407},  {1407, "1.40.8", upgradeTo1408},  {1408, "1.40.9", nullptr},
        {1409, "1.40.10", nullptr},       {1410, "1.40.11", nullptr},       {1411, "1.40.12", nullptr},
        {1412, "1.40.13", nullptr},       {1413, "1.40.14", nullptr},
    };
    return steps;
}

} // namespace

bool DbModel::upgradeDb() {
    // A file without its version row has lost only that row: it counts as current, and the
    // table checks bring its tables to today's shape.
    if (!hasTable("version")) {
        createDatabaseTable(sqlite_tb_version, false);
        return true;
    }
    bool hasRow = false, isNull = false;
    wxString verze;
    try {
        wxSQLite3ResultSet rs = m_db.ExecuteQuery("SELECT verze FROM version");
        if (rs.NextRow()) {
            hasRow = true;
            isNull = rs.IsNull(0);
            verze = rs.GetAsString(0);
        }
    } catch (const wxSQLite3Exception& e) {
        sqllog::expected("SELECT verze FROM version", e);
        return true;  // no column verze: the version check recreates the table
    }
    if (!hasRow) return true;
    wxString normalized = verze;
    // Versions before 1.40 were written with two parts: "1.20" counts as 1.20.0.
    if (normalized.Freq('.') == 1) normalized += ".0";
    const int v = isNull ? 0 : lxutils::versionToInt(normalized);
    if (v <= 0) {
        wxLogWarning("version: '%s'", verze);
        fail(dbsafety::unreadableVersionMessage(m_path, isNull ? wxString("NULL") : verze));
        return false;
    }
    if (isNewerThanProgram(normalized)) {
        fail(dbsafety::newerVersionMessage(m_path, verze));
        return false;
    }
    if (v >= lxutils::versionToInt(lxutils::EVIDA_VERSION)) return true;

    ensureSafetyCopy();
    for (const UpgradeStep& step : upgradeSteps()) {
        if (v > step.threshold) continue;
        // Each step is one transaction; a failing statement inside it does not stop the others.
        try {
            wxSQLite3Transaction tx(&m_db, WXSQLITE_TRANSACTION_IMMEDIATE);
            if (step.work) step.work(*this);
            tryExecuteUpdate(wxString::Format("UPDATE version SET verze='%s'", step.version));
            tx.Commit();
        } catch (const wxSQLite3Exception& e) {
            sqllog::error(wxString("upgrade to ") + step.version, e);
        }
    }
    addRepairNote(wxString::Format(wxString::FromUTF8("Databáze byla převedena z verze %s na verzi %s."), verze,
                                   lxutils::EVIDA_VERSION));
    return true;
}
