#include "fuzz/FuzzSupport.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

#include <sys/mman.h>
#include <unistd.h>

std::string_view Text(const std::uint8_t *pBytes, std::size_t pSize) {
    return {reinterpret_cast<const char *>(pBytes), pSize};
}

std::vector<std::string> Texts(const TextRow &pRow) {
    std::vector<std::string> texts;
    for (int place = 1; place <= pRow.Count(); ++place) {
        texts.emplace_back(pRow(place));
    }
    return texts;
}

void Require(bool pHolds, const char *pLaw) {
    if (!pHolds) {
        std::fprintf(stderr, "Broken law: %s\n", pLaw);
        std::abort();
    }
}

MemoryFile::MemoryFile() : myNumber(memfd_create("norvo_fuzz", MFD_CLOEXEC)) {
    if (myNumber < 0) {
        throw std::runtime_error("No file in memory could be made");
    }
}

MemoryFile::~MemoryFile() {
    close(myNumber);
}

std::string MemoryFile::Name() const {
    return "/proc/self/fd/" + std::to_string(myNumber);
}

void MemoryFile::Write(std::string_view pBytes) const {
    const bool isEmptied = ftruncate(myNumber, 0) == 0;
    const ssize_t written = pwrite(myNumber, pBytes.data(), pBytes.size(), 0);
    Require(isEmptied && written == static_cast<ssize_t>(pBytes.size()),
            "the file in memory takes all bytes");
}

std::string MemoryFile::Read() const {
    std::string bytes;
    std::array<char, 4096> part{};
    ssize_t count = 0;
    while ((count = pread(myNumber, part.data(), part.size(), static_cast<off_t>(bytes.size()))) > 0) {
        bytes.append(part.data(), static_cast<std::size_t>(count));
    }
    return bytes;
}

MessageAnswer FuzzDesktop::ShowMessage(const Message &pMessage) {
    myMessage = pMessage.prompt;
    return MessageAnswer::Ok;
}

std::optional<std::string> FuzzDesktop::ShowFileDialog(const Form & /*pForm*/,
                                                       const FileDialogRequest & /*pRequest*/) {
    return std::nullopt;
}

void FuzzDesktop::EndProcess(int /*pStatus*/) {
    throw ProgramEnded{myMessage};
}

TableProbe::TableProbe() {
    table.FileName(myFile.Name());
    table.Headers({"plain", "a \"quoted\", title", ""});
}

std::optional<std::string> TableProbe::Load(std::int16_t pFmt, std::string_view pBytes) {
    myFile.Write(pBytes);
    table.Fmt(pFmt);
    try {
        table.Load();
    } catch (const FuzzDesktop::ProgramEnded &end) {
        return end.message;
    }
    return std::nullopt;
}

std::string TableProbe::Save(std::int16_t pFmt) {
    table.Fmt(pFmt);
    table.Save();
    Require(!HasFault(), "a table is saved without a fault");
    return myFile.Read();
}

std::vector<std::vector<std::string>> TableProbe::Cells() const {
    std::vector<std::vector<std::string>> cells;
    for (std::int16_t row = 0; row < table.Rows(); ++row) {
        std::vector<std::string> &cellsOfRow = cells.emplace_back();
        for (std::int16_t col = 0; col < table.Cols(); ++col) {
            cellsOfRow.push_back(table.Data(row, col));
        }
    }
    return cells;
}

std::vector<std::string_view> LinesOf(std::string_view pBytes) {
    std::vector<std::string_view> lines;
    while (!pBytes.empty()) {
        const std::size_t end = pBytes.find('\r');
        lines.push_back(pBytes.substr(0, end));
        pBytes.remove_prefix(end == std::string_view::npos ? pBytes.size() : end + 1);
        if (end != std::string_view::npos && pBytes.substr(0, 1) == "\n") {
            pBytes.remove_prefix(1);
        }
    }
    return lines;
}

namespace {

/// What a decimal number is made of. Without this sieve strtod would take hexadecimal numbers, infinities and
/// leading line breaks.
constexpr std::string_view numberCharacters = "+-.0123456789eE";

} // namespace

double OtherVal(std::string_view pText) {
    std::string packed(pText);
    std::erase_if(packed, [](char pCharacter) { return pCharacter == ' ' || pCharacter == '\t'; });
    return std::strtod(packed.substr(0, packed.find_first_not_of(numberCharacters)).c_str(), nullptr);
}

std::optional<double> OtherWholeNumber(std::string_view pText) {
    const std::size_t first = pText.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string number(pText.substr(first, pText.find_last_not_of(' ') - first + 1));
    char *end = nullptr;
    const double value = std::strtod(number.c_str(), &end);
    const bool isTaken = end == number.c_str() + number.size();
    return isTaken && number.find_first_not_of(numberCharacters) == std::string::npos ? std::optional(value)
                                                                                      : std::nullopt;
}

std::optional<double> OtherRounded(double pValue, double pLeast, double pMost) {
    const double below = std::floor(pValue);
    const double part = pValue - below;
    const bool goesUp = part > 0.5 || (part == 0.5 && std::fmod(below, 2) != 0);
    const double rounded = goesUp ? below + 1 : below;
    return rounded >= pLeast && rounded <= pMost ? std::optional(rounded) : std::nullopt;
}
