#include "tests/desktop/Bench.h"

#include <QHeaderView>
#include <QWindow>

// Where Qt's own test library hands in what the window system would.
Q_GUI_EXPORT void qt_handleMouseEvent(QWindow *window, const QPointF &local, const QPointF &global,
                                      Qt::MouseButtons state, Qt::MouseButton button, QEvent::Type type,
                                      Qt::KeyboardModifiers mods, int timestamp);
Q_GUI_EXPORT void qt_handleKeyEvent(QWindow *window, QEvent::Type t, int k, Qt::KeyboardModifiers mods,
                                    const QString &text, bool autorep, ushort count);
Q_GUI_EXPORT bool qt_sendShortcutOverrideEvent(QObject *o, ulong timestamp, int k, Qt::KeyboardModifiers mods,
                                               const QString &text, bool autorep, ushort count);

/// The font library keeps some of what it has read to its end, and Qt its keyboard; no leaks of this
/// program's.
extern "C" const char *__lsan_default_suppressions() { // NOLINT(bugprone-reserved-identifier)
    return "leak:libfontconfig\nleak:QInputDevice\n";
}

namespace {

/// One for the whole run: Qt allows no second.
void StartToolkit() {
    static int wordCount = 1;
    static char name[] = "desktop_tests";
    static char *words[] = {name, nullptr};
    static auto *application = new QApplication(wordCount, words);
    QApplication::setQuitOnLastWindowClosed(false);
    (void)application;
}

/// Far enough from one another for Qt not to take two clicks for a double click.
int NextTime() {
    static int time = 0;
    return time += 10000;
}

} // namespace

Bench::Toolkit::Toolkit() {
    StartToolkit();
}

Bench::Bench() : runtime(desktop, AppRecord{}, "") {
    Design();
    Connect();
    layout.SetLayout(form);
    desktop.Handle([this] { form.Show(); });
    window = desktop.WindowOf(form);
    window->activateWindow();
    Until([this] { return window->isActiveWindow(); });
}

Bench::~Bench() = default;

void Bench::Design() {
    form.Caption("Bench");
    form.ClientSize(6000, 3000);
    const auto place = [](SizedControl &pControl, double pLeft, double pTop, double pWidth, int pTabIndex) {
        pControl.Left(pLeft);
        pControl.Top(pTop);
        pControl.Width(pWidth);
        pControl.TabIndex(pTabIndex);
    };
    place(cmdAdd, 120, 2500, 720, 0);
    place(cmdMoveUp, 960, 2500, 360, 1);
    place(cmdSave, 3000, 2500, 840, 2);
    place(cmdCancel, 4000, 2500, 840, 3);
    place(list, 120, 720, 5700, 4);
    place(label, 120, 60, 2800, 9);
    place(name, 120, 360, 2800, 5);
    place(fruit, 3000, 360, 2800, 6);
    for (CommandButton *button : {&cmdAdd, &cmdMoveUp, &cmdSave, &cmdCancel}) {
        button->Height(360);
    }
    cmdAdd.Caption("Add");
    cmdMoveUp.Shows(CommandButton::Picture::TriangleUp);
    cmdMoveUp.ToolTipText("Move Up");
    cmdSave.Caption("Save &As");
    cmdCancel.Caption("Cancel");
    cmdCancel.Cancel(true);
    list.Height(1700);
    list.AccessibleName("Records");
    list.ColumnHeaders.Add("Name");
    list.ColumnHeaders.Width(1, 3000);
    for (const char *row : {"one", "two", "three"}) {
        list.ListItems.Add(row);
    }
    label.Height(240);
    label.Caption(" Name");
    name.Height(315);
    name.AccessibleName("Name");
    fruit.AccessibleName("Fruit");
    fruit.AccessibleDescription("one of the listed values");
    mnuFile.Caption("&File");
    mnuOpen.Caption("&Open");
    mnuOpen.Above(mnuFile);
    mnuOpen.Shortcut("Ctrl+O");
    for (const char *entry : {"Abacus", "Apple", "Banana"}) {
        fruit.AddItem(entry);
    }
}

void Bench::Connect() {
    fruitRules.cb(fruit);
    fruitRules.Mode(2);
    form.Resize.Connect([this] { layout.RedrawLayout(); });
    cmdAdd.Click.Connect([this] { acts += "Add "; });
    cmdMoveUp.Click.Connect([this] { acts += "Up "; });
    cmdSave.Click.Connect([this] { acts += "Save "; });
    cmdCancel.Click.Connect([this] { acts += "Cancel "; });
    mnuOpen.Click.Connect([this] { acts += "Open "; });
    list.ItemClick.Connect([this](ListItem &pItem) { acts += std::to_string(pItem.Index()) + " "; });
}

void Bench::Sync() {
    desktop.Handle([] {});
}

QWindow *Bench::KeyboardWindow() const {
    const QWidget *popup = QApplication::activePopupWidget();
    return popup == nullptr ? window->windowHandle() : popup->windowHandle();
}

void Bench::Press(int pKey, Qt::KeyboardModifiers pModifiers, const QString &pText) {
    QWindow *target = KeyboardWindow();
    if (!qt_sendShortcutOverrideEvent(target, 0, pKey, pModifiers, pText, false, 1)) {
        qt_handleKeyEvent(target, QEvent::KeyPress, pKey, pModifiers, pText, false, 1);
    }
    QApplication::processEvents();
}

void Bench::Release(int pKey, Qt::KeyboardModifiers pModifiers, bool pIsAutoRepeat) {
    qt_handleKeyEvent(KeyboardWindow(), QEvent::KeyRelease, pKey, pModifiers, {}, pIsAutoRepeat, 1);
    QApplication::processEvents();
}

void Bench::Key(int pKey, Qt::KeyboardModifiers pModifiers, const QString &pText) {
    Press(pKey, pModifiers, pText);
    Release(pKey, pModifiers);
}

void Bench::Type(const QString &pLetters) {
    for (const QChar letter : pLetters) {
        Key(letter.toUpper().unicode(), {}, letter);
    }
}

void Bench::MouseDown(const QWidget &pWidget, QPoint pAt, Qt::KeyboardModifiers pModifiers) {
    const QPoint local = pWidget.mapTo(window, pAt);
    qt_handleMouseEvent(window->windowHandle(), local, pWidget.mapToGlobal(pAt), Qt::LeftButton,
                        Qt::LeftButton, QEvent::MouseButtonPress, pModifiers, NextTime());
    QApplication::processEvents();
}

void Bench::MouseUp(const QWidget &pWidget, QPoint pAt, Qt::KeyboardModifiers pModifiers) {
    const QPoint local = pWidget.mapTo(window, pAt);
    qt_handleMouseEvent(window->windowHandle(), local, pWidget.mapToGlobal(pAt), Qt::NoButton, Qt::LeftButton,
                        QEvent::MouseButtonRelease, pModifiers, NextTime());
    QApplication::processEvents();
}

void Bench::Click(const QWidget &pWidget, QPoint pAt, Qt::KeyboardModifiers pModifiers) {
    MouseDown(pWidget, pAt, pModifiers);
    MouseUp(pWidget, pAt, pModifiers);
}

QPoint Bench::Row(int pRow) const {
    const int height = Of<QTableView>(list).verticalHeader()->defaultSectionSize();
    return {20, pRow * height + height / 2};
}
