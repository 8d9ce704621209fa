/// The command text: split into words it is what a second reading of the rules says, and the words that a
/// shell hands over, a NUL between them here, come out again unless one holds a quotation mark.
#include "app/modArgcArgv.h"
#include "fuzz/FuzzSupport.h"

#include <algorithm>

namespace {

std::vector<std::string> OtherWords(std::string_view pCommand) {
    std::vector<std::string> words;
    for (;;) {
        pCommand.remove_prefix(std::min(pCommand.find_first_not_of(' '), pCommand.size()));
        if (pCommand.empty()) {
            return words;
        }
        const bool isQuoted = pCommand.front() == '"';
        pCommand.remove_prefix(isQuoted ? 1 : 0);
        const std::size_t length = std::min(pCommand.find(isQuoted ? '"' : ' '), pCommand.size());
        std::string &word = words.emplace_back(pCommand.substr(0, length));
        std::erase(word, '"');
        pCommand.remove_prefix(std::min(length + 1, pCommand.size()));
    }
}

std::vector<std::string> Split(std::string_view pText) {
    std::vector<std::string> words;
    for (std::size_t end = 0; end != std::string_view::npos; pText.remove_prefix(end + 1)) {
        end = pText.find('\0');
        words.emplace_back(pText.substr(0, end));
        if (end == std::string_view::npos) {
            break;
        }
    }
    return words;
}

void RequireWords(const std::string &pCommand, const std::vector<std::string> &pWords, const char *pLaw) {
    const int count = modArgcArgv::argc(pCommand);
    Require(count == static_cast<int>(pWords.size()), pLaw);
    for (int i = 1; i <= count; ++i) {
        Require(modArgcArgv::argv(pCommand, i) == pWords[static_cast<std::size_t>(i) - 1], pLaw);
    }
    for (const int beyond : {-1, 0, count + 1}) {
        Require(modArgcArgv::argv(pCommand, beyond).empty(), "there are no words but those counted");
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *pBytes, std::size_t pSize) {
    const std::string text(Text(pBytes, pSize));
    RequireWords(text, OtherWords(text), "both readings of the rules give the same words");

    const std::vector<std::string> words = Split(text);
    const std::string command = CommandText(words);
    if (text.find('"') == std::string::npos) {
        RequireWords(command, words, "words without quotation marks come out as they went in");
    } else {
        RequireWords(command, OtherWords(command), "the text that is handed on follows the same rules");
    }
    return 0;
}
