#pragma once
/// What the checker has to say about one file: its findings, printed in the order of lines, one a line. Of
/// one sort only the first ones are printed; the others are counted.
#include <array>
#include <cstddef>
#include <iosfwd>
#include <map>
#include <string>
#include <utility>

enum class Kind {
    Lost,    ///< the editor would not show it, or would stop or refuse
    Changed, ///< it would come back different when saved
    Note,    ///< worth knowing, nothing is lost
};

/// What findings are about. Those of one sort are limited together.
enum class Sort {
    LineEnds,
    Separator,
    Size,
    Columns,
    FirstLine,
    BlankLine,
    CommaAtEnd,
    OpenQuote,
    TextAfterQuote,
    CrInQuotes,
    FieldCount,
    Limit,
    Blanks,
    ByteOrderMark,
    Titles,
    NotUtf8,
    Nul,
    NotListed,
    Specification,
    ListFile,
    Entry,
    Copy,
    Count, ///< how many there are
};

class Findings {
public:
    /// pFile is named in front of each finding. In a file that the editor only reads nothing is Changed: that
    /// becomes a Note.
    explicit Findings(std::string pFile, bool pIsSaved = true)
        : myFile(std::move(pFile)), myIsSaved(pIsSaved) {}

    /// Adds a finding of line pLine, from 1. Control characters in pText are shown as question marks.
    void Add(Kind pKind, std::size_t pLine, Sort pSort, const std::string &pText);

    /// How many there are, of one kind or of one sort.
    std::size_t Of(Kind pKind) const { return myOfKind[static_cast<std::size_t>(pKind)]; }
    std::size_t Of(Sort pSort) const { return myFindings[static_cast<std::size_t>(pSort)].count; }

    const std::string &File() const { return myFile; }
    void Print(std::ostream &pTo) const;

private:
    struct Finding {
        Kind kind;
        std::string text;
    };
    struct OfOneSort {
        std::multimap<std::size_t, Finding> first; ///< by line; no more than are printed
        std::size_t count = 0;
    };

    std::string myFile;
    bool myIsSaved;
    std::array<std::size_t, 3> myOfKind{};
    std::array<OfOneSort, static_cast<std::size_t>(Sort::Count)> myFindings;
};

/// "1 line" and "2 lines", of pNoun "line".
std::string Counted(std::size_t pCount, const std::string &pNoun);
