#include "check/Diagnosis.h"

#include "data/modGetWords.h"
#include "text/Text.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace {

bool HasWords(const std::string &pLine) {
    return modGetWords::GetWords(pLine).Count() > 0;
}

bool IsCellEdge(char pCharacter) {
    return pCharacter == ',' || pCharacter == '\n';
}

/// Whether a blank of pLine stands beside something that may be the end of a cell.
bool MayHaveBlankEnds(std::string_view pLine) {
    if (pLine.empty()) {
        return false;
    }
    const auto isEdge = [](char pCharacter) { return IsCellEdge(pCharacter) || pCharacter == '"'; };
    if (pLine.front() == ' ' || pLine.back() == ' ') {
        return true;
    }
    for (std::size_t at = pLine.find(' '); at != std::string_view::npos; at = pLine.find(' ', at + 1)) {
        if (isEdge(pLine[at - 1]) || isEdge(pLine[at + 1])) {
            return true;
        }
    }
    return false;
}

} // namespace

std::string Counted(long long pCount, const std::string &pWord) {
    return std::to_string(pCount) + " " + pWord + (pCount == 1 ? "" : "s");
}

std::string WhyNoRow(std::string_view pLine, int pCount, int pCols, std::string_view pNext) {
    if (pCount > 0) {
        return "the line has " + Counted(pCount, "field") + ", not " + std::to_string(pCols);
    }
    if (Trim(pLine).empty()) {
        return "the line is blank";
    }
    // The editor's own splitter tells what is missing.
    const std::string line(pLine);
    if (HasWords(line + R"("")")) {
        return Trim(pLine).back() == '\n' ? "LF alone ends the line" : "the line ends in a comma";
    }
    if (HasWords(line + '"')) {
        const bool isClosedNext = std::count(pNext.begin(), pNext.end(), '"') % 2 == 1;
        return isClosedNext ? "a CR stands inside quotes" : "a quote is left open";
    }
    return "text follows a closing quote";
}

std::vector<std::string_view> LinesWithin(std::string_view pLine) {
    std::vector<std::string_view> lines;
    bool isQuoted = false;
    std::size_t from = 0;
    for (std::size_t at = 0; at < pLine.size(); ++at) {
        isQuoted = isQuoted != (pLine[at] == '"');
        if (pLine[at] == '\n' && !isQuoted) {
            lines.push_back(pLine.substr(from, at - from));
            from = at + 1;
        }
    }
    lines.push_back(pLine.substr(from));
    return lines;
}

int CellsWithBlankEnds(std::string_view pLine) {
    if (!MayHaveBlankEnds(pLine)) {
        return 0;
    }
    int cells = 0;
    bool isQuoted = false;
    bool hasBlank = false;
    char before = ','; // the last character that is no blank; the line begins a cell
    bool isAfterBlank = false;
    for (std::size_t at = 0; at < pLine.size(); ++at) {
        const char character = pLine[at];
        if (character == ' ') {
            hasBlank = hasBlank || (!isQuoted && IsCellEdge(before)) || before == '"';
            isAfterBlank = true;
            continue;
        }
        const bool isDoubled = isQuoted && character == '"' && at + 1 < pLine.size() && pLine[at + 1] == '"';
        if (isDoubled) {
            ++at;
            before = 'x'; // It is text.
        } else {
            const bool endsCell = character == '"' ? isQuoted : !isQuoted && IsCellEdge(character);
            hasBlank = hasBlank || (isAfterBlank && endsCell);
            isQuoted = isQuoted != (character == '"');
            before = character;
            if (!isQuoted && IsCellEdge(character)) {
                cells += hasBlank ? 1 : 0;
                hasBlank = false;
            }
        }
        isAfterBlank = false;
    }
    return cells + (hasBlank || isAfterBlank ? 1 : 0);
}

bool IsUtf8(std::string_view pLine) {
    std::size_t at = 0;
    while (at < pLine.size()) {
        constexpr std::uint64_t highBits = 0x8080808080808080;
        std::uint64_t eight = 0;
        if (pLine.size() - at >= sizeof eight) {
            std::memcpy(&eight, pLine.data() + at, sizeof eight);
            if ((eight & highBits) == 0) {
                at += sizeof eight;
                continue;
            }
        }
        const CodePoint character = CodePointAt(pLine, at);
        if (!character.isValid) {
            return false;
        }
        at += character.length;
    }
    return true;
}
