/// What a user does on the list of records, 80 fields each: picking a row, and the buttons Add, Update,
/// Delete, Move Up and Move Down. The time of an act must not depend on how long the list is. The rows are
/// spread over the whole list, and each is acted on many times. So the work decides the result, and not the
/// processor's caches.
#include "bench/Editor.h"
#include "bench/Passes.h"

namespace {

/// An act on a row, from 1.
using Step = void (*)(frmMain &, int);

const Step nothing = [](frmMain & /*pForm*/, int /*pRow*/) {};
const Step pick = [](frmMain &pForm, int pRow) { pForm.ListView1.Pick(pRow); };
const Step add = [](frmMain &pForm, int /*pRow*/) { pForm.cmdAdd.Press(); };
const Step deletePicked = [](frmMain &pForm, int /*pRow*/) { pForm.cmdDel.Press(); };
const Step moveUp = [](frmMain &pForm, int /*pRow*/) { pForm.cmdMoveUp.Press(); };
const Step moveDown = [](frmMain &pForm, int /*pRow*/) { pForm.cmdMoveDown.Press(); };

/// Times pAct alone, between pBefore and pAfter, on a row that is picked first. The fields keep the text of
/// the row picked last, so that there is something to add.
void Act(benchmark::State &pState, Step pBefore, Step pAct, Step pAfter) {
    constexpr int places = 16;
    const int rows = static_cast<int>(pState.range(0));
    Editor editor(clsDatFile::fmtDat);
    editor.Open(Tables::File(clsDatFile::fmtDat, Tables::Limit(rows)));
    int acts = 0;
    for (auto _ : pState) {
        const int row = 2 + acts++ % places * (rows - 3) / (places - 1); // neither the first nor the last
        pick(editor.form, row);
        pBefore(editor.form, row);
        pState.SetIterationTime(Passes::SecondsOf([&] { pAct(editor.form, row); }));
        pAfter(editor.form, row);
    }
    if (editor.Rows() != rows || !editor.Fault().empty()) {
        pState.SkipWithError("The list has grown or shrunk, or there was a message.");
    }
}

/// Puts the cells into the list, as opening a file does.
void FillList(benchmark::State &pState) {
    const Tables::Cells cells = Tables::Limit(pState.range(0));
    const auto fill = [&](auto &pEditor) {
        clsListViewRpt report;
        report.LV(pEditor->form.ListView1);
        for (const Tables::Row &row : cells) {
            report.AddRow(TextRow(row));
        }
    };
    Passes::Measure(
        pState, [] { return std::make_unique<Editor>(clsDatFile::fmtDat); }, fill,
        [&](auto &pEditor) { return std::cmp_equal(pEditor->Rows(), cells.size()); });
}

void Configure(Passes::Benchmark *pBenchmark) {
    constexpr int acts = 2000;
    Passes::ConfigureRows(pBenchmark);
    pBenchmark->Iterations(acts)->Repetitions(5);
}

} // namespace

BENCHMARK_CAPTURE(Act, Pick, nothing, pick, nothing)->Apply(Configure);
BENCHMARK_CAPTURE(Act, Add, deletePicked, add, nothing)->Apply(Configure);
// The button Add is Update while a row is picked.
BENCHMARK_CAPTURE(Act, Update, nothing, add, nothing)->Apply(Configure);
BENCHMARK_CAPTURE(Act, Delete, nothing, deletePicked, add)->Apply(Configure);
BENCHMARK_CAPTURE(Act, MoveUp, nothing, moveUp, nothing)->Apply(Configure);
BENCHMARK_CAPTURE(Act, MoveDown, nothing, moveDown, nothing)->Apply(Configure);
BENCHMARK(FillList)->Apply(Passes::ConfigureRows);
