#include "tests/desktop/Bench.h"

#include <QWindow>

/// The font library and Qt's keyboard never free some of their memory. These are not leaks of this program.
extern "C" const char *__lsan_default_suppressions() { // NOLINT(bugprone-reserved-identifier)
    return "leak:libfontconfig\nleak:QInputDevice\n";
}

int main(int pWordCount, char **pWords) {
    testing::InitGoogleTest(&pWordCount, pWords);
    const QApplication application(pWordCount, pWords);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}

Bench::Bench() {
    form.ClientSize(6000, 3000);
    cmdCancel.Cancel(true);
    cmdCancel.Move(0, 0, 840, 360); // A view without a size takes no focus.
    list.Move(0, 0, 5700, 1700);
    list.ColumnHeaders.Add("Name");
    list.ColumnHeaders.Width(1, 3000);
    for (const char *entry : {"Abacus", "Apple", "Banana"}) {
        list.ListItems.Add({}).Text(entry);
        fruit.AddItem(entry);
    }

    combo.cb(fruit);
    form.Resize.Connect([this] { layout.RedrawLayout(); });
    cmdAdd.Click.Connect([this] { acts += "Add "; });
    cmdCancel.Click.Connect([this] { acts += "Cancel "; });
    list.ItemClick.Connect([this](ListItem &pItem) { acts += std::to_string(pItem.Index()) + " "; });
    layout.SetLayout(form);
    desktop.Run([this] { form.Show(); });
    window = desktop.WindowOf(form);
    addButton = window->findChild<QPushButton *>();
    table = window->findChild<QTableView *>();
    nameEdit = window->findChild<QLineEdit *>();
    box = window->findChild<QComboBox *>();
    window->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window));
}

void Bench::Key(int pKey, Qt::KeyboardModifiers pModifiers, bool pIsAutoRepeat) {
    const QString text = pKey < 0x80 ? QString(QChar(pKey).toLower()) : QString();
    for (const bool isPress : {true, false}) {
        QTest::simulateEvent(window->windowHandle(), isPress, pKey, pModifiers, text, pIsAutoRepeat);
    }
}

void Bench::Click(const QWidget &pWidget, QPoint pAt, Qt::KeyboardModifiers pModifiers,
                  Qt::MouseButton pButton) {
    QTest::mouseClick(window->windowHandle(), pButton, pModifiers, pWidget.mapTo(window, pAt));
}
