/// Reading and writing a table, in fresh memory. Compare
///   Load    (file to kept cells) with libcsv's cells and getline's (the same), and with SplitIntoReferences
///           (file to references) and ReadWhole, which do less;
///   Save    (kept cells to file) with libcsv's two writers and QuoteInBlocks (the same), and with PlainWrite
///           of the finished bytes, which does less;
///   AppOpen (file to the list) with Load, and AppSave (the list to file) with Save.
/// All writers flush the file, which costs nothing in memory. NORVO_BENCH_FOLDER names a folder on a disk to
/// measure that too.
#include "bench/Editor.h"
#include "bench/Passes.h"
#include "bench/Peers.h"

namespace {

using Tables::Cells;

Cells CellsFor(const benchmark::State &pState) {
    return Tables::LimitCells(pState.range(0));
}

clsDatFile TableOf(const std::string &pFile, std::int16_t pFmt) {
    static NoDesktop desktop;
    static const Runtime runtime(desktop, {}, "");
    clsDatFile table(runtime);
    table.Fmt(pFmt);
    table.FileName(pFile);
    return table;
}

/// Results are compared by their size and their last row.
bool Holds(const std::vector<Tables::Row> &pRows, Cells pWanted) {
    return pRows.size() == pWanted.size() + 1 && pRows.back() == pWanted.back();
}

bool Holds(const Peers::References &pReferences, Cells pWanted) {
    const std::size_t cols = pWanted.front().size();
    return pReferences.cells.size() == pWanted.size() * cols && pReferences.Last(cols) == pWanted.back();
}

bool Holds(const Peers::Buffer &pBuffer, Cells pWanted) {
    return pBuffer.size == Tables::FileText(clsDatFile::fmtDat, pWanted).size();
}

bool IsLast(int pRow, const TextRow &pTexts, Cells pWanted) {
    const TextRow wanted(pWanted.back());
    return std::cmp_equal(pRow, pWanted.size()) && pTexts.Run() == wanted.Run() &&
           std::ranges::equal(pTexts.Ends(), wanted.Ends());
}

void MeasureLoad(benchmark::State &pState, const std::string &pFile, std::int16_t pFmt, Cells pWanted) {
    Passes::Measure(
        pState, [&] { return TableOf(pFile, pFmt); }, [](clsDatFile &pTable) { pTable.Load(); },
        [&](const clsDatFile &pTable) {
            const auto last = static_cast<std::int16_t>(pTable.Rows() - 1);
            return IsLast(pTable.Rows(), pTable.Row(last), pWanted);
        });
}

void Load(benchmark::State &pState, std::int16_t pFmt) {
    MeasureLoad(pState, Tables::TableFile(pFmt, pState.range(0)), pFmt, CellsFor(pState));
}

/// A field alone in its table. Its bytes are the size here.
void LoadLongField(benchmark::State &pState) {
    const auto bytes = static_cast<std::size_t>(pState.range(0));
    MeasureLoad(pState, Tables::LongFieldFile(bytes), clsDatFile::fmtDat, Tables::LongField(bytes));
}

void AppOpen(benchmark::State &pState, std::int16_t pFmt) {
    const std::string file = Tables::TableFile(pFmt, pState.range(0));
    Passes::Measure(
        pState, [&] { return std::make_unique<Editor>(pFmt); },
        [&](const std::unique_ptr<Editor> &pEditor) { pEditor->form.AppCmd("open", {file}); },
        [&](const std::unique_ptr<Editor> &pEditor) {
            const ListItems &rows = pEditor->Rows();
            return pEditor->IsQuiet() && IsLast(rows.Count(), rows(rows.Count()).Texts(), CellsFor(pState));
        });
}

template <typename Result> void ReadPeer(benchmark::State &pState, Result (*pRead)(const std::string &)) {
    const std::string file = Tables::TableFile(clsDatFile::fmtDat, pState.range(0));
    Passes::Measure(
        pState, [] { return Result(); }, [&](Result &pResult) { pResult = pRead(file); },
        [&](const Result &pResult) { return Holds(pResult, CellsFor(pState)); });
}

void MeasureSave(benchmark::State &pState, const std::string &pFile, std::int16_t pFmt) {
    const auto prepare = [&] {
        clsDatFile table = TableOf(pFile, pFmt);
        table.Headers(Tables::Titles(Tables::limitCols));
        table.Load();
        table.FileName(Tables::FreshCopy());
        return table;
    };
    Passes::Measure(
        pState, prepare, [](clsDatFile &pTable) { pTable.Save(); },
        [&](const clsDatFile & /*pTable*/) { return Tables::IsCopyOf(pFile); });
}

void Save(benchmark::State &pState, std::int16_t pFmt) {
    MeasureSave(pState, Tables::TableFile(pFmt, pState.range(0)), pFmt);
}

void SaveLongField(benchmark::State &pState) {
    MeasureSave(pState, Tables::LongFieldFile(static_cast<std::size_t>(pState.range(0))), clsDatFile::fmtDat);
}

void AppSave(benchmark::State &pState, std::int16_t pFmt) {
    const std::string file = Tables::TableFile(pFmt, pState.range(0));
    std::string copy;
    const auto prepare = [&] {
        auto editor = std::make_unique<Editor>(pFmt);
        editor->form.AppCmd("open", {file});
        copy = Tables::FreshCopy();
        return editor;
    };
    Passes::Measure(
        pState, prepare,
        [&](const std::unique_ptr<Editor> &pEditor) { pEditor->form.AppCmd("save", {copy}); },
        [&](const std::unique_ptr<Editor> &pEditor) { return pEditor->IsQuiet() && Tables::IsCopyOf(file); });
}

template <typename Write> void MeasureWrite(benchmark::State &pState, Write pWrite) {
    const std::string file = Tables::TableFile(clsDatFile::fmtDat, pState.range(0));
    Passes::Measure(pState, Tables::FreshCopy, pWrite,
                    [&](const std::string & /*pCopy*/) { return Tables::IsCopyOf(file); });
}

void WritePeer(benchmark::State &pState, void (*pWrite)(const std::string &, Cells)) {
    const Cells cells = CellsFor(pState);
    MeasureWrite(pState, [&](const std::string &pCopy) { pWrite(pCopy, cells); });
}

void PlainWrite(benchmark::State &pState) {
    const std::string bytes = Tables::FileText(clsDatFile::fmtDat, CellsFor(pState));
    MeasureWrite(pState, [&](const std::string &pCopy) { Peers::PlainWrite(pCopy, bytes); });
}

} // namespace

BENCHMARK_CAPTURE(Load, dat, clsDatFile::fmtDat)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(Load, csv, clsDatFile::fmtCsv)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(Load, csvh, clsDatFile::fmtCsvWithHeaders)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(AppOpen, dat, clsDatFile::fmtDat)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(AppOpen, csv, clsDatFile::fmtCsv)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(AppOpen, csvh, clsDatFile::fmtCsvWithHeaders)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(ReadPeer, libcsv, Peers::ReadByLibcsv)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(ReadPeer, libcsv_room, Peers::ReadByLibcsvWithRoom)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(ReadPeer, getline, Peers::ReadByGetline)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(ReadPeer, references, Peers::SplitIntoReferences)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(ReadPeer, whole, Peers::ReadWhole)->Apply(Passes::ConfigureRows);
BENCHMARK(LoadLongField)->Apply(Passes::ConfigureBytes);
BENCHMARK_CAPTURE(Save, dat, clsDatFile::fmtDat)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(Save, csv, clsDatFile::fmtCsv)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(Save, csvh, clsDatFile::fmtCsvWithHeaders)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(AppSave, dat, clsDatFile::fmtDat)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(AppSave, csv, clsDatFile::fmtCsv)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(AppSave, csvh, clsDatFile::fmtCsvWithHeaders)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(WritePeer, libcsv_fwrite, Peers::WriteByLibcsvFwrite)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(WritePeer, libcsv_write, Peers::WriteByLibcsvWrite)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(WritePeer, blocks, Peers::QuoteInBlocks)->Apply(Passes::ConfigureRows);
BENCHMARK(PlainWrite)->Name("WritePeer/plain")->Apply(Passes::ConfigureRows);
BENCHMARK(SaveLongField)->Apply(Passes::ConfigureBytes);
