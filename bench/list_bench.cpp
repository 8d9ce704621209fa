/// The acts on the list of records, 80 fields each, done as the user does them: picking a row, and the
/// buttons Add, Update, Delete, Move Up and Move Down. What one act costs must not depend on how long the
/// list is. The rows that are acted on lie spread over the whole list, from the first to the last, and each
/// is acted on many times, so that what is compared between lengths is the work and not the processor's
/// caches.
#include "bench/Editor.h"
#include "bench/Passes.h"
#include "bench/Scratch.h"

namespace {

constexpr int mostActs = 2000;
constexpr int places = 16;

/// A row to act on, from 1; neither the first nor the last, so that each act can be done there.
int Place(std::int64_t pAct, int pRows) {
    return 2 + static_cast<int>(pAct % places * (pRows - 3) / (places - 1));
}

/// Times pAct, which follows on pBefore outside the clock.
template <typename Before, typename Act>
void MeasureActs(benchmark::State &pState, Before pBefore, Act pAct) {
    using Clock = std::chrono::steady_clock;
    const int rows = static_cast<int>(pState.range(0));
    Editor editor(Scratch::SpecificationFile(), StandardTables::FileForm::Dat);
    frmMain &form = editor.Main();
    form.AppCmd("open", {Scratch::TableFile(StandardTables::FileForm::Dat, rows)});
    std::int64_t acts = 0;
    for (auto _ : pState) {
        pBefore(form, Place(acts, rows));
        const Clock::time_point start = Clock::now();
        pAct(form, Place(acts, rows));
        pState.SetIterationTime(std::chrono::duration<double>(Clock::now() - start).count());
        ++acts;
    }
    if (std::abs(editor.Rows() - rows) > 1) {
        pState.SkipWithError("The list has grown or shrunk.");
    }
}

void PickRow(frmMain &pForm, int pRow) {
    pForm.ListView1.Pick(pRow);
}

void Nothing(frmMain & /*pForm*/, int /*pRow*/) {}

void DeleteRow(frmMain &pForm, int pRow) {
    pForm.ListView1.Pick(pRow);
    pForm.cmdDel.Press();
}

/// The fields keep what was picked last, so that there is something to add.
void AddRow(frmMain &pForm, int /*pRow*/) {
    pForm.cmdAdd.Press();
}

void Pick(benchmark::State &pState) {
    MeasureActs(pState, Nothing, PickRow);
}

void Add(benchmark::State &pState) {
    MeasureActs(pState, DeleteRow, AddRow);
}

/// The button is Update while a row is picked.
void Update(benchmark::State &pState) {
    MeasureActs(pState, PickRow, AddRow);
}

/// Each row that is deleted was added at the end before, but for the first.
void Delete(benchmark::State &pState) {
    bool isFirst = true;
    MeasureActs(
        pState,
        [&](frmMain &pForm, int pRow) {
            if (!std::exchange(isFirst, false)) {
                pForm.cmdAdd.Press();
            }
            PickRow(pForm, pRow);
        },
        [](frmMain &pForm, int /*pRow*/) { pForm.cmdDel.Press(); });
}

void MoveUp(benchmark::State &pState) {
    MeasureActs(pState, PickRow, [](frmMain &pForm, int /*pRow*/) { pForm.cmdMoveUp.Press(); });
}

void MoveDown(benchmark::State &pState) {
    MeasureActs(pState, PickRow, [](frmMain &pForm, int /*pRow*/) { pForm.cmdMoveDown.Press(); });
}

/// From cells into the list, as a table is shown.
void FillList(benchmark::State &pState) {
    NoDesktop desktop;
    Runtime runtime(desktop, {}, "");
    clsListViewRpt report;
    report.LV(runtime.NewForm("form").Add<ListView>("list"));
    report.Headers(StandardTables::Titles(StandardTables::limit.cols));
    const auto rows = static_cast<std::int16_t>(pState.range(0));
    const auto fill = [&](int /*pNothing*/) {
        for (std::int16_t row = 0; row < rows; ++row) {
            report.AddRow();
            for (std::int16_t col = 0; col < StandardTables::limit.cols; ++col) {
                report.Data(
                    row, col,
                    Scratch::LimitCells()[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)]);
            }
        }
    };
    const auto clear = [&] {
        report.Clear();
        return 0;
    };
    Passes::Measure(pState, clear, fill, [&](int /*pNothing*/) { return report.Rows() == rows; });
}

void Configure(benchmark::internal::Benchmark *pBenchmark) {
    constexpr int repetitions = 5;
    pBenchmark->ArgName("rows")->Unit(benchmark::kMicrosecond)->UseManualTime()->Iterations(mostActs);
    pBenchmark->Repetitions(repetitions)->DisplayAggregatesOnly(true);
    for (const int rows : StandardTables::rowCounts) {
        pBenchmark->Arg(rows);
    }
}

} // namespace

BENCHMARK(Pick)->Apply(Configure);
BENCHMARK(Add)->Apply(Configure);
BENCHMARK(Update)->Apply(Configure);
BENCHMARK(Delete)->Apply(Configure);
BENCHMARK(MoveUp)->Apply(Configure);
BENCHMARK(MoveDown)->Apply(Configure);
BENCHMARK(FillList)->Apply(Passes::ConfigureRows);
