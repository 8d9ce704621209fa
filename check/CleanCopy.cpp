#include "check/CleanCopy.h"

#include "data/clsDatFile.h"
#include "data/modGetWords.h"
#include "system/Files.h"
#include "system/Memory.h"
#include "text/Text.h"

#include <algorithm>
#include <exception>
#include <utility>

CleanCopy::CleanCopy(const MeantTable &pMeant, std::int16_t pFmt)
    : myMeant(pMeant), myFmt(pFmt), myTitles(CleanRow(pMeant.head)) {
    RefuseFaultsOf(pMeant.head);
    for (const MeantRecord &line : pMeant.lines) {
        RefuseFaultsOf(line);
        if (!myFault.empty()) {
            return;
        }
        if (!line.faults.Has(Fault::BlankLine)) {
            myRows.push_back(CleanRow(line));
        }
    }
}

void CleanCopy::Refuse(const std::string &pWhy) {
    myFault = myFault.empty() ? pWhy : myFault;
}

void CleanCopy::RefuseFaultsOf(const MeantRecord &pLine) {
    for (std::size_t fault = 0; fault < faultCount; ++fault) {
        const FaultRow &row = RowOf(static_cast<enum Fault>(fault));
        if (!row.refusal.empty() && pLine.faults.Has(row.fault)) {
            const auto cells = static_cast<std::size_t>(pLine.cells.Count());
            Refuse("line " + std::to_string(pLine.line) + " of the file: " +
                   Filled(row.refusal, {Counted(cells, "field"), std::to_string(myMeant.cols)}));
        }
    }
}

/// pRecord as the editor can keep it: a line break would end its line.
TextRow CleanCopy::CleanRow(const MeantRecord &pRecord) {
    const std::size_t cols = myMeant.cols;
    const std::vector<std::size_t> &order = myMeant.order;
    const bool hasBreaks = pRecord.faults.Has(Fault::LineBreaks);
    if (!hasBreaks && order.empty() && std::cmp_equal(pRecord.cells.Count(), cols)) {
        return pRecord.cells; // Where the editor read the same, this is the block that it made.
    }
    TextRowBuilder row(myRoom, cols, pRecord.cells.Run().size(), pRecord.cells.Run());
    for (std::size_t col = 0; col < cols; ++col) {
        const std::string_view cell = pRecord.cells(static_cast<int>(order.empty() ? col : order[col]) + 1);
        if (hasBreaks) {
            row.Append(Trim(WithoutNewLineBreaks("", cell)));
        } else {
            row.Append(cell);
        }
    }
    return row.Row();
}

void CleanCopy::Write(const std::string &pFile) {
    if (myRows.empty()) {
        Refuse("there are no records");
    }
    if (myFault.empty()) {
        myFault = os::MakeNewFile(pFile).Words();
    }
    if (!myFault.empty()) {
        return; // Nothing has been made, and what may be there is somebody's.
    }
    const bool hasMemory = HasMemoryFor([&] {
        Fill(pFile);
        if (myFault.empty() && !ReadsBack(pFile)) {
            myFault = "it did not come back as it was written";
        }
    });
    if (!hasMemory) {
        myFault = "there is not enough memory";
    }
    if (!myFault.empty()) {
        os::RemoveFile(pFile);
    }
}

void CleanCopy::Fill(const std::string &pFile) {
    clsDatFile table([](std::string_view /*pText*/) { std::terminate(); }); // It has rows and columns.
    table.FileName(pFile);
    table.Fmt(myFmt);
    table.Headers(TextsOf(myTitles));
    table.Rows(static_cast<std::int16_t>(myRows.size()));
    table.Cols(static_cast<std::int16_t>(myMeant.cols));
    table.Clear();
    for (std::int16_t row = 0; row < table.Rows(); ++row) {
        table.Row(row, myRows[static_cast<std::size_t>(row)]);
    }
    table.Save();
    myFault = table.Cause();
}

/// Whether pFile has exactly the records of the copy, as the editor reads them. It reads them one by one: to
/// load them all once more would take as long as to load the file that is copied.
bool CleanCopy::ReadsBack(const std::string &pFile) {
    TextInput file(pFile);
    const auto comesBack = [&](const TextRow &pRow) {
        return IsSame(modGetWords::GetWords(file.LineInput(), myRoom), pRow);
    };
    const std::string sizes = std::to_string(myRows.size()) + "," + std::to_string(myMeant.cols);
    const bool isFirstLineGood = myFmt == clsDatFile::fmtDat
                                     ? file.LineInput() == sizes
                                     : myFmt == clsDatFile::fmtCsv || comesBack(myTitles);
    return isFirstLineGood && std::all_of(myRows.begin(), myRows.end(), comesBack) && file.AtEnd() &&
           file.Fault().empty();
}

void CleanCopy::Report(Findings &pFindings) const {
    for (std::size_t fault = 0; fault < faultCount; ++fault) {
        const FaultRow &row = RowOf(static_cast<enum Fault>(fault));
        const Tally tally = !row.mended.empty() ? TallyOf(myMeant, row.fault) : Tally();
        if (tally.lines > 0) {
            pFindings.Add(tally.first, Fault::InTheCopy,
                          {Filled(row.mended, {Counted(tally.lines, "line")})});
        }
    }
}
