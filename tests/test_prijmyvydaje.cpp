// The year's taxable income and expenses: sums per journal column, only tax-relevant columns
// and only the asked year, and flat-rate expenses as each income entry's own percentage.
#include <gtest/gtest.h>

#include "dane/prijmyvydaje.h"
#include "dbmodel.h"
#include "recordio.h"
#include "testcompany.h"

namespace {

class PrijmyVydajeTest : public TestCompany {
   protected:
    void SetUp() override {
        TestCompany::SetUp();
        createCompany();
        m_rok = m_model->currentRok();
        // Pre-postings into three tax columns (goods sold 10, services 11, material 13) and
        // one outside the tax base (the owner's deposit 22).
        const struct {
            int id;
            const char* zkratka;
            bool prijem;
            int sloupec;
        } predkontace[] = {{901, "ZB", true, 10}, {902, "SL", true, 11}, {903, "MAT", false, 13}, {904, "VK", true, 22}};
        for (const auto& p : predkontace)
            ASSERT_TRUE(m_model->addPredkontace(Predkontace(p.id, p.zkratka, p.zkratka, p.prijem, p.sloupec)));
    }
    void zapsat(int predkontace, double castka, int pausal = 0, int rok = 0) {
        const int id = m_model->getLastId("denik");
        const int r = rok ? rok : m_rok;
        ASSERT_TRUE(recordio::insert(m_model->db(),
                                     Denik(id, wxDateTime(15, wxDateTime::Mar, r), wxString::Format("D%d", id), "",
                                           castka, 0, 1, "", pausal, 1, predkontace, 1, -1, 0, 0, r)));
    }
    int m_rok = 0;
};

TEST_F(PrijmyVydajeTest, BookedExpensesPerColumnAndTheProfit) {
    zapsat(901, 1000);
    zapsat(901, 250.5);
    zapsat(902, 3000);
    zapsat(903, 800);
    zapsat(904, 50000);          // a deposit is no income
    ASSERT_TRUE(m_model->addObdobi(Obdobi(2001, false)));
    zapsat(901, 9999, 0, 2001);  // another year
    const PrijmyVydaje p = prijmyVydaje(*m_model, m_rok, false);
    ASSERT_EQ(p.prijmy.size(), 2u);
    EXPECT_EQ(p.prijmy[0].castka, 1250.5);
    EXPECT_EQ(p.prijmy[1].castka, 3000);
    ASSERT_EQ(p.vydaje.size(), 1u);
    EXPECT_EQ(p.vydaje[0].castka, 800);
    EXPECT_EQ(p.zisk(), 3450.5);
    const auto rows = prijmyVydajeRadky(p);
    EXPECT_EQ(rows.back().oddil, "Zisk");
    EXPECT_EQ(rows.back().castka, 3450.5);
}

TEST_F(PrijmyVydajeTest, FlatRateExpensesFollowEachEntrysPercentage) {
    zapsat(901, 10000, 60);
    zapsat(902, 20000, 40);
    zapsat(902, 5000, 60);
    zapsat(903, 800);  // booked expenses do not count with flat-rate ones
    const PrijmyVydaje p = prijmyVydaje(*m_model, m_rok, true);
    ASSERT_EQ(p.pausalni.size(), 2u);
    EXPECT_EQ(p.pausalni[0].procento, 60);
    EXPECT_EQ(p.pausalni[0].castka, 9000);
    EXPECT_EQ(p.pausalni[1].procento, 40);
    EXPECT_EQ(p.pausalni[1].castka, 8000);
    EXPECT_EQ(p.vydajeCelkem(), 17000);
    EXPECT_EQ(p.zisk(), 18000);
}

TEST_F(PrijmyVydajeTest, LossAndAnEmptyYear) {
    EXPECT_TRUE(prijmyVydaje(*m_model, m_rok, false).prazdny());
    zapsat(903, 500);
    const PrijmyVydaje p = prijmyVydaje(*m_model, m_rok, false);
    EXPECT_EQ(p.zisk(), -500);
    EXPECT_EQ(prijmyVydajeRadky(p).back().oddil, wxString::FromUTF8("Ztráta"));
    EXPECT_EQ(prijmyVydajeRadky(p).back().castka, 500);
}

}  // namespace
