// Accounting periods: the current year, the list of years, deleting a year with its rows,
// and the due period kept per year.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "lxsettings.h"
#include "testcompany.h"

using ::testing::ElementsAre;

class Periods : public TestCompany {
 protected:
    void SetUp() override {
        TestCompany::SetUp();
        m_path = createCompany();
        // Start from the two years 2021 and 2023, 2023 current, whatever today's year is.
        ASSERT_TRUE(m_model->setCurrentRok(2023));
        ASSERT_TRUE(m_model->addObdobi(Obdobi(2021, false)));
        const int today = wxDateTime::Today().GetYear();
        if (today != 2023 && today != 2021) {
            ASSERT_TRUE(m_model->deleteObdobi(today));
        }
        m_events.updates.clear();
    }
    int currentRows() { return scalar("SELECT count(*) FROM obdobi WHERE current=1"); }

    wxString m_path;
};

TEST_F(Periods, YearsAfterAGivenYearComeAscending) {
    EXPECT_THAT(m_model->getObdobiAsStrings(-1), ElementsAre("2021", "2023"));
    EXPECT_THAT(m_model->getObdobiAsStrings(2021), ElementsAre("2023"));
    EXPECT_TRUE(m_model->getObdobiAsStrings(2023).empty());
}

TEST_F(Periods, SettingAMissingYearCreatesItAsTheOnlyCurrentOne) {
    ASSERT_TRUE(m_model->setCurrentRok(2024));
    EXPECT_EQ(currentRows(), 1);
    EXPECT_EQ(scalar("SELECT rok FROM obdobi WHERE current=1"), 2024);
    EXPECT_EQ(m_model->currentRok(), 2024);
    EXPECT_EQ(m_model->getObdobiCount(), 3);
    EXPECT_THAT(m_events.updates, ElementsAre(NAV_ALL));

    // An existing year is switched to, not added again; a reopened file remembers it.
    ASSERT_TRUE(m_model->setCurrentRok(2021));
    EXPECT_EQ(m_model->getObdobiCount(), 3);
    EXPECT_EQ(currentRows(), 1);
    m_model->closeDatabase();
    ASSERT_TRUE(m_model->openDatabase(m_path));
    EXPECT_EQ(m_model->currentRok(), 2021);
}

TEST_F(Periods, AFailedSwitchKeepsTheOldCurrentYear) {
    m_model->db().ExecuteUpdate("CREATE TRIGGER refuse BEFORE INSERT ON obdobi BEGIN SELECT RAISE(ABORT,'no'); END");
    EXPECT_FALSE(m_model->setCurrentRok(2030));
    EXPECT_FALSE(m_model->setCurrentRok(0));
    EXPECT_EQ(scalar("SELECT rok FROM obdobi WHERE current=1"), 2023);
    EXPECT_EQ(currentRows(), 1);
    EXPECT_EQ(m_model->currentRok(), 2023);
    EXPECT_TRUE(m_events.updates.empty());
}

TEST_F(Periods, LatestYearAndCounts) {
    EXPECT_EQ(m_model->maxRok(), 2023);
    EXPECT_EQ(m_model->getObdobiCount(), 2);
    struct Case {
        int year;
        bool later;
    };
    for (const Case& c : {Case{2020, true}, Case{2021, true}, Case{2022, true}, Case{2023, false}, Case{-1, true}})
        EXPECT_EQ(m_model->hasObdobiGreaterThan(c.year), c.later) << c.year;

    m_model->db().ExecuteUpdate("DELETE FROM obdobi");
    EXPECT_EQ(m_model->maxRok(), 0);
    EXPECT_EQ(m_model->getObdobiCount(), 0);
    EXPECT_FALSE(m_model->hasObdobiGreaterThan(-1));
}

TEST_F(Periods, DeletingAYearTakesItsRowsAlong) {
    wxSQLite3Database& db = m_model->db();
    for (int rok : {2021, 2023}) {
        db.ExecuteUpdate(
            wxString::Format("INSERT INTO denik(id,datum,castka,pausal,menaid,predkontaceid,pokladnaid,obdobirok) "
                             "VALUES(%d,'%d-02-01',100,0,1,1,1,%d)",
                             rok, rok, rok));
        db.ExecuteUpdate(
            wxString::Format("INSERT INTO faktura(id,celkem,typid,uhradaid,menaid,predkontaceid,obdobirok,vydana) "
                             "VALUES(%d,100,1,1,1,1,%d,1)",
                             rok, rok));
        db.ExecuteUpdate(wxString::Format(
            "INSERT INTO uhrada(id,castka,denikid,fakturaid,obdobirok) VALUES(%d,100,%d,%d,%d)", rok, rok, rok, rok));
    }
    ASSERT_TRUE(m_model->deleteObdobi(2021));
    for (const char* table : {"denik", "faktura", "uhrada"}) {
        EXPECT_EQ(scalar(wxString::Format("SELECT count(*) FROM %s WHERE obdobirok=2021", table)), 0) << table;
        EXPECT_EQ(scalar(wxString::Format("SELECT count(*) FROM %s WHERE obdobirok=2023", table)), 1) << table;
    }
    EXPECT_THAT(m_model->getObdobiAsStrings(-1), ElementsAre("2023"));
}

TEST_F(Periods, DuePeriodOfAYearFallsBackToTheDefault) {
    ASSERT_TRUE(m_model->addSettings(Settings(2023, 30)));
    m_model->db().ExecuteUpdate("INSERT INTO settings(rok,splatnost) VALUES(2021,NULL)");
    lxSettings::instance()->setSplatnost(45);  // the run's value is not a year's setting
    EXPECT_EQ(m_model->getSplatnost(2023), 30);
    EXPECT_EQ(m_model->getSplatnost(2021), 14);
    EXPECT_EQ(m_model->getSplatnost(2022), 14);
}

TEST_F(Periods, ForeignStorageLeavesThePeriodsAlone) {
    lxSettings::instance()->setDbmodel(1);
    EXPECT_FALSE(m_model->setCurrentRok(2025));
    EXPECT_TRUE(m_model->getObdobiAsStrings(-1).empty());
    EXPECT_EQ(m_model->maxRok(), 0);
    lxSettings::instance()->setDbmodel(DBMODEL_SQLITE);
    EXPECT_EQ(m_model->maxRok(), 2023);
    EXPECT_EQ(m_model->currentRok(), 2023);
}
