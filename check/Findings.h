#pragma once
/// What the checker has to say about one file: its findings, printed in the order of lines, one a line. Of
/// one fault only the first ones are printed; the others are counted.
#include "check/Faults.h"

#include <array>
#include <iosfwd>
#include <map>
#include <utility>

class Findings {
public:
    /// pFile is named in front of each finding. In a file that the editor only reads nothing is Changed: that
    /// becomes a Note.
    explicit Findings(std::string pFile, bool pIsSaved = true)
        : myFile(std::move(pFile)), myIsSaved(pIsSaved) {}

    /// Adds pFault in line pLine, from 1. pTexts fill the gaps of its words, pRest comes after them. Control
    /// characters are shown as question marks.
    void Add(std::size_t pLine, Fault pFault, std::initializer_list<std::string> pTexts = {},
             const std::string &pRest = "");

    /// How many there are, of one kind or of one fault.
    std::size_t Of(Kind pKind) const { return myOfKind[static_cast<std::size_t>(pKind)]; }
    std::size_t Of(Fault pFault) const { return myFound[static_cast<std::size_t>(pFault)].count; }

    void Print(std::ostream &pTo) const;

private:
    struct OfOneFault {
        std::size_t count = 0;
        std::size_t lastLine = 0; ///< of those kept
    };

    Kind KindOf(Fault pFault) const;

    std::string myFile;
    bool myIsSaved;
    std::array<std::size_t, 3> myOfKind{};
    std::array<OfOneFault, faultCount> myFound;
    /// By line and fault. Findings come in any order: one in a line before those that are kept is kept too.
    std::multimap<std::pair<std::size_t, Fault>, std::string> myTexts;
};
