#include "ui/clsCombo.h"

#include "platform/ComboBox.h"
#include "platform/Form.h"
#include "platform/Runtime.h"
#include "platform/Text.h"
#include "tests/support/ScriptedDesktop.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

class Combo : public testing::Test {
protected:
    Combo() {
        myCombo.cb(myBox);
        myCombo.Mode(2);
        for (const char *entry : {"Abacus", "Apple", "Banana", "élan", "x y", "𝄞 clef", "x-z"}) {
            myBox.AddItem(entry);
        }
    }

    void Press(int pKey, const std::string &pText) {
        myBox.UserPressesKey(pKey);
        myBox.UserEdits(pText, Utf16Length(pText));
    }

    /// The text after the release of pKey, behind it what of it is selected.
    std::string Release(int pKey) {
        myBox.UserReleasesKey(pKey, 0);
        return myBox.Text() + "/" + std::to_string(myBox.SelStart()) + "+" +
               std::to_string(myBox.SelLength());
    }

    std::string Type(int pKey, const std::string &pText) {
        Press(pKey, pText);
        return Release(pKey);
    }

    ScriptedDesktop myDesktop;
    Runtime myRuntime{myDesktop, {}, ""};
    ComboBox &myBox = myRuntime.NewForm("form").Add<ComboBox>("box");
    clsCombo myCombo;
};

constexpr int shift = 16;
constexpr int control = 17;
constexpr int backspace = 8;
constexpr int erase = 46;

} // namespace

TEST_F(Combo, CompletesWhatIsTyped) {
    EXPECT_EQ(Type('A', "a"), "Abacus/1+5");
    EXPECT_EQ(myBox.ListIndex(), 0);
    EXPECT_EQ(Type('P', "Ap"), "Apple/2+3");
    EXPECT_EQ(Type(backspace, "Ap"), "Ap/2+0"); // erasing the completion doesn't bring it back
    EXPECT_EQ(Type(erase, "A"), "A/1+0");
    EXPECT_EQ(Type('Q', "Aq"), "Aq/2+0"); // nothing begins so
    EXPECT_EQ(myBox.ListIndex(), -1);
    EXPECT_EQ(Type(' ', "X "), "x y/2+1");
    EXPECT_EQ(Type(189, "x-"), "x-z/2+1");
    EXPECT_EQ(Type(222, "É"), "élan/1+3");
    EXPECT_EQ(Type(231, "𝄞"), "𝄞 clef/2+5"); // caret places count UTF-16 units
    EXPECT_EQ(Type('A', ""), "/0+0");
}

TEST_F(Combo, CompletesOnTheRightKeysOnly) {
    const std::vector<std::pair<int, bool>> keys{{32, true},   {48, true},   {111, true}, {128, true},
                                                 {186, true},  {31, false},  {33, false}, {47, false},
                                                 {112, false}, {127, false}, {13, false}, {9, false}};
    for (const auto &[key, completes] : keys) {
        Type(backspace, "");
        EXPECT_EQ(Type(key, "b"), completes ? "Banana/1+5" : "b/1+0") << key;
    }
    for (const std::int16_t mode : std::vector<std::int16_t>{0, 1, 3, -1}) {
        Type(backspace, "");
        myCombo.Mode(mode);
        EXPECT_EQ(Type('B', "b"), "b/1+0") << mode;
    }
}

TEST_F(Combo, KeepsUpWithFastTyping) {
    Press('A', "a"); // The next key goes down before the last one comes up.
    Press('P', "ap");
    EXPECT_EQ(Release('A'), "Apple/2+3");
    EXPECT_EQ(Release('P'), "Apple/2+3");
    Type(backspace, "");
    Press('A', "A"); // Shift is let go first.
    Release(shift);
    EXPECT_EQ(Release('A'), "Abacus/1+5");
    myBox.UserPressesKey(control); // Ctrl+A changes no text.
    myBox.UserPressesKey('A');
    myBox.UserSelects(0, 6);
    EXPECT_EQ(Release('A'), "Abacus/0+6");
    Release(control);
    EXPECT_EQ(myBox.Text(), "Abacus");
}

TEST_F(Combo, RefusesAnUnlistedText) {
    struct Case {
        std::int16_t mode;
        std::string text;
        bool isAccepted;
    };
    for (const Case &c : {Case{0, "x", true}, Case{-1, "x", true}, Case{1, "x", false}, Case{2, "x", false},
                          Case{3, "x", false}, Case{1, "", false}, Case{1, "aPPLE", true},
                          Case{1, "Apple ", false}, Case{3, "ÉLAN", true}, Case{1, "App", false}}) {
        myCombo.Mode(c.mode);
        myBox.Text(c.text);
        EXPECT_EQ(myBox.MayLoseFocus(), c.isAccepted) << c.mode << " " << c.text;
        EXPECT_EQ(myBox.Text(), c.text);
    }
    myBox.AddItem("");
    myBox.Text("");
    EXPECT_TRUE(myBox.MayLoseFocus());
    myCombo.Clear();
    myBox.Text("x");
    EXPECT_TRUE(myBox.MayLoseFocus()); // An empty list takes everything.
    myBox.AddItem("y");
    auto other = std::make_unique<clsCombo>();
    other->cb(myBox);
    other->Mode(1);
    EXPECT_FALSE(myBox.MayLoseFocus());
    other.reset(); // What it refused went with it.
    EXPECT_TRUE(myBox.MayLoseFocus());
}
