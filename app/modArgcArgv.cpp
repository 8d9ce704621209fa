#include "app/modArgcArgv.h"

#include "text/Cursor.h"

#include <optional>
#include <utility>

namespace modArgcArgv {

namespace {

/// Takes the next word, without its enclosing quotation marks; null when there is no further word.
std::optional<std::string_view> TakeWord(Cursor &pCommand) {
    pCommand.TakeBlanks();
    if (pCommand.AtEnd()) {
        return std::nullopt;
    }
    if (!pCommand.Take('"')) {
        return pCommand.TakeUntil(' ');
    }
    const std::string_view word = pCommand.TakeUntil('"');
    pCommand.Take('"');
    return word;
}

} // namespace

std::vector<std::string> Words(std::string_view pCommand) {
    Cursor command(pCommand);
    std::vector<std::string> words;
    while (const std::optional<std::string_view> word = TakeWord(command)) {
        std::erase(words.emplace_back(*word), '"');
    }
    return words;
}

int argc(std::string_view pCommand) {
    return static_cast<int>(Words(pCommand).size());
}

std::string argv(std::string_view pCommand, int pIndex) {
    const std::vector<std::string> words = Words(pCommand);
    const bool isThere = pIndex >= 1 && std::cmp_less_equal(pIndex, words.size());
    return isThere ? words[static_cast<std::size_t>(pIndex - 1)] : std::string();
}

} // namespace modArgcArgv
