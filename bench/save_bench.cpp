/// Writing a table, in fresh memory: the program's Save of its three forms, saving as the editor does it, and
/// beside them other writers that make the same file. Compare
///   Save    (kept cells to file)  with libcsv's two writers and QuoteInBlocks (kept cells to file), and with
///                                 PlainWrite of the finished bytes, which does less;
///   AppSave (the list to file)    with Save.
/// All of them flush the file, which costs nothing in memory; name a folder on a disk by NORVO_BENCH_FOLDER
/// to measure that too. The counter extra_MB is the memory that the save needed beyond what was held before
/// it.
#include "bench/Editor.h"
#include "bench/Passes.h"
#include "bench/Scratch.h"
#include "bench/WritePeers.h"

namespace {

using StandardTables::FileForm;

int Rows(const benchmark::State &pState) {
    return static_cast<int>(pState.range(0));
}

struct Saving {
    NoDesktop desktop;
    Runtime runtime{desktop, {}, ""};
    clsDatFile table{runtime};
};

/// Whether the copy that a pass has left is right, whatever the pass was done on.
auto IsCopyOf(const std::string &pFile) {
    return [&pFile](const auto & /*pSubject*/) { return Scratch::IsCopyOf(pFile); };
}

void Save(benchmark::State &pState, FileForm pForm) {
    const std::string &file = Scratch::TableFile(pForm, Rows(pState));
    const auto prepare = [&] {
        auto saving = std::make_unique<Saving>();
        saving->table.Fmt(static_cast<std::int16_t>(pForm));
        saving->table.Headers(StandardTables::Titles(StandardTables::limit.cols));
        saving->table.FileName(file);
        saving->table.Load();
        saving->table.FileName(Scratch::FreshCopy());
        return saving;
    };
    Passes::Measure(
        pState, prepare, [](const std::unique_ptr<Saving> &pSaving) { pSaving->table.Save(); },
        IsCopyOf(file));
    pState.SetBytesProcessed(Scratch::Size(file) * pState.iterations());
}

void AppSave(benchmark::State &pState, FileForm pForm) {
    const std::string &file = Scratch::TableFile(pForm, Rows(pState));
    const std::string &specification = Scratch::SpecificationFile();
    std::string copy;
    const auto prepare = [&] {
        auto editor = std::make_unique<Editor>(specification, pForm);
        editor->Main().AppCmd("open", {file});
        copy = Scratch::FreshCopy();
        return editor;
    };
    Passes::Measure(
        pState, prepare,
        [&](const std::unique_ptr<Editor> &pEditor) { pEditor->Main().AppCmd("save", {copy}); },
        IsCopyOf(file));
    pState.SetBytesProcessed(Scratch::Size(file) * pState.iterations());
}

void CellsPeer(benchmark::State &pState, void (*pWrite)(const std::string &, const WritePeers::Table &)) {
    const std::string &file = Scratch::TableFile(FileForm::Dat, Rows(pState));
    const WritePeers::Table table{Scratch::LimitCells(), static_cast<std::size_t>(Rows(pState))};
    Passes::Measure(
        pState, [] { return Scratch::FreshCopy(); }, [&](const std::string &pCopy) { pWrite(pCopy, table); },
        IsCopyOf(file));
    pState.SetBytesProcessed(Scratch::Size(file) * pState.iterations());
}

void PlainWrite(benchmark::State &pState) {
    const std::string &file = Scratch::TableFile(FileForm::Dat, Rows(pState));
    const std::string bytes = Scratch::Bytes(file);
    Passes::Measure(
        pState, [] { return Scratch::FreshCopy(); },
        [&](const std::string &pCopy) { WritePeers::PlainWrite(pCopy, bytes); }, IsCopyOf(file));
    pState.SetBytesProcessed(Scratch::Size(file) * pState.iterations());
}

/// One field alone in its table, with nothing but quotes to double.
void SaveLongField(benchmark::State &pState) {
    const auto length = static_cast<std::size_t>(pState.range(0));
    const std::string file = Scratch::LongFieldFile(length);
    const auto prepare = [&] {
        auto saving = std::make_unique<Saving>();
        saving->table.FileName(file);
        saving->table.Load();
        saving->table.FileName(Scratch::FreshCopy());
        return saving;
    };
    Passes::Measure(
        pState, prepare, [](const std::unique_ptr<Saving> &pSaving) { pSaving->table.Save(); },
        IsCopyOf(file));
    pState.SetBytesProcessed(Scratch::Size(file) * pState.iterations());
}

} // namespace

BENCHMARK_CAPTURE(Save, dat, FileForm::Dat)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(Save, csv, FileForm::Csv)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(Save, csvh, FileForm::CsvWithHeaders)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(AppSave, dat, FileForm::Dat)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(AppSave, csv, FileForm::Csv)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(AppSave, csvh, FileForm::CsvWithHeaders)->Apply(Passes::ConfigureRows);
#ifdef NORVO_BENCH_LIBCSV
BENCHMARK_CAPTURE(CellsPeer, libcsv_fwrite, WritePeers::LibcsvFwrite)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(CellsPeer, libcsv_write, WritePeers::LibcsvWrite)->Apply(Passes::ConfigureRows);
#endif
BENCHMARK_CAPTURE(CellsPeer, blocks, WritePeers::QuoteInBlocks)->Apply(Passes::ConfigureRows);
BENCHMARK(PlainWrite)->Apply(Passes::ConfigureRows);
BENCHMARK(SaveLongField)->Apply(Passes::ConfigureBytes);
