#include "tests/desktop/RealWindow.h"

#include <QScreen>
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

RealWindow::RealWindow() {
    form.ClientSize(6000, 3000);
    mnuEdit.Caption("&Edit");
    cmdAdd.Move(0, 2400, 840, 360);
    cmdAdd.Caption("&Add");
    cmdAdd.Cancel(true);
    name.Move(0, 0, 1507, 315);
    fruit.Move(1507, 0, 1508, 315);
    fruit.AccessibleName("Fruit");
    fruit.AccessibleDescription("listed");
    list.Move(0, 600, 5700, 1700);
    list.ColumnHeaders.Add("Name");
    list.ColumnHeaders.Width(1, 3000);
    for (const char *entry : {"Abacus", "Apple", "Banana"}) {
        list.ListItems.Add({}).Text(entry);
        fruit.AddItem(entry);
    }

    combo.cb(fruit);
    form.Resize.Connect([this] { layout.RedrawLayout(); });
    cmdAdd.Click.Connect([this] { acts += "Add "; });
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

void RealWindow::Keys(const char *pKeys) {
    for (const QString &word : QString(pKeys).split(u' ')) {
        const QKeyCombination key = KeyOf(word);
        const QString text = key.key() < 0x80 ? QString(QChar(key.key()).toLower()) : QString();
        for (const bool isPress : {true, false}) {
            const QWidget *popup = QApplication::activePopupWidget(); // It gets all keys.
            QTest::simulateEvent((popup == nullptr ? window : popup)->windowHandle(), isPress, key.key(),
                                 key.keyboardModifiers(), text, false);
        }
    }
}

QImage RealWindow::Screen(const QWidget &pPart) {
    QApplication::processEvents(); // What has changed is painted there.
    const QImage all = pPart.screen()->grabWindow(pPart.window()->winId()).toImage();
    return all.copy(QRect(pPart.mapTo(pPart.window(), QPoint()), pPart.size()));
}
