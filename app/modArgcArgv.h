#pragma once
/// The words of the command text. Only the blank separates words; a quotation mark at a word's start makes a
/// quoted word that ends at the next one, any other is dropped. There is no escape for it.
#include <string>
#include <string_view>

namespace modArgcArgv {

/// How many words pCommand holds.
int argc(std::string_view pCommand);

/// Word pIndex of pCommand, from 1; empty when there is no such word.
std::string argv(std::string_view pCommand, int pIndex);

} // namespace modArgcArgv
