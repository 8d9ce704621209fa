#include "ui/clsLayout.h"

#include "platform/Controls.h"
#include "platform/Runtime.h"
#include "tests/support/ScriptedDesktop.h"

TEST(Layout, ReadsSharesFromOptionStrings) {
    // How far the control moves to the right when the form grows by 1000; -1: it is no part of the layout.
    // clang-format off
    const std::pair<const char *, double> cases[] = {
        {"X=1", 1000},    {"W=1", 0},      {"", 0},        {"X=12/100 W=30/100", 120},  {"W=30/100 X=12/100", 120},
        {"X=-1/2", -500}, {"X=0.5", 0},    {"X=1.5", 2000},  {"X=1/2.5", 500},            {"X=3/4/5", 750},
        {"X=/100", 0},  {"X=", 0},       {"X= 1", 0},    {"X=abc", 0},              {"X=32767.4", 32767000},
        {"x=1", 0},     {"MAX=3", 3000},   {"X=1/0", -1},    {"X=1 X=2", 1000},           {"X=1\t2", 12000},
        {"X=1/", -1},     {"X=32768", -1},   {"X=1 W=1/32768", -1}};
    // clang-format on
    ScriptedDesktop desktop;
    Runtime runtime(desktop, {}, "");
    Form &form = runtime.NewForm();
    for (const auto &[options, growth] : cases) {
        form.Add<Label>(options).Tag(std::string(options) + " Y=1");
    }
    form.Add<MenuItem>("menu").Tag("X=1"); // It has no place, so it is left out, and the others go on.
    clsLayout layout;
    layout.SetLayout(form);
    form.Width(form.Width() + 1000);
    form.Height(form.Height() + 10);
    layout.RedrawLayout();
    for (const auto &[options, growth] : cases) {
        const auto &label = dynamic_cast<const Label &>(form.Controls(options));
        EXPECT_EQ(label.Left(), growth == -1 ? 0 : growth) << options;
        EXPECT_EQ(label.Top(), growth == -1 ? 0 : 10) << options;
    }
}
