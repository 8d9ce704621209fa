#pragma once
/// A table of strings in memory with its file name and format, and the only way in which a table file is read
/// or written. A fault of a file is left to be read here; saying it to the user is the caller's.
#include "text/TextRow.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

class Runtime;
class TextInput;
class TextOutput;

class clsDatFile {
public:
    static constexpr int mostRows = 32767;

    /// What went wrong with the file at the last Load or Save.
    struct Fault {
        enum class Kind {
            None,
            NotRead,   ///< nothing of it could be taken in
            WrongSize, ///< its first line promises more than there is, or more than a table can hold
            NotSaved
        };
        Kind kind = Kind::None;
        std::string text; ///< for the user, with the file's name and the reason
    };

    explicit clsDatFile(const Runtime &pRuntime) : myRuntime(pRuntime) {}

    void FileName(std::string fn) { myFn = std::move(fn); }
    const std::string &FileName() const { return myFn; }

    /// Whether the file name is set and Dir finds that file.
    bool Exists() const;

    /// 0 the .dat form, 1 CSV, 2 CSV with a header line. With any other value Load and Save do nothing.
    void Fmt(std::int16_t pFmt) { myFmt = pFmt; }
    /// "csv" for the two CSV forms, else "dat".
    std::string FileType() const;

    /// The titles for the header line of format 2, in any number.
    void Headers(std::vector<std::string> pHeaders) { myHeaders = std::move(pHeaders); }

    /// The size, apart from the storage: only Clear and Load make storage of it. Setting a value below 1
    /// shows a message and ends the program.
    void Rows(std::int16_t n);
    std::int16_t Rows() const { return myRows; }
    void Cols(std::int16_t n);
    std::int16_t Cols() const { return myCols; }

    /// A cell, row and column from 0. One that is not valid or has no storage reads empty and stores nothing.
    void Data(std::int16_t pRow, std::int16_t pCol, const std::string &pValue);
    std::string Data(std::int16_t pRow, std::int16_t pCol) const;

    /// All cells of a row (from 0) at once, column c at place c + 1; those at the end that are empty may be
    /// missing. A row that is not valid or has no storage reads empty and stores nothing.
    void Row(std::int16_t pRow, TextRow pCells);
    TextRow Row(std::int16_t pRow) const;

    /// Column x from row 0 to the last; all empty when x is no column.
    std::vector<std::string> Col(std::int16_t x) const;

    /// Swaps row pRow with the one above; nothing when pRow is not in 1 to Rows() - 1.
    void MoveRowUp(std::int16_t pRow);

    /// Fresh storage for Rows() by Cols() empty cells.
    void Clear();

    /// Replaces size and cells from the file, which has to exist. Ends the program, after a message, when no
    /// file name is set or when the first row of a CSV file has no words.
    void Load();

    /// Writes the table to the file; nothing when no file name is set.
    void Save();

    const Fault &LastFault() const { return myFault; }

private:
    void LoadDat();
    void LoadCsv(bool pHasHeaders);
    void SaveDat();
    void SaveCsv(bool pHasHeaders);
    /// Puts pField to pTo in the form that it has on disk, and returns the end of it. There has to be room
    /// for shortTextBytes more than that form has.
    static char *Quote(std::string_view pField, bool pHasQuotes, const char *pReadableEnd, char *pTo);

    void StopWithoutFileName() const;
    bool TakeFaultOf(const TextInput &pFile);
    void TakeSizeFrom(TextInput &pFile);
    void TakeAnnouncedRowsFrom(TextInput &pFile);
    void TakeRowsUpToARaggedOne(TextInput &pFile);
    void EmptyTable(int pCols);
    void Refuse(Fault::Kind pKind, const std::string &pText);

    std::size_t MostLineBytes(const TextRow &pTitles) const;
    void PrintRow(TextOutput &pFile, const TextRow &pCells) const;
    void PrintRows(TextOutput &pFile) const;
    void Finish(TextOutput &pFile);

    bool IsStored(int pRow, int pCol) const;

    const Runtime &myRuntime;
    std::string myFn;
    std::int16_t myFmt = 0;
    std::int16_t myRows = 0;
    std::int16_t myCols = 0;
    std::vector<std::string> myHeaders;
    /// The storage: an entry for each of its rows, with cells only as far as they were written, so that a
    /// large announced size costs nothing. Its width is myStoredCols.
    std::vector<TextRow> myData;
    std::int16_t myStoredCols = 0;
    Fault myFault;
};
