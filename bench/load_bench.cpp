/// Reading a table, in fresh memory: the program's Load of its three forms, opening as the editor does it,
/// and beside them other readers on the same file. Compare
///   Load    (file to kept cells)  with libcsv's cells (file to kept cells), with GetlineCells, and with
///                                 SplitIntoReferences (file to references) and ReadWhole, which do less;
///   AppOpen (file to the list)    with Load.
/// The counter kept_MB is what the result holds in the end, extra_MB the peak on the way there.
#include "bench/Editor.h"
#include "bench/Passes.h"
#include "bench/ReadPeers.h"
#include "bench/Scratch.h"

namespace {

using StandardTables::FileForm;

constexpr std::size_t cols = StandardTables::limit.cols;

int Rows(const benchmark::State &pState) {
    return static_cast<int>(pState.range(0));
}

const std::vector<std::string> &LastRow(const benchmark::State &pState) {
    return Scratch::LimitCells()[static_cast<std::size_t>(Rows(pState)) - 1];
}

struct Loading {
    NoDesktop desktop;
    Runtime runtime{desktop, {}, ""};
    clsDatFile table{runtime};
};

void Load(benchmark::State &pState, FileForm pForm) {
    const std::string &file = Scratch::TableFile(pForm, Rows(pState));
    const std::vector<std::string> &last = LastRow(pState);
    const auto prepare = [&] {
        auto loading = std::make_unique<Loading>();
        loading->table.Fmt(static_cast<std::int16_t>(pForm));
        loading->table.FileName(file);
        return loading;
    };
    const auto isRight = [&](const std::unique_ptr<Loading> &pLoading) {
        const clsDatFile &table = pLoading->table;
        bool isSame = table.Rows() == Rows(pState) && table.Cols() == static_cast<int>(cols);
        for (std::size_t col = 0; col < cols; ++col) {
            isSame = isSame && table.Data(static_cast<std::int16_t>(table.Rows() - 1),
                                          static_cast<std::int16_t>(col)) == last[col];
        }
        return isSame;
    };
    Passes::Measure(
        pState, prepare, [](const std::unique_ptr<Loading> &pLoading) { pLoading->table.Load(); }, isRight);
    pState.SetBytesProcessed(Scratch::Size(file) * pState.iterations());
}

void AppOpen(benchmark::State &pState, FileForm pForm) {
    const std::string &file = Scratch::TableFile(pForm, Rows(pState));
    const std::string &specification = Scratch::SpecificationFile();
    const std::string &last = LastRow(pState).back();
    Passes::Measure(
        pState, [&] { return std::make_unique<Editor>(specification, pForm); },
        [&](const std::unique_ptr<Editor> &pEditor) { pEditor->Main().AppCmd("open", {file}); },
        [&](const std::unique_ptr<Editor> &pEditor) {
            return pEditor->Rows() == Rows(pState) && pEditor->EndsWith(last);
        });
    pState.SetBytesProcessed(Scratch::Size(file) * pState.iterations());
}

/// A peer that makes vectors of strings; the first pSkipped rows of them are none of the table.
void CellsPeer(benchmark::State &pState, StandardTables::Cells (*pRead)(const std::string &),
               std::size_t pSkipped) {
    const std::string &file = Scratch::TableFile(FileForm::Dat, Rows(pState));
    Passes::Measure(
        pState, [] { return StandardTables::Cells(); },
        [&](StandardTables::Cells &pCells) { pCells = pRead(file); },
        [&](const StandardTables::Cells &pCells) {
            return pCells.size() == static_cast<std::size_t>(Rows(pState)) + pSkipped &&
                   pCells.back() == LastRow(pState);
        });
    pState.SetBytesProcessed(Scratch::Size(file) * pState.iterations());
}

void SplitIntoReferences(benchmark::State &pState) {
    const std::string &file = Scratch::TableFile(FileForm::Dat, Rows(pState));
    const auto isRight = [&](const ReadPeers::References &pReferences) {
        const std::size_t before = (static_cast<std::size_t>(Rows(pState)) - 1) * cols;
        bool isSame = pReferences.cells.size() == before + cols;
        for (std::size_t col = 0; isSame && col < cols; ++col) {
            isSame = pReferences.Cell(before + col) == LastRow(pState)[col];
        }
        return isSame;
    };
    Passes::Measure(
        pState, [] { return ReadPeers::References(); },
        [&](ReadPeers::References &pReferences) { pReferences = ReadPeers::SplitIntoReferences(file); },
        isRight);
    pState.SetBytesProcessed(Scratch::Size(file) * pState.iterations());
}

void ReadWhole(benchmark::State &pState) {
    const std::string &file = Scratch::TableFile(FileForm::Dat, Rows(pState));
    Passes::Measure(
        pState, [] { return ReadPeers::Buffer(); },
        [&](ReadPeers::Buffer &pBuffer) { pBuffer = ReadPeers::ReadWhole(file); },
        [&](const ReadPeers::Buffer &pBuffer) {
            return static_cast<std::int64_t>(pBuffer.size) == Scratch::Size(file);
        });
    pState.SetBytesProcessed(Scratch::Size(file) * pState.iterations());
}

/// One field alone in its table: rows are many in the others, bytes of a field here.
void LoadLongField(benchmark::State &pState) {
    const auto length = static_cast<std::size_t>(pState.range(0));
    const std::string file = Scratch::LongFieldFile(length);
    const auto prepare = [&] {
        auto loading = std::make_unique<Loading>();
        loading->table.FileName(file);
        return loading;
    };
    Passes::Measure(
        pState, prepare, [](const std::unique_ptr<Loading> &pLoading) { pLoading->table.Load(); },
        [&](const std::unique_ptr<Loading> &pLoading) {
            return pLoading->table.Rows() == 1 && pLoading->table.Data(0, 0).size() == length;
        });
    pState.SetBytesProcessed(Scratch::Size(file) * pState.iterations());
}

} // namespace

BENCHMARK_CAPTURE(Load, dat, FileForm::Dat)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(Load, csv, FileForm::Csv)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(Load, csvh, FileForm::CsvWithHeaders)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(AppOpen, dat, FileForm::Dat)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(AppOpen, csv, FileForm::Csv)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(AppOpen, csvh, FileForm::CsvWithHeaders)->Apply(Passes::ConfigureRows);
#ifdef NORVO_BENCH_LIBCSV
BENCHMARK_CAPTURE(CellsPeer, libcsv, ReadPeers::LibcsvCells, 1)->Apply(Passes::ConfigureRows);
BENCHMARK_CAPTURE(CellsPeer, libcsv_room, ReadPeers::LibcsvCellsWithRoom, 1)->Apply(Passes::ConfigureRows);
#endif
BENCHMARK_CAPTURE(CellsPeer, getline, ReadPeers::GetlineCells, 0)->Apply(Passes::ConfigureRows);
BENCHMARK(SplitIntoReferences)->Apply(Passes::ConfigureRows);
BENCHMARK(ReadWhole)->Apply(Passes::ConfigureRows);
BENCHMARK(LoadLongField)->Apply(Passes::ConfigureBytes);
