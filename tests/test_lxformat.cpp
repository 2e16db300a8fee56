#include <gtest/gtest.h>

#include "lxformat.h"

using lxformat::Chyba;

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

struct AmountCase {
    const char* name;
    const char* text;
    Chyba chyba;
    double value;
};

class AmountParser : public ::testing::TestWithParam<AmountCase> {};

TEST_P(AmountParser, ReadsWhatCzechUsersTypeAndRefusesTheRest) {
    const auto c = GetParam();
    double value = -12345.678;  // left alone on failure
    EXPECT_EQ(lxformat::parseCastka(u8(c.text), &value), c.chyba) << c.text;
    if (c.chyba == Chyba::ZADNA)
        EXPECT_DOUBLE_EQ(value, c.value) << c.text;
    else
        EXPECT_DOUBLE_EQ(value, -12345.678) << c.text;
}

INSTANTIATE_TEST_SUITE_P(
    Forms, AmountParser,
    ::testing::Values(
        AmountCase{"whole", "1250", Chyba::ZADNA, 1250}, AmountCase{"comma", "1250,5", Chyba::ZADNA, 1250.5},
        AmountCase{"space_groups", "1 250,50", Chyba::ZADNA, 1250.5},
        AmountCase{"nbsp_groups", "1\xc2\xa0" "250,50", Chyba::ZADNA, 1250.5},
        AmountCase{"narrow_nbsp", "1\xe2\x80\xaf" "250\xe2\x80\xaf" "000", Chyba::ZADNA, 1250000},
        AmountCase{"point", "1250.50", Chyba::ZADNA, 1250.5},
        AmountCase{"dot_groups_comma", "1.250,00", Chyba::ZADNA, 1250},
        AmountCase{"dot_groups_only", "1.250.000", Chyba::ZADNA, 1250000},
        AmountCase{"negative", "-1 250,50", Chyba::ZADNA, -1250.5},
        AmountCase{"unicode_minus", "\xe2\x88\x92" "5", Chyba::ZADNA, -5},
        AmountCase{"currency_suffix", "1 250,50 K\xc4\x8d", Chyba::ZADNA, 1250.5},
        AmountCase{"surrounding_blanks", "  42,10 ", Chyba::ZADNA, 42.1},
        AmountCase{"leading_zero_point", "0.125", Chyba::ZADNA, 0.125},
        AmountCase{"comma_first", ",5", Chyba::ZADNA, 0.5},
        AmountCase{"many_decimals", "0,001547", Chyba::ZADNA, 0.001547},
        AmountCase{"zero_negative", "-0", Chyba::ZADNA, 0},
        AmountCase{"empty", "", Chyba::PRAZDNE, 0}, AmountCase{"blank", "   ", Chyba::PRAZDNE, 0},
        AmountCase{"ambiguous_thousand", "1.250", Chyba::NEJEDNOZNACNE, 0},
        AmountCase{"letters", "12,5x", Chyba::SYNTAXE, 0}, AmountCase{"exponent", "1e308", Chyba::SYNTAXE, 0},
        AmountCase{"hex", "0x10", Chyba::SYNTAXE, 0}, AmountCase{"inf", "inf", Chyba::SYNTAXE, 0},
        AmountCase{"nan", "nan", Chyba::SYNTAXE, 0}, AmountCase{"two_commas", "1,250,50", Chyba::SYNTAXE, 0},
        AmountCase{"dots_and_blanks", "1 250.000,5", Chyba::SYNTAXE, 0},
        AmountCase{"bad_group", "12 50", Chyba::SYNTAXE, 0},
        AmountCase{"bad_dot_group", "1.25.000", Chyba::SYNTAXE, 0},
        AmountCase{"sign_only", "-", Chyba::SYNTAXE, 0}, AmountCase{"trailing_sign", "5-", Chyba::SYNTAXE, 0},
        AmountCase{"too_large", "1 000 000 000 000", Chyba::ROZSAH, 0},
        AmountCase{"just_below_limit", "999 999 999 999,99", Chyba::ZADNA, 999999999999.99}),
    [](const auto& i) { return std::string(i.param.name); });

struct TypedRateCase {
    const char* text;
    Chyba chyba;
    double value;
};

TEST(RateParser, KeepsEveryDecimalAndRefusesNonPositiveRates) {
    const TypedRateCase cases[] = {{"0,001547", Chyba::ZADNA, 0.001547}, {"25.345", Chyba::ZADNA, 25.345},
                              {"0.125", Chyba::ZADNA, 0.125},       {"1.250", Chyba::ZADNA, 1.25},
                              {"0", Chyba::ROZSAH, 0},             {"-25", Chyba::ROZSAH, 0},
                              {"2e3", Chyba::SYNTAXE, 0},          {"", Chyba::PRAZDNE, 0},
                              {"1000000", Chyba::ROZSAH, 0}};
    for (const auto& c : cases) {
        double value = 0;
        EXPECT_EQ(lxformat::parseKurz(c.text, &value), c.chyba) << c.text;
        if (c.chyba == Chyba::ZADNA) EXPECT_DOUBLE_EQ(value, c.value) << c.text;
    }
}

struct TypedDateCase {
    const char* text;
    const char* iso;  // empty: refused
};

TEST(DateParser, ReadsTypedDatesAndRefusesImpossibleOnes) {
    const TypedDateCase cases[] = {
        {"15.10.2026", "2026-10-15"}, {"15. 10. 2026", "2026-10-15"}, {"5.3.2026", "2026-03-05"},
        {"15.10.", "2027-10-15"},     {"2026-10-15", "2026-10-15"},   {"5.3.26", "2026-03-05"},
        {"29.2.2028", "2028-02-29"},  {"29.2.2027", ""},              {"31.4.2026", ""},
        {"0.1.2026", ""},             {"1.13.2026", ""},              {"15.10", ""},
        {"2026-02-30", ""},           {"abc", ""},                    {"", ""},
        {"1.1.202", ""},              {"15.10.2026.", "2026-10-15"},            {"-1.5.2026", ""}};
    for (const auto& c : cases) {
        const wxDateTime date = lxformat::parseDatum(c.text, 2027);
        if (*c.iso)
            EXPECT_EQ(date.IsValid() ? date.FormatISODate() : wxString("invalid"), c.iso) << c.text;
        else
            EXPECT_FALSE(date.IsValid()) << c.text << " -> " << (date.IsValid() ? date.FormatISODate() : "");
    }
}

TEST(CzechForms, MoneyRatesQuantitiesAndDatesAreLocaleFree) {
    EXPECT_EQ(lxformat::formatCastka(1250.5), u8("1\xc2\xa0" "250,50"));
    EXPECT_EQ(lxformat::formatCastka(1250.5, false), "1250,50");
    EXPECT_EQ(lxformat::formatCastka(-1234567.891), u8("-1\xc2\xa0" "234\xc2\xa0" "567,89"));
    EXPECT_EQ(lxformat::formatCastka(-0.001), "0,00");
    EXPECT_EQ(lxformat::formatCastka(999.999), u8("1\xc2\xa0" "000,00"));
    EXPECT_EQ(lxformat::formatCastka(31458, u8("Kč")), u8("31\xc2\xa0" "458,00 Kč"));
    EXPECT_EQ(lxformat::formatKurz(0.001547), "0,001547");
    EXPECT_EQ(lxformat::formatKurz(25.0), "25");
    EXPECT_EQ(lxformat::formatMnozstvi(12.5), "12,500");
    EXPECT_EQ(lxformat::formatDatum(wxDateTime(5, wxDateTime::Mar, 2026)), "05.03.2026");
    EXPECT_EQ(lxformat::formatDatum(wxDateTime()), "");
}

TEST(CzechForms, EveryShownAmountReadsBackToItsCents) {
    for (double v : {0.0, 0.01, 12.5, 1250.5, -99999.99, 123456789.12}) {
        double back = 0;
        ASSERT_EQ(lxformat::parseCastka(lxformat::formatCastka(v), &back), Chyba::ZADNA) << v;
        EXPECT_DOUBLE_EQ(back, v);
        ASSERT_EQ(lxformat::parseCastka(lxformat::formatCastka(v, false), &back), Chyba::ZADNA) << v;
        EXPECT_DOUBLE_EQ(back, v);
    }
}

TEST(CzechForms, MessagesNameTheField) {
    const wxString m = lxformat::castkaZprava(u8("Částka v Kč"), "12,5x", Chyba::SYNTAXE);
    EXPECT_TRUE(m.StartsWith(u8("Částka v Kč: „12,5x“"))) << m;
    EXPECT_TRUE(lxformat::datumZprava("Datum", "31.4.2026").StartsWith(u8("Datum: „31.4.2026“")));
}

}  // namespace
