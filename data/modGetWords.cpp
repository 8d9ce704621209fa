#include "data/modGetWords.h"

#include "text/Cursor.h"
#include "text/Text.h"

#include <algorithm>
#include <optional>
#include <string>

namespace modGetWords {

namespace {

/// Whether pCharacter ends a word. The end of the line does so too.
bool EndsWord(char pCharacter) {
    return pCharacter == ',' || pCharacter == '\n';
}

/// Takes the word whose first character is next. An LF there belongs to the word, a comma makes it empty.
std::string_view TakePlainWord(Cursor &pLine) {
    const std::size_t from = pLine.Place();
    pLine.Take('\n');
    pLine.TakeWhile([](char pCharacter) { return !EndsWord(pCharacter); });
    return pLine.PassedSince(from);
}

/// Takes the word whose opening quote has been passed. Null when the line is malformed: the word is not
/// closed, or text follows its closing quote. A word with doubled quotes is put together in pBuffer.
std::optional<std::string_view> TakeQuotedWord(Cursor &pLine, std::string &pBuffer) {
    pBuffer.clear();
    for (;;) {
        const std::string_view part = pLine.TakeUntil('"');
        if (!pLine.Take('"')) {
            return std::nullopt;
        }
        const std::string_view blanks = pLine.TakeBlanks();
        if (pLine.AtEnd() || EndsWord(pLine.Next())) {
            return pBuffer.empty() ? part : pBuffer.append(part);
        }
        if (!pLine.Take('"')) {
            return std::nullopt;
        }
        // The two quotes stand for one, and the blanks between them belong to the word.
        pBuffer.append(part).append(1, '"').append(blanks);
    }
}

} // namespace

TextRow GetWords(std::string_view pLine, TextRowRoom &pRoom) {
    constexpr std::size_t mostKept = mostWords + 1;
    TextRowBuilder words(pRoom, std::min(pLine.size() + 1, mostKept), pLine.size(), pLine);
    Cursor line(pLine);
    std::string buffer;
    for (;;) {
        line.TakeBlanks();
        if (line.AtEnd()) {
            return {}; // An empty last word has to be written as two quotes.
        }
        const auto word = line.Take('"') ? TakeQuotedWord(line, buffer) : TakePlainWord(line);
        if (!word) {
            return {};
        }
        words.Append(Trim(*word));
        if (line.AtEnd()) {
            return words.Row();
        }
        line.Pass();
    }
}

} // namespace modGetWords
