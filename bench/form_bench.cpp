/// What the user waits for between two keys, and while the window grows: the completion of what is typed, the
/// check of a text that is left, and the placing of the fields.
#include "bench/NoDesktop.h"
#include "bench/Passes.h"
#include "forms/ComboBox.h"
#include "forms/Controls.h"
#include "forms/Runtime.h"
#include "ui/clsCombo.h"
#include "ui/clsLayout.h"

namespace {

/// A field over a list of entries that differ only at their ends, so that none is found or ruled out early.
struct Field {
    NoDesktop desktop;
    Runtime runtime{desktop, {}, ""};
    ComboBox &box = runtime.NewForm().Add<ComboBox>("box");
    clsCombo combo;
    std::string lastEntry;
};

struct Language {
    std::string entry;    ///< followed by its number
    std::string unlisted; ///< in capitals, which make no difference
};

const Language ascii{"Entry number ", "ENTRY NUMBER x"};
const Language greek{"Καταχώριση ", "ΚΑΤΑΧΏΡΙΣΗ x"};

/// What the user does in the field. Returns whether the field answers as it should.
using Act = bool (*)(Field &, const std::string &pUnlisted);

/// One key: of all entries only the last completes the text so far.
const Act complete = [](Field &pField, const std::string & /*pUnlisted*/) {
    pField.box.Text("");
    pField.box.UserPressesKey(FieldKey::TypesText);
    pField.box.UserEdits(pField.lastEntry, static_cast<int>(pField.lastEntry.size()));
    pField.box.UserReleasesKey(FieldKey::TypesText);
    return pField.box.ListIndex() == pField.box.ListCount() - 1;
};

/// One key, after which no entry matches.
const Act findNothing = [](Field &pField, const std::string &pUnlisted) {
    return pField.box.FindString(pUnlisted) == -1;
};

/// Leaving the field for another, with a text that isn't listed.
const Act leave = [](Field &pField, const std::string &pUnlisted) {
    pField.box.Text(pUnlisted);
    return !pField.box.MayLoseFocus();
};

void InField(benchmark::State &pState, Act pAct, const Language &pLanguage) {
    Field field;
    field.combo.cb(field.box);
    field.combo.Mode(2);
    for (std::int64_t i = 1; i <= pState.range(0); ++i) {
        field.lastEntry = pLanguage.entry + std::to_string(i);
        field.box.AddItem(field.lastEntry);
    }
    bool isRight = true;
    for (auto _ : pState) {
        isRight = pAct(field, pLanguage.unlisted) && isRight;
    }
    if (!isRight) {
        pState.SkipWithError("The field gave the wrong answer.");
    }
}

void RedrawLayout(benchmark::State &pState) {
    constexpr float narrowest = 9000;
    constexpr float widest = 20000;
    constexpr float step = 15;
    NoDesktop desktop;
    Runtime runtime(desktop, {}, "");
    Form &form = runtime.NewForm();
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

} // namespace

BENCHMARK_CAPTURE(InField, ascii, complete, ascii)->Name("Complete/ascii")->Apply(ConfigureEntries);
BENCHMARK_CAPTURE(InField, greek, complete, greek)->Name("Complete/greek")->Apply(ConfigureEntries);
BENCHMARK_CAPTURE(InField, ascii, findNothing, ascii)->Name("FindNothing/ascii")->Apply(ConfigureEntries);
BENCHMARK_CAPTURE(InField, greek, findNothing, greek)->Name("FindNothing/greek")->Apply(ConfigureEntries);
BENCHMARK_CAPTURE(InField, ascii, leave, ascii)->Name("Leave/ascii")->Apply(ConfigureEntries);
BENCHMARK_CAPTURE(InField, greek, leave, greek)->Name("Leave/greek")->Apply(ConfigureEntries);
BENCHMARK(RedrawLayout)->Apply(ConfigureFields);
