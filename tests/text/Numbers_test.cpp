#include "text/Numbers.h"

#include <gtest/gtest.h>

#include <cmath>

TEST(Numbers, ValReadsTheLongestLeadingNumber) {
    const std::pair<const char *, double> rows[] = {
        {"", 0},         {"abc", 0},  {"+.e1", 0},   {"12ab", 12},    {"--7", 0},    {".5", 0.5},
        {"1.2.3", 1.2},  {"1,5", 1},  {"1e3", 1000}, {"1E-2x", 0.01}, {"5e+", 5},    {" -3.5 x", -3.5},
        {"1 2\t3", 123}, {"0x10", 0}, {"inf", 0},    {"nan", 0},      {"1e-999", 0}, {"1e999", HUGE_VAL}};
    for (const auto &[text, value] : rows) {
        EXPECT_EQ(Val(text), value) << '"' << text << '"';
    }
}

TEST(Numbers, OnlyATextThatIsANumberAsAWholeIsAnInteger) {
    const std::pair<const char *, int> rows[] = {
        {"1", 1},   {" 20 ", 20}, {"+5", 5},  {"-5", -5},         {"2.5", 2},          {"3.5", 4},
        {"-.5", 0}, {"1e2", 100}, {"007", 7}, {"32767.4", 32767}, {"-32768.5", -32768}};
    for (const auto &[text, value] : rows) {
        EXPECT_EQ(WholeTextInteger(text), value) << text;
    }
    for (const char *text : {"32767.5", "-32768.6", "1e999", "", "   ", "1x", "x1", "1 2", "\t1", "1\n",
                             "1,5", "1e", "0x1", "inf", "nan", "-", "- 1"}) {
        EXPECT_EQ(WholeTextInteger(text), std::nullopt) << '"' << text << '"';
    }
}

TEST(Numbers, IntegersRoundHalvesToEvenAndPatternsAwayFromZero) {
    const std::tuple<double, int, const char *> rows[] = {{0.4, 0, "0"},    {0.5, 0, "1"},    {1.5, 2, "2"},
                                                          {2.5, 2, "3"},    {-0.4, 0, "0"},   {-0.5, 0, "-1"},
                                                          {-1.5, -2, "-2"}, {-2.5, -2, "-3"}, {2.51, 3, "3"}};
    for (const auto &[value, integer, formatted] : rows) {
        EXPECT_EQ(Integer16(value), integer) << value;
        EXPECT_EQ(Integer32(value), integer) << value;
        EXPECT_EQ(FormatWhole(value), formatted) << value;
    }
    EXPECT_EQ(FormatDigits(20, 4) + FormatDigits(12345, 4) + Str(0) + Str(17) + Str(-17),
              "002012345 0 17-17");
    EXPECT_EQ(Integer32(2147483647.4), 2147483647);
    for (const double value : {2147483647.5, -2147483649.0, std::nan("")}) {
        EXPECT_EQ(Integer16(value), std::nullopt) << value;
        EXPECT_EQ(Integer32(value), std::nullopt) << value;
    }
}
