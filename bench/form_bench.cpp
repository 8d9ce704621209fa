/// What the user waits for between two keys, and while the window grows: the completion of what is typed, the
/// check of a text that is left, and the placing of the fields.
#include "bench/Passes.h"
#include "bench/Tables.h"
#include "platform/ComboBox.h"
#include "platform/Controls.h"
#include "ui/clsCombo.h"
#include "ui/clsLayout.h"

namespace {

/// A field over a list of entries that differ only at their ends, so that none is found or ruled out early.
struct Field {
    NoDesktop desktop;
    Runtime runtime{desktop, {}, ""};
    ComboBox &box = runtime.NewForm("form").Add<ComboBox>("box");
    clsCombo combo;

    Field(const std::string &pEntry, std::int64_t pEntries) {
        combo.cb(box);
        combo.Mode(2);
        for (std::int64_t i = 1; i <= pEntries; ++i) {
            box.AddItem(pEntry + std::to_string(i));
        }
    }
};

/// One key: only the last entry completes the text so far.
void Complete(benchmark::State &pState, const std::string &pEntry) {
    constexpr int someLetter = 65;
    Field field(pEntry, pState.range(0));
    const std::string last = pEntry + std::to_string(pState.range(0));
    for (auto _ : pState) {
        field.box.Text("");
        field.box.UserPressesKey(someLetter);
        field.box.UserEdits(last, static_cast<int>(last.size()));
        field.box.UserReleasesKey(someLetter, 0);
    }
    if (field.box.ListIndex() != pState.range(0) - 1) {
        pState.SkipWithError("The entry was not found.");
    }
}

/// One key, after which no entry matches.
void FindNothing(benchmark::State &pState, const std::string &pEntry, const std::string &pTyped) {
    const Field field(pEntry, pState.range(0));
    int found = -1;
    for (auto _ : pState) {
        benchmark::DoNotOptimize(found = field.box.FindString(pTyped));
    }
    if (found != -1) {
        pState.SkipWithError("Something was found.");
    }
}

/// Leaving the field for another, with a text that isn't listed.
void Leave(benchmark::State &pState, const std::string &pEntry) {
    Field field(pEntry, pState.range(0));
    field.box.Text(pEntry + "x");
    bool mayLeave = true;
    for (auto _ : pState) {
        benchmark::DoNotOptimize(mayLeave = field.box.MayLoseFocus());
    }
    if (mayLeave) {
        pState.SkipWithError("The text was accepted.");
    }
}

void RedrawLayout(benchmark::State &pState) {
    constexpr float narrowest = 9000;
    constexpr float widest = 20000;
    constexpr float step = 15;
    NoDesktop desktop;
    Runtime runtime(desktop, {}, "");
    Form &form = runtime.NewForm("form");
    form.ClientSize(narrowest, 5000);
    for (std::int64_t i = 0; i < 2 * pState.range(0); ++i) { // A field is a label and a box.
        auto &control = form.Add<Label>(std::to_string(i));
        control.Move(100, 100, 100, 240);
        control.Tag("X=" + std::to_string(i / 2) + "/100 W=1/100");
    }
    clsLayout layout;
    layout.SetLayout(form);
    float width = narrowest;
    for (auto _ : pState) {
        width = width < widest ? width + step : narrowest;
        form.Width(width);
        layout.RedrawLayout();
    }
}

void ConfigureEntries(Passes::Benchmark *pBenchmark) {
    Passes::Configure(pBenchmark, "entries", {625, 2500, 10'000, 40'000, 160'000});
}

void ConfigureFields(Passes::Benchmark *pBenchmark) {
    Passes::Configure(pBenchmark, "fields", {5, 10, 20, 40, 80});
}

const std::string ascii = "Entry number ";
const std::string greek = "Καταχώριση ";

} // namespace

BENCHMARK_CAPTURE(Complete, ascii, ascii)->Apply(ConfigureEntries);
BENCHMARK_CAPTURE(Complete, greek, greek)->Apply(ConfigureEntries);
BENCHMARK_CAPTURE(FindNothing, ascii, ascii, "ENTRY NUMBER x")->Apply(ConfigureEntries);
BENCHMARK_CAPTURE(FindNothing, greek, greek, "ΚΑΤΑΧΏΡΙΣΗ x")->Apply(ConfigureEntries);
BENCHMARK_CAPTURE(Leave, ascii, ascii)->Apply(ConfigureEntries);
BENCHMARK_CAPTURE(Leave, greek, greek)->Apply(ConfigureEntries);
BENCHMARK(RedrawLayout)->Apply(ConfigureFields);
