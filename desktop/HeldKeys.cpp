#include "desktop/HeldKeys.h"

#include <QKeyEvent>

bool HeldKeys::eventFilter(QObject * /*pWatched*/, QEvent *pEvent) {
    if (pEvent->type() != QEvent::KeyPress && pEvent->type() != QEvent::ShortcutOverride) {
        return false;
    }
    const auto &key = static_cast<const QKeyEvent &>(*pEvent);
    const bool decides =
        key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter || key.key() == Qt::Key_Escape;
    return decides && key.isAutoRepeat();
}
