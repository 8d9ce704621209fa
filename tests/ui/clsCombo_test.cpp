#include "ui/clsCombo.h"

#include "forms/ComboBox.h"
#include "forms/KeyCodes.h"
#include "forms/Runtime.h"
#include "tests/support/ScriptedDesktop.h"
#include "text/Text.h"

namespace {

class Combo : public testing::Test {
protected:
    Combo() {
        myCombo.cb(myBox);
        myCombo.Mode(2);
        for (const char *entry : {"Abacus", "Apple", "Banana", "élan", "x y", "𝄞 clef"}) {
            myBox.AddItem(entry);
        }
    }

    void Press(int pKey, const std::string &pText) {
        myBox.UserPressesKey(pKey);
        myBox.UserEdits(pText, Utf16Length(pText));
    }

    /// The text after the release of pKey, then where the selection starts and its length.
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
    ComboBox &myBox = myRuntime.NewForm().Add<ComboBox>("box");
    clsCombo myCombo;
};

} // namespace

TEST_F(Combo, CompletesWhatIsTypedInModeTwoOnly) {
    const std::tuple<int, const char *, const char *> acts[] = {
        {'A', "a", "Abacus/1+5"},     {'P', "Ap", "Apple/2+3"}, {keyCode::back, "Ap", "Ap/2+0"},
        {keyCode::del, "A", "A/1+0"}, {'Q', "Aq", "Aq/2+0"},    {' ', "X ", "x y/2+1"},
        {222, "É", "élan/1+3"},       {231, "𝄞", "𝄞 clef/2+5"}, {'A', "", "/0+0"}};
    for (const auto &[key, text, shown] : acts) {
        EXPECT_EQ(Type(key, text), shown);
    }
    for (const int key : {32, 48, 111, 128, 31, 33, 47, 112, 127}) { // the ends of the ranges that complete
        Type(keyCode::back, "");
        const bool completes = key == 32 || key == 48 || key == 111 || key == 128;
        EXPECT_EQ(Type(key, "b"), completes ? "Banana/1+5" : "b/1+0") << key;
    }
    for (const int mode : {0, 1, 3}) {
        Type(keyCode::back, "");
        myCombo.Mode(static_cast<std::int16_t>(mode));
        EXPECT_EQ(Type('B', "b"), "b/1+0") << mode;
    }
}

TEST_F(Combo, CompletesOnceForEachChange) {
    Press('A', "a"); // The next key goes down before the last one comes up.
    Press('P', "ap");
    EXPECT_EQ(Release('A'), "Apple/2+3");
    EXPECT_EQ(Release('P'), "Apple/2+3");
    Press(keyCode::del, "A"); // Del goes down before a letter comes up.
    EXPECT_EQ(Release('P'), "A/1+0");
    Press('B', "AB"); // The user lets go of Shift first.
    Release(keyCode::shift);
    EXPECT_EQ(Release('B'), "Abacus/2+4");
    Type(keyCode::back, "Ap");
    myBox.UserEdits("App", 3); // by an input method, without a key of its own
    EXPECT_EQ(Release('P'), "Apple/3+2");
    myBox.UserSelects(0, 5); // Ctrl+A changes no text.
    EXPECT_EQ(Release('A'), "Apple/0+5");
    myBox.UserPicks(0); // The next letter replaces a picked text.
    EXPECT_EQ(Release('A'), "Abacus/0+6");
}

TEST_F(Combo, RefusesAnUnlistedText) {
    const std::tuple<std::int16_t, const char *, bool> cases[] = {
        {0, "x", true}, {-1, "x", true},    {1, "x", false},      {2, "x", false},   {3, "x", false},
        {1, "", false}, {1, "aPPLE", true}, {1, "Apple ", false}, {3, "ÉLAN", true}, {1, "App", false}};
    for (const auto &[mode, text, isAccepted] : cases) {
        myCombo.Mode(mode);
        myBox.Text(text);
        EXPECT_EQ(myBox.MayLoseFocus(), isAccepted) << mode << " " << text;
    }
    myCombo.Clear();
    EXPECT_TRUE(myBox.MayLoseFocus()) << "an empty list takes any text";
}
