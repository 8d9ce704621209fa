#include "data/modGetWords.h"

#include "platform/Text.h"

#include <algorithm>

namespace modGetWords {

namespace {

constexpr std::size_t mostKept = std::size_t{mostWords} + 1;

enum class State { BetweenWords, InQuotes, BehindQuote, InPlainWord };

bool EndsWord(char pCharacter) {
    return pCharacter == ',' || pCharacter == '\n';
}

} // namespace

TextRow GetWords(std::string_view pLine, TextRowRoom &pRoom) {
    const char *const end = pLine.data() + pLine.size();
    const char *from = nullptr;  // where the word begins, or the part of it behind its last doubled quote
    const char *quote = nullptr; // the quote that ends the word, unless another one follows it
    std::string parts;           // the word up to its last doubled quote
    State state = State::BetweenWords;
    pRoom.Reserve(pLine.size(), std::min(pLine.size(), mostKept) + 1);
    char *const run = pRoom.run.data();
    char *runEnd = run;
    std::size_t *const ends = pRoom.ends.data();
    std::size_t count = 0;
    for (const char *at = pLine.data(); at <= end; ++at) {
        // The last word of a line is closed by a character, as the others are.
        const char character = at < end ? *at : '\n';
        const char *wordEnd = nullptr;
        switch (state) {
        case State::BetweenWords:
            from = at;
            if (character == '"') {
                ++from;
                state = State::InQuotes;
            } else if (character == ',') {
                wordEnd = at;
            } else if (character != ' ') {
                state = State::InPlainWord;
            }
            break;
        case State::InQuotes: // Whatever stands there, up to the next quote.
            at = static_cast<const char *>(std::memchr(at, '"', static_cast<std::size_t>(end - at)));
            if (at == nullptr) {
                return {};
            }
            quote = at;
            state = State::BehindQuote;
            break;
        case State::BehindQuote:
            if (EndsWord(character)) {
                wordEnd = quote;
            } else if (character == '"') {
                // The two quotes are one literal quote of the word, and blanks between them are the word's
                // too.
                parts.append(from, at);
                from = at + 1;
                state = State::InQuotes;
            } else if (character != ' ') {
                return {};
            }
            break;
        case State::InPlainWord:
            if (EndsWord(character)) {
                wordEnd = at;
            }
            break;
        }
        if (wordEnd == nullptr) {
            continue;
        }
        state = State::BetweenWords;
        if (count == mostKept) {
            continue;
        }
        const std::string_view part(from, static_cast<std::size_t>(wordEnd - from));
        if (parts.empty()) {
            runEnd = CopyText(Trim(part), end, runEnd);
        } else {
            parts += part;
            runEnd = CopyText(Trim(parts), parts.data() + parts.size(), runEnd);
            parts.clear();
        }
        ends[count++] = static_cast<std::size_t>(runEnd - run);
    }
    // Between words the character behind the line opens a word that is never closed, which is why a line that
    // ends in a comma has no words.
    return state == State::BetweenWords ? TextRow({run, runEnd}, {ends, count}) : TextRow();
}

} // namespace modGetWords
