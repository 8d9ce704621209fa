#pragma once
/// Qt's application. It goes on when memory runs out while Qt shows something.
#include "system/Memory.h"

#include <QApplication>

class Application : public QApplication {
public:
    using QApplication::QApplication;

    /// Acts have a way of their own to tell of it. What was to be shown stays unshown.
    bool notify(QObject *pReceiver, QEvent *pEvent) override {
        bool isTaken = false;
        HasMemoryFor([&] { isTaken = QApplication::notify(pReceiver, pEvent); });
        return isTaken;
    }
};
