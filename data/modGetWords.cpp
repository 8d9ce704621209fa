#include "data/modGetWords.h"

#include "platform/Text.h"

#include <algorithm>

namespace modGetWords {

namespace {

constexpr std::size_t mostKept = std::size_t{mostWords} + 1;

/// Goes through a line in runs of characters that mean the same, not in single ones.
class Splitter {
public:
    explicit Splitter(std::string_view pLine);
    TextRow Words() &&;

private:
    enum class State { BetweenWords, InQuotes, BehindQuote, InPlainWord, Malformed };

    State BetweenWords();
    State InQuotes();
    State BehindQuote();
    State InPlainWord();
    State Append(std::size_t pEnd);
    /// The character at myAt. The line's last word is closed by one, as the others are.
    char Current() const { return myAt < myLine.size() ? myLine[myAt] : '\n'; }

    std::string_view myLine;
    std::size_t myAt = 0;
    std::size_t myFrom = 0;  ///< where the part of the word begins that is not in myParts
    std::size_t myQuote = 0; ///< the quote that ends the word, unless another one follows it
    std::string myParts;     ///< the word as far as its doubled quotes go
    std::string myRun;
    std::vector<std::size_t> myEnds;
};

Splitter::Splitter(std::string_view pLine) : myLine(pLine) {
    const auto commas = static_cast<std::size_t>(std::count(pLine.begin(), pLine.end(), ','));
    myRun.reserve(pLine.size());
    myEnds.reserve(std::min(commas + 1, mostKept));
}

Splitter::State Splitter::Append(std::size_t pEnd) {
    const std::string_view part = myLine.substr(myFrom, pEnd - myFrom);
    if (myEnds.size() < mostKept) {
        myRun += Trim(myParts.empty() ? part : myParts.append(part));
        myEnds.push_back(myRun.size());
    }
    myParts.clear();
    return State::BetweenWords;
}

Splitter::State Splitter::BetweenWords() {
    const char character = Current();
    myFrom = myAt;
    switch (character) {
    case ' ':
        return State::BetweenWords;
    case '"':
        ++myFrom;
        return State::InQuotes;
    case ',':
        return Append(myAt);
    default:
        return State::InPlainWord;
    }
}

Splitter::State Splitter::InQuotes() {
    myAt = std::min(myLine.find('"', myAt), myLine.size());
    myQuote = myAt;
    return myAt < myLine.size() ? State::BehindQuote : State::Malformed;
}

Splitter::State Splitter::BehindQuote() {
    switch (Current()) {
    case '"':
        // The two quotes are one literal quote of the word, and blanks between them are the word's too.
        myParts += myLine.substr(myFrom, myAt - myFrom);
        myFrom = myAt + 1;
        return State::InQuotes;
    case ' ':
        return State::BehindQuote;
    case ',':
    case '\n':
        return Append(myQuote);
    default:
        return State::Malformed;
    }
}

Splitter::State Splitter::InPlainWord() {
    while (Current() != ',' && Current() != '\n') {
        ++myAt;
    }
    return Append(myAt);
}

TextRow Splitter::Words() && {
    State state = State::BetweenWords;
    for (; myAt <= myLine.size(); ++myAt) {
        switch (state) {
        case State::BetweenWords:
            state = BetweenWords();
            break;
        case State::InQuotes:
            state = InQuotes();
            break;
        case State::BehindQuote:
            state = BehindQuote();
            break;
        case State::InPlainWord:
            state = InPlainWord();
            break;
        case State::Malformed:
            return {};
        }
    }
    // Between words the character behind the line opens a word that is never closed, which is why a line that
    // ends in a comma has no words.
    return state == State::BetweenWords ? TextRow(myRun, myEnds) : TextRow();
}

} // namespace

TextRow GetWords(std::string_view pLine) {
    return Splitter(pLine).Words();
}

} // namespace modGetWords
