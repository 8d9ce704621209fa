#include "ui/clsCombo.h"

#include "tests/support/Program.h"
#include "text/Text.h"

constexpr auto types = FieldKey::TypesText, erases = FieldKey::Erases, neither = FieldKey::Neither;

class Combo : public OnAForm {
protected:
    Combo() {
        myCombo.cb(myBox);
        myCombo.Mode(2);
        myBox.AddItems({"Abacus", "Apple", "Banana", "élan", "x y", "𝄞 clef"});
    }

    /// The key pDown goes down and makes the text pText, then the key pUp comes up. Without a text the first
    /// two don't happen. Returns the text, and where the selection starts and its length.
    std::string Type(FieldKey pDown, const char *pText, FieldKey pUp) {
        if (pText != nullptr) {
            myBox.UserPressesKey(pDown);
            myBox.UserEdits(pText, Utf16Length(pText));
        }
        myBox.UserReleasesKey(pUp);
        const std::string start = std::to_string(myBox.SelStart());
        return myBox.Text() + "/" + start + "+" + std::to_string(myBox.SelLength());
    }

    ComboBox &myBox = myForm.Add<ComboBox>("box");
    clsCombo myCombo;
};

TEST_F(Combo, CompletesWhatIsTypedOnceAndInModeTwoOnly) {
    // clang-format off
    const std::tuple<FieldKey, const char *, FieldKey, const char *> acts[] = {
        {types, "a", types, "Abacus/1+5"}, {types, "Ap", types, "Apple/2+3"}, {erases, "Ap", erases, "Ap/2+0"},
        {erases, "A", erases, "A/1+0"}, {types, "Aq", types, "Aq/2+0"}, {types, "X ", types, "x y/2+1"},
        {types, "É", types, "élan/1+3"}, {types, "𝄞", types, "𝄞 clef/2+5"}, {types, "", types, "/0+0"},
        {types, "a", neither, "a/1+0"}, {types, "ap", types, "Apple/2+3"}, {neither, nullptr, types, "Apple/2+3"}, // two keys
        {erases, "A", types, "A/1+0"}, // Del goes down before a letter comes up.
        {types, "AB", neither, "AB/2+0"}, {neither, nullptr, types, "Abacus/2+4"}, // The user lets go of Shift first.
        {erases, "Ap", erases, "Ap/2+0"}, {neither, "App", types, "Apple/3+2"}, // by an input method
        {types, "b\r\nc", types, "b c/3+0"}};
    // clang-format on
    for (const auto &[down, text, up, shown] : acts) {
        EXPECT_EQ(Type(down, text, up), shown);
    }
    myBox.UserSelects(0, 3); // Ctrl+A changes no text.
    EXPECT_EQ(Type(neither, nullptr, types), "b c/0+3");
    myBox.UserPicks(0); // The next letter replaces a picked text.
    EXPECT_EQ(Type(neither, nullptr, types), "Abacus/0+6");
    myBox.UserEdits("Baana", 2); // Put right in the middle, it begins no entry yet.
    EXPECT_EQ(Type(neither, nullptr, types), "Baana/2+0");
    myBox.UserEdits("xBaana", 1);
    myBox.UserSelects(2, 3);
    EXPECT_EQ(Type(neither, nullptr, types), "xBaana/2+3");
    for (const auto &[mode, completes] :
         {std::pair<std::int16_t, bool>(2, true), {0, false}, {1, false}, {3, false}}) {
        Type(erases, "", erases);
        myCombo.Mode(mode);
        EXPECT_EQ(Type(types, "b", types), completes ? "Banana/1+5" : "b/1+0") << mode;
        EXPECT_EQ(myBox.ListIndex(), completes ? 2 : -1) << mode;
    }
}

TEST_F(Combo, RefusesAnUnlistedTextAndShowsThat) {
    // clang-format off
    const std::tuple<std::int16_t, const char *, bool> cases[] = {
        {0, "x", true}, {-1, "x", true}, {1, "x", false}, {2, "x", false}, {3, "x", false}, {1, "", false}, {1, "aPPLE", true},
        {1, "Apple ", false}, {3, "ÉLAN", true}, {1, "App", false}, {2, "Abacus", true}, {1, "𝄞 clef", true}};
    for (const auto &[mode, text, isAccepted] : cases) {
        myCombo.Mode(mode);
        myBox.Text(text);
        EXPECT_EQ(myBox.MayLoseFocus(), isAccepted) << mode << " " << text;
    }
    const auto edit = [this](const char *pText) { return [this, pText] { Type(types, pText, types); }; };
    const auto leave = [this] { myBox.MayLoseFocus(); };
    // What comes, and whether the sign of a refusal stands after it.
    const std::pair<std::function<void()>, bool> acts[] = {
        {edit("x"), false}, {leave, true}, {edit("xy"), true}, {edit("apple"), false}, {edit("x"), false},
        {leave, true}, {[this] { myBox.UserPicks(0); }, false}, {edit("x"), false}, {leave, true},
        {[this] { myBox.Text("z"); }, false}, {leave, true}, {[this] { myCombo.Clear(); }, true}, {leave, false}};
    // clang-format on
    for (const auto &[act, isRefusing] : acts) {
        const bool hasChanged = myBox.IsRefusing() != isRefusing;
        const int count = myBox.Revision();
        act();
        EXPECT_EQ(myBox.IsRefusing(), isRefusing) << myBox.Text();
        EXPECT_TRUE(!hasChanged || count != myBox.Revision()) << "a desktop has to look again";
    }
}

TEST_F(Combo, AddsTheLinesOfAFileThatCanBeRead) {
    const TemporaryFolder files;
    const std::string name = files.Write("list", "b, c \r\n\r\n\"a\nd\rb, c ");
    myCombo.Clear();
    myCombo.LoadFromTxtFile(name);
#ifdef __linux__
    Scarcity::readable = 8; // The disk fails in the middle.
    myCombo.LoadFromTxtFile(name);
    Scarcity::readable = -1;
    EXPECT_EQ(myCombo.Fault(), "Input/output error");
#endif
    myCombo.LoadFromTxtFile(files.File("none"));
    EXPECT_EQ(myCombo.Fault(), "");
    myCombo.LoadFromTxtFile(files.Write("more", "e\r\n"));
    std::string list;
    for (int i = 0; i < myBox.ListCount(); ++i) {
        list += myBox.List(i) + "/";
    }
    EXPECT_EQ(list, "b, c //\"a\nd/b, c /e/");
}

TEST_F(Combo, ServesOneBoxAloneAndLeavesItToOthers) {
    auto &next = myForm.Add<ComboBox>("next");
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
