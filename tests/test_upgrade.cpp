// Files written by older program versions are brought to today's shape when opened, after
// a copy of the file was made; a version row that cannot be read never starts the cascade.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wx/dir.h>
#include <wx/filename.h>

#include "lxutils.h"
#include "schema.h"
#include "testcompany.h"

using ::testing::HasSubstr;

class Upgrade : public TestCompany {
   protected:
    // An old company file with a little of everything a user would have.
    wxString oldCompany(const wxString& version, const wxString& extra = wxString()) {
        return writeDb("old.db", oldSchemaSql(version) +
                                     u8("INSERT INTO adresa(id,ulice) VALUES(1,'Dlouhá');"
                                        "INSERT INTO firma(nazev,ic,platce,adresaid) VALUES('Stará firma','12345678',1,1);"
                                        "INSERT INTO obdobi(rok,current) VALUES(2012,1);"
                                        "INSERT INTO kontakt(id,nazev,ic,adresaid) VALUES(3,'Novák','87654321',0);"
                                        "INSERT INTO banka(id,zkratka,cislouctu,kodbanky,menaid) "
                                        "VALUES(2,'KB','19-2000145399','0800',1);") +
                                     extra);
    }

    // The copy this open made: it exists, is a whole database and still holds the old version.
    void expectCopyOf(const wxString& path, const wxString& oldVersion) {
        const wxString copy = m_model->safetyCopy();
        ASSERT_FALSE(copy.empty());
        EXPECT_EQ(wxFileName(copy).GetPath(), wxFileName(path).GetPath());
        EXPECT_THAT(std::string(copy.utf8_str()), ::testing::MatchesRegex(".*/old\\.pred-upravou-[0-9]{8}-[0-9]{6}\\.db"));
        wxSQLite3Database db;
        db.Open(copy, wxEmptyString, WXSQLITE_OPEN_READONLY);
        EXPECT_EQ(db.ExecuteQuery("PRAGMA integrity_check").GetAsString(0), "ok");
        EXPECT_EQ(db.ExecuteQuery("SELECT verze FROM version").GetAsString(0), oldVersion);
        ASSERT_EQ(m_events.messages.size(), 1u);
        EXPECT_THAT(m_events.messages[0].ToStdString(wxConvUTF8), HasSubstr(std::string(copy.utf8_str())));
    }
};

TEST_F(Upgrade, From120ThroughEveryStepTo14014) {
    const wxString path = oldCompany(
        "1.20",
        u8("INSERT INTO denik(id,datum,castka,castkacizi,menaid,predkontaceid,pokladnaid,obdobirok,protistranaid) "
           "VALUES(1,'2012-02-01',500,0,1,1,1,2012,3);"
           "INSERT INTO denik(id,datum,castka,castkacizi,kurz,menaid,predkontaceid,bankaid,obdobirok,protistranaid) "
           "VALUES(2,'2012-02-02',300,12,25,2,1,2,2012,0);"
           "INSERT INTO faktura(id,protistranaid,celkem,cislo,typid,uhradaid,menaid,predkontaceid,obdobirok,vydana,"
           "duzp) VALUES(1,3,1210,'FV0001',1,2,1,1,2012,1,'2012-03-01');"
           "INSERT INTO fapolozka(id,popis,pocet,cenamj,celkem,fakturaid) VALUES(1,'Práce',1,1210,1210,1);"
           "UPDATE rada SET cislo=7 WHERE id='FV'"));
    ASSERT_TRUE(m_model->openDatabase(path));

    EXPECT_EQ(text("SELECT verze FROM version"), "1.40.14");
    EXPECT_EQ(scalar("SELECT count(*) FROM sqlite_master WHERE type='table' AND name NOT LIKE 'sqlite_%'"), 42);
    // 1.30: the deduction date starts as the taxable-supply date; flat-rate flags are off.
    EXPECT_EQ(text("SELECT dppd FROM faktura WHERE id=1"), "2012-03-01");
    EXPECT_EQ(scalar("SELECT pausal FROM faktura WHERE id=1"), 0);
    EXPECT_EQ(scalar("SELECT count(*) FROM denik WHERE pausal=0"), 2);
    EXPECT_EQ(scalar("SELECT pausal FROM firma"), 0);
    EXPECT_EQ(m_model->tableRows("smtp"), 1);
    // 1.40.0: home-currency entries carry their amount as foreign amount too; stock series added.
    EXPECT_EQ(text("SELECT castkacizi FROM denik WHERE id=1"), "500.0");
    EXPECT_EQ(text("SELECT castkacizi FROM denik WHERE id=2"), "12.0");
    EXPECT_EQ(m_model->tableRows("rada"), 15);
    EXPECT_EQ(scalar("SELECT cislo FROM rada WHERE id='FV'"), 7);
    EXPECT_EQ(scalar("SELECT count(*) FROM rada WHERE id IN ('ZB','PR','VY','IV') AND znaku=6 AND cislo=1"), 4);
    EXPECT_EQ(m_model->tableRows("mena"), 39);
    EXPECT_EQ(m_model->tableRows("dphdruh"), 119);
    EXPECT_EQ(m_model->tableRows("kurz"), 95);
    // 1.40.4: rounding flag of the items.
    EXPECT_EQ(scalar("SELECT count(*) FROM fapolozka WHERE zaokrouhleni=0"), 1);
    // 1.40.1: contacts got a separate name.
    EXPECT_EQ(text("SELECT jmeno FROM kontakt WHERE id=3"), u8("Novák"));
    EXPECT_EQ(m_model->tableRows("druhvozidla"), 4);
    // 1.40.7: IBAN and BIC of the accounts.
    EXPECT_EQ(text("SELECT iban FROM banka WHERE id=2"), "CZ6508000000192000145399");
    EXPECT_EQ(text("SELECT bic FROM banka WHERE id=2"), "GIBACZPX");
    EXPECT_EQ(m_model->tableRows("bankovniustav"), 68);
    EXPECT_EQ(m_model->tableRows("cenaphm"), 48);
    // The user's rows are all there and the shape is sound: nothing to report.
    EXPECT_EQ(m_model->tableRows("denik"), 2);
    EXPECT_EQ(m_model->tableRows("faktura"), 1);
    EXPECT_EQ(m_model->tableRows("fapolozka"), 1);
    EXPECT_EQ(text("SELECT nazev FROM firma"), u8("Stará firma"));
    EXPECT_EQ(scalar("SELECT count(*) FROM pragma_foreign_key_check"), 0);
    // The one message tells of the upgrade and names the copy; nothing was damaged.
    expectCopyOf(path, "1.20");
    EXPECT_THAT(m_events.messages[0].ToStdString(wxConvUTF8), HasSubstr("z verze 1.20 na verzi 1.40.14"));
    EXPECT_THAT(m_events.messages[0].ToStdString(wxConvUTF8), ::testing::Not(HasSubstr("poškozená")));
}

TEST_F(Upgrade, From1406GetsBankRegisterIbanAndNewFuelPrices) {
    const wxString path = oldCompany("1.40.6", "DELETE FROM cenaphm; INSERT INTO cenaphm(id,phmid,cena) VALUES(1,1,99)");
    ASSERT_TRUE(m_model->openDatabase(path));
    EXPECT_EQ(text("SELECT verze FROM version"), "1.40.14");
    EXPECT_EQ(m_model->tableRows("bankovniustav"), 68);
    EXPECT_TRUE(m_model->hasTableColumn("banka", "iban"));
    EXPECT_TRUE(m_model->hasTableColumn("banka", "bic"));
    EXPECT_EQ(text("SELECT iban FROM banka WHERE id=2"), "CZ6508000000192000145399");
    EXPECT_EQ(text("SELECT iban FROM banka WHERE id=1"), "");  // account "0" has no IBAN
    EXPECT_EQ(m_model->tableRows("cenaphm"), 48);
    EXPECT_EQ(scalar("SELECT count(*) FROM cenaphm WHERE cena=99"), 0);
    expectCopyOf(path, "1.40.6");
}

TEST_F(Upgrade, CurrentVersionRunsNoStep) {
    // Traces that a step would wipe: a fuel price of the user's and a classification offered differently.
    const wxString path = oldCompany("1.40.14",
                                     "INSERT INTO cenaphm(id,phmid,cena) VALUES(100,1,99);"
                                     "UPDATE dphdruh SET nabizet=1-nabizet WHERE id=2");
    ASSERT_TRUE(m_model->openDatabase(path));
    EXPECT_EQ(scalar("SELECT count(*) FROM cenaphm WHERE cena=99"), 1);
    EXPECT_EQ(scalar("SELECT nabizet FROM dphdruh WHERE id=2"), 1);
    EXPECT_EQ(text("SELECT verze FROM version"), "1.40.14");
    EXPECT_EQ(m_model->safetyCopy(), "");
    EXPECT_TRUE(m_events.messages.empty());
}

TEST_F(Upgrade, MissingVersionTableCountsAsCurrent) {
    const wxString path =
        oldCompany("1.40.14", "DROP TABLE version; INSERT INTO cenaphm(id,phmid,cena) VALUES(100,1,99)");
    ASSERT_TRUE(m_model->openDatabase(path));
    EXPECT_EQ(text("SELECT verze FROM version"), "1.40.14");
    EXPECT_EQ(scalar("SELECT count(*) FROM cenaphm WHERE cena=99"), 1);
}

TEST_F(Upgrade, EmptyVersionTableIsRewrittenWithoutRunningASingleStep) {
    const wxString path = oldCompany("1.40.14",
                                     "DELETE FROM version; UPDATE firma SET pausal=1;"
                                     "UPDATE kontakt SET jmeno='Jan' WHERE id=3");
    ASSERT_TRUE(m_model->openDatabase(path));
    EXPECT_EQ(m_model->tableRows("version"), 1);
    EXPECT_EQ(text("SELECT verze FROM version"), "1.40.14");
    EXPECT_EQ(m_model->tableRows("firma"), 1);
    EXPECT_EQ(scalar("SELECT pausal FROM firma"), 1);
    EXPECT_EQ(text("SELECT jmeno FROM kontakt WHERE id=3"), "Jan");
}

// A current file with the traces every upgrade step would overwrite: the flat-rate flag of
// the company, an entry's flat-rate percentage, a contact's own name, an account's IBAN, a
// foreign amount different from the home one.
const char* const USER_TRACES =
    "UPDATE firma SET pausal=1;"
    "UPDATE kontakt SET jmeno='Jan' WHERE id=3;"
    "UPDATE banka SET iban='CZ0000000000000000000042' WHERE id=2;"
    "INSERT INTO denik(id,datum,castka,castkacizi,kurz,pausal,menaid,predkontaceid,bankaid,obdobirok,"
    "protistranaid) VALUES(1,'2012-02-02',250,0,25,60,1,1,2,2012,0)";

struct VersionRowCase {
    const char* name;
    const char* verze;  // SQL value
    const char* message;
};
class VersionRow : public Upgrade, public ::testing::WithParamInterface<VersionRowCase> {};

TEST_P(VersionRow, ThatCannotBeReadRefusesTheFileAndChangesNothing) {
    const VersionRowCase c = GetParam();
    const wxString path =
        oldCompany("1.40.14", wxString(USER_TRACES) + ";UPDATE version SET verze=" + wxString::FromUTF8(c.verze));
    const std::string before = fileBytes(path);

    EXPECT_FALSE(m_model->openDatabase(path));
    EXPECT_FALSE(m_model->isOpen());
    EXPECT_THAT(m_model->openError().ToStdString(wxConvUTF8), HasSubstr(c.message));
    EXPECT_EQ(m_model->safetyCopy(), "");
    EXPECT_TRUE(fileBytes(path) == before) << "the file changed";

    const CliResult check = runCli("check " + path);
    EXPECT_EQ(check.status, 1);
    EXPECT_THAT(check.output, HasSubstr(c.message));
    EXPECT_TRUE(fileBytes(path) == before) << "the file changed";
    // Nothing was copied either: nothing was about to change.
    wxArrayString files;
    wxDir::GetAllFiles(wxFileName(path).GetPath(), &files, "*.pred-upravou-*");
    EXPECT_TRUE(files.empty());
}
INSTANTIATE_TEST_SUITE_P(
    Refused, VersionRow,
    ::testing::Values(VersionRowCase{"empty_text", "''", "nečitelnou verzi"},
                      VersionRowCase{"null", "NULL", "nečitelnou verzi"},
                      VersionRowCase{"trailing_space", "'1.40.14 '", "nečitelnou verzi"},
                      VersionRowCase{"leading_space", "' 1.40.14'", "nečitelnou verzi"},
                      VersionRowCase{"signed", "'+1.40.14'", "nečitelnou verzi"},
                      VersionRowCase{"words", "'verze 1.40'", "nečitelnou verzi"},
                      VersionRowCase{"zero", "'0.0.0'", "nečitelnou verzi"},
                      VersionRowCase{"four_parts", "'1.40.14.1'", "nečitelnou verzi"},
                      VersionRowCase{"newer_program", "'1.41.0'", "novější verze programu (1.41.0)"},
                      VersionRowCase{"newer_patch", "'1.40.15'", "novější verze programu"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(Upgrade, TwoPartVersionsStillCountAsTheirThreePartForm) {
    EXPECT_EQ(lxutils::versionToInt("1.20.0"), 1200);
    for (const char* text : {"1.20", " 1.40.14", "1.40.14 ", "+1.40.14", "-1.40.14", "1..14", "1.40.x", "99999.0.0"})
        EXPECT_EQ(lxutils::versionToInt(text), 0) << text;
    // "1.30" is a real old version: it upgrades (after the copy), keeping the user's rows.
    const wxString path = oldCompany("1.30", "INSERT INTO denik(id,datum,castka,castkacizi,menaid,predkontaceid,"
                                             "pokladnaid,obdobirok,protistranaid,pausal) "
                                             "VALUES(1,'2012-02-01',500,0,1,1,1,2012,3,0)");
    ASSERT_TRUE(m_model->openDatabase(path));
    EXPECT_EQ(text("SELECT verze FROM version"), "1.40.14");
    EXPECT_EQ(text("SELECT castkacizi FROM denik WHERE id=1"), "500.0");
    expectCopyOf(path, "1.30");
}

TEST_F(Upgrade, AColumnThatIsAlreadyThereKeepsItsValues) {
    // Version rows say 1.40.0 and 1.40.6, but the tables already have the later columns
    // (a file upgraded by hand, or one whose version row was restored from an older copy).
    const wxString path = oldCompany(
        "1.40.0",
        "ALTER TABLE kontakt ADD COLUMN jmeno TEXT; UPDATE kontakt SET jmeno='Jan' WHERE id=3;"
        "ALTER TABLE fapolozka ADD COLUMN zaokrouhleni INTEGER;"
        "INSERT INTO fapolozka(id,popis,zaokrouhleni) VALUES(1,'Prace',1);"
        "ALTER TABLE banka ADD COLUMN iban TEXT; UPDATE banka SET iban='CZ0000000000000000000042' WHERE id=2");
    ASSERT_TRUE(m_model->openDatabase(path));
    EXPECT_EQ(text("SELECT verze FROM version"), "1.40.14");
    EXPECT_EQ(text("SELECT jmeno FROM kontakt WHERE id=3"), "Jan");
    EXPECT_EQ(scalar("SELECT zaokrouhleni FROM fapolozka WHERE id=1"), 1);
    EXPECT_EQ(text("SELECT iban FROM banka WHERE id=2"), "CZ0000000000000000000042");
    // The column that was really added is filled.
    EXPECT_EQ(text("SELECT bic FROM banka WHERE id=2"), "GIBACZPX");
}
