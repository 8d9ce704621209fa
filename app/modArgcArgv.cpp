#include "app/modArgcArgv.h"

#include "text/Cursor.h"

#include <optional>

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

int argc(std::string_view pCommand) {
    Cursor command(pCommand);
    int words = 0;
    while (TakeWord(command)) {
        ++words;
    }
    return words;
}

std::string argv(std::string_view pCommand, int pIndex) {
    Cursor command(pCommand);
    std::optional<std::string_view> word;
    for (int index = 1; index <= pIndex; ++index) {
        word = TakeWord(command);
    }
    std::string text(word.value_or(""));
    std::erase(text, '"');
    return text;
}

} // namespace modArgcArgv
