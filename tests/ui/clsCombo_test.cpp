#include "ui/clsCombo.h"

#include "forms/ComboBox.h"
#include "forms/Runtime.h"
#include "tests/support/ScriptedDesktop.h"
#include "text/Text.h"

namespace {

constexpr auto types = FieldKey::TypesText;
constexpr auto erases = FieldKey::Erases;

class Combo : public testing::Test {
protected:
    Combo() {
        myCombo.cb(myBox);
        myCombo.Mode(2);
        for (const char *entry : {"Abacus", "Apple", "Banana", "élan", "x y", "𝄞 clef"}) {
            myBox.AddItem(entry);
        }
    }

    void Press(FieldKey pKey, const std::string &pText) {
        myBox.UserPressesKey(pKey);
        myBox.UserEdits(pText, Utf16Length(pText));
    }

    /// The text after the release of pKey, then where the selection starts and its length.
    std::string Release(FieldKey pKey = types) {
        myBox.UserReleasesKey(pKey);
        return myBox.Text() + "/" + std::to_string(myBox.SelStart()) + "+" +
               std::to_string(myBox.SelLength());
    }

    std::string Type(FieldKey pKey, const std::string &pText) {
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
    const std::tuple<FieldKey, const char *, const char *> acts[] = {
        {types, "a", "Abacus/1+5"},       {types, "Ap", "Apple/2+3"}, {erases, "Ap", "Ap/2+0"},
        {erases, "A", "A/1+0"},           {types, "Aq", "Aq/2+0"},    {types, "X ", "x y/2+1"},
        {types, "É", "élan/1+3"},         {types, "𝄞", "𝄞 clef/2+5"}, {types, "", "/0+0"},
        {FieldKey::Neither, "b", "b/1+0"}};
    for (const auto &[key, text, shown] : acts) {
        EXPECT_EQ(Type(key, text), shown);
    }
    for (const int mode : {0, 1, 3}) {
        Type(erases, "");
        myCombo.Mode(static_cast<std::int16_t>(mode));
        EXPECT_EQ(Type(types, "b"), "b/1+0") << mode;
    }
}

TEST_F(Combo, CompletesOnceForEachChange) {
    Press(types, "a"); // The next key goes down before the last one comes up.
    Press(types, "ap");
    EXPECT_EQ(Release(), "Apple/2+3");
    EXPECT_EQ(Release(), "Apple/2+3");
    Press(erases, "A"); // Del goes down before a letter comes up.
    EXPECT_EQ(Release(), "A/1+0");
    Press(types, "AB"); // The user lets go of Shift first.
    Release(FieldKey::Neither);
    EXPECT_EQ(Release(), "Abacus/2+4");
    Type(erases, "Ap");
    myBox.UserEdits("App", 3); // by an input method, without a key of its own
    EXPECT_EQ(Release(), "Apple/3+2");
    myBox.UserSelects(0, 5); // Ctrl+A changes no text.
    EXPECT_EQ(Release(), "Apple/0+5");
    myBox.UserPicks(0); // The next letter replaces a picked text.
    EXPECT_EQ(Release(), "Abacus/0+6");
    myBox.UserEdits("Baana", 2); // Put right in the middle, it begins no entry yet.
    EXPECT_EQ(Release(), "Baana/2+0");
    myBox.UserEdits("xBaana", 1);
    myBox.UserSelects(2, 3);
    EXPECT_EQ(Release(), "xBaana/2+3");
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

TEST_F(Combo, ServesOneBoxAloneAndLeavesItToOthers) {
    ComboBox &next = myBox.Parent().Add<ComboBox>("next");
    next.AddItem("Apple");
    clsCombo others[2];
    for (clsCombo &other : others) {
        other.Mode(1);
        other.cb(next);
    }
    for (clsCombo &other : others) {
        EXPECT_FALSE(next.MayLoseFocus()) << "the one that is left refuses";
        other.cb(myBox);
    }
    EXPECT_TRUE(next.MayLoseFocus());
}
