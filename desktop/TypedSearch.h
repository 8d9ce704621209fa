#pragma once
/// The search for a record by the letters that the user types in the list.
#include "forms/ListView.h"

#include <QElapsedTimer>
#include <QString>

class TypedSearch {
public:
    /// The user has typed pText while pList has the focus. Returns the row of the item to pick, from 1; 0 if
    /// there is none. Letters that follow at once, within Qt's keyboardInputInterval, narrow the search, but
    /// the same letter again goes on to the next item that begins with it.
    int Typed(const QString &pText, const ListView &pList);

private:
    QString mySoFar;
    QElapsedTimer mySinceLast;
};
