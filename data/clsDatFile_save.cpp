// The two writers. They share the form of a row, and differ only in what stands before row 0.
#include "data/clsDatFile.h"

#include "platform/Files.h"
#include "platform/Numbers.h"

void clsDatFile::Quote(std::string &pLine, std::string_view pField) {
    pLine += '"';
    for (std::size_t quote = pField.find('"'); quote != std::string_view::npos; quote = pField.find('"')) {
        pLine += pField.substr(0, quote + 1);
        pLine += '"';
        pField.remove_prefix(quote + 1);
    }
    pLine += pField;
    pLine += '"';
}

void clsDatFile::PrintRow(TextOutput &pFile, const TextRow &pCells, std::string &pLine) const {
    pLine.clear();
    for (int place = 1; place <= myCols; ++place) {
        pLine += place > 1 ? "," : "";
        Quote(pLine, pCells(place));
    }
    pFile.PrintLine(pLine);
}

void clsDatFile::PrintRows(TextOutput &pFile) const {
    std::string line;
    for (std::int16_t row = 0; row < myRows; ++row) {
        PrintRow(pFile, Row(row), line);
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
        TextRow titles; // As many as a row has fields: those missing are empty, those beyond aren't written.
        for (int place = 1; std::cmp_less_equal(place, myHeaders.size()); ++place) {
            titles.Set(place, myHeaders[static_cast<std::size_t>(place) - 1]);
        }
        std::string line;
        PrintRow(file, titles, line);
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
