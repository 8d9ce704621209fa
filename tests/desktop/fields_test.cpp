// Typing into the fields of the real window, and the focus that a field doesn't let go.
#include "desktop/KeyCodes.h"
#include "desktop/TextCodec.h"
#include "tests/desktop/Bench.h"

#include <QClipboard>
#include <QHeaderView>
#include <QScrollBar>

#include <functional>

namespace {

class Fields : public Bench {
protected:
    QComboBox &Box() const { return Of<QComboBox>(fruit); }
    /// The text of the combo box, what is selected of it in braces.
    std::string Shown() const {
        const QLineEdit &edit = *Box().lineEdit();
        QString text = edit.text();
        if (edit.hasSelectedText()) {
            text.insert(edit.selectionEnd(), '}').insert(edit.selectionStart(), '{');
        }
        return FromQt(text);
    }
};

TEST_F(Fields, completeOnReleaseWhatWasTyped) {
    Box().setFocus();
    Press(Qt::Key_A, {}, "a");
    EXPECT_EQ(Shown(), "a");
    Release(Qt::Key_A);
    EXPECT_EQ(Shown(), "A{bacus}");
    Type("p");
    EXPECT_EQ(Shown(), "Ap{ple}");
    Key(Qt::Key_Backspace);
    EXPECT_EQ(Shown(), "Ap");
    Key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(Shown(), "{Ap}") << "nothing was typed since the last release";
    Type("x");
    EXPECT_EQ(Shown(), "x") << "nothing begins with it";
}

TEST_F(Fields, loseNoCharacterToFastTyping) {
    Box().setFocus();
    Press(Qt::Key_A, {}, "a");
    Press(Qt::Key_P, {}, "p");
    Release(Qt::Key_A);
    EXPECT_EQ(Shown(), "Ap{ple}");
    Release(Qt::Key_P);
    Press(Qt::Key_P, {}, "p");
    Press(Qt::Key_L, {}, "l");
    Release(Qt::Key_L);
    Release(Qt::Key_P);
    EXPECT_EQ(Shown(), "Appl{e}");

    Box().lineEdit()->selectAll();
    Press(Qt::Key_Shift);
    Press(Qt::Key_B, Qt::ShiftModifier, "B");
    Release(Qt::Key_B, {}, true);
    EXPECT_EQ(Shown(), "B") << "a key held down repeats, it isn't released";
    Release(Qt::Key_Shift);
    Release(Qt::Key_B);
    EXPECT_EQ(Shown(), "B{anana}");
}

TEST_F(Fields, pickByTheArrowsAndTypeOnFromThere) {
    Box().setFocus();
    Key(Qt::Key_Down);
    Key(Qt::Key_Down);
    EXPECT_EQ(fruit.Text(), "Apple");
    Key(Qt::Key_Up);
    Key(Qt::Key_Up);
    EXPECT_EQ(Shown(), "Abacus");
    Key(Qt::Key_Return);
    EXPECT_EQ(acts, "") << "the form has no default button";

    Key(Qt::Key_Down, Qt::AltModifier);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(Shown(), "Abacus") << "opening the list changes nothing";
    Box().hidePopup();
    emit Box().activated(2);
    EXPECT_EQ(fruit.Text(), "Banana");
}

TEST_F(Fields, refuseToLoseTheFocusToAnythingThatWouldTakeIt) {
    QTableView &table = Of<QTableView>(list);
    for (int row = 0; row < 40; ++row) {
        list.ListItems.Add("more");
    }
    Sync();
    Box().setFocus();
    Type("zz");
    const std::vector<std::pair<const char *, std::function<void()>>> attempts{
        {"Tab", [&] { Key(Qt::Key_Tab, {}, "\t"); }},
        {"Shift+Tab", [&] { Key(Qt::Key_Backtab, Qt::ShiftModifier); }},
        {"access key", [&] { Key(Qt::Key_A, Qt::AltModifier, "a"); }},
        {"another field", [&] { Click(Of(name)); }},
        {"a button", [&] { Click(Of(cmdAdd)); }},
        {"a row", [&] { Click(*table.viewport(), Row(1)); }},
        {"a heading", [&] { Click(*table.horizontalHeader()->viewport()); }},
        {"a scroll bar", [&] { Click(*table.verticalScrollBar()); }},
    };
    for (const auto &[what, attempt] : attempts) {
        attempt();
        EXPECT_TRUE(Box().hasFocus()) << what;
        EXPECT_EQ(acts, "") << what;
        EXPECT_EQ(Shown(), "zz") << what;
        EXPECT_EQ(table.verticalScrollBar()->value(), 0) << what;
    }

    Box().lineEdit()->selectAll();
    Type("BANANA");
    Click(Of(cmdAdd));
    EXPECT_EQ(acts, "Add ") << "a text that differs in capitals alone is listed";
    EXPECT_TRUE(Of(cmdAdd).hasFocus());
}

TEST_F(Fields, refuseNothingElse) {
    Box().setFocus();
    Type("zz");
    Key(Qt::Key_O, Qt::ControlModifier);
    Key(Qt::Key_Escape);
    EXPECT_EQ(acts, "Open Cancel ");
    acts.clear();

    Click(Of(label));
    Click(*Box().lineEdit(), QPoint(3, 5));
    EXPECT_EQ(Box().lineEdit()->cursorPosition(), 0) << "a click into the field itself is delivered";
    Click(Box(), QPoint(Box().width() - 6, 8));
    EXPECT_NE(QApplication::activePopupWidget(), nullptr) << "its own list opens";
    Key(Qt::Key_Escape);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(acts, "") << "Esc closed the list only";
    EXPECT_EQ(Shown(), "zz");
}

TEST_F(Fields, makeBlanksOfLineBreaksThatComeIn) {
    auto &edit = Of<QLineEdit>(name);
    edit.setText("ab");
    edit.setCursorPosition(1);
    QApplication::clipboard()->setText("1\r\n2\n3");
    edit.paste();
    EXPECT_EQ(name.Text(), "a1 2 3b");
    EXPECT_EQ(edit.text(), "a1 2 3b");
    EXPECT_EQ(edit.cursorPosition(), 6) << "behind what was pasted";

    Box().lineEdit()->paste();
    EXPECT_EQ(fruit.Text(), "1 2 3");
    EXPECT_EQ(Shown(), "1 2 3");
    EXPECT_EQ(Box().lineEdit()->cursorPosition(), 5);

    name.Text("from\na file");
    Sync();
    edit.end(false);
    edit.insert("!");
    EXPECT_EQ(name.Text(), "from\na file!") << "a line break that was there stays";
}

TEST_F(Fields, keepWhatIsNotUtf8AndWhatIsLong) {
    static constexpr char bytes[] = "\xEF\xBB\xBFx caf\xE9 \xFF\xC3 \xED\xA0\x80 \xF0\x9F\x98\x80 \0 end";
    const std::string hostile(bytes, sizeof bytes - 1);
    name.Text(hostile);
    fruit.Text(hostile);
    Sync();
    for (QLineEdit *edit : {&Of<QLineEdit>(name), Box().lineEdit()}) {
        edit->end(false);
        edit->insert("!");
    }
    EXPECT_EQ(name.Text(), hostile + "!");
    EXPECT_EQ(fruit.Text(), hostile + "!");

    const std::string face = "\xF0\x9F\x98\x80";
    EXPECT_EQ(ToQt(face + face, 3), ToQt(face)) << "never half a character";
    name.Text(std::string(40000, 'x'));
    Sync();
    Of<QLineEdit>(name).insert("y");
    EXPECT_EQ(name.Text().size(), 40001U);
}

TEST(KeyCodes, followTheKeyboardAndNotTheCharacter) {
    struct Case {
        int key;
        Qt::KeyboardModifiers modifiers;
        int code;
    };
    for (const Case &one :
         {Case{Qt::Key_Backspace, {}, 8}, Case{Qt::Key_Enter, Qt::KeypadModifier, 13},
          Case{Qt::Key_Space, {}, 32}, Case{Qt::Key_Home, Qt::KeypadModifier, 36}, Case{Qt::Key_7, {}, 55},
          Case{Qt::Key_7, Qt::KeypadModifier, 103}, Case{Qt::Key_Ampersand, Qt::ShiftModifier, 55},
          Case{Qt::Key_Z, {}, 90}, Case{Qt::Key_Slash, Qt::KeypadModifier, 111}, Case{Qt::Key_Slash, {}, 191},
          Case{Qt::Key_F1, {}, 112}, Case{Qt::Key_QuoteDbl, Qt::ShiftModifier, 222},
          Case{Qt::Key_Eacute, {}, 255}, Case{Qt::Key_unknown, {}, 255}}) {
        const QKeyEvent event(QEvent::KeyRelease, one.key, one.modifiers);
        EXPECT_EQ(VirtualKey(event), one.code) << std::hex << "key " << one.key;
    }
}

} // namespace
