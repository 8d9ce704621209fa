/// Reading and writing a table, in fresh memory. Compare
///   Load    (file to kept cells) with libcsv's cells and getline's (the same), and with the bare loop (file
///   to
///           references) and reading the file whole, which do less;
///   Save    (kept cells to file) with libcsv's two writers and quoting in blocks (the same), and with a
///   plain
///           write of the finished bytes, which does less;
///   AppOpen (file to the list) with Load, and AppSave (the list to file) with Save.
/// All writers flush the file, which costs nothing in memory. NORVO_BENCH_FOLDER names a folder on a disk to
/// measure that too.
#include "bench/Editor.h"
#include "bench/Passes.h"
#include "bench/Peers.h"

#include <algorithm>

namespace {

using Tables::Cells;

constexpr std::int16_t dat = clsDatFile::fmtDat;
constexpr std::int16_t csv = clsDatFile::fmtCsv;
constexpr std::int16_t csvh = clsDatFile::fmtCsvWithHeaders;

clsDatFile TableOf(const std::string &pFile, std::int16_t pFmt) {
    static NoDesktop desktop;
    static const Runtime runtime(desktop, {}, "");
    clsDatFile table(runtime);
    table.Fmt(pFmt);
    table.FileName(pFile);
    return table;
}

// Results are compared by their size and their last row.

bool IsLast(int pRow, const TextRow &pTexts, Cells pWanted) {
    const TextRow wanted(pWanted.back());
    return std::cmp_equal(pRow, pWanted.size()) && pTexts.Run() == wanted.Run() &&
           std::ranges::equal(pTexts.Ends(), wanted.Ends());
}

bool Holds(const std::vector<Tables::Row> &pRows, Cells pWanted) {
    return pRows.size() == pWanted.size() + 1 && pRows.back() == pWanted.back();
}

bool Holds(const Peers::References &pReferences, Cells pWanted) {
    const std::size_t cols = pWanted.back().size();
    return pReferences.cells.size() == pWanted.size() * cols && pReferences.Last(cols) == pWanted.back();
}

bool Holds(const Peers::Buffer &pBuffer, Cells pWanted) {
    return pBuffer.size == Tables::FileText(dat, pWanted).size();
}

/// What a benchmark is measured on, by its size.
using Source = Cells (*)(std::int64_t);

void Load(benchmark::State &pState, std::int16_t pFmt, Source pSource) {
    const Cells cells = pSource(pState.range(0));
    const std::string file = Tables::File(pFmt, cells);
    Passes::Measure(
        pState, [&] { return TableOf(file, pFmt); }, [](auto &pTable) { pTable.Load(); },
        [&](auto &pTable) {
            const auto last = static_cast<std::int16_t>(pTable.Rows() - 1);
            return IsLast(pTable.Rows(), pTable.Row(last), cells);
        });
}

void AppOpen(benchmark::State &pState, std::int16_t pFmt) {
    const Cells cells = Tables::Limit(pState.range(0));
    const std::string file = Tables::File(pFmt, cells);
    Passes::Measure(
        pState, [&] { return std::make_unique<Editor>(pFmt); },
        [&](auto &pEditor) { pEditor->form.AppCmd("open", {file}); },
        [&](auto &pEditor) {
            const ListItems &rows = pEditor->Rows();
            return pEditor->IsQuiet() && IsLast(rows.Count(), rows(rows.Count()).Texts(), cells);
        });
}

template <typename Result> void ReadPeer(benchmark::State &pState, Result (*pRead)(const std::string &)) {
    const Cells cells = Tables::Limit(pState.range(0));
    const std::string file = Tables::File(dat, cells);
    Passes::Measure(
        pState, [] { return Result(); }, [&](Result &pResult) { pResult = pRead(file); },
        [&](const Result &pResult) { return Holds(pResult, cells); });
}

void Save(benchmark::State &pState, std::int16_t pFmt, Source pSource) {
    const std::string file = Tables::File(pFmt, pSource(pState.range(0)));
    const auto prepare = [&] {
        clsDatFile table = TableOf(file, pFmt);
        table.Headers(Tables::Titles(Tables::limitCols));
        table.Load();
        table.FileName(Tables::FreshCopy());
        return table;
    };
    Passes::Measure(
        pState, prepare, [](auto &pTable) { pTable.Save(); },
        [&](auto & /*pTable*/) { return Tables::IsCopyOf(file); });
}

void AppSave(benchmark::State &pState, std::int16_t pFmt) {
    const std::string file = Tables::File(pFmt, Tables::Limit(pState.range(0)));
    std::string copy;
    const auto prepare = [&] {
        auto editor = std::make_unique<Editor>(pFmt);
        editor->form.AppCmd("open", {file});
        copy = Tables::FreshCopy();
        return editor;
    };
    Passes::Measure(
        pState, prepare, [&](auto &pEditor) { pEditor->form.AppCmd("save", {copy}); },
        [&](auto &pEditor) { return pEditor->IsQuiet() && Tables::IsCopyOf(file); });
}

template <typename Write> void MeasureWrite(benchmark::State &pState, Write pWrite) {
    const std::string file = Tables::File(dat, Tables::Limit(pState.range(0)));
    Passes::Measure(pState, Tables::FreshCopy, pWrite,
                    [&](auto & /*pCopy*/) { return Tables::IsCopyOf(file); });
}

void WritePeer(benchmark::State &pState, void (*pWrite)(const std::string &, Cells)) {
    const Cells cells = Tables::Limit(pState.range(0));
    MeasureWrite(pState, [&](const std::string &pCopy) { pWrite(pCopy, cells); });
}

void PlainWrite(benchmark::State &pState) {
    const std::string bytes = Tables::FileText(dat, Tables::Limit(pState.range(0)));
    MeasureWrite(pState, [&](const std::string &pCopy) { Peers::PlainWrite(pCopy, bytes); });
}

} // namespace

BENCHMARK_CAPTURE(Load, dat, dat, Tables::Limit)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(Load, csv, csv, Tables::Limit)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(Load, csvh, csvh, Tables::Limit)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(Load, field, dat, Tables::LongField)->Name("LoadLongField")->Apply(Passes::ConfigureBytes);
BENCHMARK_CAPTURE(AppOpen, dat, dat)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(AppOpen, csv, csv)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(AppOpen, csvh, csvh)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(ReadPeer, libcsv, Peers::ReadByLibcsv)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(ReadPeer, libcsv_room, Peers::ReadByLibcsvWithRoom)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(ReadPeer, getline, Peers::ReadByGetline)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(ReadPeer, references, Peers::SplitIntoReferences)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(ReadPeer, whole, Peers::ReadWhole)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(Save, dat, dat, Tables::Limit)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(Save, csv, csv, Tables::Limit)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(Save, csvh, csvh, Tables::Limit)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(Save, field, dat, Tables::LongField)->Name("SaveLongField")->Apply(Passes::ConfigureBytes);
BENCHMARK_CAPTURE(AppSave, dat, dat)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(AppSave, csv, csv)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(AppSave, csvh, csvh)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(WritePeer, libcsv_fwrite, Peers::WriteByLibcsvFwrite)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(WritePeer, libcsv_write, Peers::WriteByLibcsvWrite)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(WritePeer, blocks, Peers::QuoteInBlocks)->Apply(Passes::ConfigureRows);
BENCHMARK(PlainWrite)->Name("WritePeer/plain")->Apply(Passes::ConfigureRows);
