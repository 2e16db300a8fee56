// VAT rates by year, the classifications' validity and lookups, and the classification
// filter's conditions.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include "dph/dphdruhfilter.h"
#include "testcompany.h"

using ::testing::Contains;

class Dph : public TestCompany {
 protected:
    void SetUp() override {
        TestCompany::SetUp();
        createCompany();
    }
    DphDruh druh(const char* zkratka) { return m_model->getDphDruh(m_model->getDphDruhIdByZkratka(u8(zkratka))); }
};

struct SazbyCase {
    int rok, zakladni, prvni, druha;
};

TEST_F(Dph, RatesOfAYearWithOneTwoOrNoReducedRates) {
    const SazbyCase cases[] = {
        {2014, 21, 15, 15},  // one reduced rate: both reduced rates are that one
        {2015, 21, 15, 10},  // the highest reduced first, then the lowest
        {2024, 21, 12, 12},
        {2004, 0, 0, 0},  // before the seeded years
        {2030, 0, 0, 0},  // after them
    };
    for (const SazbyCase& c : cases) {
        SCOPED_TRACE(c.rok);
        EXPECT_EQ(m_model->zakladniSazba(c.rok), c.zakladni);
        EXPECT_EQ(m_model->prvniSnizenaSazba(c.rok), c.prvni);
        EXPECT_EQ(m_model->druhaSnizenaSazba(c.rok), c.druha);
    }
}

struct PlatnostCase {
    const char* zkratka;
    const char* datum;
    bool platne;
};

TEST_F(Dph, ClassificationIsValidBetweenItsDaysInclusive) {
    const PlatnostCase cases[] = {
        {"R24", "2021-09-30", true},   // last day of the first "R24"
        {"R24", "2021-10-01", true},   // first day of the second one
        {"R24", "2010-12-31", false},  // before both
        {"R10,11-18", "2016-01-31", false},
        {"R10,11-18", "2016-02-01", true},
        {"R10,11-1a", "2017-06-30", false},
        {"R1,2", "2100-01-01", true},
        {"R1,2", "2100-01-02", false},
        {"R99", "2024-01-01", false},  // no such code
    };
    for (const PlatnostCase& c : cases) {
        EXPECT_EQ(m_model->isDphDruhValidForDatum(u8(c.zkratka), isoDatum(c.datum)), c.platne) << c.zkratka << " " << c.datum;
    }
    // The two "R24" rows really split the time between them.
    const std::vector<int> r24 = m_model->getDphDruhIdByRadek("24");
    ASSERT_EQ(r24.size(), 2u);
    EXPECT_EQ(m_model->getDphDruh(r24[0]).validTo(), isoDatum("2021-09-30"));
    EXPECT_EQ(m_model->getDphDruh(r24[1]).validFrom(), isoDatum("2021-10-01"));
}

TEST_F(Dph, OnlyTheSupplierSideOfReverseChargeMakesTheCustomerPay) {
    EXPECT_TRUE(m_model->dphPlatiZakaznik(druh("R25-5").id()));
    EXPECT_TRUE(m_model->dphPlatiZakaznik(druh("R25-1a").id()));
    EXPECT_FALSE(m_model->dphPlatiZakaznik(druh("R10,11-5").id()));
    EXPECT_FALSE(m_model->dphPlatiZakaznik(druh("R1,2").id()));
    EXPECT_TRUE(m_model->kracenyDphDruh(druh("R40,41-K").id()));
    EXPECT_FALSE(m_model->kracenyDphDruh(druh("R40,41").id()));
}

TEST_F(Dph, IdsByRowsKeepTheOrderOfTheRowsAsked) {
    const std::vector<int> a = m_model->getDphDruhIdByRadek("3,4");
    const std::vector<int> b = m_model->getDphDruhIdByRadek("40,41");
    ASSERT_FALSE(a.empty());
    ASSERT_FALSE(b.empty());
    wxArrayString radky;
    radky.Add("40,41");
    radky.Add("3,4");
    std::vector<int> expected = b;
    expected.insert(expected.end(), a.begin(), a.end());
    EXPECT_EQ(m_model->getDphDruhIdByRadek(radky), expected);
    EXPECT_TRUE(m_model->getDphDruhIdByRadek("3").empty());  // exact text, not a part of it
}

TEST_F(Dph, FilterChoicesNameTheEmptyValues) {
    EXPECT_THAT(m_model->getDphDruhKh(), Contains(u8("Nepoužito")));
    EXPECT_THAT(m_model->getDphDruhKh(), Contains("A4,A5"));
    EXPECT_THAT(m_model->getDphDruhKpp(), Contains("0"));
    EXPECT_THAT(m_model->getDphDruhKpp(), Contains("1a"));
    EXPECT_THAT(m_model->getDphDruhRadky(), Contains("40,41,47"));
}

TEST_F(Dph, TogglingOfferingMovesTheClassificationInAndOutOfTheOfferedOnes) {
    const int id = druh("R3,4").id();  // expense side, not offered at first
    auto offered = [&] {
        for (const auto& d : m_model->dphdruhyNabizeneVydaj())
            if (d->id() == id) return true;
        return false;
    };
    EXPECT_FALSE(offered());
    ASSERT_TRUE(m_model->nabizetDphDruh(id));
    EXPECT_TRUE(offered());
    ASSERT_TRUE(m_model->nabizetDphDruh(id));
    EXPECT_FALSE(offered());
    EXPECT_FALSE(m_model->nabizetDphDruh(100000));
}

// ---------------------------------------------------------------- the filter's conditions

struct FilterCase {
    const char* name;
    DphDruhPodminky podminky;
    const char* zkratka;  // of the classification tested
    bool matches;
};

class DphFilter : public Dph, public ::testing::WithParamInterface<FilterCase> {};

DphDruhPodminky with(std::function<void(DphDruhPodminky&)> set) {
    DphDruhPodminky p;
    set(p);
    return p;
}

TEST_P(DphFilter, ClassificationPassesOnlyWhenEveryConditionHolds) {
    const FilterCase& c = GetParam();
    const DphDruh d = druh(c.zkratka);
    ASSERT_TRUE(d.isValid()) << c.zkratka;
    EXPECT_EQ(c.podminky.matches(d), c.matches);
}

INSTANTIATE_TEST_SUITE_P(
    Conditions, DphFilter,
    ::testing::Values(
        FilterCase{"no_condition", {}, "R25-5", true},
        FilterCase{"code_equal_ignores_case", with([](auto& p) { p.zkratka = TextPodminka{TextPodminka::ROVNO, "r1,2"}; }), "R1,2", true},
        FilterCase{"code_equal_is_not_a_part", with([](auto& p) { p.zkratka = TextPodminka{TextPodminka::ROVNO, "R1"}; }), "R1,2", false},
        FilterCase{"code_contains", with([](auto& p) { p.zkratka = TextPodminka{TextPodminka::OBSAHUJE, "-K"}; }), "R40,41-K", true},
        FilterCase{"description_contains_without_accents", with([](auto& p) { p.popis = TextPodminka{TextPodminka::OBSAHUJE, "DODANI ZBOZI"}; }), "R1,2", true},
        FilterCase{"received_side", with([](auto& p) { p.plneni = true; }), "R40,41", true},
        FilterCase{"made_side", with([](auto& p) { p.plneni = false; }), "R40,41", false},
        FilterCase{"rows_exactly", with([](auto& p) { p.radky = "3,4"; }), "R3,4,43,44", false},
        FilterCase{"subject_code", with([](auto& p) { p.kpp = "5"; }), "R25-5", true},
        FilterCase{"no_subject_code", with([](auto& p) { p.kpp = ""; }), "R1,2", true},
        FilterCase{"no_subject_code_excludes_coded", with([](auto& p) { p.kpp = ""; }), "R25-5", false},
        FilterCase{"not_in_control_statement", with([](auto& p) { p.kh = ""; }), "R7,8", true},
        FilterCase{"section", with([](auto& p) { p.kh = "B2,B3"; }), "R40,41", true},
        FilterCase{"offered", with([](auto& p) { p.nabizet = true; }), "R1,2", true},
        FilterCase{"not_offered", with([](auto& p) { p.nabizet = false; }), "R1,2", false},
        FilterCase{"all_must_hold", with([](auto& p) { p.plneni = true; p.kh = "A2"; }), "R3,4", false}),
    [](const auto& info) { return std::string(info.param.name); });
