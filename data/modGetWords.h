#pragma once
/// The words of one line of a table file: fields separated by commas, any of them in double quotes. Both
/// table readers use it; it knows nothing of files or tables.
#include "text/TextRow.h"

#include <string_view>

namespace modGetWords {

/// No table has more columns than this.
inline constexpr int mostWords = 32767;

/// The words of pLine, which is given without its line end; word j is text j of the row, from 1. A line that
/// makes no sense has no words. Of a line of more than mostWords words it keeps one more than that, which
/// fits no table. pRoom can serve line after line.
TextRow GetWords(std::string_view pLine, TextRowRoom &pRoom);
inline TextRow GetWords(std::string_view pLine) {
    TextRowRoom room;
    return GetWords(pLine, room);
}

} // namespace modGetWords
