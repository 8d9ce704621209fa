#include "check/Copy.h"

#include "check/DataCheck.h"
#include "check/Diagnosis.h"
#include "check/Silence.h"
#include "check/SpecCheck.h"
#include "data/modGetWords.h"
#include "text/Files.h"
#include "text/Numbers.h"
#include "text/Text.h"

#include <algorithm>
#include <cstdio>
#include <utility>

namespace {

std::string BytesOf(const std::string &pFile) {
    constexpr std::size_t blockBytes = std::size_t{1} << 20U;
    os::FileReader file(pFile);
    std::string bytes;
    std::size_t count = 0;
    do {
        const std::size_t size = bytes.size();
        bytes.resize(size + blockBytes);
        count = file.Read(bytes.data() + size, blockBytes);
        bytes.resize(size + count);
    } while (count > 0);
    return bytes;
}

/// Whether pRow is the line of counts that begins the .dat form.
bool IsCounts(const TextRow &pRow) {
    return pRow.Count() == 2 && WholeNumber(pRow(1)) && WholeNumber(pRow(2));
}

std::size_t LinesBeforeRecords(const MeantTable &pTable, std::int16_t pFmt) {
    const bool hasHead =
        pFmt == clsDatFile::fmtCsvWithHeaders ||
        (pFmt == clsDatFile::fmtDat && !pTable.Records().empty() && IsCounts(pTable.Records()[0]));
    return hasHead && !pTable.Records().empty() ? 1 : 0;
}

std::vector<std::string> TextsOf(const TextRow &pRow) {
    std::vector<std::string> texts;
    for (int place = 1; place <= pRow.Count(); ++place) {
        texts.emplace_back(pRow(place));
    }
    return texts;
}

/// Whether both rows have the same texts in pCols columns. Missing ones are empty.
bool AreEqual(const TextRow &pOne, const TextRow &pOther, int pCols) {
    if (pOne.Count() == pOther.Count() && pOne.Count() == pCols) {
        return pOne.Run() == pOther.Run() && std::ranges::equal(pOne.Ends(), pOther.Ends());
    }
    for (int place = 1; place <= pCols; ++place) {
        if (pOne(place) != pOther(place)) {
            return false;
        }
    }
    return true;
}

} // namespace

MeantFile::MeantFile(const std::string &pFile, std::int16_t pFmt)
    : myTable(BytesOf(pFile)), myFirst(LinesBeforeRecords(myTable, pFmt)) {}

Copy::Copy(const Runtime &pRuntime, const DataCheck &pCheck, std::int16_t pFmt, const SpecCheck *pSpec,
           const std::string &pNewFile)
    : myNotes(pCheck.All().File()) {
    if (os::IsFile(pNewFile) || os::IsFolder(pNewFile)) {
        myFault = pNewFile + " is there already.";
        return;
    }
    if (pCheck.IsWhole()) {
        TakeWholeTable(pCheck, pFmt);
    } else {
        const MeantFile file(pCheck.All().File(), pFmt);
        if (file.Table().OpenQuote() > 0) {
            myFault =
                "Line " + std::to_string(file.Table().OpenQuote()) + " opens a quote that is never closed.";
            return;
        }
        TakeMeant(file, pFmt, pSpec);
    }
    if (myFault.empty()) {
        Write(pRuntime, pFmt, pNewFile);
    }
}

void Copy::TakeWholeTable(const DataCheck &pCheck, std::int16_t pFmt) {
    const clsDatFile &table = pCheck.Table();
    myCols = table.Cols();
    myRows.reserve(static_cast<std::size_t>(table.Rows()));
    for (std::int16_t row = 0; row < table.Rows(); ++row) {
        myRows.push_back(table.Row(row));
    }
    if (pFmt == clsDatFile::fmtCsvWithHeaders) {
        TextInput file(pCheck.All().File());
        const MeantTable head(file.LineInput());
        myTitles = head.Records().empty() ? std::vector<std::string>() : TextsOf(head.Records().front());
    }
}

void Copy::TakeMeant(const MeantFile &pFile, std::int16_t pFmt, const SpecCheck *pSpec) {
    SettleColumns(pFile, pFmt, pSpec);
    const auto &records = pFile.Table().Records();
    myRows.assign(records.begin() + static_cast<std::ptrdiff_t>(pFile.First()), records.end());
    FitRecords(pFile);
    if (!myFault.empty()) {
        return;
    }
    NoteLiberties(pFile, pFmt);
    if (pFmt == clsDatFile::fmtCsvWithHeaders) {
        myTitles = TextsOf(pFile.Head());
        if (pSpec != nullptr) {
            PutIntoOrder(pSpec->Titles());
        }
    }
}

void Copy::SettleColumns(const MeantFile &pFile, std::int16_t pFmt, const SpecCheck *pSpec) {
    const auto announced = pFmt == clsDatFile::fmtDat ? WholeTextInteger(pFile.Head()(2)) : std::nullopt;
    if (pSpec != nullptr) {
        myCols = static_cast<int>(pSpec->Columns().size());
    } else if (announced && *announced > 0) {
        myCols = *announced;
    } else if (!pFile.Table().Records().empty()) {
        myCols = pFile.Table().Records().front().Count(); // The titles, or else the first record.
    }
}

void Copy::FitRecords(const MeantFile &pFile) {
    long long tooShort = 0;
    long long tooLong = 0;
    for (std::size_t at = 0; at < myRows.size(); ++at) {
        const TextRow &row = myRows[at];
        for (int place = myCols + 1; place <= row.Count(); ++place) {
            if (!row(place).empty()) {
                myFault = "Line " + std::to_string(pFile.Table().Lines()[pFile.First() + at]) + " has " +
                          Counted(row.Count(), "field") + ", more than " + std::to_string(myCols) + ".";
                return;
            }
        }
        tooShort += row.Count() < myCols ? 1 : 0;
        tooLong += row.Count() > myCols ? 1 : 0;
    }
    Note(tooShort, "with empty cells at the end of short lines", "line");
    Note(tooLong, "without the surplus empty cells of long lines", "line");
}

void Copy::PutIntoOrder(const std::vector<std::string> &pTitles) {
    std::vector<int> from; // The column of the file, from 1, for each of the specification.
    for (const std::string &title : pTitles) {
        const auto isIt = [&](const std::string &pOne) { return Trim(pOne) == Trim(title); };
        const auto found = std::find_if(myTitles.begin(), myTitles.end(), isIt);
        const bool isOnce =
            found != myTitles.end() && std::count_if(myTitles.begin(), myTitles.end(), isIt) == 1;
        if (isOnce) {
            from.push_back(static_cast<int>(found - myTitles.begin()) + 1);
        }
    }
    if (from.size() != pTitles.size() || myTitles.size() != pTitles.size() || std::ranges::is_sorted(from)) {
        return;
    }
    for (TextRow &row : myRows) {
        std::vector<std::string> texts;
        for (const int column : from) {
            texts.emplace_back(row(column));
        }
        row = TextRow(texts);
    }
    myTitles = pTitles;
    Note(static_cast<long long>(myRows.size()) + 1, "with the columns in the specification's order", "line");
}

void Copy::Note(long long pCount, const std::string &pWhat, const std::string &pUnit) {
    if (pCount > 0) {
        myNotes.Add(1, Kind::Note, pWhat, "copied " + pWhat + " (" + Counted(pCount, pUnit) + ")");
    }
}

void Copy::NoteLiberties(const MeantFile &pFile, std::int16_t pFmt) {
    const Liberties &taken = pFile.Table().Taken();
    const auto lines = static_cast<long long>(pFile.Table().Records().size());
    Note(taken.byteOrderMark, "without the byte-order mark", "line");
    Note(taken.lineEnds, "with CR LF in place of other line ends", "line");
    Note(pFile.Table().Separator() == ',' ? 0 : lines, "with commas as separators", "line");
    Note(taken.blanks, "without the blanks at the ends of cells", "line");
    Note(taken.breaks, "with a blank for each line break inside cells", "line");
    Note(taken.afterQuotes, "with the text after a closing quote as part of its cell", "cell");
    Note(taken.blankLines, "without blank lines", "line");
    const bool isCounted = pFile.First() == 1 &&
                           WholeNumber(pFile.Head()(1)) == static_cast<double>(myRows.size()) &&
                           WholeNumber(pFile.Head()(2)) == myCols;
    Note(pFmt == clsDatFile::fmtDat && !isCounted ? 1 : 0, "with the records and columns counted", "line");
}

void Copy::Write(const Runtime &pRuntime, std::int16_t pFmt, const std::string &pNewFile) {
    if (myRows.empty() || myRows.size() > clsDatFile::mostRows || myCols < 1 ||
        myCols > modGetWords::mostWords) {
        myFault = "A table has 1 to " + std::to_string(clsDatFile::mostRows) +
                  " records and columns; this one has " +
                  Counted(static_cast<long long>(myRows.size()), "record") + " and " +
                  Counted(myCols, "column") + ".";
        return;
    }
    clsDatFile table(pRuntime);
    table.FileName(pNewFile);
    table.Fmt(pFmt);
    table.Cols(static_cast<std::int16_t>(myCols));
    table.Rows(static_cast<std::int16_t>(myRows.size()));
    table.Clear();
    for (std::size_t row = 0; row < myRows.size(); ++row) {
        table.Row(static_cast<std::int16_t>(row), myRows[row]);
    }
    table.Headers(myTitles);
    table.Save();
    if (!table.Fault().empty()) {
        myFault = table.Fault().substr(0, table.Fault().find(" The records are still"));
    } else if (!ComesBack(pRuntime, pFmt, pNewFile)) {
        myFault = "The editor would not read the copy as it was meant.";
    }
    if (!myFault.empty()) {
        std::remove(pNewFile.c_str());
    }
}

bool Copy::ComesBack(const Runtime &pRuntime, std::int16_t pFmt, const std::string &pNewFile) const {
    clsDatFile table(pRuntime);
    table.FileName(pNewFile);
    table.Fmt(pFmt);
    try {
        table.Load();
    } catch (const Stopped &) {
        return false;
    }
    bool isEqual =
        table.Fault().empty() && table.Cols() == myCols && std::cmp_equal(table.Rows(), myRows.size());
    for (std::size_t row = 0; isEqual && row < myRows.size(); ++row) {
        isEqual = AreEqual(table.Row(static_cast<std::int16_t>(row)), myRows[row], myCols);
    }
    return isEqual;
}
