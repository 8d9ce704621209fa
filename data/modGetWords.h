#pragma once
/// The words of one line of a table file: fields separated by commas, each with or without double quotes.
/// Both table readers use this module, which knows nothing of files or tables.
#include "text/TextRow.h"

#include <string_view>

namespace modGetWords {

/// No table has more columns than this.
inline constexpr int mostWords = 32767;

/// The words of pLine, a line without its line end. Word j is text j of the row, from 1. A malformed line has
/// no words. Of a line with more than mostWords words the first mostWords + 1 are kept, too many for any
/// table. pRoom can be used again for the next line.
TextRow GetWords(std::string_view pLine, TextRowRoom &pRoom);
inline TextRow GetWords(std::string_view pLine) {
    TextRowRoom room;
    return GetWords(pLine, room);
}

} // namespace modGetWords
