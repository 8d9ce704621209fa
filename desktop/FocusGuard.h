#pragma once
/// Keeps the focus in a field that refuses to lose it by a click. Qt moves the focus before any widget sees
/// the press, so the guard catches the press at the window, and drops the whole click.
#include <QObject>

class FormWindow;
class QMouseEvent;

class FocusGuard : public QObject {
public:
    explicit FocusGuard(FormWindow &pWindow) : myWindow(pWindow) {}

    bool eventFilter(QObject *pWatched, QEvent *pEvent) override;

private:
    bool Refuses(const QMouseEvent &pPress) const;

    FormWindow &myWindow;
    Qt::MouseButtons mySwallowed; ///< buttons whose press was dropped and whose release is still to come
};
