/// make_tables FOLDER: writes the standard tables into a folder, each with the specification it opens by:
/// typical.dat and typical-spec.dat, limit.dat and limit-spec.dat.
#include "bench/StandardTables.h"

#include <cstdio>
#include <filesystem>
#include <fstream>

namespace {

bool Write(const std::filesystem::path &pFile, const std::string &pText) {
    std::ofstream file(pFile, std::ios::binary);
    file.write(pText.data(), static_cast<std::streamsize>(pText.size()));
    file.close();
    if (!file) {
        std::fprintf(stderr, "make_tables: %s can't be written\n", pFile.string().c_str());
    }
    return static_cast<bool>(file);
}

bool WriteTable(const std::filesystem::path &pFolder, const StandardTables::Named &pTable) {
    const std::string name = pTable.name;
    return Write(pFolder / (name + ".dat"),
                 StandardTables::FileText(StandardTables::FileForm::Dat, pTable.rows, pTable.cols)) &&
           Write(pFolder / (name + "-spec.dat"), StandardTables::SpecificationText(pTable.cols));
}

} // namespace

int main(int argc, char **argv) {
    if (argc != 2) {
        std::fputs("Usage: make_tables FOLDER\n", stderr);
        return 1;
    }
    for (const StandardTables::Named &table : StandardTables::all) {
        if (!WriteTable(argv[1], table)) {
            return 1;
        }
    }
    return 0;
}
