/// table_once make FOLDER: writes the tables typical.dat (42 KB) and limit.dat (36 MB) into the folder, each
/// with the specification that it opens by: typical-spec.dat and limit-spec.dat.
/// table_once load FILE: loads a .dat file and ends.
/// table_once save FILE COPY: loads it, saves it as COPY and ends.
/// An instruction counter counts a whole run of "load" or "save", so these do nothing else.
#include "bench/Tables.h"
#include "data/clsDatFile.h"

#include <cstdio>
#include <exception>
#include <fstream>

namespace {

void Make(const std::string &pFile, int pRows, int pCols) {
    const auto text = [](Tables::Cells pCells) { return Tables::FileText(clsDatFile::fmtDat, pCells); };
    std::ofstream(pFile + ".dat", std::ios::binary) << text(Tables::Make(pRows, pCols));
    std::ofstream(pFile + "-spec.dat", std::ios::binary) << text(Tables::Specification(pCols));
}

/// Without a second file there is no save.
int LoadAndSave(const std::string &pFile, const std::string &pCopy) {
    clsDatFile table([](std::string_view /*pText*/) { std::terminate(); });
    table.FileName(pFile);
    table.Load();
    if (!pCopy.empty() && table.Fault().empty()) {
        table.FileName(pCopy);
        table.Save();
    }
    std::fputs(table.Fault().c_str(), stderr);
    return table.Fault().empty() ? 0 : 1;
}

} // namespace

int main(int argc, char **argv) {
    const std::vector<std::string> words(argv + 1, argv + argc);
    const std::string act = words.empty() ? "" : words[0];
    if (act == "make" && words.size() == 2) {
        Make(words[1] + "/typical", 500, 6);
        Make(words[1] + "/limit", Tables::limitRows, Tables::limitCols);
        return 0;
    }
    if ((act == "load" && words.size() == 2) || (act == "save" && words.size() == 3)) {
        return LoadAndSave(words[1], act == "save" ? words[2] : "");
    }
    std::fputs("Usage: table_once make FOLDER | load FILE | save FILE COPY\n", stderr);
    return 1;
}
