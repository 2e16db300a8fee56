// Reading exchange-rate lists from their text, without a server: which lines give a rate,
// what a rate is worth, and the bounds that refuse something that is not a list.
#include <gtest/gtest.h>

#include <string>

#include "kurzlistek.h"

using lxutils::DruhListku;
using lxutils::readKurzovniListek;

namespace {

const wxDateTime DEN(2, wxDateTime::Jan, 2024);

struct LineCase {
    const char* name;
    DruhListku druh;
    const char* line;  // one line after the list's date line, with its line feed
    const char* kod;   // null: the line gives no rate
    double hodnota;
};

class ListLine : public ::testing::TestWithParam<LineCase> {};

}  // namespace

TEST_P(ListLine, GivesTheRatePerOneUnitOrNothing) {
    const LineCase c = GetParam();
    const std::string text = std::string("02.01.2024 #1\n") + c.line;
    const lxutils::KurzovniListek listek = readKurzovniListek(text, c.druh, DEN);
    ASSERT_TRUE(listek.ok);
    if (!c.kod) {
        EXPECT_TRUE(listek.kurzy.empty());
        return;
    }
    ASSERT_EQ(listek.kurzy.size(), 1u);
    const Kurz& k = listek.kurzy[0];
    EXPECT_EQ(k.kod(), c.kod);
    EXPECT_NEAR(k.hodnota(), c.hodnota, 1e-12);
    EXPECT_EQ(k.datum(), DEN);
    EXPECT_EQ(k.jednotny(), c.druh == DruhListku::JEDNOTNY);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, ListLine,
    ::testing::Values(
        LineCase{"yen_quoted_per_hundred", DruhListku::DENNI, "Japonsko|jen|100|JPY|15,234\n", "JPY", 0.15234},
        LineCase{"carriage_return_and_spaces", DruhListku::DENNI, "EMU|euro| 1 |EUR | 24,685 \r\n", "EUR", 24.685},
        LineCase{"thousand_quantity", DruhListku::DENNI, "Indonesie|rupie|1000|IDR|1,456\n", "IDR", 0.001456},
        LineCase{"yearly_four_fields", DruhListku::JEDNOTNY, "EMU|1|EUR|24,004\n", "EUR", 24.004},
        LineCase{"exponent_rate_counts_as_one", DruhListku::DENNI, "X|y|1|USD|1e308\n", "USD", 1.0},
        LineCase{"hexadecimal_rate_counts_as_one", DruhListku::DENNI, "X|y|1|USD|0x10\n", "USD", 1.0},
        LineCase{"infinite_rate_counts_as_one", DruhListku::DENNI, "X|y|1|USD|inf\n", "USD", 1.0},
        LineCase{"negative_rate_counts_as_one", DruhListku::DENNI, "X|y|1|USD|-22,5\n", "USD", 1.0},
        LineCase{"zero_quantity_counts_as_one", DruhListku::DENNI, "Thajsko|baht|0|THB|65,711\n", "THB", 65.711},
        LineCase{"fraction_of_a_unit_counts_as_one", DruhListku::DENNI, "X|y|0,001|USD|999999\n", "USD", 999999.0},
        LineCase{"tiny_quantity_counts_as_one", DruhListku::DENNI, "X|y|1e-300|USD|22\n", "USD", 22.0},
        LineCase{"daily_line_in_yearly_list", DruhListku::JEDNOTNY, "USA|dolar|1|USD|22,205\n", nullptr, 0},
        LineCase{"code_not_three_capitals", DruhListku::DENNI, "<p>|x|1|<b>|22\n", nullptr, 0},
        LineCase{"lower_case_code", DruhListku::DENNI, "USA|dolar|1|usd|22\n", nullptr, 0},
        LineCase{"header_names_kurz", DruhListku::DENNI, "země|měna|množství|kód|kurz\n", nullptr, 0},
        LineCase{"line_without_its_line_feed", DruhListku::DENNI, "USA|dolar|1|USD|22,5", nullptr, 0}),
    [](const auto& i) { return std::string(i.param.name); });

TEST(RateListBounds, MoreLinesThanAListHasIsNoList) {
    std::string atLimit = "02.01.2024 #1\n";
    for (size_t i = 1; i < lxutils::MAX_RADKU_LISTKU; ++i) atLimit += "EMU|euro|1|EUR|24,685\n";
    const lxutils::KurzovniListek full = readKurzovniListek(atLimit, DruhListku::DENNI, DEN);
    EXPECT_TRUE(full.ok);
    EXPECT_EQ(full.kurzy.size(), lxutils::MAX_RADKU_LISTKU - 1);

    const lxutils::KurzovniListek over = readKurzovniListek(atLimit + "\n", DruhListku::DENNI, DEN);
    EXPECT_FALSE(over.ok);
    EXPECT_TRUE(over.kurzy.empty());
}

TEST(RateListBounds, TooManyBytesOrNoLineFeedIsNoList) {
    const std::string longLine(lxutils::MAX_BAJTU_LISTKU, 'x');
    EXPECT_FALSE(readKurzovniListek(longLine + "\n", DruhListku::DENNI, DEN).ok);
    EXPECT_FALSE(readKurzovniListek("EMU|euro|1|EUR|24,685", DruhListku::DENNI, DEN).ok);
    EXPECT_FALSE(readKurzovniListek("", DruhListku::DENNI, DEN).ok);
    const lxutils::KurzovniListek empty = readKurzovniListek("\n", DruhListku::DENNI, DEN);
    EXPECT_TRUE(empty.ok);
    EXPECT_TRUE(empty.kurzy.empty());
}
