// evida.ini: defaults, healing rules and the company list.
#include <gtest/gtest.h>
#include <wx/ffile.h>

#include "lxsettings.h"
#include "lxutils.h"
#include "testcompany.h"

class SettingsFile : public TestCompany {
   protected:
    void writeIni(const char* content) {
        wxFFile f(lxutils::dataDir() + "/evida.ini", "w");
        f.Write(wxString::FromUTF8(content));
        f.Close();
        lxSettings::reset();
        lxSettings::instance()->load();
    }
    lxSettings* s() { return lxSettings::instance(); }
};

TEST_F(SettingsFile, DefaultsWithoutIniFile) {
    s()->load();
    EXPECT_EQ(s()->x(), 50);
    EXPECT_EQ(s()->w(), 888);
    EXPECT_EQ(s()->h(), 666);
    EXPECT_EQ(s()->splatnost(), 14);
    EXPECT_EQ(s()->fakturaSablona(), "internal");  // the built-in default "iternal" heals
    EXPECT_EQ(s()->zalohaSablona(), "internal");
    EXPECT_EQ(s()->auiperspective(), lxSettings::DEFAULT_PERSPECTIVE);
    EXPECT_EQ(s()->lastBackup(), wxDateTime::Today());
    EXPECT_TRUE(s()->dbname().empty());
}

TEST_F(SettingsFile, DuplicateCompaniesAndForeignStorageModelsAreDropped) {
    writeIni("[DB]\ndbcount=3\ndbmodel=3\n"
             "dbname0=evida1.db\ndbfirma0=Alfa_1\n"
             "dbname1=evida2.db\ndbfirma1=Alfa_1\n"
             "dbname2=evida3.db\ndbfirma2=Beta s.r.o._2\n"
             "[Template]\nfaktura=/nonexistent/sablona.xml\n");
    EXPECT_EQ(s()->dbmodel(), 0);
    EXPECT_EQ(s()->dbcount(), 3);  // the value read stays in memory
    ASSERT_EQ(s()->dbmap().size(), 2u);
    EXPECT_EQ(s()->dbnameByFirma("Alfa_1"), "evida1.db");
    EXPECT_EQ(s()->dbname(), "evida1.db");
    EXPECT_EQ(s()->fakturaSablona(), "internal");
    const wxArrayString firmy = s()->firmy();
    ASSERT_EQ(firmy.size(), 2u);
    EXPECT_EQ(firmy[1], wxString::FromUTF8("Beta s.r.o., IČ: 2"));

    s()->save();
    lxSettings::reset();
    s()->load();
    EXPECT_EQ(s()->dbmap().size(), 2u);
    EXPECT_TRUE(s()->dbnameByFirma("Alfa_1") == "evida1.db");
}

TEST_F(SettingsFile, CompanyListOperations) {
    s()->addDbnamePair("evida1.db", "A_1");
    s()->addDbnamePair("evida1.db", "B_2");  // a known file is not added twice
    s()->addDbnamePair("evida2.db", "B_2");
    EXPECT_EQ(s()->dbcount(), 2);
    s()->editDbnamePair("evida2.db", "C_3");
    EXPECT_TRUE(s()->firmaExists("C_3"));
    EXPECT_FALSE(s()->firmaExists("B_2"));
    s()->setDbname("evida2.db");
    s()->deleteFirma("C_3");
    s()->deleteFirma("A_1");
    EXPECT_EQ(s()->dbcount(), 0);
    EXPECT_TRUE(s()->dbname().empty());
}

TEST_F(SettingsFile, UniqueDbNameFillsGaps) {
    EXPECT_EQ(lxutils::getUniqueDbName(), "evida1.db");
    writeDb("evida1.db", "CREATE TABLE t(a)");
    writeDb("evida3.db", "CREATE TABLE t(a)");
    EXPECT_EQ(lxutils::getUniqueDbName(), "evida2.db");
    writeDb("evida2.db", "CREATE TABLE t(a)");
    EXPECT_EQ(lxutils::getUniqueDbName(), "evida4.db");
}
