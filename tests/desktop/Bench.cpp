#include "tests/desktop/Bench.h"

#include <QDeadlineTimer>
#include <QWindow>

// Where Qt's own test library hands in what the window system would.
Q_GUI_EXPORT void qt_handleMouseEvent(QWindow *window, const QPointF &local, const QPointF &global,
                                      Qt::MouseButtons state, Qt::MouseButton button, QEvent::Type type,
                                      Qt::KeyboardModifiers mods, int timestamp);
Q_GUI_EXPORT void qt_handleKeyEvent(QWindow *window, QEvent::Type t, int k, Qt::KeyboardModifiers mods,
                                    const QString &text, bool autorep, ushort count);

/// The font library keeps some of what it has read to its end, and Qt its keyboard; no leaks of this
/// program's.
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
    cmdCancel.Width(840); // To Qt what has no size takes no focus.
    cmdCancel.Height(360);
    list.Width(5700);
    list.Height(1700);
    list.ColumnHeaders.Add("Name");
    list.ColumnHeaders.Width(1, 3000);
    for (const char *entry : {"Abacus", "Apple", "Banana"}) {
        list.ListItems.Add({}).Text(entry);
        fruit.AddItem(entry);
    }

    form.Resize.Connect([this] { layout.RedrawLayout(); });
    cmdAdd.Click.Connect([this] { acts += "Add "; });
    cmdCancel.Click.Connect([this] { acts += "Cancel "; });
    list.ItemClick.Connect([this](ListItem &pItem) { acts += std::to_string(pItem.Index()) + " "; });
    layout.SetLayout(form);
    desktop.Handle([this] { form.Show(); });
    window = desktop.WindowOf(form);
    addButton = window->findChild<QPushButton *>();
    table = window->findChild<QTableView *>();
    nameEdit = window->findChild<QLineEdit *>();
    box = window->findChild<QComboBox *>();
    window->activateWindow();
    Until([this] { return window->isActiveWindow(); });
}

void Bench::Key(int pKey, Qt::KeyboardModifiers pModifiers, bool pIsAutoRepeat) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        qt_handleKeyEvent(window->windowHandle(), type, pKey, pModifiers, {}, pIsAutoRepeat, 1);
        QApplication::processEvents();
    }
}

void Bench::Mouse(QEvent::Type pType, const QWidget &pWidget, QPoint pAt, Qt::KeyboardModifiers pModifiers) {
    // Far enough from one another for Qt not to take two clicks for a double click.
    static int time = 0;
    time += 10000;
    const auto held = pType == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    qt_handleMouseEvent(window->windowHandle(), pWidget.mapTo(window, pAt), pWidget.mapToGlobal(pAt), held,
                        Qt::LeftButton, pType, pModifiers, time);
    QApplication::processEvents();
}

void Bench::Click(const QWidget &pWidget, QPoint pAt, Qt::KeyboardModifiers pModifiers) {
    Mouse(QEvent::MouseButtonPress, pWidget, pAt, pModifiers);
    Mouse(QEvent::MouseButtonRelease, pWidget, pAt, pModifiers);
}

bool Bench::Until(const std::function<bool()> &pIsDone) {
    const QDeadlineTimer end(2000);
    while (!pIsDone() && !end.hasExpired()) {
        QApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    }
    return pIsDone();
}
