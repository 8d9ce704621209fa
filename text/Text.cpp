#include "text/Text.h"

#include "text/CaseTable.h"
#include "text/Difference.h"

#include <algorithm>
#include <limits>

namespace {

constexpr CodePoint SingleByte(unsigned char pByte, bool pIsValid) {
    return {pByte, 1, pIsValid};
}

/// Length in bytes of a character that begins with pLead; 0 if no character does.
std::size_t LengthByLead(unsigned char pLead) {
    if (pLead < 0x80) {
        return 1;
    }
    if (pLead >= 0xC2 && pLead <= 0xDF) {
        return 2;
    }
    if (pLead >= 0xE0 && pLead <= 0xEF) {
        return 3;
    }
    return pLead >= 0xF0 && pLead <= 0xF4 ? 4 : 0;
}

/// pCodePoint in lower case. A stray byte has no case.
char32_t Folded(const CodePoint &pCodePoint) {
    if (pCodePoint.value < 0x80) {
        const bool isCapital = pCodePoint.value >= U'A' && pCodePoint.value <= U'Z';
        return isCapital ? pCodePoint.value + (U'a' - U'A') : pCodePoint.value;
    }
    return pCodePoint.isValid ? LowerCase(pCodePoint.value) : pCodePoint.value;
}

/// Whether two characters differ in case at most. A stray byte never equals the character of the same number.
bool SameIgnoringCase(const CodePoint &pOne, const CodePoint &pOther) {
    return pOne.isValid == pOther.isValid && Folded(pOne) == Folded(pOther);
}

struct Comparison {
    bool isStartOf;  ///< pText begins with pStart
    std::size_t end; ///< where in pText the match ends
};

Comparison MatchStart(std::string_view pText, std::string_view pStart) {
    std::size_t at = 0;
    for (std::size_t from = 0; from < pStart.size();) {
        if (at >= pText.size()) {
            return {false, at};
        }
        const CodePoint wanted = CodePointAt(pStart, from);
        const CodePoint found = CodePointAt(pText, at);
        if (!SameIgnoringCase(wanted, found)) {
            return {false, at};
        }
        from += wanted.length;
        at += found.length;
    }
    return {true, at};
}

bool IsLineBreak(char pCharacter) {
    return pCharacter == '\r' || pCharacter == '\n';
}

} // namespace

CodePoint CodePointAt(std::string_view pText, std::size_t pAt) {
    const auto byteAt = [&](std::size_t pIndex) { return static_cast<unsigned char>(pText[pIndex]); };
    const unsigned char lead = byteAt(pAt);
    const std::size_t length = LengthByLead(lead);
    if (length == 1) {
        return SingleByte(lead, true);
    }
    if (length == 0 || pAt + length > pText.size()) {
        return SingleByte(lead, false);
    }
    char32_t value = lead & (0xFFU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
        if ((byteAt(pAt + i) & 0xC0U) != 0x80U) {
            return SingleByte(lead, false);
        }
        value = (value << 6U) | (byteAt(pAt + i) & 0x3FU);
    }
    const bool isOverlong = (length == 3 && value < 0x800) || (length == 4 && value < 0x10000);
    const bool isSurrogate = value >= 0xD800 && value <= 0xDFFF;
    if (isOverlong || isSurrogate || value > 0x10FFFF) {
        return SingleByte(lead, false);
    }
    return {value, length, true};
}

void AppendUtf8(std::string &pText, char32_t pCharacter) {
    const auto tail = [&](unsigned pShift) {
        return static_cast<char>(0x80U | ((pCharacter >> pShift) & 0x3FU));
    };
    if (pCharacter < 0x80) {
        pText += static_cast<char>(pCharacter);
    } else if (pCharacter < 0x800) {
        pText += {static_cast<char>(0xC0U | (pCharacter >> 6U)), tail(0)};
    } else if (pCharacter < 0x10000) {
        pText += {static_cast<char>(0xE0U | (pCharacter >> 12U)), tail(6), tail(0)};
    } else {
        pText += {static_cast<char>(0xF0U | (pCharacter >> 18U)), tail(12), tail(6), tail(0)};
    }
}

std::string LCase(std::string_view pText) {
    std::string lower;
    lower.reserve(pText.size());
    for (std::size_t at = 0; at < pText.size();) {
        const CodePoint character = CodePointAt(pText, at);
        if (character.isValid) {
            AppendUtf8(lower, Folded(character));
        } else {
            lower += pText[at];
        }
        at += character.length;
    }
    return lower;
}

bool EqualIgnoringCase(std::string_view pOne, std::string_view pOther) {
    const Comparison match = MatchStart(pOne, pOther);
    return match.isStartOf && match.end == pOne.size();
}

bool BeginsWithIgnoringCase(std::string_view pText, std::string_view pStart) {
    return MatchStart(pText, pStart).isStartOf;
}

int Utf16Length(std::string_view pText) {
    std::size_t units = 0;
    for (std::size_t at = 0; at < pText.size();) {
        const CodePoint character = CodePointAt(pText, at);
        units += character.length == 4 ? 2 : 1;
        at += character.length;
    }
    constexpr int most = std::numeric_limits<int>::max();
    return units < static_cast<std::size_t>(most) ? static_cast<int>(units) : most;
}

std::string WithoutNewLineBreaks(std::string_view pBefore, std::string_view pAfter) {
    if (std::none_of(pAfter.begin(), pAfter.end(), IsLineBreak)) {
        return std::string(pAfter);
    }
    const Difference edit = DifferenceBetween(pBefore, pAfter);
    std::string text(pAfter.substr(0, edit.start));
    std::size_t end = edit.start + edit.after;
    const std::string_view kept = pAfter.substr(end);
    while (end > edit.start && IsLineBreak(pAfter[end - 1])) {
        --end;
    }
    for (std::size_t at = edit.start; at < end; ++at) {
        const bool isPair = pAfter[at] == '\r' && at + 1 < end && pAfter[at + 1] == '\n';
        at += isPair ? 1 : 0;
        text += IsLineBreak(pAfter[at]) ? ' ' : pAfter[at];
    }
    text += kept;
    return text;
}

std::string Quoted(std::string_view pText) {
    constexpr std::size_t mostBytes = 60;
    const std::string text = WithoutNewLineBreaks("", pText.substr(0, mostBytes));
    return '"' + text + (pText.size() > mostBytes ? "...\"" : "\"");
}
