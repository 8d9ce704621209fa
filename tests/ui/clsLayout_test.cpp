#include "ui/clsLayout.h"

#include "tests/support/Program.h"

using Layout = OnAForm;

TEST_F(Layout, PlacesEachControlByItsOptionString) {
    struct Toolbar : Label {
        using Label::Label;
        const char *TypeName() const override { return "Toolbar"; }
    };
    // clang-format off
    const std::pair<std::string, std::string> cases[] = {
        {"", "100 200 300 400"},         {"X=1 Y=1", "1100 800 300 400"},  {"H=1 W=1", "100 200 1300 1000"},
        {"X=12/100 W=30/100", "220 200 600 400"}, {"Y=-1/2 H=3/4/5", "100 -100 300 850"}, {"X=0.5", "100 200 300 400"},
        {"X=1.5", "2100 200 300 400"},   {"X=1/2.5", "600 200 300 400"},   {"X=/100", "100 200 300 400"},
        {"X=", "100 200 300 400"},       {"X= 1 Y=1", "100 800 300 400"},  {"x=1", "100 200 300 400"},
        {"X=abc", "100 200 300 400"},    {"MAX=3", "3100 200 300 400"},    {"X=1 X=2", "1100 200 300 400"},
        {"X=1,5 W=1\t2", "1100 200 12300 400"}, {"Y=-1 X=1/-4", "-150 -400 300 400"}, {"X=1 Toolbar", "1 2 3 4"},
        // A control that is left out stays where another one has put it.
        {"X=1/0 Y=1", "1 2 3 4"}, {"Y=1 H=1/x", "1 2 3 4"}, {"W=32768", "1 2 3 4"}, {"Y=1/32768", "1 2 3 4"}};
    // clang-format on
    clsLayout layout;
    layout.RedrawLayout(); // It has no form yet.
    myForm.ClientSize(5000, 3000);
    myForm.Resize.Connect([&] { layout.RedrawLayout(); });
    myForm.Add<MenuItem>("menu").Tag("X=1");
    for (const auto &[tag, place] : cases) {
        SizedControl &control = tag == "X=1 Toolbar" ? myForm.Add<Toolbar>(tag) : myForm.Add<Label>(tag);
        control.Move(100, 200, 300, 400);
        control.Tag(tag);
    }
    layout.SetLayout(myForm);
    for (int pass = 0; pass < 2; ++pass) { // Nothing adds up from one to the next.
        for (const auto &control : myForm.Controls()) {
            With<Label>(*control, [](Label &pLabel) { pLabel.Move(1, 2, 3, 4); });
        }
        myForm.UserSizes(5000, 3300, Form::stateNormal);
        myForm.UserSizes(6000, 3600, Form::stateNormal);
        for (const auto &[tag, place] : cases) {
            EXPECT_TRUE(LookOf(myForm.Controls(tag)).starts_with(tag + " 32767 " + place + " ")) << tag;
        }
    }
    // clang-format off
    for (const auto &[width, height, state, sides] : {std::tuple(4000.F, 3001.F, Form::stateNormal, 8001),
             {5003.F, 2000.F, Form::stateNormal, 8003}, {4000.F, 2000.F, 1, 6000}, {4000.F, 3100.F, 2, 7100}}) {
        // clang-format on
        myForm.UserSizes(width, height, state);
        EXPECT_EQ(myForm.ClientWidth() + myForm.ClientHeight(), sides) << width;
    }
    EXPECT_TRUE(LookOf(myForm.Controls("H=1 W=1")).starts_with("H=1 W=1 32767 100 200 300 500 "));
    layout.MinWidth(2500.5F);
    layout.MinHeight(2501.5F);
    EXPECT_EQ(layout.MinWidth() + layout.MinHeight(), 2500 + 2502);
}
