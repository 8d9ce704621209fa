#include "data/modGetWords.h"

#include "text/Text.h"

#include <algorithm>

namespace modGetWords {

namespace {

constexpr std::size_t mostKept = std::size_t{mostWords} + 1;

enum class State { BetweenWords, InQuotes, BehindQuote, InPlainWord };

bool EndsWord(char pCharacter) {
    return pCharacter == ',' || pCharacter == '\n';
}

/// The words that a line has given so far.
class Words {
public:
    Words(std::string_view pLine, TextRowRoom &pRoom) {
        pRoom.Reserve(pLine.size(), std::min(pLine.size(), mostKept) + 1);
        myRun = pRoom.run.data();
        myRunEnd = myRun;
        myEnds = pRoom.ends.data();
    }

    /// Adds pWord, behind which memory can be read up to pReadableEnd.
    void Append(std::string_view pWord, const char *pReadableEnd) {
        if (myCount < mostKept) {
            myRunEnd = CopyText(Trim(pWord), pReadableEnd, myRunEnd);
            myEnds[myCount++] = static_cast<TextRow::Place>(myRunEnd - myRun);
        }
    }

    TextRow Row() const { return TextRow({myRun, myRunEnd}, {myEnds, myCount}); }

private:
    char *myRun;
    char *myRunEnd;
    TextRow::Place *myEnds;
    std::size_t myCount = 0;
};

} // namespace

TextRow GetWords(std::string_view pLine, TextRowRoom &pRoom) {
    const char *const end = pLine.data() + pLine.size();
    // The last word of a line is closed by a character, as the others are.
    const auto characterAt = [&](const char *pAt) { return pAt < end ? *pAt : '\n'; };
    const char *from = nullptr;  // where the word begins, or the part of it behind its last doubled quote
    const char *quote = nullptr; // the quote that ends the word, unless another one follows it
    std::string parts;           // the word up to its last doubled quote
    Words words(pLine, pRoom);
    State state = State::BetweenWords;
    for (const char *at = pLine.data(); at <= end; ++at) {
        char character = characterAt(at);
        const char *wordEnd = nullptr;
        switch (state) {
        case State::BetweenWords:
            from = at;
            if (character == ',') {
                wordEnd = at;
                break;
            }
            if (character != '"') {
                state = character == ' ' ? State::BetweenWords : State::InPlainWord;
                break;
            }
            from = ++at;
            [[fallthrough]];
        case State::InQuotes: // Whatever stands there, up to the next quote.
            quote = static_cast<const char *>(std::memchr(at, '"', static_cast<std::size_t>(end - at)));
            if (quote == nullptr) {
                return {};
            }
            at = quote + 1;
            character = characterAt(at);
            state = State::BehindQuote;
            [[fallthrough]];
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
        if (parts.empty()) {
            words.Append({from, wordEnd}, end);
        } else {
            parts.append(from, wordEnd);
            words.Append(parts, parts.data() + parts.size());
            parts.clear();
        }
    }
    // Between words the character behind the line opens a word that is never closed, which is why a line that
    // ends in a comma has no words.
    return state == State::BetweenWords ? words.Row() : TextRow();
}

} // namespace modGetWords
