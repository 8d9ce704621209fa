#pragma once
/// The words of one line of a table file: fields separated by commas, any of them in double quotes. Both
/// table readers use it; it knows nothing of files or tables.
#include <string>
#include <string_view>
#include <vector>

namespace modGetWords {

/// No table has more columns than this.
inline constexpr std::size_t mostWords = 32767;

/// The words of pLine (given without its line end) in elements 1 and up; element 0 is not used and stays
/// empty, so that the highest index is the number of words. A line that makes no sense gives no words. Of a
/// line of more than mostWords words one more than that is kept, which fits no table.
std::vector<std::string> GetWords(std::string_view pLine);

} // namespace modGetWords
