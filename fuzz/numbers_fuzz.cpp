/// The number conversions on any text, and the roundings on any double (the first eight bytes), against the
/// C library's opinion.
#include "fuzz/FuzzSupport.h"
#include "text/Numbers.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <cstring>

namespace {

void RequireRoundings(double pValue) {
    const auto narrow = OtherRounded(pValue, -32768, 32767);
    const auto wide = OtherRounded(pValue, -2147483648.0, 2147483647.0);
    Require(Integer16(pValue) == narrow, "16 bits hold what is rounded to them, and nothing else");
    Require(Integer32(pValue) == wide, "32 bits hold what is rounded to them, and nothing else");

    std::array<char, 400> digits{};
    const double rounded = std::isfinite(pValue) ? std::round(pValue) : 0;
    std::snprintf(digits.data(), digits.size(), "%.0f", rounded == 0 ? 0.0 : rounded);
    Require(FormatWhole(pValue) == digits.data(), "whole numbers are written with all their digits");
    Require(Val(FormatWhole(pValue)) == rounded, "what is written as a number is read as the same number");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *pBytes, std::size_t pSize) {
    const std::string text(Text(pBytes, pSize));
    const double value = Val(text);
    Require(value == OtherVal(text), "Val reads what strtod reads");
    RequireRoundings(value);

    const std::optional<double> whole = WholeNumber(text);
    Require(whole == OtherWholeNumber(text), "a whole text is a number when strtod takes all of it");
    Require(!whole || *whole == value, "a text that is a number is the one that Val reads");
    Require(WholeTextInteger(text) == (whole ? OtherRounded(*whole, -32768, 32767) : std::nullopt),
            "a whole text is an integer when its number fits");

    double any = 0;
    if (pSize >= sizeof any) {
        std::memcpy(&any, pBytes, sizeof any);
        RequireRoundings(any);
    }
    return 0;
}
