#pragma once
/// A form on the real desktop, off the screen. Keys and mouse buttons arrive at its window as the window
/// system would deliver them. The sessions on a real screen test the menu and the whole program, so these
/// tests don't.
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

class RealWindow : public testing::Test {
protected:
    RealWindow();
    ~RealWindow() override { delete window; } // The window must go before the form that it shows.

    /// Brings the window up to date after the test has changed the form.
    void Sync() {
        desktop.Run([] {});
    }

    static QKeyCombination KeyOf(const QString &pName) { return QKeySequence::fromString(pName)[0]; }

    /// Presses and releases each key, such as in "Down Alt+Up a", with the letter that it types.
    void Keys(const char *pKeys);
    void Click(const QWidget &pWidget, QPoint pAt, Qt::KeyboardModifiers pModifiers = {},
               Qt::MouseButton pButton = Qt::LeftButton) {
        QTest::mouseClick(window->windowHandle(), pButton, pModifiers, pWidget.mapTo(window, pAt));
    }

    /// What the screen shows of pPart.
    static QImage Screen(const QWidget &pPart);

    QtDesktop desktop;
    Runtime runtime{desktop, AppRecord{"", "", "Product", "this", "words", "link"}, ""};
    Form &form = runtime.NewForm();
    MenuItem &mnuEdit = form.Add<MenuItem>("mnuEdit");
    CommandButton &cmdAdd = form.Add<CommandButton>("cmdAdd"); ///< Alt+A, and answers Esc
    ListView &list = form.Add<ListView>("list");               ///< Abacus, Apple, Banana
    TextBox &name = form.Add<TextBox>("name");
    ComboBox &fruit = form.Add<ComboBox>("fruit"); ///< the same entries
    clsCombo combo;                                ///< serves it
    clsLayout layout;
    std::string acts; ///< what the form's events have reported: the presses of the button, the rows picked

    // The widgets of these controls.
    FormWindow *window;
    QPushButton *addButton;
    QTableView *table;
    QLineEdit *nameEdit;
    QComboBox *box;
};
