/// The command text. A second implementation of the rules splits it into the same words. Words from a shell
/// (here with a NUL between them) come out as they went in, unless one of them holds a quotation mark.
#include "app/modArgcArgv.h"
#include "forms/Runtime.h"
#include "fuzz/FuzzSupport.h"

#include <algorithm>
#include <sstream>

namespace {

Words OtherWords(std::string_view pCommand) {
    Words words;
    std::size_t at = pCommand.find_first_not_of(' ');
    while (at != std::string_view::npos) {
        const bool isQuoted = pCommand[at] == '"';
        const std::size_t from = isQuoted ? at + 1 : at;
        const std::size_t end = std::min(pCommand.find(isQuoted ? '"' : ' ', from), pCommand.size());
        std::erase(words.emplace_back(pCommand.substr(from, end - from)), '"');
        at = pCommand.find_first_not_of(' ', end + 1);
    }
    return words;
}

/// The words between the NULs of pText.
Words WordsOfShell(const std::string &pText) {
    Words words;
    std::istringstream text(pText + '\0');
    for (std::string word; std::getline(text, word, '\0');) {
        words.push_back(word);
    }
    return words;
}

Words ProgramsWords(const std::string &pCommand) {
    const int count = modArgcArgv::argc(pCommand);
    for (const int beyond : {-1, 0, count + 1}) {
        Require(modArgcArgv::argv(pCommand, beyond).empty(), "only the words that are counted exist");
    }
    Words words;
    for (int i = 1; i <= count; ++i) {
        words.push_back(modArgcArgv::argv(pCommand, i));
    }
    return words;
}

} // namespace

void RequireLaws(std::string_view pBytes) {
    const std::string text(pBytes);
    Require(ProgramsWords(text) == OtherWords(text), "both readings of the rules give the same words");

    const Words words = WordsOfShell(text);
    const std::string command = CommandText(words);
    Require(ProgramsWords(command) == OtherWords(command), "a shell's words follow the same rules");
    Require(text.find('"') != std::string::npos || ProgramsWords(command) == words,
            "words without quotation marks come out as they went in");
}
