// Keys, and what the fields of the real window do with the texts that they get.
#include "desktop/TextCodec.h"
#include "tests/desktop/Bench.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QClipboard>
#include <QWheelEvent>

namespace {

using Fields = Bench;

TEST_F(Fields, pickByTheArrowsAndFromTheirList) {
    box->setFocus();
    for (const int key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_Return}) {
        Key(key);
    }
    EXPECT_EQ(fruit.Text(), "Abacus");
    fruit.Text("APPLE");
    Sync();
    QWheelEvent wheel({}, {}, {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(box, &wheel);
    EXPECT_EQ(fruit.Text(), "APPLE") << "the wheel over the closed box changes nothing";
    box->showPopup();
    EXPECT_EQ(fruit.Text(), "APPLE") << "nor does the list when it opens";
    EXPECT_EQ(box->lineEdit()->text(), "APPLE");
    QTest::keyClick(box->view(), Qt::Key_End);
    QTest::keyClick(box->view(), Qt::Key_Return);
    EXPECT_EQ(fruit.Text(), "Banana");
    EXPECT_EQ(acts, "") << "the form has no default button";
}

TEST_F(Fields, stepFromWhatIsTypedAndOpenTheirListByKeys) {
    using Case = std::tuple<std::string, int, Qt::KeyboardModifiers, std::string>;
    box->setFocus();
    for (const auto &[typed, key, held, picked] :
         {Case{"ap", Qt::Key_Down, {}, "Apple"}, Case{"ap", Qt::Key_Up, {}, "Abacus"},
          Case{"ban", Qt::Key_PageDown, Qt::ControlModifier, "Banana"}, Case{"x", Qt::Key_Down, {}, "Abacus"},
          Case{"Banana", Qt::Key_PageUp, Qt::ControlModifier, "Abacus"}}) {
        fruit.Text(typed);
        Sync();
        Key(key, held);
        EXPECT_EQ(fruit.Text(), picked) << typed << " " << key;
    }
    for (const int key : {Qt::Key_Down, Qt::Key_Up}) {
        fruit.Text("ap");
        Sync();
        Key(key, Qt::AltModifier);
        ASSERT_TRUE(box->view()->isVisible());
        EXPECT_EQ(box->view()->currentIndex().row(), 1) << "the list starts from what begins so";
        QTest::keyClick(box->view(), static_cast<Qt::Key>(key), Qt::AltModifier);
        EXPECT_FALSE(box->view()->isVisible());
        EXPECT_EQ(fruit.Text(), "ap");
    }
}

TEST_F(Fields, makeBlanksOfLineBreaksThatComeIn) {
    QApplication::clipboard()->setText("1\r\n2\n3\r\n\n");
    for (QLineEdit *edit : {nameEdit, box->lineEdit()}) {
        edit->setText("ab");
        edit->setCursorPosition(1);
        edit->paste();
        EXPECT_EQ(edit->text(), "a1 2 3b") << "nothing for the breaks at the end";
        EXPECT_EQ(edit->cursorPosition(), 6) << "after the pasted text";
        edit->undo();
        EXPECT_EQ(edit->text(), "ab");
        edit->redo();
    }
    EXPECT_EQ(name.Text(), "a1 2 3b");
    EXPECT_EQ(fruit.Text(), "a1 2 3b");

    name.Text("from\na file");
    Sync();
    nameEdit->end(false);
    nameEdit->insert("!");
    EXPECT_EQ(name.Text(), "from\na file!") << "a line break that was there stays";
}

TEST_F(Fields, keepWhatIsNotUtf8AndWhatIsLong) {
    static constexpr char bytes[] = "\xEF\xBB\xBFx caf\xE9 \xFF\xC3 \xED\xA0\x80 \xF0\x9F\x98\x80 \0 end";
    const std::string hostile(bytes, sizeof bytes - 1);
    for (const std::string &text : {hostile, std::string(40000, 'x')}) {
        name.Text(text);
        fruit.Text(text);
        Sync();
        for (QLineEdit *edit : {nameEdit, box->lineEdit()}) {
            edit->end(false);
            edit->insert("!");
        }
        EXPECT_EQ(name.Text(), text + "!");
        EXPECT_EQ(fruit.Text(), text + "!");
    }
    const std::string face = "\xF0\x9F\x98\x80";
    EXPECT_EQ(ToQt(face + face, 3), ToQt(face)) << "never half a character";
}

TEST_F(Fields, takeNoAccessKeyAndReplaceATextThatTheyDontShowWhole) {
    using Case = std::tuple<std::string, int, Qt::KeyboardModifiers, std::string>;
    const std::string most(1'000'000, 'x');
    const std::string huge = most + 'x';
    for (const auto &[before, key, held, after] :
         {Case{"", Qt::Key_Z, {}, "z"}, Case{"", Qt::Key_Z, Qt::AltModifier, ""},
          Case{most, Qt::Key_Z, {}, most}, Case{huge, Qt::Key_X, {}, "x"}, Case{huge, Qt::Key_Delete, {}, ""},
          Case{huge, Qt::Key_Z, Qt::ControlModifier, huge}}) {
        name.Text(before);
        fruit.Text(before);
        Sync();
        for (QWidget *field : std::initializer_list<QWidget *>{nameEdit, box}) {
            field->setFocus();
            Key(key, held);
            if (before == huge) {
                Key(Qt::Key_Z, Qt::ControlModifier); // must not bring the shown start back as the whole
            }
        }
        EXPECT_TRUE(name.Text() == after && fruit.Text() == after)
            << before.size() << " " << key << " " << name.Text().size() << " " << fruit.Text().size();
    }
}

TEST_F(Fields, letNoHeldKeyDecideTwice) {
    addButton->setFocus();
    for (const int key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
        Key(key);
        Key(key, {}, true);
    }
    table->setFocus();
    Key(Qt::Key_Down);
    Key(Qt::Key_Down, {}, true);
    EXPECT_EQ(acts, "Add Add Cancel 1 2 ") << "only other keys repeat";
}

/// On a busy machine the repeats of X11 arrive as releases and presses like any other, but at the same time.
TEST_F(Fields, letNoHeldKeyDecideTwiceThatIsNotMarkedAsSuch) {
    const auto send = [this](QEvent::Type pType, int pKey, quint64 pTime) {
        QKeyEvent event(pType, pKey, {}, pKey == Qt::Key_Space ? " " : "\r");
        event.setTimestamp(pTime);
        QApplication::sendEvent(window->windowHandle(), &event);
    };
    for (const int key : {Qt::Key_Space, Qt::Key_Return}) {
        acts.clear();
        addButton->setFocus();
        send(QEvent::KeyPress, key, 1000);
        for (const quint64 repeat : {1500, 1530, 1560}) {
            send(QEvent::KeyRelease, key, repeat);
            send(QEvent::KeyPress, key, repeat);
        }
        EXPECT_EQ(acts, key == Qt::Key_Space ? "" : "Add ") << "the space bar acts when it is let go";
        send(QEvent::KeyRelease, key, 1600);
        EXPECT_TRUE(QTest::qWaitFor([&] { return acts == "Add "; })) << acts;
        send(QEvent::KeyPress, key, 1700);
        send(QEvent::KeyRelease, key, 1800);
        Key(Qt::Key_Tab); // What comes next doesn't overtake the release.
        EXPECT_EQ(acts, "Add Add ");
    }
}

TEST_F(Fields, areNamedByTheirHeadingWhileTheyHoldAText) {
    fruit.AccessibleName("Fruit");
    fruit.Text("Apple");
    Sync();
    QAccessibleInterface *access = QAccessible::queryAccessibleInterface(box);
    EXPECT_EQ(access->text(QAccessible::Name), "Fruit");
    EXPECT_EQ(access->text(QAccessible::Value), "Apple");
    EXPECT_EQ(access->role(), QAccessible::ComboBox);
    access->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    EXPECT_TRUE(box->view()->isVisible());
}

TEST_F(Fields, completeWhenAKeyThatTypesIsReleased) {
    combo.Mode(2);
    box->setFocus();
    const auto release = [&](int pKey) {
        fruit.Text("");
        Sync();
        box->lineEdit()->setText("b"); // as an input method does
        QTest::simulateEvent(window->windowHandle(), false, pKey, {}, "", false);
        return fruit.Text();
    };
    for (const int key :
         {Qt::Key_Space, Qt::Key_7, Qt::Key_Z, Qt::Key_Ampersand, Qt::Key_Slash, Qt::Key_QuoteDbl,
          Qt::Key_Eacute, Qt::Key_unknown, Qt::Key_F17, Qt::Key_Super_L, Qt::Key_NumLock}) {
        EXPECT_EQ(release(key), "Banana") << std::hex << key;
    }
    for (const int key :
         {Qt::Key_Backspace, Qt::Key_Tab,     Qt::Key_Backtab, Qt::Key_Return,   Qt::Key_Enter,
          Qt::Key_Shift,     Qt::Key_Control, Qt::Key_Alt,     Qt::Key_AltGr,    Qt::Key_Pause,
          Qt::Key_CapsLock,  Qt::Key_Escape,  Qt::Key_PageUp,  Qt::Key_PageDown, Qt::Key_End,
          Qt::Key_Home,      Qt::Key_Left,    Qt::Key_Up,      Qt::Key_Right,    Qt::Key_Down,
          Qt::Key_Print,     Qt::Key_Insert,  Qt::Key_Delete,  Qt::Key_Help,     Qt::Key_Clear,
          Qt::Key_F1,        Qt::Key_F16}) {
        EXPECT_EQ(release(key), "b") << std::hex << key;
    }
    box->lineEdit()->clear();
    for (const int key : {Qt::Key_A, Qt::Key_Delete}) {
        Key(key);
    }
    EXPECT_EQ(fruit.Text(), "A") << "what is erased doesn't come back";
    for (const int key : {Qt::Key_P, Qt::Key_Backspace}) {
        Key(key);
    }
    EXPECT_EQ(fruit.Text(), "Ap");
}

} // namespace
