/// What opening, saving, typing and resizing cost at the sizes that a user can bring: the longest table, the
/// widest table and a long list.
#include "data/clsDatFile.h"
#include "platform/ComboBox.h"
#include "platform/Controls.h"
#include "platform/Desktop.h"
#include "platform/Form.h"
#include "platform/ListView.h"
#include "platform/Runtime.h"
#include "ui/clsLayout.h"
#include "ui/clsListViewRpt.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>

namespace {

class NoDesktop : public Desktop {
public:
    int ShowMessage(const Message & /*pMessage*/) override { return 1; }
    std::optional<std::string> ShowFileDialog(const Form & /*pForm*/,
                                              const FileDialogRequest & /*pRequest*/) override {
        return std::nullopt;
    }
    void ShowForm(Form & /*pForm*/) override {}
    void CloseForm(Form & /*pForm*/) override {}
    void OpenTarget(const std::string & /*pTarget*/) override {}
    [[noreturn]] void EndProcess(int pStatus) override { std::exit(pStatus); }
};

struct Program {
    NoDesktop desktop;
    Runtime runtime{desktop, {}, ""};
};

/// A file that is gone when this goes.
struct ScratchFile {
    std::string name = (std::filesystem::temp_directory_path() / "norvo_bench.dat").string();
    ScratchFile() = default;
    ~ScratchFile() { std::filesystem::remove(name); }
    ScratchFile(const ScratchFile &) = delete;
    ScratchFile &operator=(const ScratchFile &) = delete;
    std::int64_t Bytes() const { return static_cast<std::int64_t>(std::filesystem::file_size(name)); }
};

clsDatFile Table(const Program &pProgram, std::int64_t pRows, std::int64_t pCols) {
    clsDatFile table(pProgram.runtime);
    table.Rows(static_cast<std::int16_t>(pRows));
    table.Cols(static_cast<std::int16_t>(pCols));
    table.Clear();
    for (std::int16_t row = 0; row < table.Rows(); ++row) {
        for (std::int16_t col = 0; col < table.Cols(); ++col) {
            // Every eighth cell has something to be doubled; some are beyond what a string holds in itself.
            table.Data(row, col,
                       col % 8 == 7 ? "a \"quoted\" text, with a comma" : "cell " + std::to_string(row));
        }
    }
    return table;
}

void Save(benchmark::State &pState) {
    const Program program;
    const ScratchFile file;
    clsDatFile table = Table(program, pState.range(1), pState.range(2));
    table.Fmt(static_cast<std::int16_t>(pState.range(0)));
    table.FileName(file.name);
    for (auto _ : pState) {
        table.Save();
    }
    pState.SetBytesProcessed(file.Bytes() * pState.iterations());
}

void Load(benchmark::State &pState) {
    const Program program;
    const ScratchFile file;
    clsDatFile table = Table(program, pState.range(1), pState.range(2));
    table.Fmt(static_cast<std::int16_t>(pState.range(0)));
    table.FileName(file.name);
    table.Save();
    for (auto _ : pState) {
        table.Load();
    }
    pState.SetBytesProcessed(file.Bytes() * pState.iterations());
}

/// From the table into the list, cell by cell, as opening a file does it.
void FillList(benchmark::State &pState) {
    Program program;
    const clsDatFile table = Table(program, pState.range(0), pState.range(1));
    clsListViewRpt report;
    report.LV(program.runtime.NewForm("form").Add<ListView>("list"));
    report.Headers(std::vector<std::string>(static_cast<std::size_t>(pState.range(1)), "Title"));
    for (auto _ : pState) {
        report.Clear();
        for (std::int16_t row = 0; row < table.Rows(); ++row) {
            report.AddRow();
            for (std::int16_t col = 0; col < table.Cols(); ++col) {
                report.Data(row, col, table.Data(row, col));
            }
        }
    }
    pState.SetItemsProcessed(pState.range(0) * pState.range(1) * pState.iterations());
}

/// The lookup behind each key that is typed, when nothing in the list matches before the last character.
void FindNothing(benchmark::State &pState, const std::string &pEntry, const std::string &pTyped) {
    Program program;
    auto &box = program.runtime.NewForm("form").Add<ComboBox>("box");
    for (std::int64_t i = 0; i < pState.range(0); ++i) {
        box.AddItem(pEntry + std::to_string(i));
    }
    for (auto _ : pState) {
        benchmark::DoNotOptimize(box.FindString(pTyped));
    }
    pState.SetItemsProcessed(pState.range(0) * pState.iterations());
}

void RedrawLayout(benchmark::State &pState) {
    Program program;
    Form &form = program.runtime.NewForm("form");
    form.Width(9000);
    form.Height(5000);
    for (std::int64_t i = 0; i < pState.range(0); ++i) {
        for (const char *kind : {"lbl", "cbo"}) {
            auto &control = form.Add<Label>(kind + std::to_string(i));
            control.Move(100, 100, 100, 240);
            control.Tag("X=" + std::to_string(i) + "/100 W=1/100");
        }
    }
    clsLayout layout;
    layout.SetLayout(form);
    float width = 9000;
    for (auto _ : pState) {
        width = width < 20000 ? width + 15 : 9000;
        form.Width(width);
        layout.RedrawLayout();
    }
}

} // namespace

BENCHMARK(Load)
    ->ArgNames({"fmt", "rows", "cols"})
    ->ArgsProduct({{0, 1}, {32767}, {10}})
    ->ArgsProduct({{0, 1}, {5000}, {80}})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(Save)
    ->ArgNames({"fmt", "rows", "cols"})
    ->ArgsProduct({{0, 1}, {32767}, {10}})
    ->ArgsProduct({{0, 1}, {5000}, {80}})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(FillList)
    ->ArgNames({"rows", "cols"})
    ->Args({32767, 10})
    ->Args({5000, 80})
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(FindNothing, ascii, std::string("Entry number "), std::string("ENTRY NUMBER x"))
    ->Arg(200000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(FindNothing, greek, std::string("Καταχώριση "), std::string("ΚΑΤΑΧΏΡΙΣΗ x"))
    ->Arg(200000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(RedrawLayout)->Arg(80)->Unit(benchmark::kMicrosecond);
