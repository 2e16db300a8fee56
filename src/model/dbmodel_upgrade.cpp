// The upgrade cascade run at every open: each step brings a file written by an older
// version of the program one version further. A step runs when the file's version is at
// most the step's threshold, and ends by writing its own version into the file.
#include <functional>
#include <vector>

#include "dbmodel.h"
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

void recreate(DbModel& m, const char* table, const char* const* list) {
    m.tryExecuteUpdate(wxString("DROP TABLE IF EXISTS ") + table);
    m.createDatabaseTable(list, false);
}

// Adds a column as today's table defines it (type and reference), then fills it.
void addColumn(DbModel& m, const char* table, const char* column, const char* fill = nullptr) {
    m.tryExecuteUpdate(wxString::Format("ALTER TABLE %s ADD COLUMN %s", table,
                                        referenceschema::addColumnDefinition(table, column)));
    if (fill) m.tryExecuteUpdate(wxString::Format("UPDATE %s SET %s=%s", table, column, fill));
}

void upgradeTo130(DbModel& m) {
    createIfMissing(m, "smtp", sqlite_tb_smtp);
    createIfMissing(m, "odeslany", sqlite_tb_odeslany);
    createIfMissing(m, "priznani", sqlite_tb_priznani);
    createIfMissing(m, "dphdruh", sqlite_tb_dphdruh);
    createIfMissing(m, "ulozene", sqlite_tb_ulozene);
    recreate(m, "dphsazba", sqlite_tb_dphsazba);
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
    if (!m.hasTableColumn("mena", "od") || !m.hasTableColumn("mena", "do")) recreate(m, "mena", sqlite_tb_mena);
    recreate(m, "dphdruh", sqlite_tb_dphdruh);
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
    addColumn(m, "banka", "iban");
    addColumn(m, "banka", "bic");
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
            wxSQLite3Statement iban = m.db().PrepareStatement("UPDATE banka SET iban=? WHERE id=?");
            iban.Bind(1, lxutils::ibanFromUcet(a.cislo, a.kod));
            iban.Bind(2, a.id);
            iban.ExecuteUpdate();
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

void upgradeTo1408(DbModel& m) { recreate(m, "cenaphm", sqlite_tb_cenaphm); }

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

void DbModel::upgradeDb() {
    if (!hasTable("version")) createDatabaseTable(sqlite_tb_version, false);
    wxString verze;
    try {
        wxSQLite3ResultSet rs = m_db.ExecuteQuery("SELECT verze FROM version");
        if (rs.NextRow()) verze = rs.GetAsString(0);
    } catch (const wxSQLite3Exception& e) {
        sqllog::expected("SELECT verze FROM version", e);
    }
    // Versions before 1.40 were written with two parts: "1.20" counts as 1.20.0.
    if (verze.Freq('.') == 1) verze += ".0";
    const int v = lxutils::versionToInt(verze);

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
}
