// Keys, and what the fields of the real window do with the texts that they get.
#include "tests/desktop/RealWindow.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QClipboard>

namespace {

using Fields = RealWindow;
using Case = std::tuple<std::string, const char *, std::string>; // the text before, the keys, the text after

TEST_F(Fields, PickByTheArrowsAndFromTheirList) {
    box->setFocus();
    for (const auto &[text, keys, picked] :
         {Case{"", "Down Down Up Return", "Abacus"}, Case{"ap", "Down", "Apple"}, Case{"ap", "Up", "Abacus"},
          Case{"ban", "Ctrl+PgDown", "Banana"}, Case{"x", "Down", "Abacus"},
          Case{"Banana", "Ctrl+PgUp", "Abacus"}, Case{"APPLE", "Down", "Banana"},
          Case{"APPLE", "Ctrl+Down", "APPLE"}, Case{"ap", "Alt+Down Return", "Apple"},
          Case{"APPLE", "Alt+Up Down Return", "Banana"}, Case{"ap", "Alt+Down Alt+Down", "ap"},
          Case{"ap", "Alt+Up End Alt+Up", "ap"}}) {
        fruit.Text(text);
        Sync();
        Keys(keys);
        EXPECT_EQ(fruit.Text() + box->currentText().toStdString(), picked + picked) << text << " " << keys;
        EXPECT_FALSE(box->view()->isVisible()) << text << " " << keys;
    }
    fruit.AddItem(std::string(40, 'w'));
    Sync();
    box->showPopup();
    EXPECT_GT(box->view()->width(), box->fontMetrics().horizontalAdvance(QString(40, 'w')));
}

TEST_F(Fields, CompleteWhenAKeyThatTypesIsReleased) {
    combo.Mode(2);
    box->setFocus();
    const auto completes = [&](int pKey) {
        fruit.Text("");
        Sync();
        box->lineEdit()->setText("b"); // as an input method does
        QTest::simulateEvent(window->windowHandle(), false, pKey, {}, "", false);
        return fruit.Text() == "Banana" && box->lineEdit()->cursorPosition() == 1;
    };
    bool isTyping = true;
    for (const char *key :
         {"Space",   "7",     "Z",      "&",        "/",    "\"",    "É",       "F17",
          "NumLock", "Tab",   "Return", "Enter",    "Esc",  "PgUp",  "PgDown",  "End",
          "Home",    "Left",  "Up",     "Right",    "Down", "Print", "Ins",     "Del",
          "Help",    "Clear", "Pause",  "CapsLock", "F1",   "F16",   "Backtab", "Backspace"}) {
        isTyping = isTyping && key != std::string("Tab");
        EXPECT_EQ(completes(KeyOf(key).key()), isTyping) << key;
    }
    EXPECT_FALSE(completes(Qt::Key_Shift) || completes(Qt::Key_Control) || completes(Qt::Key_Alt));
    box->lineEdit()->clear();
    Keys("a Del p Backspace");
    EXPECT_EQ(fruit.Text(), "Ap") << "what is erased doesn't come back";
}

TEST_F(Fields, ShowThatTheyRefuseUntilTheTextIsMended) {
    combo.Mode(1);
    QAccessibleInterface &told = *QAccessible::queryAccessibleInterface(box);
    const auto refuses = [&] {
        EXPECT_EQ(box->lineEdit()->accessibleDescription(), told.text(QAccessible::Description));
        const bool isFramed = Screen(*box).pixelColor(1, 1) == QColor(0xC4, 0x1E, 0x1E);
        EXPECT_EQ(told.text(QAccessible::Description), isFramed ? "not one of the listed values" : "listed");
        return isFramed;
    };
    for (const char *mend : {"Down", "Backspace"}) {
        box->setFocus();
        box->lineEdit()->setText("abacusz");
        EXPECT_FALSE(refuses()) << "before the user wants to leave";
        Keys("Tab");
        EXPECT_TRUE(refuses());
        Keys(mend);
        EXPECT_FALSE(refuses()) << mend;
    }
    EXPECT_EQ(told.text(QAccessible::Name) + told.text(QAccessible::Value), "Fruitabacus");
    EXPECT_TRUE(told.role() == QAccessible::ComboBox && told.state().editable && told.state().expandable);
    for (const bool isOpen : {true, false}) {
        told.actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
        EXPECT_EQ(told.state().expanded != 0, isOpen);
    }
}

TEST_F(Fields, KeepTheFocusWhicheverWayOutTheUserTries) {
    combo.Mode(1);
    box->setFocus();
    box->lineEdit()->setText("z");
    auto *bar = window->findChild<QMenuBar *>();
    const auto click = [&](const QWidget *pWidget) { Click(*pWidget, QPoint(9, 9)); };
    for (const auto &wayOut : std::initializer_list<std::function<void()>>{
             [&] { Keys("Tab"); }, [&] { Keys("Shift+Tab"); }, [&] { Keys("Alt+A"); },
             [&] { click(nameEdit); }, [&] { click(table->viewport()); }, [&] { click(addButton); },
             [&] { addButton->click(); }, [&] { nameEdit->setFocus(); }, [&] { table->selectRow(0); },
             [&] { bar->setFocus(), Keys("Alt+A"); }, [&] { bar->setFocus(), click(nameEdit); }}) {
        wayOut();
        EXPECT_TRUE(QTest::qWaitFor([&] { return box->hasFocus(); }));
        Keys("z");
    }
    EXPECT_EQ(acts + fruit.Text(), std::string(12, 'z'));
}

TEST_F(Fields, HoldWhatIsTypedPastedAndTooLongToEdit) {
    // The line breaks become blanks, those at the end nothing.
    QApplication::clipboard()->setText("1\r\n2\n3\r\n\n");
    const std::string most(1'000'000, 'x');
    const std::string huge = most + 'x';
    const std::string bytes("\xEF\xBB\xBFx caf\xE9 \xFF\xC3 \xED\xA0\x80 \xF0\x9F\x98\x80 \0 end", 27);
    name.Width(0); // Painting the longest takes a while.
    fruit.Width(0);
    for (const auto &[before, keys, after] :
         {Case{"", "z", "z"}, Case{"", "Alt+Z", ""}, Case{"ab", "Right Ctrl+V z", "a1 2 3zb"},
          Case{"ab", "Right Ctrl+V Ctrl+Z", "ab"}, Case{"a\nb", "z", "za\nb"}, Case{bytes, "z", 'z' + bytes},
          Case{most.substr(0, 40'000), "z", 'z' + most.substr(0, 40'000)}, Case{most, "z", most},
          Case{huge, "x y Ctrl+Z", "x"}, Case{huge, "Ctrl+Z", huge}}) {
        name.Text(before);
        fruit.Text(before);
        Sync();
        for (QLineEdit *edit : {nameEdit, box->lineEdit()}) {
            EXPECT_EQ(edit->cursorPosition(), 0) << "its start shows";
            edit->setFocus();
            Keys(keys);
        }
        EXPECT_TRUE(name.Text() == after && fruit.Text() == after)
            << before.size() << " " << keys << " " << name.Text().substr(0, 30) << " "
            << fruit.Text().substr(0, 30);
    }
}

/// A key held down also sends presses and releases, marked as repeats. On a busy machine those of X11 arrive
/// unmarked, but at the same time.
TEST_F(Fields, LetNoHeldKeyDecideTwice) {
    const auto send = [this](bool pIsPress, int pKey, quint64 pTime, bool pIsRepeat = false) {
        QKeyEvent event(pIsPress ? QEvent::KeyPress : QEvent::KeyRelease, pKey, {}, "", pIsRepeat);
        event.setTimestamp(pTime);
        QApplication::sendEvent(window->windowHandle(), &event);
    };
    for (const int key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Down}) {
        (key == Qt::Key_Down ? static_cast<QWidget *>(table) : addButton)->setFocus();
        send(true, key, 100);
        send(true, key, 200, true);
    }
    EXPECT_EQ(acts, "Add Add Add 1 2 ") << "only other keys repeat";
    for (const int key : {Qt::Key_Return, Qt::Key_Space}) {
        acts.clear();
        addButton->setFocus();
        send(true, key, 1000);
        send(false, key, 1500);
        send(true, key, 1500);
        EXPECT_EQ(acts, key == Qt::Key_Space ? "" : "Add ") << "the space bar acts when it is let go";
        send(false, key, 1600);
        EXPECT_TRUE(QTest::qWaitFor([&] { return acts == "Add "; })) << acts;
    }
    addButton->setFocus();
    send(true, Qt::Key_Space, 1700);
    send(false, Qt::Key_Space, 1800);
    Click(*table->viewport(), {20, 5}); // It doesn't overtake the release.
    EXPECT_EQ(acts, "Add Add 1 ");
}

} // namespace
