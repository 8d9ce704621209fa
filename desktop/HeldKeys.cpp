#include "desktop/HeldKeys.h"

#include <QAbstractButton>
#include <QApplication>
#include <QScopedValueRollback>

#include <utility>

namespace {

/// Milliseconds in which the press of a repeat follows its release.
constexpr int waitingTime = 20;

bool IsOnButton() {
    return qobject_cast<QAbstractButton *>(QApplication::focusWidget()) != nullptr;
}

bool MustNotRepeat(const QKeyEvent &pKey) {
    return pKey.key() == Qt::Key_Return || pKey.key() == Qt::Key_Enter || pKey.key() == Qt::Key_Escape ||
           (pKey.key() == Qt::Key_Space && IsOnButton());
}

} // namespace

HeldKeys::HeldKeys() {
    myWaiting.setSingleShot(true);
    connect(&myWaiting, &QTimer::timeout, this, [this] {
        // After a long delay the timer runs before the window system's events are read. Let them come first.
        if (std::exchange(myHasWaited, true)) {
            Deliver();
        } else {
            myWaiting.start(0);
        }
    });
}

bool HeldKeys::IsRepeat(const QKeyEvent &pPress) const {
    const auto release = myReleases.find(pPress.key());
    const bool followsAtOnce =
        release != myReleases.end() && release->second == pPress.timestamp() && pPress.timestamp() != 0;
    return pPress.isAutoRepeat() || followsAtOnce;
}

bool HeldKeys::DropsPress(const QKeyEvent &pPress) {
    if (!MustNotRepeat(pPress) || !IsRepeat(pPress)) {
        return false;
    }
    if (myHeld != nullptr && myHeld->key() == pPress.key()) {
        myHeld.reset(); // The key is still down.
        myWaiting.stop();
    }
    return true;
}

bool HeldKeys::HoldsRelease(QWindow &pWindow, const QKeyEvent &pRelease) {
    if (pRelease.isAutoRepeat()) {
        return false;
    }
    myReleases[pRelease.key()] = pRelease.timestamp();
    if (pRelease.key() != Qt::Key_Space || !IsOnButton()) {
        return false;
    }
    myHeld.reset(pRelease.clone());
    myHeldFor = &pWindow;
    myHasWaited = false;
    myWaiting.start(waitingTime);
    return true;
}

void HeldKeys::Deliver() {
    myWaiting.stop();
    const std::unique_ptr<QKeyEvent> release = std::move(myHeld);
    if (release != nullptr && myHeldFor != nullptr) {
        const QScopedValueRollback delivering(myIsDelivering, true);
        QCoreApplication::sendEvent(myHeldFor, release.get());
    }
}

bool HeldKeys::eventFilter(QObject *pWatched, QEvent *pEvent) {
    auto *window = qobject_cast<QWindow *>(pWatched);
    const auto type = pEvent->type();
    const bool isPress = type == QEvent::KeyPress;
    const bool isRelease = type == QEvent::KeyRelease;
    if (window == nullptr || myIsDelivering) {
        return false;
    }
    if (isPress && DropsPress(static_cast<QKeyEvent &>(*pEvent))) {
        return true;
    }
    if (isPress || isRelease || type == QEvent::MouseButtonPress) {
        Deliver(); // What the user did first comes first.
    }
    return isRelease && HoldsRelease(*window, static_cast<QKeyEvent &>(*pEvent));
}
