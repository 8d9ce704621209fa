#pragma once
/// Keeps a key that is held down from deciding twice: Enter and Esc count when they go down and not when they
/// repeat. The button that Enter pressed may be off by then and the focus elsewhere, or a box may be open in
/// which the repeat would be the answer.
#include <QObject>

class HeldKeys : public QObject {
public:
    bool eventFilter(QObject *pWatched, QEvent *pEvent) override;
};
