#include "platform/Numbers.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

constexpr double infinite = std::numeric_limits<double>::infinity();

} // namespace

TEST(Numbers, ValReadsTheLongestLeadingNumber) {
    const std::pair<const char *, double> rows[] = {
        {"", 0},         {"abc", 0},  {".", 0},   {"-", 0},          {"+.e1", 0},     {"12ab", 12},
        {"--7", 0},      {".5", 0.5}, {"5.", 5},  {"1.2.3", 1.2},    {"1,5", 1},      {"1e3", 1000},
        {"1E-2x", 0.01}, {"5e+", 5},  {"e5", 0},  {" -3.5 x", -3.5}, {"1 2\t3", 123}, {"1\n2", 1},
        {"0x10", 0},     {"inf", 0},  {"nan", 0}, {"1e-999", 0},     {"0e999", 0}};
    for (const auto &[text, value] : rows) {
        EXPECT_EQ(Val(text), value) << '"' << text << '"';
    }
    EXPECT_EQ(Val("1e999"), infinite);
    EXPECT_EQ(Val("-" + std::string(400, '9')), -infinite);
    EXPECT_EQ(Val("0." + std::string(400, '0') + "1e401"), 1);
    EXPECT_EQ(Val("1e-99999999999999999999"), 0);
}

TEST(Numbers, OnlyATextThatIsANumberAsAWholeIsAnInteger) {
    const std::pair<const char *, std::optional<std::int16_t>> rows[] = {
        {"1", 1},           {" 20 ", 20},         {"+5", 5},
        {"-5", -5},         {"2.5", 2},           {"3.5", 4},
        {"-.5", 0},         {"1e2", 100},         {"007", 7},
        {"32767.4", 32767}, {"-32768.5", -32768}, {"32767.5", {}},
        {"-32768.6", {}},   {"1e999", {}},        {"", {}},
        {"   ", {}},        {"1x", {}},           {"x1", {}},
        {"1 2", {}},        {"\t1", {}},          {"1\n", {}},
        {"1,5", {}},        {"1e", {}},           {"0x1", {}},
        {"inf", {}},        {"nan", {}},          {"-", {}},
        {"- 1", {}}};
    for (const auto &[text, value] : rows) {
        EXPECT_EQ(WholeTextInteger(text), value) << '"' << text << '"';
    }
}

TEST(Numbers, IntegersRoundHalvesToEvenAndPatternsAwayFromZero) {
    const std::tuple<double, std::int16_t, const char *> rows[] = {
        {0.4, 0, "0"},  {0.5, 0, "1"},   {1.5, 2, "2"},    {2.5, 2, "3"},    {3.5, 4, "4"},
        {-0.4, 0, "0"}, {-0.5, 0, "-1"}, {-1.5, -2, "-2"}, {-2.5, -2, "-3"}, {2.51, 3, "3"}};
    for (const auto &[value, integer, formatted] : rows) {
        EXPECT_EQ(Integer16(value), integer) << value;
        EXPECT_EQ(Integer32(value), integer) << value;
        EXPECT_EQ(FormatWhole(value), formatted) << value;
    }
    EXPECT_EQ(FormatWhole(1e21), "1000000000000000000000");
    EXPECT_EQ(FormatDigits(20, 4) + FormatDigits(12345, 4), "002012345");
    EXPECT_EQ(Str(0) + Str(17) + Str(-17), " 0 17-17");
}

TEST(Numbers, WhatDoesNotFitIsNoInteger) {
    EXPECT_EQ(Integer32(2147483647.4), 2147483647);
    EXPECT_EQ(Integer32(-2147483648.5), std::numeric_limits<std::int32_t>::min());
    for (const double value : {2147483647.5, -2147483649.0, infinite, -infinite, infinite - infinite}) {
        EXPECT_EQ(Integer16(value), std::nullopt) << value;
        EXPECT_EQ(Integer32(value), std::nullopt) << value;
    }
}
