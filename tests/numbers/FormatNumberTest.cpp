#include <limits>
#include <ostream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "numbers/FormatNumber.h"
#include "numbers/RuntimeError.h"
#include "numbers/Single.h"

namespace norlaplan {
namespace {

struct Row {
    double value;
    const char* picture;
    const char* text;
};

std::ostream& operator<<(std::ostream& out, const Row& row) {
    return out << row.value << " in " << row.picture << " -> " << row.text;
}

class FormatNumberRows : public ::testing::TestWithParam<Row> {};

TEST_P(FormatNumberRows, PrintsTheValueByThePicture) {
    EXPECT_EQ(FormatNumber(GetParam().value, GetParam().picture), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Plain, FormatNumberRows,
                         ::testing::Values(Row{0.25, ".0000", ".2500"}, Row{0.25, "#.000", ".250"},
                                           Row{1.25, ".000", "1.250"}, Row{12.5, "###0.0000", "12.5000"},
                                           Row{0.0, "###0.0000", "0.0000"}, Row{0.0, ".000", ".000"},
                                           Row{0.0, "#", ""}, Row{0.0, "####.##", "."},
                                           Row{7.0, "####.##", "7."}, Row{7.5, "####.##", "7.5"},
                                           Row{12345.678, "####.##", "12345.68"}, Row{0.4, "#,###.0", ".4"},
                                           Row{0.4, "0.00", "0.40"}, Row{13.0, "#", "13"}, Row{5.0, "0", "5"},
                                           Row{0.25, "##.000", ".250"}));

INSTANTIATE_TEST_SUITE_P(Rounding, FormatNumberRows,
                         ::testing::Values(Row{0.5, "0", "1"}, Row{1.5, "0", "2"}, Row{2.5, "0", "3"},
                                           Row{0.125, "0.00", "0.13"}, Row{-0.125, "0.00", "-0.13"},
                                           Row{1.005, "0.00", "1.01"}, Row{9.9996, "0.000", "10.000"},
                                           Row{0.49999999999999994, "0", "1"}, Row{0.04, "0.0", "0.0"},
                                           Row{99.995, "0.00", "100.00"}, Row{0.6, "#", "1"}));

INSTANTIATE_TEST_SUITE_P(Grouping, FormatNumberRows,
                         ::testing::Values(Row{999.0, "#,##0", "999"}, Row{1000.0, "#,##0", "1,000"},
                                           Row{1234567.0, "#,##0", "1,234,567"}, Row{0.0, "#,##0", "0"},
                                           Row{1733.4, "##,##0", "1,733"}, Row{-1234.0, "#,##0", "-1,234"},
                                           Row{999999.5, "#,##0", "1,000,000"},
                                           Row{609000.0, "#,###,###", "609,000"}));

INSTANTIATE_TEST_SUITE_P(Signs, FormatNumberRows,
                         ::testing::Values(Row{-0.0012, ".00000", "-.00120"},
                                           Row{-0.00001, ".0000", "-.0000"},
                                           Row{-3.0, "###0.000", "-3.000"}));

INSTANTIATE_TEST_SUITE_P(
    Exponents, FormatNumberRows,
    ::testing::Values(Row{12345.0, "0.00E+00", "1.23E+04"}, Row{12355.0, "0.00E+00", "1.24E+04"},
                      Row{9999999.0, "0.00E+00", "1.00E+07"}, Row{0.0, "0.00E+00", "0.00E+00"},
                      Row{15000000.0, "00.00E+00", "15.00E+06"}, Row{150000000.0, "000.0E+00", "150.0E+06"},
                      Row{99999.99, "00.00E+00", "10.00E+04"}, Row{0.00123, "0.0E+00", "1.2E-03"},
                      Row{1.0, "0.0E+##", "1.0E+0"}, Row{1.0, "0.0E-00", "1.0E00"},
                      Row{1e100, "0.00E+00", "1.00E+100"}));

INSTANTIATE_TEST_SUITE_P(Places, FormatNumberRows,
                         ::testing::Values(Row{7.0, "000", "007"}, Row{7.0, "#00", "07"},
                                           Row{-7.0, "000", "-007"}, Row{0.5, "#.##0#", ".500"},
                                           Row{0.1235, "0.0###", "0.1235"}, Row{0.1, "0.0###", "0.1"},
                                           Row{1234.0, ",###", "1234"}, Row{1234.5, "0.0,0", "1234.50"},
                                           Row{12.0, "0,000", "0,012"}, Row{1000.0, "#,#", "1,000"},
                                           Row{100.0, "#,#", "100"}, Row{1e-9, "0.00", "0.00"},
                                           Row{0.09, "#", ""}, Row{0.49, "0", "0"}, Row{9.5, "0", "10"},
                                           Row{0.95, "0.0", "1.0"}, Row{0.95, ".0", "1.0"}));

INSTANTIATE_TEST_SUITE_P(MoreExponents, FormatNumberRows,
                         ::testing::Values(Row{1.0, "0.0E-##", "1.0E0"}, Row{0.05, "0.0E-00", "5.0E-02"},
                                           Row{1e12, "0E+0", "1E+12"}, Row{9.96, "0.0E+00", "1.0E+01"},
                                           Row{-9.96, "0.0E+00", "-1.0E+01"},
                                           Row{123.0, "0.0##E+000", "1.23E+002"},
                                           Row{0.0, "0.0E+00", "0.0E+00"}));

TEST(FormatNumber, TakesTheThirtyTwoBitValueAsItsSixtyFourBitOne) {
    // The 32-bit number nearest to 0.00035 lies below it, at 0.000349999988...
    EXPECT_EQ(FormatNumber(Single(0.00035), ".0000"), ".0003");
    EXPECT_EQ(FormatNumber(0.00035, ".0000"), ".0004");
}

TEST(FormatNumber, RefusesWhatIsNotFinite) {
    EXPECT_THROW(FormatNumber(std::numeric_limits<double>::quiet_NaN(), "0"), RuntimeError);
    EXPECT_THROW(FormatNumber(std::numeric_limits<double>::infinity(), "0"), RuntimeError);
}

TEST(FormatNumber, EndsItsPictureWhereItsTextEndsWhateverStandsBehindIt) {
    const std::string_view picture = "#0.000E+000";
    EXPECT_EQ(FormatNumber(12.5, picture.substr(0, 2)), "13");
    EXPECT_EQ(FormatNumber(12.5, picture.substr(0, 3)), "13.");
    EXPECT_EQ(FormatNumber(12.5, picture.substr(0, 6)), "12.500");
    EXPECT_EQ(FormatNumber(12.5, picture.substr(0, 9)), "12.500E+0");
    EXPECT_EQ(FormatNumber(12.5, picture.substr(0, 10)), "12.500E+00");
}

TEST(FormatNumber, ShowsEveryWholeDigitOfALargeValue) {
    EXPECT_EQ(FormatNumber(1e20, "0"), "100000000000000000000");
    EXPECT_EQ(FormatNumber(1e20, "#,##0"), "100,000,000,000,000,000,000");
}

}  // namespace
}  // namespace norlaplan
