// The depreciation plan of an asset over its group's whole life: rounding down every year,
// the rest in the last year, the stored years kept and the later ones computed from them.
#include <gtest/gtest.h>

#include <numeric>

#include "clock.h"
#include "dbmodel.h"
#include "majetek/odpisy.h"
#include "testcompany.h"

namespace {

Odpiskupina skupina(int id) {
    // The groups a new company receives.
    switch (id) {
        case 1: return Odpiskupina(1, "1.", 3, 20, 40, 33.3, 3, 4, 3);
        case 2: return Odpiskupina(2, "2.", 5, 11, 22.25, 20, 5, 6, 5);
        case 3: return Odpiskupina(3, "3.", 10, 5.5, 10.5, 10, 10, 11, 10);
        default: return Odpiskupina(4, "4.", 20, 2.15, 5.15, 5, 20, 21, 20);
    }
}

std::vector<double> castky(const std::vector<odpisy::Rok>& plan) {
    std::vector<double> out;
    for (const auto& r : plan) out.push_back(r.odpis);
    return out;
}

TEST(Odpisy, WholeLifeOfAGroupRoundedDownWithTheRestLast) {
    using odpisy::ROVNOMERNY;
    using odpisy::ZRYCHLENY;
    struct {
        const char* nazev;
        int skupina;
        int metoda;
        double cena;
        std::vector<double> roky;
    } cases[] = {
        {"group 1 straight-line", 1, ROVNOMERNY, 100000, {20000, 40000, 40000}},
        {"group 1 accelerated", 1, ZRYCHLENY, 100000, {33333, 44444, 22223}},
        {"group 2 straight-line, a crown over", 2, ROVNOMERNY, 100001, {11000, 22250, 22250, 22250, 22251}},
        {"group 2 accelerated", 2, ZRYCHLENY, 100001, {20000, 32000, 24000, 16000, 8001}},
        {"group 3 straight-line", 3, ROVNOMERNY, 1000, {55, 105, 105, 105, 105, 105, 105, 105, 105, 105}},
    };
    for (const auto& c : cases) {
        const auto plan = odpisy::plan(c.cena, c.metoda, skupina(c.skupina), 2024);
        EXPECT_EQ(castky(plan), c.roky) << c.nazev;
        ASSERT_FALSE(plan.empty()) << c.nazev;
        EXPECT_EQ(plan.front().rok, 2024) << c.nazev;
        EXPECT_EQ(plan.back().zustatek, 0) << c.nazev;
        EXPECT_EQ(std::accumulate(c.roky.begin(), c.roky.end(), 0.0), c.cena) << c.nazev;
    }
}

TEST(Odpisy, FloorIsNotFooledByBinaryFractions) {
    // 30 000 × 2.15 % is 645 exactly, though the double product is 644.999…
    EXPECT_EQ(odpisy::rovnomerny(30000, 2.15), 645);
    EXPECT_EQ(odpisy::rovnomerny(999, 20), 199);  // 199.8 down
    EXPECT_EQ(odpisy::zrychleny(100000, 4, 33333, 1), 44444);
}

TEST(Odpisy, StoredYearsAreKeptAndLaterYearsFollowThem) {
    const auto plan = odpisy::plan(100000, odpisy::ROVNOMERNY, skupina(1), 2024, {{2024, 15000}});
    EXPECT_EQ(castky(plan), (std::vector<double>{15000, 40000, 45000}));
    EXPECT_TRUE(plan[0].ulozeny);
    EXPECT_FALSE(plan[1].ulozeny);
    EXPECT_EQ(plan[1].zustatek, 45000);
    // Accelerated years after a stored one are computed from what was really depreciated.
    const auto zry = odpisy::plan(100000, odpisy::ZRYCHLENY, skupina(1), 2024, {{2024, 30000}});
    EXPECT_EQ(castky(zry), (std::vector<double>{30000, 46666, 23334}));
}

TEST(Odpisy, MethodsWithoutDepreciationHaveNoPlan) {
    for (int metoda : {static_cast<int>(odpisy::BEZ_ODPISU), static_cast<int>(odpisy::VYLOUCENY), 7})
        EXPECT_TRUE(odpisy::plan(100000, metoda, skupina(1), 2024).empty()) << metoda;
}

// The model fills the years up to the clock's year, group 1 being the tool group of a new company.
class OdpisyModel : public TestCompany {
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
    int pridat(int id, const char* porizen, double cena, int metoda, int typ = 1, bool vyrazen = false) {
        Majetek m(id, wxString::Format("M%d", id), "Stroj", "", isoDatum(porizen), vyrazen, wxDateTime(), cena, typ,
                  metoda, 1);
        EXPECT_TRUE(m_model->addMajetek(m));
        return id;
    }
    std::vector<double> roky(int id) {
        std::vector<double> out;
        for (const auto& o : m_model->odpisyMajetku(id, 3000)) out.push_back(o->odpis());
        return out;
    }
};

TEST_F(OdpisyModel, FillsTheYearsUpToThisYearOnceAndNothingInTheFuture) {
    pridat(1, "2024-03-01", 10000, odpisy::ROVNOMERNY);
    pridat(2, "2024-03-01", 10000, odpisy::ZRYCHLENY);
    pridat(3, "2027-01-10", 10000, odpisy::ROVNOMERNY);
    pridat(4, "2025-05-05", 50000, odpisy::BEZ_ODPISU);
    pridat(5, "2025-05-05", 90000, odpisy::ROVNOMERNY);  // group 1 over five years: 2025 and 2026 only
    ASSERT_TRUE(m_model->calculateOdpisy());
    EXPECT_EQ(roky(1), (std::vector<double>{2000, 4000, 4000}));
    EXPECT_EQ(roky(2), (std::vector<double>{3333, 4444, 2223}));
    EXPECT_TRUE(roky(3).empty());
    EXPECT_TRUE(roky(4).empty());
    EXPECT_EQ(roky(5), (std::vector<double>{18000, 36000}));
    const int rows = scalar("SELECT count(*) FROM odpis");
    ASSERT_TRUE(m_model->calculateOdpisy());
    EXPECT_EQ(scalar("SELECT count(*) FROM odpis"), rows);
    // Ids follow the last id of the table.
    EXPECT_EQ(scalar("SELECT MAX(id) FROM odpis"), rows);

    EXPECT_EQ(m_model->getOdpisy(1, 2025), 6000);
    EXPECT_EQ(m_model->getZustatkovaCenaMajetku(1), 0);
    EXPECT_EQ(m_model->getZustatkovaCenaMajetku(5), 36000);
    EXPECT_EQ(m_model->getZustatkovaCenaMajetku(4), 0);  // no depreciation: no residual value
}

TEST_F(OdpisyModel, AYearWrittenByHandIsKeptAndTheRestFollowsIt) {
    pridat(1, "2024-03-01", 10000, odpisy::ROVNOMERNY);
    ASSERT_TRUE(m_model->addOdpis(Odpis(1, 2024, 1500, 1)));
    // A later accelerated year counts with what the asset has depreciated so far.
    pridat(2, "2024-03-01", 10000, odpisy::ZRYCHLENY);
    ASSERT_TRUE(m_model->addOdpis(Odpis(2, 2024, 3333, 2)));
    EXPECT_EQ(m_model->calculateZrychlenyOdpis(10000, 4, 2025, 2, 2024), 4444);
    ASSERT_TRUE(m_model->calculateOdpisy());
    EXPECT_EQ(roky(1), (std::vector<double>{1500, 4000, 4500}));
}

TEST_F(OdpisyModel, StateOfTangibleAndOtherAssetsAtADate) {
    pridat(1, "2024-03-01", 10000, odpisy::ROVNOMERNY, 1);
    pridat(2, "2025-02-01", 30000, odpisy::BEZ_ODPISU, 1, true);  // disposed of
    pridat(3, "2025-02-01", 6000, odpisy::ROVNOMERNY, 2);
    pridat(4, "2026-02-01", 7000, odpisy::ROVNOMERNY, 1);
    ASSERT_TRUE(m_model->calculateOdpisy());
    struct {
        const char* datum;
        bool hmotny;
        double stav;
    } cases[] = {
        {"2024-03-01", true, 0},          // acquired on the day: not yet
        {"2024-12-31", true, 10000},      // nothing depreciated before 2024
        {"2025-01-01", true, 8000},       // 2024's 2 000 taken off
        {"2026-01-01", true, 4000},       // 2 000 + 4 000
        {"2026-12-31", true, 11000},      // the 2026 asset joins at its price
        {"2026-01-01", false, 6000 - 1200},
    };
    for (const auto& c : cases)
        EXPECT_EQ(m_model->getMajetekStav(isoDatum(c.datum), c.hmotny), c.stav) << c.datum << " " << c.hmotny;
}

}  // namespace
