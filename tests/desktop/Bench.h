#pragma once
/// A form on the real desktop, off the screen. Keys and mouse buttons arrive at its window as the window
/// system would deliver them. The sessions on a real screen test the ways out of a field, the menu and the
/// whole program, so these tests don't.
#include "desktop/QtDesktop.h"
#include "forms/ComboBox.h"
#include "forms/Controls.h"
#include "forms/ListView.h"
#include "forms/Runtime.h"
#include "ui/clsCombo.h"
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
    ~Bench() override { delete window; } // The window must go before the form that it shows.

    /// Brings the window up to date after the test has changed the form.
    void Sync() {
        desktop.Run([] {});
    }

    /// Presses and releases a key, with the letter that it types. A key held down also sends presses and
    /// releases, marked as repeats.
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
    ComboBox &fruit = form.Add<ComboBox>("fruit"); ///< the same entries
    clsCombo combo;                                ///< serves it
    clsLayout layout;
    std::string acts; ///< what the form's events have reported: the names of buttons, the rows picked

    // The widgets of these controls.
    FormWindow *window = nullptr;
    QPushButton *addButton = nullptr;
    QTableView *table = nullptr;
    QLineEdit *nameEdit = nullptr;
    QComboBox *box = nullptr;
};
