#include "data/modGetWords.h"

#include "platform/Text.h"

namespace modGetWords {

namespace {

enum class State { BetweenWords, InQuotes, BehindQuote, InPlainWord, Malformed };

class Scanner {
public:
    void Take(char pCharacter);
    bool IsMalformed() const { return myState == State::Malformed; }
    std::vector<std::string> Words() &&;

private:
    void Append();
    void BeginWord(char pCharacter);
    void EndQuotedWord(char pCharacter);

    State myState = State::BetweenWords;
    std::vector<std::string> myWords{std::string()};
    std::string myWord;
    /// The last quote and the blanks behind it. Whether they end the word or belong to it is settled by the
    /// character that follows them.
    std::string myPending;
};

void Scanner::Append() {
    if (myWords.size() <= mostWords + 1) {
        myWords.emplace_back(Trim(myWord));
    }
    myWord.clear();
    myPending.clear();
    myState = State::BetweenWords;
}

void Scanner::BeginWord(char pCharacter) {
    switch (pCharacter) {
    case ' ':
        break;
    case '"':
        myState = State::InQuotes;
        break;
    case ',':
        Append();
        break;
    default:
        myWord = pCharacter;
        myState = State::InPlainWord;
    }
}

void Scanner::EndQuotedWord(char pCharacter) {
    switch (pCharacter) {
    case '"':
        // The two quotes are one literal quote of the word, and blanks between them are the word's too.
        myWord += myPending;
        myPending.clear();
        myState = State::InQuotes;
        break;
    case ' ':
        myPending += pCharacter;
        break;
    case ',':
    case '\n':
        Append();
        break;
    default:
        myState = State::Malformed;
    }
}

void Scanner::Take(char pCharacter) {
    switch (myState) {
    case State::BetweenWords:
        BeginWord(pCharacter);
        break;
    case State::InQuotes:
        if (pCharacter == '"') {
            myPending = pCharacter;
            myState = State::BehindQuote;
        } else {
            myWord += pCharacter;
        }
        break;
    case State::BehindQuote:
        EndQuotedWord(pCharacter);
        break;
    case State::InPlainWord:
        if (pCharacter == ',' || pCharacter == '\n') {
            Append();
        } else {
            myWord += pCharacter;
        }
        break;
    case State::Malformed:
        break;
    }
}

std::vector<std::string> Scanner::Words() && {
    return myState == State::BetweenWords ? std::move(myWords) : std::vector<std::string>(1);
}

} // namespace

std::vector<std::string> GetWords(std::string_view pLine) {
    Scanner scanner;
    for (const char character : pLine) {
        scanner.Take(character);
        if (scanner.IsMalformed()) {
            return std::vector<std::string>(1);
        }
    }
    // The last word of a line is closed by a character, as the others are. Between words it opens one that
    // is never closed, which is why a line that ends in a comma has no words.
    scanner.Take('\n');
    return std::move(scanner).Words();
}

} // namespace modGetWords
