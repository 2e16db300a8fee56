// Files written by older program versions are brought to today's shape when opened.
#include <gtest/gtest.h>

#include "schema.h"
#include "testcompany.h"

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
    EXPECT_TRUE(m_events.messages.empty()) << m_events.messages.front();
    EXPECT_EQ(scalar("SELECT count(*) FROM pragma_foreign_key_check"), 0);
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
    EXPECT_TRUE(m_events.messages.empty());
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
}

TEST_F(Upgrade, MissingVersionTableCountsAsCurrent) {
    const wxString path =
        oldCompany("1.40.14", "DROP TABLE version; INSERT INTO cenaphm(id,phmid,cena) VALUES(100,1,99)");
    ASSERT_TRUE(m_model->openDatabase(path));
    EXPECT_EQ(text("SELECT verze FROM version"), "1.40.14");
    EXPECT_EQ(scalar("SELECT count(*) FROM cenaphm WHERE cena=99"), 1);
}

TEST_F(Upgrade, EmptyVersionTableIsRewritten) {
    const wxString path = oldCompany("1.40.14", "DELETE FROM version");
    ASSERT_TRUE(m_model->openDatabase(path));
    EXPECT_EQ(m_model->tableRows("version"), 1);
    EXPECT_EQ(text("SELECT verze FROM version"), "1.40.14");
    EXPECT_EQ(m_model->tableRows("firma"), 1);
}
