// The overview of assets and liabilities from the books: each row at the year's beginning and
// end, from assets less depreciation, cash, stock and wages entered in the test.
#include <gtest/gtest.h>

#include "clock.h"
#include "dane/majetekzavazky.h"
#include "dbmodel.h"
#include "recordio.h"
#include "testcompany.h"

namespace {

class MajetekZavazkyTest : public TestCompany {
   protected:
    void SetUp() override {
        TestCompany::SetUp();
        lxutils::setToday(isoDatum("2026-06-15"));
        createCompany();
    }
    void TearDown() override {
        lxutils::setToday(wxDateTime());
        TestCompany::TearDown();
    }
    void zapsat(int predkontace, const char* datum, double castka) {
        const int id = m_model->getLastId("denik");
        ASSERT_TRUE(recordio::insert(m_model->db(), Denik(id, isoDatum(datum), "D", "", castka, 0, 1, "", 0, 1,
                                                          predkontace, 1, -1, 0, 0, 2026)));
    }
};

TEST_F(MajetekZavazkyTest, RowsAtTheBeginningAndTheEndOfTheYear) {
    ASSERT_TRUE(m_model->addMajetek(Majetek(1, "MA1", "Stroj", "", isoDatum("2025-03-01"), false, wxDateTime(), 10000,
                                            1, 1, 1)));
    ASSERT_TRUE(m_model->addMajetek(Majetek(2, "MA2", "Drobný", "", isoDatum("2026-02-01"), false, wxDateTime(), 5000,
                                            3, 0, 1)));
    ASSERT_TRUE(m_model->calculateOdpisy());
    ASSERT_TRUE(m_model->addPredkontace(Predkontace(901, "SL", "SL", true, 11)));
    ASSERT_TRUE(m_model->addPredkontace(Predkontace(903, "MZ", "MZ", false, 16)));
    zapsat(901, "2026-03-15", 1500);
    zapsat(903, "2026-04-30", 700);
    ASSERT_TRUE(m_model->addSklad(Sklad(1, "Hlavní", "", 0)));
    ASSERT_TRUE(m_model->addZasoba(Zasoba(1, "ZB1", "Šrouby", "", 0, "ks", 0, 0, 1, 100, false, 21)));
    ASSERT_TRUE(m_model->addPohybzasob(
        Pohybzasob(1, isoDatum("2026-04-01"), "PR1", 10, 100, true, false, false, -1, -1, 1, 2026)));

    const MajetekZavazky m = nacistMajetekZavazky(*m_model, 2026);
    const struct {
        const char* atribut;
        double hodnota;
    } cases[] = {
        {"kc_dpfmz02", 8000},    {"kc_z_dpfmz02", 4000},  // 2 000 claimed for 2025, 4 000 for 2026
        {"kc_dpfmz08", 0},       {"kc_z_dpfmz08", 5000},  // the small asset joins in 2026
        {"kc_dpfmz05a", 0},      {"kc_z_dpfmz05a", 800},  // cash in, wages out
        {"kc_dpfmz03", 0},       {"kc_z_dpfmz03", 1000},  // ten pieces at 100
        {"kc_dpfmz18", 700},     {"kc_dpfmz11", 0},
    };
    for (const auto& c : cases) EXPECT_EQ(m.hodnota(c.atribut), c.hodnota) << c.atribut;
    EXPECT_EQ(majetekZavazkyRadky().size(), 9u);
}

TEST(MajetekZavazkyKurzy, ARunningYearCountsAtLastYearsSingleRates) {
    EXPECT_EQ(rokJednotnychKurzu(2025, 2026), 2025);
    EXPECT_EQ(rokJednotnychKurzu(2026, 2026), 2025);
}

}  // namespace
