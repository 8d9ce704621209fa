#include "bench/WritePeers.h"

#include <cstring>

#include <fcntl.h>
#include <unistd.h>

namespace WritePeers {

namespace {

class OutputFile {
public:
    explicit OutputFile(const std::string &pFile)
        : myNumber(open(pFile.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666)) {}
    ~OutputFile() {
        fsync(myNumber);
        close(myNumber);
    }
    OutputFile(const OutputFile &) = delete;
    OutputFile &operator=(const OutputFile &) = delete;

    void Write(std::string_view pBytes) const {
        while (!pBytes.empty()) {
            const ssize_t written = write(myNumber, pBytes.data(), pBytes.size());
            if (written <= 0) {
                return; // The copy is compared afterwards.
            }
            pBytes.remove_prefix(static_cast<std::size_t>(written));
        }
    }

private:
    int myNumber;
};

void AppendQuoted(std::string &pBlock, std::string_view pCell) {
    pBlock += '"';
    while (!pCell.empty()) {
        const std::size_t quote = pCell.find('"');
        if (quote == std::string_view::npos) {
            break;
        }
        pBlock.append(pCell.data(), quote + 1);
        pBlock += '"';
        pCell.remove_prefix(quote + 1);
    }
    pBlock += pCell;
    pBlock += '"';
}

} // namespace

void PlainWrite(const std::string &pFile, std::string_view pBytes) {
    const OutputFile file(pFile);
    file.Write(pBytes);
}

void QuoteInBlocks(const std::string &pFile, const Table &pTable) {
    const OutputFile file(pFile);
    std::string block;
    block.reserve(2 * blockBytes);
    block = std::to_string(pTable.rows) + "," + std::to_string(pTable.cells.front().size()) + "\r\n";
    for (std::size_t row = 0; row < pTable.rows; ++row) {
        for (std::size_t col = 0; col < pTable.cells[row].size(); ++col) {
            if (col > 0) {
                block += ',';
            }
            AppendQuoted(block, pTable.cells[row][col]);
        }
        block += "\r\n";
        if (block.size() >= blockBytes) {
            file.Write(std::string_view(block).substr(0, blockBytes));
            block.erase(0, blockBytes);
        }
    }
    file.Write(block);
}

} // namespace WritePeers
