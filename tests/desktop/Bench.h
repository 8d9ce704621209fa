#pragma once
/// A form on the real desktop, off the screen, and the user's hands on it: keys and mouse buttons arrive at
/// the window, as the window system delivers them. The sessions on a real screen try the ways out of a field,
/// the menu and the whole program; these tests don't.
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
#include <QTest>

#include <gtest/gtest.h>

#include <string>

class Bench : public testing::Test {
protected:
    Bench();
    ~Bench() override { delete window; } // It must go before what it shows.

    /// Brings the window up to date after the test has changed the form.
    void Sync() {
        desktop.Handle([] {});
    }

    /// A key pressed and let go, with the letter that it types. A key held down gives presses and releases
    /// too, marked as repeats.
    void Key(int pKey, Qt::KeyboardModifiers pModifiers = {}, bool pIsAutoRepeat = false);
    void Click(const QWidget &pWidget, QPoint pAt, Qt::KeyboardModifiers pModifiers = {},
               Qt::MouseButton pButton = Qt::LeftButton);

    QtDesktop desktop;
    Runtime runtime{desktop, AppRecord{}, ""};
    Form &form = runtime.NewForm();
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
