/// The number conversions on any text, and the roundings on any double (the first eight bytes), against those
/// of the C library.
#include "fuzz/FuzzSupport.h"
#include "text/Numbers.h"

#include <cstring>

namespace {

std::optional<double> OtherWholeNumber(std::string_view pText) {
    const std::string number = WithoutOuterBlanks(pText);
    char *end = nullptr;
    const double value = std::strtod(number.c_str(), &end);
    const bool isTaken = !number.empty() && end == number.c_str() + number.size() &&
                         number.find_first_not_of(numberCharacters) == std::string::npos;
    return isTaken ? std::optional(value) : std::nullopt;
}

void RequireRoundings(double pValue) {
    Require(Integer16(pValue) == OtherRounded(pValue), "a number fits 16 bits when its rounding does");
    Require(Integer32(pValue) == OtherRounded(pValue, -2147483648.0, 2147483647.0),
            "a number fits 32 bits when its rounding does");

    const double rounded = std::isfinite(pValue) ? std::round(pValue) : 0;
    const std::string digits = std::to_string(rounded == 0 ? 0.0 : rounded); // "0", never "-0"
    Require(FormatWhole(pValue) == digits.substr(0, digits.find('.')),
            "whole numbers are written with all their digits");
    Require(Val(FormatWhole(pValue)) == rounded, "a written number is read as the same number");
}

} // namespace

void RequireLaws(std::string_view pBytes) {
    const double value = Val(pBytes);
    Require(value == OtherVal(pBytes), "Val reads what strtod reads");
    RequireRoundings(value);

    const std::optional<double> whole = WholeNumber(pBytes);
    Require(whole == OtherWholeNumber(pBytes), "a whole text is a number when strtod takes all of it");
    Require(!whole || *whole == value, "Val reads the same number from such a text");
    Require(WholeTextInteger(pBytes) == (whole ? OtherRounded(*whole) : std::nullopt),
            "a whole text is an integer when its number fits");

    double any = 0;
    if (pBytes.size() >= sizeof any) {
        std::memcpy(&any, pBytes.data(), sizeof any);
        RequireRoundings(any);
    }
}
