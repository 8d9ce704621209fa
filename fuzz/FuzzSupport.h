#pragma once
/// What the fuzz targets share: the way to report a broken law, a table over a file in memory, and second
/// opinions, made in another way than the program's own, on what lines and numbers are.
///
/// A target is a source file *_fuzz.cpp that defines LLVMFuzzerTestOneInput. It states laws that hold for any
/// bytes whatever; a crash is only the crudest of the faults that it can find.
#include "data/clsDatFile.h"
#include "platform/Desktop.h"
#include "platform/Runtime.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *pBytes, std::size_t pSize);

std::string_view Text(const std::uint8_t *pBytes, std::size_t pSize);

std::vector<std::string> Texts(const TextRow &pRow);

/// Aborts the process, saying pLaw, when pHolds is false.
void Require(bool pHolds, const char *pLaw);

/// A file without a place on the disk, which would be what a fuzzer spends its time on.
class MemoryFile {
public:
    MemoryFile();
    ~MemoryFile();
    MemoryFile(const MemoryFile &) = delete;
    MemoryFile &operator=(const MemoryFile &) = delete;

    /// A path under which this process can open the file.
    std::string Name() const;
    void Write(std::string_view pBytes) const;
    std::string Read() const;

private:
    int myNumber;
};

/// Keeps the last message and throws when the program ends.
class FuzzDesktop : public Desktop {
public:
    struct ProgramEnded {
        std::string message;
    };

    MessageAnswer ShowMessage(const Message &pMessage) override;
    std::optional<std::string> ShowFileDialog(const Form &pForm, const FileDialogRequest &pRequest) override;
    void ShowForm(Form & /*pForm*/) override {}
    void CloseForm(Form & /*pForm*/) override {}
    void OpenTarget(const std::string & /*pTarget*/) override {}
    [[noreturn]] void EndProcess(int pStatus) override;

private:
    std::string myMessage;
};

/// A table with a file of its own.
class TableProbe {
public:
    static constexpr std::int16_t fmtDat = 0;
    static constexpr std::int16_t fmtCsv = 1;
    static constexpr std::int16_t fmtCsvWithHeaders = 2;

    TableProbe();

    /// Makes pBytes the file and loads it. What the user was told when that ended the program, else nothing.
    std::optional<std::string> Load(std::int16_t pFmt, std::string_view pBytes);
    /// Saves the table and gives the file's bytes.
    std::string Save(std::int16_t pFmt);

    /// All cells, row by row.
    std::vector<std::vector<std::string>> Cells() const;
    bool HasFault() const { return !table.Fault().empty(); }

private:
    MemoryFile myFile;
    FuzzDesktop myDesktop;
    Runtime myRuntime{myDesktop, {}, ""};

public:
    clsDatFile table{myRuntime};
};

// Second opinions.

/// The lines of a text whose lines end in CR or CR LF.
std::vector<std::string_view> LinesOf(std::string_view pBytes);

/// What Val should give, by strtod.
double OtherVal(std::string_view pText);
/// What WholeNumber should give, by strtod.
std::optional<double> OtherWholeNumber(std::string_view pText);
/// The nearest whole number, a half to the even one; nothing beyond pLeast to pMost.
std::optional<double> OtherRounded(double pValue, double pLeast, double pMost);
