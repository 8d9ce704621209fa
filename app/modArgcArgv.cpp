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
    int count = 0;
    while (TakeWord(command)) {
        ++count;
    }
    return count;
}

std::string argv(std::string_view pCommand, int pIndex) {
    Cursor command(pCommand);
    for (int index = 1; const std::optional<std::string_view> word = TakeWord(command); ++index) {
        if (index == pIndex) {
            std::string text(*word);
            std::erase(text, '"');
            return text;
        }
    }
    return {};
}

} // namespace modArgcArgv
