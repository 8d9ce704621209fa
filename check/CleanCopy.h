#pragma once
/// A copy of a table file that the editor takes whole. It is given the records as they were meant, brings
/// them into the form that the editor keeps, has the editor's own table write them, and keeps account of what
/// it changed.
#include "check/Findings.h"
#include "check/WantedColumns.h"
#include "text/TextRow.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

class MeantCells;

class CleanCopy {
public:
    /// What it does to a file. Each is counted in lines.
    enum class Act {
        DropByteOrderMark,
        EndLines,
        Separate,
        Reorder,
        CountRecords,
        LeaveOutBlankLines,
        Fill,
        DropEmptyFields,
        JoinLines,
        DropBlanks,
        Count, ///< how many there are
    };

    /// The copy has the form pFmt, one of clsDatFile's.
    CleanCopy(std::int16_t pFmt, const WantedColumns &pWanted) : myFmt(pFmt), myWanted(pWanted) {}

    /// The number of columns. Call it before the first record; Header does so too. Titles that are too few
    /// get empty ones after them.
    void Cols(std::size_t pCols);
    std::size_t Cols() const { return myCols; }

    /// The titles, in the header line pLine.
    void Header(std::size_t pLine, const MeantCells &pTitles);

    /// The record of line pLine: as pWords, which the editor found there, as many as columns; or as pCells.
    void Record(std::size_t pLine, const TextRow &pWords);
    void Record(std::size_t pLine, const MeantCells &pCells);

    /// Counts pLine among the lines to which pAct was done.
    void Note(Act pAct, std::size_t pLine, std::size_t pLines = 1);

    /// There can be no copy, because of pWhy in line pLine; 0 if it is about no line.
    void Refuse(std::size_t pLine, const std::string &pWhy);
    /// Why there is no copy. Empty if there is, or can be.
    const std::string &Fault() const { return myFault; }

    /// Writes the copy to pFile, which must not exist yet, and reads it back. After a fault there is no such
    /// file.
    void Write(const std::string &pFile);
    /// Adds what was done to the file.
    void Report(Findings &pFindings) const;

    const std::vector<TextRow> &Rows() const { return myRows; }

private:
    struct Done {
        std::size_t firstLine = 0;
        std::size_t lines = 0;
    };

    bool MakeFit(std::size_t pLine, std::vector<std::string> &pCells);
    bool HasRoom(std::size_t pLine);
    bool Fill(const std::string &pFile);
    bool ReadsBack(const std::string &pFile) const;
    TextRow InOrder(const std::vector<std::string> &pCells) const;

    std::int16_t myFmt;
    const WantedColumns &myWanted;
    std::size_t myCols = 0;
    std::vector<std::string> myTitles;
    std::size_t myTitlesLine = 0;     ///< 0 without titles
    std::vector<std::size_t> myOrder; ///< where the copy's columns were; empty when they stay
    std::vector<TextRow> myRows;
    std::array<Done, static_cast<std::size_t>(Act::Count)> myDone;
    std::string myFault;
};
