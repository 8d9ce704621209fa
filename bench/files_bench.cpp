/// Reading and writing a table, in fresh memory. It compares
///   Load with libcsv, which also gives cells to keep, and with the bare loop, which does less;
///   Save with libcsv, which also starts from cells, and with a plain write of the finished bytes;
///   AppOpen with Load, and AppSave with Save;
///   Check with Load, and Copy, which checks, loads and saves, with Load and Save.
/// All writers flush the file. In memory that costs nothing. To measure it too, name a folder on a disk in
/// NORVO_BENCH_FOLDER.
#include "bench/Editor.h"
#include "bench/Passes.h"
#include "bench/Peers.h"
#include "check/modCheck.h"

#include <memory>
#include <sstream>

namespace {

using Tables::Cells;

constexpr std::int16_t dat = clsDatFile::fmtDat;
constexpr std::int16_t csv = clsDatFile::fmtCsv;
constexpr std::int16_t csvh = clsDatFile::fmtCsvWithHeaders;

/// The program's table alone, with the verbs of the editor.
class Table {
public:
    explicit Table(std::int16_t pFmt) {
        myTable.Fmt(pFmt);
        myTable.Headers(Tables::Titles(Tables::limitCols));
    }
    void Open(const std::string &pFile) {
        myTable.FileName(pFile);
        myTable.Load();
    }
    void Save(const std::string &pFile) {
        myTable.FileName(pFile);
        myTable.Save();
    }
    int Rows() const { return myTable.Rows(); }
    TextRow Row(int pRow) const { return myTable.Row(static_cast<std::int16_t>(pRow - 1)); }
    const std::string &Fault() const { return myTable.Fault(); }

private:
    clsDatFile myTable{[](std::string_view /*pText*/) { std::terminate(); }};
};

/// The checker, which opens a file to check it, and saves it as a clean copy.
class Checker {
public:
    explicit Checker(std::int16_t pFmt) : myForm(pFmt) {}
    void Open(const std::string &pFile) { Run(pFile, {}); }
    void Save(const std::string &pFile) { Run(myFile, {"/to", pFile}); }
    std::string Fault() const { return myFaults.str(); }
    bool Says(const std::string &pRows) const {
        return myOut.str() == myFile + ": " + pRows + " records in the file, " + pRows + " in the editor\n";
    }

private:
    void Run(const std::string &pFile, std::vector<std::string> pWords) {
        myFile = pFile;
        pWords.push_back(pFile);
        pWords.insert(pWords.end(), myForm == dat ? 0 : 1, myForm == csv ? "/csv" : "/csvh");
        modCheck::Main(pWords, "", "", myOut, myFaults);
    }
    std::int16_t myForm;
    std::string myFile;
    std::ostringstream myOut;
    std::ostringstream myFaults;
};

// Results are compared by their size and their last cell.

template <typename Subject> bool Holds(const std::unique_ptr<Subject> &pSubject, Cells pWanted) {
    if (!pSubject->Fault().empty() || std::cmp_not_equal(pSubject->Rows(), pWanted.size())) {
        return false;
    }
    return pSubject->Row(pSubject->Rows())(static_cast<int>(pWanted.back().size())) == pWanted.back().back();
}

bool Holds(const std::unique_ptr<Checker> &pChecker, Cells pWanted) {
    return pChecker->Says(std::to_string(pWanted.size()));
}

bool Holds(const std::vector<Tables::Row> &pRows, Cells pWanted) {
    return pRows.size() == pWanted.size() + 1 && pRows.back() == pWanted.back();
}

bool Holds(const Peers::References &pReferences, Cells pWanted) {
    const Peers::References::Cell last = pReferences.cells.back();
    return pReferences.cells.size() == pWanted.size() * pWanted.back().size() &&
           std::string_view(&pReferences.buffer.bytes[last.at], last.length) == pWanted.back().back();
}

/// What a benchmark is measured on, by its size.
using Source = Cells (*)(std::int64_t);

template <typename Subject> void Read(benchmark::State &pState, std::int16_t pFmt, Source pSource) {
    const Cells cells = pSource(pState.range(0));
    const std::string file = Tables::File(pFmt, cells);
    Passes::Measure(
        pState, [&] { return std::make_unique<Subject>(pFmt); },
        [&](auto &pSubject) { pSubject->Open(file); },
        [&](auto &pSubject) { return Holds(pSubject, cells); });
}

template <typename Result> void ReadPeer(benchmark::State &pState, Result (*pRead)(const std::string &)) {
    const Cells cells = Tables::Limit(pState.range(0));
    const std::string file = Tables::File(dat, cells);
    Passes::Measure(
        pState, [] { return Result(); }, [&](Result &pResult) { pResult = pRead(file); },
        [&](const Result &pResult) { return Holds(pResult, cells); });
}

template <typename Subject> void Write(benchmark::State &pState, std::int16_t pFmt, Source pSource) {
    const std::string file = Tables::File(pFmt, pSource(pState.range(0)));
    std::string copy;
    const auto prepare = [&] {
        auto subject = std::make_unique<Subject>(pFmt);
        subject->Open(file);
        copy = Tables::FreshCopy();
        return subject;
    };
    Passes::Measure(
        pState, prepare, [&](auto &pSubject) { pSubject->Save(copy); },
        [&](auto &pSubject) { return pSubject->Fault().empty() && Tables::IsCopyOf(file); });
}

void WritePeer(benchmark::State &pState, void (*pWrite)(const std::string &, const Peers::Table &)) {
    const Cells cells = Tables::Limit(pState.range(0));
    const std::string file = Tables::File(dat, cells);
    const Peers::Table table{cells, Tables::FileText(dat, cells)};
    Passes::Measure(
        pState, Tables::FreshCopy, [&](const std::string &pCopy) { pWrite(pCopy, table); },
        [&](auto & /*pCopy*/) { return Tables::IsCopyOf(file); });
}

void ConfigureField(Passes::Benchmark *pBenchmark) {
    Passes::ConfigureBytes(pBenchmark);
    pBenchmark->UseManualTime()->Iterations(1);
}

constexpr auto Load = Read<Table>;
constexpr auto Save = Write<Table>;
constexpr auto AppOpen = Read<Editor>;
constexpr auto AppSave = Write<Editor>;
constexpr auto Check = Read<Checker>;
constexpr auto Copy = Write<Checker>;

} // namespace

#define MEASURE_EACH_FORM(pWhat)                                                                             \
    BENCHMARK_CAPTURE(pWhat, dat, dat, Tables::Limit)->Apply(Passes::ConfigureRows);                         \
    BENCHMARK_CAPTURE(pWhat, csv, csv, Tables::Limit)->Apply(Passes::ConfigureRows);                         \
    BENCHMARK_CAPTURE(pWhat, csvh, csvh, Tables::Limit)->Apply(Passes::ConfigureRows);

MEASURE_EACH_FORM(Load)
BENCHMARK_CAPTURE(Load, field, dat, Tables::LongField)->Name("LoadLongField")->Apply(ConfigureField);
MEASURE_EACH_FORM(AppOpen)
BENCHMARK_CAPTURE(ReadPeer, libcsv, Peers::ReadByLibcsv)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(ReadPeer, references, Peers::SplitIntoReferences)->Apply(Passes::ConfigureRows);
MEASURE_EACH_FORM(Save)
BENCHMARK_CAPTURE(Save, field, dat, Tables::LongField)->Name("SaveLongField")->Apply(ConfigureField);
MEASURE_EACH_FORM(AppSave)
BENCHMARK_CAPTURE(WritePeer, libcsv, Peers::WriteByLibcsv)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(WritePeer, plain, Peers::PlainWrite)->Apply(Passes::ConfigureRows);
MEASURE_EACH_FORM(Check)
MEASURE_EACH_FORM(Copy)
