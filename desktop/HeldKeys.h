#pragma once
/// Drops the repeats of a held Enter or Esc key, so that it decides once. By the time of a repeat the button
/// may be disabled and the focus elsewhere, or a box may be open and take the repeat for its answer.
#include <QObject>

class HeldKeys : public QObject {
public:
    bool eventFilter(QObject *pWatched, QEvent *pEvent) override;
};
