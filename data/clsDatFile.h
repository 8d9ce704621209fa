#pragma once
/// A table of strings in memory with its file name and format. Table files are read and written only here. A
/// fault of the file is kept for the caller, who reports it to the user. Only a mistake of the caller, or a
/// CSV file without a usable first row, makes the table itself show a message and end the program.
#include "text/TextRow.h"

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

class TextInput;
class TextOutput;

class clsDatFile {
public:
    static constexpr int mostRows = 32767;

    // The formats of a table file.
    static constexpr std::int16_t fmtDat = 0;            ///< a line of counts, then rows
    static constexpr std::int16_t fmtCsv = 1;            ///< rows alone
    static constexpr std::int16_t fmtCsvWithHeaders = 2; ///< a header line, then rows

    /// Shows a text to the user and ends the program. It must not return.
    using Stopper = std::function<void(std::string_view pText)>;

    explicit clsDatFile(Stopper pStop) : myStop(std::move(pStop)) {}

    /// Names the file of the next Load or Save. A fault of it can then be told without further memory. Throws
    /// std::bad_alloc, and the name stays as it was, if there is none for that now.
    void FileName(std::string fn);
    const std::string &FileName() const { return myFn; }

    /// Whether the file name is set and Dir finds that file.
    bool Exists() const;

    /// One of the formats above. With any other value Load and Save do nothing.
    void Fmt(std::int16_t pFmt) { myFmt = pFmt; }
    /// "csv" for the two CSV formats, else "dat".
    std::string FileType() const;

    /// The titles for the header line. There may be more or fewer of them than columns.
    void Headers(std::vector<std::string> pHeaders) { myHeaders = std::move(pHeaders); }

    /// The size of the table. Setting it makes no cells: only Clear and Load do. Setting a value below 1
    /// shows a message and ends the program.
    void Rows(std::int16_t n);
    std::int16_t Rows() const { return myRows; }
    void Cols(std::int16_t n);
    std::int16_t Cols() const { return myCols; }

    /// A cell, by row and column from 0. One that is outside the table, or that Rows and Cols have only
    /// announced, reads as empty and ignores writes.
    void Data(std::int16_t pRow, std::int16_t pCol, const std::string &pValue);
    std::string Data(std::int16_t pRow, std::int16_t pCol) const;

    /// All cells of a row (from 0) at once, column c as text c + 1. Empty cells at the end may be missing. A
    /// row outside the table, or only announced, reads as empty and ignores writes.
    void Row(std::int16_t pRow, TextRow pCells);
    TextRow Row(std::int16_t pRow) const;

    /// Column x from row 0 to the last. All its texts are empty if there is no such column.
    std::vector<std::string> Col(std::int16_t x) const;

    /// Swaps the cells of row pRow, from 1 to Rows() - 1, with those of the row above, in the columns from 0
    /// to Cols() - 1. Ignores any other number.
    void MoveRowUp(std::int16_t pRow);

    /// Makes Rows() by Cols() empty cells, in place of all that there are.
    void Clear();

    /// Replaces the size and the cells with those of the file, which must exist. Ends the program, after a
    /// message, when no file name is set or when the first row of a CSV file has no words.
    void Load();

    /// Writes the table to the file. Does nothing if no file name is set.
    void Save();

    /// What went wrong with the file at the last Load or Save, in a sentence for the user that names the
    /// file. Empty when nothing did.
    const std::string &Fault() const { return myFault; }
    /// The cause of that fault alone: the system's reason, such as "File too large", or what is wrong in the
    /// file, to be read after its name, such as "is too short. It ...".
    const std::string &Cause() const { return myCause; }
    /// Whether the last Load could read the file. If not, the table is empty. If so, any fault concerns the
    /// number of records: the file holds fewer than its first line announces, or that line announces no
    /// number that can be used.
    bool WasRead() const { return myWasRead; }
    /// Leaves the file unread after all, for want of memory: there was none to take over what it holds. Needs
    /// none itself.
    void GiveUpLoading();

private:
    void LoadDat();
    void LoadCsv(bool pHasHeaders);
    void SaveDat();
    void SaveCsv(bool pHasHeaders);

    [[noreturn]] void Stop(const std::string &pText) const;
    void StopWithoutFileName() const;
    bool KeepFaultOf(const TextInput &pFile);
    void ReadSizeFrom(TextInput &pFile);
    void ReadAnnouncedRowsFrom(TextInput &pFile);
    void ReadRowsUpToARaggedOne(TextInput &pFile);
    void EmptyTable(int pCols);
    using Pieces = std::initializer_list<std::string_view>;
    void LeaveUnread(std::string_view pBefore, Pieces pCause, std::string_view pAfter = "");
    void KeepFault(std::string_view pBefore, Pieces pCause, Pieces pAfter = {});

    std::size_t MostLineBytes(const TextRow &pTitles) const;
    void PrintRow(TextOutput &pFile, const TextRow &pCells) const;
    void PrintRows(TextOutput &pFile) const;
    void Finish(TextOutput &pFile);

    bool HasFormat() const;
    bool IsStored(int pRow, int pCol) const;

    Stopper myStop;
    std::string myFn;
    std::int16_t myFmt = fmtDat;
    std::int16_t myRows = 0;
    std::int16_t myCols = 0;
    std::vector<std::string> myHeaders;
    /// The cells, one entry for each row. An entry holds only the cells that were written, so a large
    /// announced size costs nothing. myStoredCols is how many cells a row has.
    std::vector<TextRow> myData;
    std::int16_t myStoredCols = 0;
    std::string myFault;
    std::string myCause;
    bool myWasRead = true;
};
