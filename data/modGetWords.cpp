#include "data/modGetWords.h"

#include "text/Cursor.h"

#include <algorithm>

namespace modGetWords {

namespace {

/// Whether pCharacter ends a word. The end of the line does so too.
bool EndsWord(char pCharacter) {
    return pCharacter == ',' || pCharacter == '\n';
}

/// Takes the word that begins at the next character. If that is an LF, it belongs to the word; if it is a
/// comma, the word is empty.
void TakePlainWord(Cursor &pLine, TextRowBuilder &pWords) {
    const std::size_t from = pLine.Position();
    pLine.Take('\n');
    pLine.TakeWhile([](char pCharacter) { return !EndsWord(pCharacter); });
    pWords.AddPart(pLine.PassedSince(from));
}

/// Takes the word whose opening quote has been passed. False when the line is malformed: the word is not
/// closed, or text follows its closing quote.
bool TakeQuotedWord(Cursor &pLine, TextRowBuilder &pWords) {
    pLine.TakeBlanks(); // No word begins with a blank.
    for (;;) {
        const std::size_t from = pLine.Position();
        const std::string_view part = pLine.TakeUntil('"');
        if (pLine.AtEnd()) {
            return false;
        }
        pLine.Pass();
        pLine.TakeBlanks();
        if (pLine.AtEnd() || EndsWord(pLine.Next())) {
            pWords.AddPart(part);
            return true;
        }
        // Two quotes stand for one, even with blanks between them. Those blanks belong to the word.
        pWords.AddPart(pLine.PassedSince(from));
        if (!pLine.Take('"')) {
            return false;
        }
    }
}

/// Takes the next word, quoted or plain. False when the line makes no sense from here on.
bool TakeWord(Cursor &pLine, TextRowBuilder &pWords) {
    pLine.TakeBlanks();
    if (pLine.AtEnd()) {
        return false; // An empty last word has to be written as two quotes.
    }
    if (pLine.Take('"')) {
        return TakeQuotedWord(pLine, pWords);
    }
    TakePlainWord(pLine, pWords);
    return true;
}

} // namespace

TextRow GetWords(std::string_view pLine, TextRowRoom &pRoom) {
    constexpr std::size_t mostKept = mostWords + 1;
    TextRowBuilder words(pRoom, std::min(pLine.size() + 1, mostKept), pLine.size(), pLine);
    Cursor line(pLine);
    while (TakeWord(line, words)) {
        words.DropBlanksAtEnd();
        words.EndText();
        if (line.AtEnd()) {
            return words.Row();
        }
        line.Pass(); // The comma or LF that ended the word.
    }
    return {};
}

} // namespace modGetWords
