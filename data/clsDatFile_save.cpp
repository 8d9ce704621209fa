// The two writers. They share the form of a row, and differ only in what stands before row 0.
#include "data/clsDatFile.h"

#include "platform/Files.h"
#include "platform/Numbers.h"

std::string clsDatFile::Quote(std::string_view pField) {
    std::string quoted = "\"";
    for (const char character : pField) {
        if (character == '"') {
            quoted += '"';
        }
        quoted += character;
    }
    return quoted + '"';
}

void clsDatFile::PrintRow(TextOutput &pFile, const std::vector<std::string> &pCells) {
    for (std::size_t col = 0; col + 1 < pCells.size(); ++col) {
        pFile.Print(Quote(pCells[col]) + ",");
    }
    pFile.PrintLine(pCells.empty() ? "" : Quote(pCells.back()));
}

std::vector<std::string> clsDatFile::RowCells(std::int16_t pRow) const {
    std::vector<std::string> cells;
    for (std::int16_t col = 0; col < myCols; ++col) {
        cells.push_back(Data(pRow, col));
    }
    return cells;
}

void clsDatFile::PrintRows(TextOutput &pFile) const {
    for (std::int16_t row = 0; row < myRows; ++row) {
        PrintRow(pFile, RowCells(row));
    }
}

void clsDatFile::SaveDat() {
    if (myFn.empty()) {
        return;
    }
    TextOutput file(myFn);
    file.PrintLine(FormatWhole(myRows) + "," + FormatWhole(myCols));
    PrintRows(file);
    Finish(file);
}

void clsDatFile::SaveCsv(bool pHasHeaders) {
    if (myFn.empty()) {
        return;
    }
    TextOutput file(myFn);
    if (pHasHeaders) {
        std::vector<std::string> titles = myHeaders;
        titles.resize(static_cast<std::size_t>(myCols)); // As many as a row has fields, those missing empty.
        PrintRow(file, titles);
    }
    PrintRows(file);
    Finish(file);
}

void clsDatFile::Finish(TextOutput &pFile) {
    const TextOutput::Fault fault = pFile.Close();
    if (fault.reason.empty()) {
        return;
    }
    Refuse(Fault::Kind::NotSaved,
           "can't be saved: " + fault.reason + ". The records are still in the list." +
               (fault.mayBeIncomplete ? " The file itself may now be incomplete." : ""));
}
