/// What the user waits for between two keys, and while the window is drawn larger: the completion of what is
/// typed, the check of a text that is left, and the placing of the fields.
#include "bench/NoDesktop.h"
#include "bench/Scratch.h"
#include "platform/ComboBox.h"
#include "platform/Controls.h"
#include "platform/Form.h"
#include "platform/Runtime.h"
#include "ui/clsCombo.h"
#include "ui/clsLayout.h"

#include <benchmark/benchmark.h>

#include <fstream>

namespace {

/// A field over a list of entries that differ only at their ends, so that none is found or ruled out early.
struct Field {
    NoDesktop desktop;
    Runtime runtime{desktop, {}, ""};
    ComboBox &box = runtime.NewForm("form").Add<ComboBox>("box");
    clsCombo combo;

    Field(const std::string &pEntry, std::int64_t pEntries) {
        const std::string file = Scratch::File("entries.txt");
        std::ofstream list(file, std::ios::binary);
        for (std::int64_t i = 1; i <= pEntries; ++i) {
            list << pEntry << i << "\r\n";
        }
        list.close();
        combo.cb(box);
        combo.Mode(2);
        combo.LoadFromTxtFile(file);
        if (!combo.Fault().empty() || box.ListCount() != pEntries) {
            std::abort();
        }
    }
};

/// One key: the text so far is completed by the list's last entry alone.
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
    NoDesktop desktop;
    Runtime runtime(desktop, {}, "");
    Form &form = runtime.NewForm("form");
    form.ClientSize(9000, 5000);
    for (std::int64_t i = 0; i < pState.range(0); ++i) {
        for (const char *kind : {"lbl", "cbo"}) {
            auto &control = form.Add<Label>(kind + std::to_string(i));
            control.Move(100, 100, 100, 240);
            control.Tag("X=" + std::to_string(i) + "/100 W=1/100");
        }
    }
    clsLayout layout;
    layout.SetLayout(form);
    constexpr float narrowest = 9000;
    constexpr float widest = 20000;
    constexpr float step = 15;
    float width = narrowest;
    for (auto _ : pState) {
        width = width < widest ? width + step : narrowest;
        form.Width(width);
        layout.RedrawLayout();
    }
}

void Repeat(benchmark::internal::Benchmark *pBenchmark) {
    constexpr int repetitions = 5;
    pBenchmark->Repetitions(repetitions)->MinTime(0.05)->DisplayAggregatesOnly(true);
}

void ConfigureEntries(benchmark::internal::Benchmark *pBenchmark) {
    Repeat(pBenchmark);
    pBenchmark->ArgName("entries")->Unit(benchmark::kMillisecond);
    for (const int entries : {625, 2500, 10'000, 40'000, 160'000}) {
        pBenchmark->Arg(entries);
    }
}

void ConfigureFields(benchmark::internal::Benchmark *pBenchmark) {
    Repeat(pBenchmark);
    pBenchmark->ArgName("fields")->Unit(benchmark::kMicrosecond);
    for (const int fields : {5, 10, 20, 40, 80}) {
        pBenchmark->Arg(fields);
    }
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
