#include "text/Numbers.h"

#include <gtest/gtest.h>

#include <cmath>

TEST(Numbers, AreReadFromTheStartOfATextOrFromAllOfIt) {
    // Val reads the longest leading number. A text that is no number as a whole has no integer.
    // clang-format off
    const std::tuple<const char *, double, std::optional<int>> texts[] = {
        {"1", 1, 1},         {" 20 ", 20, 20},       {"+5", 5, 5},            {"-5", -5, -5},           {"007", 7, 7},
        {"2.5", 2.5, 2},     {"3.5", 3.5, 4},        {"-.5", -.5, 0},         {"1e2", 100, 100},        {"1e-999", 0, 0},
        {"32767.4", 32767.4, 32767}, {"32767.5", 32767.5, {}}, {"-32768.5", -32768.5, -32768}, {"-32768.6", -32768.6, {}},
        {"1e999", HUGE_VAL, {}}, {"", 0, {}},        {"   ", 0, {}},          {"abc", 0, {}},           {"12ab", 12, {}},
        {"1 2\t3", 123, {}}, {"\t1", 1, {}},         {"1\n", 1, {}},          {"1,5", 1, {}},           {"1.2.3", 1.2, {}},
        {"5e+", 5, {}},      {"1E-2x", .01, {}},     {" -3.5 x", -3.5, {}},   {"0x10", 0, {}},          {"inf", 0, {}},
        {"nan", 0, {}},      {"- 1", -1, {}},        {"--7", 0, {}},          {"+.e1", 0, {}},          {"0e999", 0, 0},
        {"-1e+999", -HUGE_VAL, {}}, {"-.001e400", -HUGE_VAL, {}}, {"1000e-400", 0, 0}, {"1E1", 10, 10},  {"5.", 5, 5}};
    for (const auto &[text, value, integer] : texts) {
        EXPECT_EQ(Val(text), value) << '"' << text << '"';
        EXPECT_EQ(WholeTextInteger(text), integer) << '"' << text << '"';
    }
}

TEST(Numbers, IntegersRoundHalvesToEvenAndPatternsAwayFromZero) {
    for (const auto &[value, integer, formatted] : {std::tuple(0.4, 0, "0"), {0.5, 0, "1"},    {1.5, 2, "2"},
             {2.5, 2, "3"}, {-0.4, 0, "0"}, {-0.5, 0, "-1"}, {-1.5, -2, "-2"}, {-2.5, -2, "-3"}, {2.51, 3, "3"}}) {
        EXPECT_EQ(Integer16(value), integer) << value;
        EXPECT_EQ(Integer32(value), integer) << value;
        EXPECT_EQ(FormatWhole(value), formatted) << value;
    }
    // clang-format on
    EXPECT_EQ(FormatDigits(20, 4) + FormatDigits(12345, 4) + Str(0) + Str(-17), "002012345 0-17");
    EXPECT_EQ(Integer32(2147483647.4), 2147483647);
    for (const double value : {2147483647.5, -2147483649.0, std::nan("")}) {
        EXPECT_TRUE(!Integer16(value) && !Integer32(value)) << value;
    }
}
