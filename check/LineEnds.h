#pragma once
/// The line ends of a file. To the editor LF alone is none.
#include "check/MeantLines.h"

class Findings;

class LineEnds {
public:
    void Count(const MeantLine &pLine);

    /// Lines that end in LF alone, and the first of them.
    std::size_t LfAlone() const { return myLfAlone; }
    std::size_t FirstLf() const { return myFirstLf; }

    /// Adds what the editor makes of them. The file has pLines lines.
    void Report(Findings &pFindings, std::size_t pLines) const;

private:
    std::size_t myLfAlone = 0;
    std::size_t myFirstLf = 0;
    bool myLastEndsInLf = false;
};
