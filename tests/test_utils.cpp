#include <gtest/gtest.h>

#include "lxutils.h"

struct VersionCase {
    const char* text;
    int value;
};
class VersionToInt : public ::testing::TestWithParam<VersionCase> {};
TEST_P(VersionToInt, ThreePartsOnly) { EXPECT_EQ(lxutils::versionToInt(GetParam().text), GetParam().value); }
INSTANTIATE_TEST_SUITE_P(Versions, VersionToInt,
                         ::testing::Values(VersionCase{"1.40.14", 1414}, VersionCase{"1.40.0", 1400},
                                           VersionCase{"1.20.0", 1200}, VersionCase{"1.30.0", 1300},
                                           VersionCase{"2.0.1", 2001}, VersionCase{"1.20", 0}, VersionCase{"", 0},
                                           VersionCase{"1.2.3.4", 0}, VersionCase{"a.b.c", 0},
                                           VersionCase{"0.00.0", 0}));

TEST(IsSameDouble, AbsoluteAndRelativeTolerance) {
    EXPECT_TRUE(lxutils::isSameDouble(0.0, 1e-13));
    EXPECT_FALSE(lxutils::isSameDouble(0.0, 1e-11));
    EXPECT_TRUE(lxutils::isSameDouble(1e9, 1e9 + 1.0));  // relative 1e-9
    EXPECT_FALSE(lxutils::isSameDouble(1e9, 1e9 + 100.0));
    EXPECT_TRUE(lxutils::isSameDouble(0.1 + 0.2, 0.3));
    EXPECT_FALSE(lxutils::isSameDouble(100.0, 100.01));
}

// Published examples of Czech account numbers and their IBANs (Czech National Bank examples
// and the tests of public payment libraries).
struct IbanCase {
    const char* ucet;
    const char* kod;
    const char* iban;
};
class CzechIban : public ::testing::TestWithParam<IbanCase> {};
TEST_P(CzechIban, BuiltFromAccountAndBankCode) {
    EXPECT_EQ(lxutils::ibanFromUcet(GetParam().ucet, GetParam().kod), wxString(GetParam().iban));
}
INSTANTIATE_TEST_SUITE_P(Examples, CzechIban,
                         ::testing::Values(IbanCase{"19-2000145399", "0800", "CZ6508000000192000145399"},
                                           IbanCase{"353497163", "0800", "CZ0908000000000353497163"},
                                           IbanCase{"7894", "0800", "CZ3208000000000000007894"},
                                           IbanCase{"178124-4159", "0710", "CZ6907101781240000004159"},
                                           IbanCase{" 19-2000145399 ", "0800", "CZ6508000000192000145399"},
                                           // Not an account: no IBAN rather than a wrong one.
                                           IbanCase{"0", "0", ""}, IbanCase{"12345678901", "0800", ""},
                                           IbanCase{"19-2000145399", "800", ""}, IbanCase{"abc", "0100", ""},
                                           IbanCase{"1234567-1", "0100", ""}));

TEST(CzechAccount, WeightedChecksums) {
    EXPECT_TRUE(lxutils::isCzechAccountValid("19-2000145399"));
    EXPECT_TRUE(lxutils::isCzechAccountValid("178124-4159"));
    EXPECT_TRUE(lxutils::isCzechAccountValid("353497163"));
    EXPECT_FALSE(lxutils::isCzechAccountValid("19-2000145398"));  // number checksum broken
    EXPECT_FALSE(lxutils::isCzechAccountValid("18-2000145399"));  // prefix checksum broken
    EXPECT_FALSE(lxutils::isCzechAccountValid("0"));
    EXPECT_FALSE(lxutils::isCzechAccountValid(""));
}
