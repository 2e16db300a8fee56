// The depreciation plan of an asset over its group's whole life: rounding down every year,
// the rest in the last year, the stored years kept and the later ones computed from them.
#include <gtest/gtest.h>

#include <numeric>

#include "majetek/odpisy.h"

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

}  // namespace
