#include "platform/ComboBox.h"

#include "platform/Runtime.h"
#include "platform/Text.h"
#include "tests/support/ScriptedDesktop.h"

#include <gtest/gtest.h>

namespace {

constexpr int keyBack = 8;
constexpr int keyShift = 16;
constexpr int keyControl = 17;
constexpr int keyDelete = 46;

} // namespace

class ComboBoxTest : public testing::Test {
protected:
    /// What the box shows: its text with the selection in brackets, or "|" for the caret (ASCII texts).
    std::string Shown() const {
        std::string text = box.Text();
        const auto start = static_cast<std::size_t>(box.SelStart());
        const auto length = static_cast<std::size_t>(box.SelLength());
        const std::string marked = length == 0 ? "|" : "[" + text.substr(start, length) + "]";
        return text.replace(start, length, marked);
    }

    ScriptedDesktop desktop;
    Runtime runtime{desktop, {}, ""};
    ComboBox &box = runtime.NewForm("frmMain").Add<ComboBox>("cbo20");
};

TEST_F(ComboBoxTest, AnEntryThatIsMadeCurrentIsShownAndNoneLeavesTheText) {
    box.AddItem("Abacus");
    box.AddItem("Apple");
    box.UserEdits("ap", 2);
    EXPECT_EQ(box.ListIndex(), -1);
    box.ListIndex(1);
    EXPECT_EQ(Shown(), "|Apple");
    box.SelStart(2);
    box.SelLength(3);
    EXPECT_EQ(Shown(), "Ap[ple]");
    box.ListIndex(-1);
    EXPECT_EQ(Shown(), "Ap[ple]");
    box.ListIndex(0);
    box.Text("Apple");
    EXPECT_EQ(box.ListIndex(), -1) << "a text that is set makes no entry current";
    box.ListIndex(0);
    box.Clear();
    EXPECT_EQ(box.ListIndex(), -1);
    EXPECT_EQ(box.Text(), "Abacus");
}

TEST_F(ComboBoxTest, TheFirstEntryInListOrderThatBeginsWithTheTextIsFound) {
    for (const char *entry : {"Banana", "élan", "Élan vital", "app", "Apple"}) {
        box.AddItem(entry);
    }
    EXPECT_EQ(box.FindString("AP"), 3);
    EXPECT_EQ(box.FindString("appl"), 4);
    EXPECT_EQ(box.FindString("É"), 1);
    EXPECT_EQ(box.FindString("ÉLAN V"), 2);
    EXPECT_EQ(box.FindString("nana"), -1);
}

TEST_F(ComboBoxTest, SelectionsCountUtf16UnitsAndStayInTheText) {
    box.Text("é\U0001F600x");
    box.SelStart(99);
    EXPECT_EQ(box.SelStart(), 4);
    box.SelStart(1);
    box.SelLength(99);
    EXPECT_EQ(box.SelLength(), 3);
}

TEST_F(ComboBoxTest, OnlyTypingIsAnsweredAndOnlyOnce) {
    std::string answered;
    box.KeyUp.Connect(
        [&](int pKeyCode, int) { answered += box.WasTypedIn() ? static_cast<char>(pKeyCode) : '-'; });
    const auto type = [&](int pKeyCode, const std::string &pText) {
        box.UserPressesKey(pKeyCode);
        box.UserEdits(pText, Utf16Length(pText));
    };
    const auto answersTo = [&](std::initializer_list<int> pReleased) {
        answered.clear();
        for (const int keyCode : pReleased) {
            box.UserReleasesKey(keyCode, 0);
        }
        return answered;
    };
    type('A', "a");
    EXPECT_EQ(answersTo({'A'}), "A");
    type('B', "ab");
    type('C', "abc"); // pressed before the other is released
    EXPECT_EQ(answersTo({'B', 'C'}), "B-");
    type(keyBack, "ab");
    EXPECT_EQ(answersTo({keyBack}), "-");
    type(keyDelete, "a");
    EXPECT_EQ(answersTo({keyDelete}), "-");
    box.UserPressesKey(keyControl);
    box.UserPressesKey('C'); // copies, changes nothing
    box.UserEdits("a", 1);
    EXPECT_EQ(answersTo({'C', keyControl}), "--");
    box.UserPressesKey(keyShift);
    type('D', "aD"); // Shift goes up first
    EXPECT_EQ(answersTo({keyShift, 'D', 'D'}).substr(1), "D-");
}

TEST_F(ComboBoxTest, PastedLineBreaksBecomeBlanksAndTheCaretStaysBehindThePaste) {
    box.Text("x\nyz");
    box.UserEdits("x\nya\r\nb\r\nz", 9);
    EXPECT_EQ(Shown(), "x\nya b |z");
    EXPECT_EQ(box.ListIndex(), -1);
}
