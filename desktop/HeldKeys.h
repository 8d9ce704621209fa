#pragma once
/// Makes a key that is held down act once: Enter, Esc, and the space bar on a button. By the time of a repeat
/// the button may be disabled and the focus elsewhere, or a box may be open and take the repeat for its
/// answer.
///
/// X11 sends a release and a press at the same time for each repeat. Qt marks them only if both have arrived,
/// which on a busy machine they often haven't.
#include <QKeyEvent>
#include <QPointer>
#include <QTimer>
#include <QWindow>

#include <map>
#include <memory>

class HeldKeys : public QObject {
public:
    HeldKeys();

    /// Watches what arrives at the windows. To be installed on the application.
    bool eventFilter(QObject *pWatched, QEvent *pEvent) override;

private:
    bool IsRepeat(const QKeyEvent &pPress) const;
    bool DropsPress(const QKeyEvent &pPress);
    bool HoldsRelease(QWindow &pWindow, const QKeyEvent &pRelease);
    void Deliver();

    /// The time of the last release of each key, in the window system's milliseconds.
    std::map<int, quint64> myReleases;
    std::unique_ptr<QKeyEvent> myHeld; ///< a release of the space bar that may yet prove to be a repeat's
    QPointer<QWindow> myHeldFor;
    QTimer myWaiting;
    bool myHasWaited = false;
    bool myIsDelivering = false;
};
