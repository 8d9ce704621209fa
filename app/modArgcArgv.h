#pragma once
/// The words of the command text. Only blanks separate words. A quotation mark at the start of a word makes
/// it a quoted word, which ends at the next quotation mark. Any other quotation mark is dropped; there is no
/// escape.
#include <string>
#include <string_view>

namespace modArgcArgv {

/// The number of words in pCommand.
int argc(std::string_view pCommand);

/// Word pIndex of pCommand, from 1; empty if there is no such word.
std::string argv(std::string_view pCommand, int pIndex);

} // namespace modArgcArgv
