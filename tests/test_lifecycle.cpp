// Opening, creating, locking and closing company files; the table helpers; evida-cli.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wx/ffile.h>
#include <wx/filename.h>

#include <cstdio>
#include <cstring>
#include <string>

#include <unistd.h>

#include "lxsettings.h"
#include "lxutils.h"
#include "testcompany.h"

using ::testing::HasSubstr;
using ::testing::Not;

namespace {

void writeFile(const wxString& path, const char* content) {
    wxFFile f(path, "wb");
    f.Write(content, std::strlen(content));
}

} // namespace

class Lifecycle : public TestCompany {};

TEST_F(Lifecycle, FilesThatAreNotDatabasesAreRefusedAndLeftAlone) {
    const wxString path = lxutils::dataDir() + "/garbage.db";
    writeFile(path, "This is not a database, just some text that fills the header page of a file.\n"
                    "SQLite reads the first hundred bytes and finds no magic string here at all.\n");
    const wxULongLong size = wxFileName::GetSize(path);
    EXPECT_FALSE(m_model->openDatabase(path));
    EXPECT_FALSE(m_model->isOpen());
    EXPECT_EQ(wxFileName::GetSize(path), size);
}

TEST_F(Lifecycle, AnEmptyFileIsNotACompanyAndStaysEmpty) {
    const wxString path = lxutils::dataDir() + "/empty.db";
    writeFile(path, "");
    EXPECT_FALSE(m_model->openDatabase(path));
    EXPECT_EQ(wxFileName::GetSize(path), 0u);
    EXPECT_TRUE(m_events.messages.empty());
}

TEST_F(Lifecycle, OpenRunsTheChecksAndEnforcesForeignKeys) {
    const wxString path = createCompany();
    m_model->closeDatabase();
    ASSERT_TRUE(m_model->openDatabase(path));
    m_model->fillData();
    EXPECT_EQ(m_model->firma().nazev(), "ABC");
    EXPECT_TRUE(m_events.messages.empty());
    EXPECT_THROW(m_model->db().ExecuteUpdate("INSERT INTO pokladna(zkratka,menaid) VALUES('X',999)"),
                 wxSQLite3Exception);
}

TEST_F(Lifecycle, OpenUsesTheSettingsFileName) {
    lxSettings::instance()->setDbname("evida1.db");
    ASSERT_TRUE(m_model->newDatabase());
    EXPECT_TRUE(wxFileName::FileExists(lxutils::dataDir() + "/evida1.db"));
    m_model->closeDatabase();
    EXPECT_TRUE(m_model->openDatabase());
}

TEST_F(Lifecycle, ASecondProcessIsRefusedWhileTheCompanyIsOpen) {
    const wxString path = createCompany();
    const CliResult locked = runCli("check " + path);
    EXPECT_NE(locked.status, 0);
    EXPECT_THAT(locked.output, HasSubstr("Nepodařilo se otevřít databázi"));

    m_model->closeDatabase();
    const CliResult released = runCli("check " + path);
    EXPECT_EQ(released.status, 0) << released.output;
}

TEST_F(Lifecycle, TableHelpers) {
    createCompany();
    EXPECT_TRUE(m_model->hasTableColumn("denik", "vypis"));
    EXPECT_FALSE(m_model->hasTableColumn("denik", "nic"));
    EXPECT_EQ(m_model->tableColumns("obdobi"), wxSplit("rok,current", ','));
    const wxArrayString keys = m_model->tableKeys("denik");
    EXPECT_EQ(keys.size(), 6u);
    for (const char* key : {"menaid|mena|id|CASCADE|NO ACTION", "predkontaceid|predkontace|id|CASCADE|NO ACTION",
                            "pokladnaid|pokladna|id|CASCADE|NO ACTION", "bankaid|banka|id|CASCADE|NO ACTION",
                            "protistranaid|kontakt|id|CASCADE|SET DEFAULT", "obdobirok|obdobi|rok|CASCADE|CASCADE"})
        EXPECT_NE(keys.Index(key), wxNOT_FOUND) << key;
    EXPECT_TRUE(m_model->hasTableId("rada", "id", "ZFP"));
    EXPECT_FALSE(m_model->hasTableId("rada", "id", "XX"));
    EXPECT_TRUE(m_model->hasTableId("mena", "id", 39));
    EXPECT_FALSE(m_model->hasTableId("mena", "id", 40));
    EXPECT_EQ(m_model->getLastId("mena"), 40);
    EXPECT_EQ(m_model->getLastId("denik"), 1);
    m_model->db().ExecuteUpdate("CREATE TABLE denik_copy AS SELECT * FROM denik");
    EXPECT_TRUE(m_model->hasSameColumns("denik", "denik_copy"));
    EXPECT_FALSE(m_model->hasSameColumns("denik", "banka"));
    m_model->clearTable("ridic");
    EXPECT_EQ(m_model->tableRows("ridic"), 0);
    EXPECT_THAT(DbModel::getVersion().ToStdString(), ::testing::StartsWith("SQLite3 3."));
    EXPECT_FALSE(m_model->tryExecuteUpdate("UPDATE nic SET x=1"));
}

TEST_F(Lifecycle, PlaceholderCompanySkipsTakenKeys) {
    lxSettings::instance()->addDbnamePair("evida1.db", "ABC_0");
    lxSettings::instance()->addDbnamePair("evida2.db", "ABC_1");
    createCompany();
    EXPECT_EQ(m_model->firma().nazev(), "ABC");
    EXPECT_EQ(m_model->firma().ic(), "2");
}

TEST_F(Lifecycle, SetFirmaInsertsOnceThenUpdatesKeepingTheAddress) {
    createCompany();
    Firma f = m_model->firma();
    f.setNazev(u8("Truhlářství O'Brien"));
    f.setAdresaid(0);
    f.setPlatce(true);
    ASSERT_TRUE(m_model->setFirma(f));
    EXPECT_EQ(m_model->tableRows("firma"), 1);
    EXPECT_EQ(m_model->firma().nazev(), u8("Truhlářství O'Brien"));
    EXPECT_EQ(m_model->firma().adresaid(), 1);
    EXPECT_TRUE(m_model->isFirmaPlatce());
    EXPECT_THAT(m_events.updates, ::testing::Contains(static_cast<int>(NAV_ALL)));
}

TEST_F(Lifecycle, UpdateDbFirmaConvertsOldSettingsEntries) {
    createCompany("evida1.db");
    m_model->closeDatabase();
    lxSettings::instance()->addDbnamePair("evida1.db", "ABC");
    m_model->updateDbFirma();
    EXPECT_EQ(lxSettings::instance()->dbmap().at("evida1.db"), "ABC_0");
}

class Cli : public TestCompany {};

TEST_F(Cli, CreateCheckAndInfo) {
    const wxString path = m_home + "/cli.db";
    const CliResult created = runCli("create " + path);
    EXPECT_EQ(created.status, 0) << created.output;
    EXPECT_THAT(created.output, HasSubstr("ABC, IČ: 0"));
    EXPECT_NE(runCli("create " + path).status, 0);  // never overwrites a company

    const CliResult checked = runCli("check " + path);
    EXPECT_EQ(checked.status, 0);
    EXPECT_EQ(checked.output, "Databáze je v pořádku.\n");

    const CliResult info = runCli("info " + path);
    EXPECT_THAT(info.output, HasSubstr("verze: 1.40.14"));
    EXPECT_THAT(info.output, ::testing::ContainsRegex("dphdruh +119"));

    // A journal that lost a column is repaired and the report printed.
    execOnFile(path,
               "CREATE TABLE d AS SELECT id,datum,cislo,popis,castka,castkacizi,kurz,reference,pausal,menaid,"
               "predkontaceid,pokladnaid,bankaid,protistranaid,obdobirok FROM denik;"
               "DROP TABLE denik; ALTER TABLE d RENAME TO denik");
    const CliResult repaired = runCli("check " + path);
    EXPECT_EQ(repaired.status, 0);
    EXPECT_THAT(repaired.output, HasSubstr("Struktura databáze byla poškozená."));
    EXPECT_THAT(repaired.output, HasSubstr("Peněžní deník"));
    EXPECT_THAT(repaired.output, HasSubstr("cli.pred-upravou-"));
    EXPECT_THAT(repaired.output, Not(HasSubstr("v pořádku")));

    const CliResult missing = runCli("check " + m_home + "/nothing.db");
    EXPECT_NE(missing.status, 0);
    EXPECT_THAT(missing.output, HasSubstr("neexistuje"));
    EXPECT_FALSE(wxFileName::Exists(m_home + "/nothing.db", wxFILE_EXISTS_ANY));
}

TEST_F(Cli, UsageListsEveryCommandAndFails) {
    for (const char* args : {"", "check", "nic soubor.db", "rates soubor.db"}) {
        const CliResult usage = runCli(args);
        EXPECT_EQ(usage.status, 2) << args;
        for (const char* command : {"create", "check", "info", "rates", "import", "stav", "neuhrazene", "--verbose"})
            EXPECT_THAT(usage.output, HasSubstr(command)) << args;
    }
}

TEST_F(Cli, TechnicalDetailsOnlyWithVerbose) {
    const wxString path = createCompany();
    // Locked by this process: the user reads one Czech line, no SQLite English.
    const CliResult locked = runCli("check " + path);
    EXPECT_EQ(locked.status, 1);
    EXPECT_EQ(locked.output, "Nepodařilo se otevřít databázi\n");
    const CliResult verbose = runCli("check " + path + " --verbose");
    EXPECT_EQ(verbose.status, 1);
    EXPECT_THAT(verbose.output, HasSubstr("database is locked"));

    // Not a database; a home whose data directory cannot be made.
    const wxString text = m_home + "/text.db";
    writeFile(text, "Toto není databáze, jen text, který zaplní první stránku souboru a nic víc.\n"
                    "SQLite přečte prvních sto bajtů a žádný podpis databáze v nich nenajde.\n");
    const CliResult notDb = runCli("--verbose info " + text);
    EXPECT_THAT(notDb.output, HasSubstr("file is not a database"));
    for (const wxString& args : {"info " + text, "HOME=/proc/nic EVIDA_CLI stav " + text}) {
        const CliResult quiet = args.StartsWith("HOME") ? runShell(args) : runCli(args);
        EXPECT_EQ(quiet.status, 1) << args;
        EXPECT_THAT(quiet.output, Not(HasSubstr("Warning"))) << args;
        EXPECT_THAT(quiet.output, Not(HasSubstr("SQL"))) << args;
        EXPECT_THAT(quiet.output, Not(HasSubstr("couldn't"))) << args;
        EXPECT_THAT(quiet.output, Not(HasSubstr("Failed"))) << args;
    }
}

TEST_F(Cli, CheckReportsAFileWithoutItsCompany) {
    const wxString path = m_home + "/bez-firmy.db";
    ASSERT_EQ(runCli("create " + path).status, 0);
    execOnFile(path, "DELETE FROM firma");
    const CliResult check = runCli("check " + path);
    EXPECT_EQ(check.status, 1);
    EXPECT_THAT(check.output, HasSubstr("chybí údaje o firmě"));
}

class Create : public TestCompany {};

TEST_F(Create, AFullDiskLeavesNoStubAndSaysWhy) {
    const wxString path = m_home + "/plny.db";
    // XFSZ ignored: the write fails with an error instead of killing the program.
    const CliResult full = runShell("trap '' XFSZ; ulimit -f 100; EVIDA_CLI create " + path);
    EXPECT_EQ(full.status, 1) << full.output;
    EXPECT_THAT(full.output, HasSubstr("Databázi se nepodařilo vytvořit: zápis na disk selhal"));
    EXPECT_THAT(full.output, Not(HasSubstr("rollback")));
    EXPECT_FALSE(wxFileName::Exists(path, wxFILE_EXISTS_ANY));
    EXPECT_FALSE(wxFileName::Exists(path + "-journal", wxFILE_EXISTS_ANY));
    // Without the limit the same command works.
    EXPECT_EQ(runCli("create " + path).status, 0);
}

TEST_F(Create, ASymbolicLinkIsNotFollowed) {
    const wxString target = m_home + "/jinde.db", link = m_home + "/odkaz.db";
    ASSERT_EQ(symlink(target.utf8_str(), link.utf8_str()), 0);
    const CliResult created = runCli("create " + link);
    EXPECT_EQ(created.status, 1);
    EXPECT_THAT(created.output, HasSubstr("symbolický odkaz"));
    EXPECT_FALSE(wxFileName::Exists(target, wxFILE_EXISTS_ANY));
    EXPECT_FALSE(m_model->newDatabase(link));
    EXPECT_FALSE(wxFileName::Exists(target, wxFILE_EXISTS_ANY));
}

TEST_F(Create, AnExistingCompanyIsNeverCreatedOver) {
    const wxString path = createCompany();
    m_model->closeDatabase();
    const std::string before = fileBytes(path);
    EXPECT_FALSE(m_model->newDatabase(path));
    EXPECT_THAT(m_model->openError().ToStdString(wxConvUTF8), HasSubstr("už existuje"));
    EXPECT_TRUE(fileBytes(path) == before) << "the file changed";
}
