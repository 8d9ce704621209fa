#pragma once
/// Numbers as the runtime reads, rounds and writes them. The conversions differ on purpose, and each is
/// defined only here.
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The longest leading number of pText: optional sign, digits with at most one ".", optional exponent. Skips
/// blanks and tabs wherever they stand. Returns 0 if there is no such number, and an infinity if it is too
/// large for a double. Never fails.
double Val(std::string_view pText);

/// pValue rounded to the nearest whole number, an exact half to the even one. Null when the result is not in
/// -32768 to 32767.
std::optional<std::int16_t> Integer16(double pValue);

/// The same for -2147483648 to 2147483647.
std::optional<std::int32_t> Integer32(double pValue);

/// The value of pText if all of it is one number, which may have a fraction, an exponent, and blanks around
/// it. Otherwise null.
std::optional<double> WholeNumber(std::string_view pText);

/// WholeNumber, then Integer16.
std::optional<std::int16_t> WholeTextInteger(std::string_view pText);

/// The pattern "0": plain digits, rounded to the nearest whole number, an exact half away from zero.
std::string FormatWhole(double pValue);

/// The patterns "00", "0000" and so on: the digits of pValue (0 or more), with zeros in front if there are
/// fewer than pDigits.
std::string FormatDigits(int pValue, int pDigits);

/// The digits of pValue, with a blank in front when it is 0 or more and a minus sign when it is negative.
std::string Str(int pValue);
