#pragma once
/// A form on the real desktop, off the screen, with one control of each kind that matters, and the user's
/// hands on it: keys and mouse buttons that go in at the window, as the window system hands them over.
#include "desktop/QtDesktop.h"
#include "platform/ComboBox.h"
#include "platform/Controls.h"
#include "platform/ListView.h"
#include "platform/Runtime.h"
#include "ui/clsCombo.h"
#include "ui/clsLayout.h"

#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>

#include <gtest/gtest.h>

#include <string>
#include <vector>

class Bench : public testing::Test {
protected:
    Bench();
    ~Bench() override;

    /// The widget that shows pControl.
    template <typename Widget = QWidget> Widget &Of(const SizedControl &pControl) const;
    /// Brings the window up to date after the test has changed the form.
    void Sync();

    void Press(int pKey, Qt::KeyboardModifiers pModifiers = {}, const QString &pText = {});
    void Release(int pKey, Qt::KeyboardModifiers pModifiers = {}, bool pIsAutoRepeat = false);
    void Key(int pKey, Qt::KeyboardModifiers pModifiers = {}, const QString &pText = {});
    /// Types small letters, each key released before the next.
    void Type(const QString &pLetters);

    void MouseDown(const QWidget &pWidget, QPoint pAt, Qt::KeyboardModifiers pModifiers = {});
    void MouseUp(const QWidget &pWidget, QPoint pAt, Qt::KeyboardModifiers pModifiers = {});
    void Click(const QWidget &pWidget, QPoint pAt, Qt::KeyboardModifiers pModifiers = {});
    void Click(const QWidget &pWidget) { Click(pWidget, pWidget.rect().center()); }

    /// The middle of row pRow of the list, from 0, in its viewport.
    QPoint Row(int pRow) const;
    /// Lets events run until pIsDone, or for two seconds.
    template <typename Condition> static bool Until(Condition pIsDone);

    /// Has to be there before the desktop.
    struct Toolkit {
        Toolkit();
    } toolkit;
    QtDesktop desktop;
    Runtime runtime;
    Form &form = runtime.NewForm("form");
    CommandButton &cmdAdd = form.Add<CommandButton>("cmdAdd");
    CommandButton &cmdMoveUp = form.Add<CommandButton>("cmdMoveUp");
    CommandButton &cmdSave = form.Add<CommandButton>("cmdSave");
    CommandButton &cmdCancel = form.Add<CommandButton>("cmdCancel");
    ListView &list = form.Add<ListView>("list");
    MenuItem &mnuFile = form.Add<MenuItem>("mnuFile");
    MenuItem &mnuOpen = form.Add<MenuItem>("mnuOpen");
    Label &label = form.Add<Label>("label");
    TextBox &name = form.Add<TextBox>("name");
    ComboBox &fruit = form.Add<ComboBox>("fruit"); ///< Abacus, Apple, Banana; listed and completed
    clsCombo fruitRules;
    clsLayout layout;
    std::string acts; ///< what the form's events have reported: the names of buttons, the rows picked
    FormWindow *window = nullptr;

private:
    /// Where the window system sends keys: an open popup has the keyboard to itself.
    QWindow *KeyboardWindow() const;
    void Design();
    void Connect();
};

template <typename Widget> Widget &Bench::Of(const SizedControl &pControl) const {
    for (auto *widget : window->findChildren<QWidget *>()) {
        auto *view = dynamic_cast<ControlView *>(widget);
        if (view != nullptr && &view->Control() == &pControl) {
            return dynamic_cast<Widget &>(*widget);
        }
    }
    throw std::out_of_range("no widget for " + pControl.Name());
}

template <typename Condition> bool Bench::Until(Condition pIsDone) {
    QElapsedTimer time;
    time.start();
    while (!pIsDone() && time.elapsed() < 2000) {
        QApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    }
    return pIsDone();
}
