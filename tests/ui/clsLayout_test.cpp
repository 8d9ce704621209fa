#include "ui/clsLayout.h"

#include "platform/ComboBox.h"
#include "platform/Controls.h"
#include "platform/Runtime.h"
#include "tests/support/ScriptedDesktop.h"

#include <gtest/gtest.h>

namespace {

using Place = std::vector<double>;

/// A control of any class name, a toolbar for one.
class Named : public SizedControl {
public:
    Named(Form &pParent, const std::string &pName) : SizedControl(pParent, pName) {}
    const char *TypeName() const override { return Name().c_str(); }
};

class Layout : public testing::Test {
protected:
    Layout() { myForm.ClientSize(3000, 2000); }

    template <typename Kind = Label> Kind &Add(const std::string &pName, const std::string &pTag) {
        auto &control = myForm.Add<Kind>(pName);
        control.Tag(pTag);
        control.Left(100);
        control.Top(200);
        control.Width(300);
        return control;
    }

    void Grow(float pWider, float pTaller) {
        myForm.Width(3240 + pWider);
        myForm.Height(3050 + pTaller);
        myLayout.RedrawLayout();
    }

    ScriptedDesktop myDesktop;
    Runtime myRuntime{myDesktop, {}, ""};
    Form &myForm = myRuntime.NewForm("form");
    clsLayout myLayout;
};

Place PlaceOf(const Control &pControl) {
    return {pControl.Left(), pControl.Top(), pControl.Width(), pControl.Height()};
}

} // namespace

TEST_F(Layout, ReadsSharesFromOptionStrings) {
    struct Case {
        std::string options;
        std::optional<double> left; ///< after a growth of 1000; nothing: the control is no part of the layout
    };
    const std::vector<Case> cases{{"X=1", 1100},
                                  {"W=1", 100},
                                  {"", 100},
                                  {"X=12/100 W=30/100", 220},
                                  {"W=30/100 X=12/100", 220},
                                  {"X=-1", -900},
                                  {"X=-1/2", -400},
                                  {"X=0.5", 100},
                                  {"X=1.5", 2100},
                                  {"X=1/2.5", 600},
                                  {"X=3/4/5", 850},
                                  {"X=/100", 100},
                                  {"X=", 100},
                                  {"X= 1", 100},
                                  {"X=abc", 100},
                                  {"x=1", 100},
                                  {"MAX=3", 3100},
                                  {"X=1 X=2", 1100},
                                  {"X=1,X=2", 1100},
                                  {"X=1\t2", 12100},
                                  {"X=32767/32767", 1100},
                                  {"X=1/0", {}},
                                  {"X=1/", {}},
                                  {"X=1/x", {}},
                                  {"X=32768", {}},
                                  {"X=1 W=1/32768", {}},
                                  {"X=1 Z=1/0", 1100},
                                  {"X=32767.4", 100 + 32767000.0}};
    for (std::size_t i = 0; i < cases.size(); ++i) {
        Add("c" + std::to_string(i), cases[i].options + " Y=1");
    }
    myLayout.SetLayout(myForm);
    Grow(1000, 10);
    for (std::size_t i = 0; i < cases.size(); ++i) {
        const Control &control = myForm.Controls("c" + std::to_string(i));
        EXPECT_EQ(control.Left(), cases[i].left.value_or(100)) << cases[i].options;
        EXPECT_EQ(control.Top(), cases[i].left ? 210 : 200) << cases[i].options;
    }
}

TEST_F(Layout, PlacesEachControlFromItsRecord) {
    myForm.Add<MenuItem>("menu").Tag("X=1"); // no place: left out, and the others go on
    auto &corner = Add("corner", "X=1 Y=1");
    auto &all = Add("all", "X=25/100 Y=1/3 W=1/2 H=1");
    auto &still = Add("still", "");
    auto &box = Add<ComboBox>("box", "H=1 W=1"); // the height refuses to be written
    auto &bar = Add<Named>("Toolbar", "X=1");
    auto &almost = Add<Named>("toolbar", "X=1");
    myLayout.SetLayout(myForm);
    Grow(1501, 600);
    EXPECT_EQ(PlaceOf(corner), (Place{1601, 800, 300, 0}));
    EXPECT_EQ(PlaceOf(all), (Place{475.25, 400, 1050.5, 600}));
    EXPECT_EQ(PlaceOf(box), (Place{100, 200, 1801, 315}));
    EXPECT_EQ(bar.Left(), 100);
    EXPECT_EQ(almost.Left(), 1601);
    still.Left(7);
    Grow(0, 600); // growth in one direction alone
    EXPECT_EQ(PlaceOf(corner), (Place{100, 800, 300, 0}));
    for (int i = 0; i < 5; ++i) { // Nothing adds up.
        Grow(static_cast<float>(i) * 333, static_cast<float>(i) * 77);
    }
    Grow(0, 0);
    for (const Control *control : {&corner, &all, &still}) {
        EXPECT_EQ(PlaceOf(*control), (Place{100, 200, 300, 0}));
    }
}

TEST_F(Layout, PutsASmallerFormBackOnlyInItsNormalState) {
    auto &corner = Add("corner", "X=1 Y=1");
    myLayout.RedrawLayout(); // before SetLayout: nothing
    myLayout.SetLayout(myForm);
    std::vector<float> heights;
    myForm.Resize.Connect([&] {
        myLayout.RedrawLayout(); // comes back in the middle of a pass, and does nothing then
        heights.push_back(myForm.ClientHeight());
    });
    myForm.UserSizes(2500, 1900, Form::stateNormal);
    EXPECT_EQ(heights, (std::vector<float>{1900, 2000, 2000}));
    EXPECT_EQ(myForm.ClientWidth(), 3000);
    myForm.UserSizes(2500, 2100, Form::stateNormal);
    EXPECT_EQ(PlaceOf(corner), (Place{100, 300, 300, 0}));
    for (const int state : {Form::stateMinimized, Form::stateMaximized}) {
        myForm.UserSizes(2500, 2300, state);
        EXPECT_EQ(myForm.ClientWidth(), 2500);
        EXPECT_EQ(PlaceOf(corner), (Place{100, 500, 300, 0}));
    }
    const std::vector<std::pair<float, float>> roundings{
        {5000.4F, 5000.F}, {2500.5F, 2500.F}, {2501.5F, 2502.F}};
    for (const auto &[given, read] : roundings) {
        myLayout.MinWidth(given);
        EXPECT_EQ(myLayout.MinWidth(), read);
    }
}
