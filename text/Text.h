#pragma once
/// Texts in memory are UTF-8 in std::string. Bytes that are not UTF-8 may occur, and survive. Texts compare
/// by their bytes unless a function here says otherwise.
#include <cstddef>
#include <string>
#include <string_view>

/// One character of a text, or one byte that belongs to no UTF-8 character.
struct CodePoint {
    char32_t value;     ///< the character, or the byte itself when it is not valid
    std::size_t length; ///< in bytes, 1 to 4
    bool isValid;
};

/// The character that begins at byte pAt (below pText.size()). Overlong forms, surrogates and values above
/// U+10FFFF are not valid UTF-8 (Unicode 15, table 3-7).
CodePoint CodePointAt(std::string_view pText, std::size_t pAt);

/// Appends pCharacter (0 to 0x10FFFF) to pText as UTF-8.
void AppendUtf8(std::string &pText, char32_t pCharacter);

/// pText without the blanks (U+0020 only) at both ends.
inline std::string_view Trim(std::string_view pText) {
    while (!pText.empty() && pText.front() == ' ') {
        pText.remove_prefix(1);
    }
    while (!pText.empty() && pText.back() == ' ') {
        pText.remove_suffix(1);
    }
    return pText;
}

/// pText in lower case, character by character, the same on all systems and in every locale.
std::string LCase(std::string_view pText);

/// Whether LCase gives the same text for both.
bool EqualIgnoringCase(std::string_view pOne, std::string_view pOther);

/// Whether LCase of pText begins with LCase of pStart.
bool BeginsWithIgnoringCase(std::string_view pText, std::string_view pStart);

/// Length of pText in UTF-16 units, which places of the caret count in. A byte that is not UTF-8 is one unit.
/// A longer text than an int can count has the greatest length.
int Utf16Length(std::string_view pText);

/// pText in double quotes for a message: on one line, and cut after 60 bytes.
std::string Quoted(std::string_view pText);

/// An edit has changed the text of a single-line field from pBefore to pAfter. Returns pAfter with the
/// line breaks (CR, LF or CR LF) of the inserted text changed: those at its end are dropped, since a cell
/// copied from a spreadsheet ends in one, and any other becomes a blank. Line breaks of pBefore stay.
std::string WithoutNewLineBreaks(std::string_view pBefore, std::string_view pAfter);
