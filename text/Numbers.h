#pragma once
/// Numbers as the runtime reads, rounds and writes them. The conversions differ from one another on purpose;
/// each stands here once, and nowhere else is a number narrowed to 16 or 32 bits.
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The longest leading number of pText: optional sign, digits with at most one ".", optional exponent. Blanks
/// and tabs are skipped wherever they stand. 0 when there is no leading number; never fails (a number beyond
/// the range of a double is an infinity).
double Val(std::string_view pText);

/// pValue rounded to the nearest whole number, an exact half to the even one; nothing when the result is not
/// in -32768 to 32767.
std::optional<std::int16_t> Integer16(double pValue);

/// The same for -2147483648 to 2147483647.
std::optional<std::int32_t> Integer32(double pValue);

/// The number that pText is as a whole (blanks around it are allowed), with a fraction or an exponent if it
/// likes; nothing when any other character is there.
std::optional<double> WholeNumber(std::string_view pText);

/// WholeNumber, then Integer16.
std::optional<std::int16_t> WholeTextInteger(std::string_view pText);

/// The pattern "0": plain digits, rounded to the nearest whole number, an exact half away from zero.
std::string FormatWhole(double pValue);

/// The patterns "00", "0000" and so on: the digits of pValue (0 or more), filled up with zeros to pDigits.
std::string FormatDigits(int pValue, int pDigits);

/// The digits of pValue behind a blank when it is 0 or more, behind a minus sign when it is negative.
std::string Str(int pValue);
