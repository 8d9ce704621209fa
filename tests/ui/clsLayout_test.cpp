#include "ui/clsLayout.h"

#include "platform/Controls.h"
#include "platform/Runtime.h"
#include "tests/support/ScriptedDesktop.h"

TEST(Layout, ReadsSharesFromOptionStrings) {
    // The place from the left after a growth of 1000; with -1 the control is no part of the layout.
    // clang-format off
    const std::pair<const char *, double> cases[] = {
        {"X=1", 1100},    {"W=1", 100},      {"", 100},        {"X=12/100 W=30/100", 220},  {"W=30/100 X=12/100", 220},
        {"X=-1/2", -400}, {"X=0.5", 100},    {"X=1.5", 2100},  {"X=1/2.5", 600},            {"X=3/4/5", 850},
        {"X=/100", 100},  {"X=", 100},       {"X= 1", 100},    {"X=abc", 100},              {"X=32767.4", 32767100},
        {"x=1", 100},     {"MAX=3", 3100},   {"X=1/0", -1},    {"X=1 X=2", 1100},           {"X=1\t2", 12100},
        {"X=1/", -1},     {"X=32768", -1},   {"X=1 W=1/32768", -1}};
    // clang-format on
    ScriptedDesktop desktop;
    Runtime runtime(desktop, {}, "");
    Form &form = runtime.NewForm();
    for (const auto &[options, left] : cases) {
        auto &label = form.Add<Label>(options);
        label.Move(100, 200, 300, 400);
        label.Tag(std::string(options) + " Y=1");
    }
    form.Add<MenuItem>("menu").Tag("X=1"); // no place: left out, and the others go on
    clsLayout layout;
    layout.SetLayout(form);
    form.Width(form.Width() + 1000);
    form.Height(form.Height() + 10);
    layout.RedrawLayout();
    for (const auto &[options, left] : cases) {
        EXPECT_EQ(dynamic_cast<const Label &>(form.Controls(options)).Left(), left == -1 ? 100 : left)
            << options;
        EXPECT_EQ(dynamic_cast<const Label &>(form.Controls(options)).Top(), left == -1 ? 200 : 210)
            << options;
    }
}
