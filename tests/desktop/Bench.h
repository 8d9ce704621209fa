#pragma once
/// A form on the real desktop, off the screen, and the user's hands on it: keys and mouse buttons that go in
/// at the window, as the window system hands them over. What a whole session on a real screen shows, the
/// roads out of a field and the menu among it, isn't tried again here.
#include "desktop/QtDesktop.h"
#include "platform/ComboBox.h"
#include "platform/Controls.h"
#include "platform/ListView.h"
#include "platform/Runtime.h"
#include "ui/clsLayout.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>

#include <gtest/gtest.h>

#include <functional>
#include <string>

class Bench : public testing::Test {
protected:
    Bench();

    /// Brings the window up to date after the test has changed the form.
    void Sync() {
        desktop.Handle([] {});
    }

    /// A key pressed and let go; what a key held down gives is a press and a release too, marked as a repeat.
    void Key(int pKey, Qt::KeyboardModifiers pModifiers = {}, bool pIsAutoRepeat = false);
    /// A press or a release of the left button.
    void Mouse(QEvent::Type pType, const QWidget &pWidget, QPoint pAt, Qt::KeyboardModifiers pModifiers = {});
    void Click(const QWidget &pWidget, QPoint pAt, Qt::KeyboardModifiers pModifiers = {});

    /// Lets events run until pIsDone, or for two seconds.
    static bool Until(const std::function<bool()> &pIsDone);

    QtDesktop desktop;
    Runtime runtime{desktop, AppRecord{}, ""};
    Form &form = runtime.NewForm("form");
    CommandButton &cmdAdd = form.Add<CommandButton>("cmdAdd");
    CommandButton &cmdCancel = form.Add<CommandButton>("cmdCancel"); ///< answers Esc
    ListView &list = form.Add<ListView>("list");                     ///< Abacus, Apple, Banana
    TextBox &name = form.Add<TextBox>("name");
    ComboBox &fruit = form.Add<ComboBox>("fruit"); ///< the same
    clsLayout layout;
    std::string acts; ///< what the form's events have reported: the names of buttons, the rows picked

    // The same as Qt shows them.
    FormWindow *window = nullptr;
    QPushButton *addButton = nullptr;
    QTableView *table = nullptr;
    QLineEdit *nameEdit = nullptr;
    QComboBox *box = nullptr;
};
