#include "app/modArgcArgv.h"

namespace modArgcArgv {

namespace {

enum class State { BetweenWords, InPlainWord, InQuotedWord };

/// Goes through pCommand and collects its word pWanted, from 1. Both operations stand on this.
struct Scan {
    int words = 0;
    std::string text;

    Scan(std::string_view pCommand, int pWanted) {
        State state = State::BetweenWords;
        for (const char character : pCommand) {
            switch (state) {
            case State::BetweenWords:
                if (character != ' ') {
                    state = character == '"' ? State::InQuotedWord : State::InPlainWord;
                    ++words;
                }
                break;
            case State::InPlainWord:
                if (character == ' ') {
                    state = State::BetweenWords;
                }
                break;
            case State::InQuotedWord:
                if (character == '"') {
                    state = State::BetweenWords;
                }
                break;
            }
            if (state != State::BetweenWords && words == pWanted && character != '"') {
                text += character;
            }
        }
    }
};

} // namespace

int argc(std::string_view pCommand) {
    return Scan(pCommand, 0).words;
}

std::string argv(std::string_view pCommand, int pIndex) {
    return Scan(pCommand, pIndex).text;
}

} // namespace modArgcArgv
