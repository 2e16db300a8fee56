#include "testcompany.h"

#include <wx/dir.h>
#include <wx/ffile.h>
#include <wx/filefn.h>
#include <wx/filename.h>
#include <wx/utils.h>
#include <wx/wxsqlite3.h>

#include <sqlite3.h>

#include <cstdio>
#include <cstdlib>
#include <sys/wait.h>

#include "companysetup.h"
#include "lxsettings.h"
#include "lxutils.h"
#include "schema.h"

wxDateTime isoDatum(const char* text) {
    wxDateTime d;
    d.ParseISODate(text);
    return d;
}

wxDateTime lxSettingsToday() { return lxSettings::instance()->datum(); }

CliResult runCli(const wxString& args) { return runShell(wxString(EVIDA_CLI) + " " + args); }

CliResult runShell(const wxString& commandLine) {
    wxString command = commandLine;
    command.Replace("EVIDA_CLI", EVIDA_CLI);
    command = "(" + command + ") 2>&1";
    CliResult result{-1, {}};
    FILE* pipe = popen(command.utf8_str(), "r");
    if (!pipe) return result;
    char buffer[512];
    while (fgets(buffer, sizeof buffer, pipe)) result.output += buffer;
    const int status = pclose(pipe);
    result.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return result;
}

std::string fileBytes(const wxString& path) {
    std::string bytes;
    wxFFile f(path, "rb");
    if (!f.IsOpened()) return bytes;
    bytes.resize(f.Length());
    if (!bytes.empty() && f.Read(&bytes[0], bytes.size()) != bytes.size()) bytes.clear();
    return bytes;
}

EventRecorder::EventRecorder() {
    Bind(MODEL_UPDATED, [this](wxCommandEvent& e) { updates.push_back(e.GetInt()); });
    Bind(MODEL_MSG, [this](wxCommandEvent& e) { messages.push_back(e.GetString()); });
}

void TestCompany::SetUp() {
    char tmpl[] = "/tmp/evida-test-XXXXXX";
    ASSERT_NE(mkdtemp(tmpl), nullptr);
    m_home = wxString::FromUTF8(tmpl);
    wxSetEnv("HOME", m_home);
    lxSettings::reset();
    m_model = std::make_unique<DbModel>(&m_events);
    m_model->initModel();
}

void TestCompany::TearDown() {
    m_model.reset();
    lxSettings::reset();
    wxFileName::Rmdir(m_home, wxPATH_RMDIR_RECURSIVE);
}

wxString TestCompany::createCompany(const wxString& name) {
    const wxString path = lxutils::dataDir() + "/" + name;
    EXPECT_TRUE(companysetup::createPlaceholderCompany(*m_model, path));
    return path;
}

wxString TestCompany::writeDb(const wxString& name, const wxString& sql) {
    const wxString path = lxutils::dataDir() + "/" + name;
    execOnFile(path, sql);
    return path;
}

void TestCompany::execOnFile(const wxString& path, const wxString& sql) {
    // The whole script in one transaction through SQLite itself; texts inside may hold ";".
    sqlite3* db = nullptr;
    ASSERT_EQ(sqlite3_open(path.utf8_str(), &db), SQLITE_OK);
    char* error = nullptr;
    const wxString script = "BEGIN;\n" + sql + ";\nCOMMIT;";
    const int rc = sqlite3_exec(db, script.utf8_str(), nullptr, nullptr, &error);
    EXPECT_EQ(rc, SQLITE_OK) << (error ? error : "") << "\n" << script.utf8_str();
    sqlite3_free(error);
    sqlite3_close(db);
}

int TestCompany::scalar(const wxString& sql) { return m_model->db().ExecuteScalar(sql); }

wxString TestCompany::text(const wxString& sql) {
    wxSQLite3ResultSet rs = m_model->db().ExecuteQuery(sql);
    return rs.NextRow() && !rs.IsNull(0) ? rs.GetAsString(0) : wxString();
}

namespace {

struct Addition {
    int version;  // versionToInt of the first version that had it
    const char* table;
    const char* column;  // null: the whole table
};

// What each program version added to the schema.
const Addition ADDITIONS[] = {
    {1300, "smtp", nullptr},        {1300, "odeslany", nullptr},   {1300, "priznani", nullptr},
    {1300, "dphdruh", nullptr},     {1300, "ulozene", nullptr},    {1300, "faktura", "dppd"},
    {1300, "faktura", "dphdruhid"}, {1300, "faktura", "kurz"},     {1300, "faktura", "pausal"},
    {1300, "zavpoh", "dppd"},       {1300, "zavpoh", "dphdruhid"}, {1300, "zavpoh", "kurz"},
    {1300, "zavpoh", "pausal"},     {1300, "firma", "pausal"},     {1300, "denik", "pausal"},
    {1400, "sklad", nullptr},       {1400, "zasoba", nullptr},     {1400, "inventura", nullptr},
    {1400, "ivpolozka", nullptr},   {1400, "pohybzasob", nullptr}, {1400, "fapolozka", "zasobaid"},
    {1400, "kurz", "jednotny"},     {1400, "mena", "od"},          {1400, "mena", "do"},
    {1401, "kontakt", "jmeno"},     {1401, "ridic", nullptr},      {1401, "phm", nullptr},
    {1401, "cenaphm", nullptr},     {1401, "druhvozidla", nullptr}, {1401, "nahradakm", nullptr},
    {1401, "vozidlo", nullptr},     {1401, "jizda", nullptr},      {1404, "fapolozka", "zaokrouhleni"},
    {1407, "bankovniustav", nullptr}, {1407, "banka", "iban"},     {1407, "banka", "bic"},
};

bool isLater(int v, const wxString& table, const wxString& column) {
    for (const Addition& a : ADDITIONS) {
        if (a.version > v && table == a.table && (a.column ? column == a.column : column.empty())) return true;
    }
    return false;
}

} // namespace

wxString oldSchemaSql(const wxString& version) {
    wxString normalized = version;
    if (normalized.Freq('.') == 1) normalized += ".0";
    const int v = lxutils::versionToInt(normalized);
    wxString sql;
    int count = 0;
    const schema::TableDef* tables = schema::creationOrder(&count);
    for (int i = 0; i < count; ++i) {
        const wxString name = tables[i].name;
        if (isLater(v, name, wxString())) continue;
        const wxString create = wxString::FromUTF8(tables[i].statements[0]);
        wxArrayString kept, removed;
        for (const wxString& def : wxSplit(create.AfterFirst('(').BeforeLast(')'), ',')) {
            wxString d = def;
            d.Trim(false);
            (isLater(v, name, d.BeforeFirst(' ')) ? removed : kept).Add(d);
        }
        sql += wxString::Format("CREATE TABLE %s (%s);\n", name, wxJoin(kept, ','));
        if (name == "version") {
            sql += "INSERT INTO version(verze) VALUES('" + version + "');\n";
            continue;
        }
        for (int s = 1; tables[i].statements[s]; ++s) {
            const wxString insert = wxString::FromUTF8(tables[i].statements[s]);
            const wxArrayString cols = wxSplit(insert.AfterFirst('(').BeforeFirst(')'), ',');
            bool usesRemoved = false;
            for (const wxString& r : removed) usesRemoved = usesRemoved || cols.Index(r.BeforeFirst(' ')) != wxNOT_FOUND;
            // Series for stock came with stock.
            if (name == "rada" && v < 1400 && (insert.Contains("'ZB'") || insert.Contains("'PR'") ||
                                               insert.Contains("'VY'") || insert.Contains("'IV'")))
                usesRemoved = true;
            // The seed lists hold statements that collide on purpose; an old file simply lacks those rows.
            wxString tolerant = insert;
            tolerant.Replace("INSERT INTO", "INSERT OR IGNORE INTO", false);
            if (!usesRemoved) sql += tolerant + ";\n";
        }
    }
    return sql;
}

void TestCompany::createPlatce2024(const char* pracovniDatum) {
    createCompany();
    ASSERT_TRUE(m_model->setCurrentRok(2024));
    Firma firma = m_model->firma();
    firma.setPlatce(true);
    ASSERT_TRUE(m_model->setFirma(firma));
    lxSettings::instance()->setDatum(isoDatum(pracovniDatum));
}
