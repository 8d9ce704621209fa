#pragma once
/// Why a line is not a row of the table, and what else about its bytes its writer may not know.
#include <string>
#include <string_view>
#include <vector>

/// The reason why pLine, which has pCount words, does not fit a table of pCols columns. pNext is the line
/// after it.
std::string WhyNoRow(std::string_view pLine, int pCount, int pCols, std::string_view pNext);

/// The lines that pLine would be if LF ended lines outside quotes: itself alone if it has none there.
std::vector<std::string_view> LinesWithin(std::string_view pLine);

/// How many cells of pLine have blanks at their ends.
int CellsWithBlankEnds(std::string_view pLine);

/// Whether all of pLine is valid UTF-8.
bool IsUtf8(std::string_view pLine);

/// pCount and the word, with an "s" unless it is one.
std::string Counted(long long pCount, const std::string &pWord);
