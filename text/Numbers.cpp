#include "text/Numbers.h"

#include "text/Cursor.h"
#include "text/Text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>
#include <limits>
#include <locale>
#include <new>
#include <sstream>

namespace {

bool IsDigit(char pCharacter) {
    return pCharacter >= '0' && pCharacter <= '9';
}

void TakeSign(Cursor &pText) {
    if (!pText.Take('+')) {
        pText.Take('-');
    }
}

/// The longest number at the start of pText; empty if there is none.
std::string_view LeadingNumber(std::string_view pText) {
    Cursor text(pText);
    TakeSign(text);
    std::size_t digits = text.TakeWhile(IsDigit).size();
    if (text.Take('.')) {
        digits += text.TakeWhile(IsDigit).size();
    }
    if (digits == 0) {
        return {};
    }
    const std::string_view mantissa = text.PassedSince(0);
    if (text.Take('e') || text.Take('E')) {
        TakeSign(text);
        if (text.TakeWhile(IsDigit).empty()) {
            return mantissa; // "5e" is the number 5 with a letter after it.
        }
    }
    return text.PassedSince(0);
}

/// The value of pNumber, which LeadingNumber has found. Unlike strtod, a stream of its own follows no locale.
double ValueOf(std::string_view pNumber) {
    std::istringstream number{std::string(pNumber)};
    number.imbue(std::locale::classic());
    number.exceptions(std::ios::badbit); // A lack of memory would pass for the number 0.
    double value = 0;
    number >> value;
    if (number.fail() && value == 0) {
        throw std::bad_alloc(); // MinGW's library sets the locale aside, and tells a lack of memory so.
    }
    // One too large gives the largest double, and failure.
    return number.fail() ? std::copysign(std::numeric_limits<double>::infinity(), value) : value;
}

template <typename Whole> std::optional<Whole> Narrowed(double pValue) {
    const double rounded = std::nearbyint(pValue); // the default rounding mode: half to even
    if (!(rounded >= std::numeric_limits<Whole>::min() && rounded <= std::numeric_limits<Whole>::max())) {
        return std::nullopt;
    }
    return static_cast<Whole>(rounded);
}

} // namespace

double Val(std::string_view pText) {
    std::string packed;
    for (const char character : pText) {
        if (character != ' ' && character != '\t') {
            packed += character;
        }
    }
    const std::string_view number = LeadingNumber(packed);
    return number.empty() ? 0 : ValueOf(number);
}

std::optional<std::int16_t> Integer16(double pValue) {
    return Narrowed<std::int16_t>(pValue);
}

std::optional<std::int32_t> Integer32(double pValue) {
    return Narrowed<std::int32_t>(pValue);
}

std::optional<double> WholeNumber(std::string_view pText) {
    const std::string_view number = Trim(pText);
    if (number.empty() || LeadingNumber(number) != number) {
        return std::nullopt;
    }
    return ValueOf(number);
}

std::optional<std::int16_t> WholeTextInteger(std::string_view pText) {
    const std::optional<double> number = WholeNumber(pText);
    return number ? Integer16(*number) : std::nullopt;
}

std::string FormatWhole(double pValue) {
    const double rounded = std::round(pValue); // half away from zero
    if (rounded == 0 || !std::isfinite(rounded)) {
        return "0"; // never "-0"
    }
    char digits[std::numeric_limits<double>::max_exponent10 + 3];
    const auto [end, error] =
        std::to_chars(std::begin(digits), std::end(digits), rounded, std::chars_format::fixed, 0);
    return {digits, end};
}

std::string FormatDigits(int pValue, int pDigits) {
    std::string digits = std::to_string(pValue);
    const auto wanted = static_cast<std::size_t>(pDigits);
    return digits.size() < wanted ? std::string(wanted - digits.size(), '0') + digits : digits;
}

std::string Str(int pValue) {
    return pValue < 0 ? std::to_string(pValue) : " " + std::to_string(pValue);
}
