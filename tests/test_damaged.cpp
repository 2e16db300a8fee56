// A damaged, empty or missing company file is refused as it is: never "repaired" from wrong
// rows, never used for balances, never created or changed by an open.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wx/ffile.h>
#include <wx/filename.h>


#include <random>
#include <string>

#include "lxsettings.h"
#include "lxutils.h"
#include "testcompany.h"

#include <sqlite3.h>
#include <unistd.h>

using ::testing::HasSubstr;
using ::testing::Not;

namespace {

std::string utf8(const wxString& text) { return std::string(text.utf8_str()); }

// The number of a page holding journal rows, and the page size, read through SQLite's dbstat.
void journalPage(const wxString& path, int* page, int* pageSize) {
    sqlite3* db = nullptr;
    ASSERT_EQ(sqlite3_open_v2(path.utf8_str(), &db, SQLITE_OPEN_READONLY, nullptr), SQLITE_OK);
    sqlite3_stmt* st = nullptr;
    ASSERT_EQ(sqlite3_prepare_v2(db, "SELECT pageno,pgsize FROM dbstat WHERE name='denik' AND pagetype='leaf' "
                                     "ORDER BY pageno LIMIT 1 OFFSET 20",
                                 -1, &st, nullptr),
              SQLITE_OK);
    ASSERT_EQ(sqlite3_step(st), SQLITE_ROW);
    *page = sqlite3_column_int(st, 0);
    *pageSize = sqlite3_column_int(st, 1);
    sqlite3_finalize(st);
    sqlite3_close(db);
}

}  // namespace

class DamagedFile : public TestCompany {
   protected:
    void SetUp() override {
        TestCompany::SetUp();
        m_path = createCompany();
        const int rok = m_model->currentRok();
        // 3000 entries of 100 CZK in the first register: a file of many pages.
        wxSQLite3Database& db = m_model->db();
        wxSQLite3Transaction tx(&db);
        for (int i = 1; i <= 3000; ++i)
            db.ExecuteUpdate(wxString::Format(
                u8("INSERT INTO denik(datum,popis,castka,castkacizi,pausal,menaid,predkontaceid,pokladnaid,vypis,"
                   "protistranaid,obdobirok) VALUES('%d-01-02','Tržba %d',100,100,0,1,1,1,-1,0,%d)"),
                rok, i, rok));
        tx.Commit();
        m_model->closeDatabase();
    }

   public:
    void cutAt99Percent() {
        const wxULongLong size = wxFileName::GetSize(m_path);
        ASSERT_EQ(truncate(m_path.utf8_str(), static_cast<off_t>(size.GetValue() * 99 / 100)), 0);
    }

    // 64 random bytes written into the middle of a page of journal rows.
    void scribbleOverJournalPage() {
        int page = 0, pageSize = 0;
        journalPage(m_path, &page, &pageSize);
        std::mt19937 random(20261124);
        char bytes[64];
        for (char& b : bytes) b = static_cast<char>(random() & 0xff);
        wxFFile f(m_path, "r+b");
        ASSERT_TRUE(f.Seek(static_cast<wxFileOffset>(page - 1) * pageSize + pageSize / 4));
        ASSERT_EQ(f.Write(bytes, sizeof bytes), sizeof bytes);
    }

    // Two indexes that swapped their pages: every page is well formed, so only the full
    // check (which compares indexes with their tables) finds it.
    void swapIndexPages() {
        execOnFile(m_path,
                   "CREATE INDEX a ON denik(castka); CREATE INDEX b ON denik(popis); PRAGMA writable_schema=ON; "
                   "UPDATE sqlite_master SET rootpage=CASE name WHEN 'a' THEN (SELECT rootpage FROM sqlite_master "
                   "WHERE name='b') ELSE (SELECT rootpage FROM sqlite_master WHERE name='a') END "
                   "WHERE name IN ('a','b')");
    }

   protected:
    wxString m_path;
};

struct DamageCase {
    const char* name;
    void (DamagedFile::*damage)();
};
class Damages : public DamagedFile, public ::testing::WithParamInterface<DamageCase> {};

TEST_P(Damages, AreRefusedWithTheBackupsNamedAndTheFileUntouched) {
    (this->*GetParam().damage)();
    const std::string before = fileBytes(m_path);

    EXPECT_FALSE(m_model->openDatabase(m_path));
    EXPECT_FALSE(m_model->isOpen());
    EXPECT_THAT(utf8(m_model->openError()), HasSubstr("Soubor firmy je poškozený"));
    EXPECT_THAT(utf8(m_model->openError()), HasSubstr("Obnovte data ze zálohy"));

    const CliResult check = runCli("check " + m_path);
    EXPECT_EQ(check.status, 1);
    EXPECT_THAT(check.output, HasSubstr("Soubor firmy je poškozený"));
    EXPECT_THAT(check.output, Not(HasSubstr("opravena")));
    EXPECT_THAT(check.output, Not(HasSubstr("Warning")));

    // No balance is ever computed from a damaged file.
    const CliResult stav = runCli("stav " + m_path);
    EXPECT_EQ(stav.status, 1);
    EXPECT_THAT(stav.output, Not(HasSubstr("Pokladny")));

    EXPECT_TRUE(fileBytes(m_path) == before) << "the file changed";
    EXPECT_FALSE(wxFileName::FileExists(m_path + "-journal"));
}
INSTANTIATE_TEST_SUITE_P(DamagedFiles, Damages,
                         ::testing::Values(DamageCase{"cut_at_99_percent", &DamagedFile::cutAt99Percent},
                                           DamageCase{"random_bytes_in_a_journal_page",
                                                      &DamagedFile::scribbleOverJournalPage}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(DamagedFile, CommandLineCheckExaminesTheWholeFile) {
    swapIndexPages();
    const std::string before = fileBytes(m_path);
    const CliResult check = runCli("check " + m_path);
    EXPECT_EQ(check.status, 1) << check.output;
    EXPECT_THAT(check.output, HasSubstr("Soubor firmy je poškozený"));
    EXPECT_TRUE(fileBytes(m_path) == before) << "the file changed";
}

TEST_F(DamagedFile, TheMessageNamesTheNewestBackup) {
    const wxString backups = m_home + "/zalohy";
    for (const char* dir : {"evida-2026-10-01", "evida-2026-11-20", "evida-2025-12-31", "jine"})
        ASSERT_TRUE(wxFileName::Mkdir(backups + "/" + dir, 0777, wxPATH_MKDIR_FULL));
    lxSettings::instance()->setBackupPath(backups);
    lxSettings::instance()->save();
    cutAt99Percent();

    EXPECT_FALSE(m_model->openDatabase(m_path));
    const std::string expected = utf8(u8("Poslední zálohy najdete v ") + backups + "/evida-2026-11-20");
    EXPECT_THAT(utf8(m_model->openError()), HasSubstr(expected));
    // evida-cli reads the same settings.
    EXPECT_THAT(runCli("check " + m_path).output, HasSubstr(expected));
}

TEST_F(DamagedFile, EmptyAndMissingFilesAreNotCompaniesAndStaySo) {
    const wxString empty = m_home + "/empty.db", missing = m_home + "/missing.db";
    wxFFile(empty, "wb").Close();

    EXPECT_FALSE(m_model->openDatabase(empty));
    EXPECT_THAT(utf8(m_model->openError()), HasSubstr("je prázdný"));
    EXPECT_FALSE(m_model->openDatabase(missing));
    EXPECT_THAT(utf8(m_model->openError()), HasSubstr("neexistuje"));

    for (const char* command : {"check ", "info ", "stav "}) {
        const CliResult onEmpty = runCli(command + empty);
        EXPECT_EQ(onEmpty.status, 1) << command;
        EXPECT_THAT(onEmpty.output, HasSubstr("je prázdný"));
        EXPECT_NE(runCli(command + missing).status, 0) << command;
    }
    EXPECT_EQ(wxFileName::GetSize(empty), 0u);
    EXPECT_FALSE(wxFileName::Exists(missing, wxFILE_EXISTS_ANY));
}
