#pragma once
/// The menu bar of a window, made from the menu items of its form.
#include "desktop/Acts.h"
#include "forms/Controls.h"

#include <QAction>
#include <QMenuBar>

#include <map>

class Form;

class FormMenu {
public:
    FormMenu(Acts &pActs, const Form &pForm, QMenuBar &pBar);

    /// Updates the entries from their items.
    void Sync() const;

    bool IsEmpty() const { return myEntries.empty(); }

private:
    void AddEntry(Acts &pActs, const MenuItem &pItem);
    QWidget &ParentOf(const MenuItem &pItem) const;

    QMenuBar &myBar;
    std::map<const MenuItem *, QAction *> myEntries;
};
