#include "bench/Scratch.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <random>
#include <tuple>

namespace Scratch {

namespace {

namespace fs = std::filesystem;

fs::path Place() {
    const char *const wanted = std::getenv("NORVO_BENCH_FOLDER");
    const fs::path inMemory = "/dev/shm";
    if (wanted != nullptr) {
        return wanted;
    }
    return fs::is_directory(inMemory) ? inMemory : fs::temp_directory_path();
}

class Folder {
public:
    Folder() : myPath(Place() / ("norvo_bench_" + std::to_string(std::random_device()()))) {
        fs::create_directory(myPath);
    }
    ~Folder() {
        std::error_code ignored;
        fs::remove_all(myPath, ignored);
    }
    Folder(const Folder &) = delete;
    Folder &operator=(const Folder &) = delete;
    const fs::path &Path() const { return myPath; }

private:
    fs::path myPath;
};

void Write(const std::string &pFile, const std::string &pText) {
    std::ofstream file(pFile, std::ios::binary);
    if (!(file << pText << std::flush)) {
        std::fprintf(stderr, "%s can't be written\n", pFile.c_str());
        std::exit(EXIT_FAILURE);
    }
}

} // namespace

std::string File(const std::string &pName) {
    static const Folder folder;
    return (folder.Path() / pName).string();
}

const std::string &TableFile(StandardTables::FileForm pForm, int pRows, int pCols) {
    static std::map<std::tuple<StandardTables::FileForm, int, int>, std::string> files;
    std::string &file = files[{pForm, pRows, pCols}];
    if (file.empty()) {
        file = File("table" + std::to_string(files.size()));
        Write(file, StandardTables::FileText(pForm, pRows, pCols));
    }
    return file;
}

const std::string &LongFieldFile(std::size_t pBytes) {
    static std::map<std::size_t, std::string> files;
    std::string &file = files[pBytes];
    if (file.empty()) {
        file = File("field" + std::to_string(files.size()));
        Write(file, StandardTables::LongFieldText(pBytes));
    }
    return file;
}

const std::string &SpecificationFile(int pCols) {
    static std::map<int, std::string> files;
    std::string &file = files[pCols];
    if (file.empty()) {
        file = File("specification" + std::to_string(files.size()));
        Write(file, StandardTables::SpecificationText(pCols));
    }
    return file;
}

std::string FreshCopy() {
    std::string file = File("copy");
    fs::remove(file);
    return file;
}

bool IsCopyOf(const std::string &pFile) {
    return Bytes(File("copy")) == Bytes(pFile);
}

std::string Bytes(const std::string &pFile) {
    std::string bytes(static_cast<std::size_t>(Size(pFile)), '\0');
    std::ifstream(pFile, std::ios::binary).read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return bytes;
}

std::int64_t Size(const std::string &pFile) {
    return static_cast<std::int64_t>(fs::file_size(pFile));
}

const StandardTables::Cells &LimitCells() {
    static const StandardTables::Cells cells =
        StandardTables::MakeCells(StandardTables::limit.rows, StandardTables::limit.cols);
    return cells;
}

} // namespace Scratch
