#pragma once
/// Keeps the focus in a field that refuses to lose it to a click. Qt moves the focus before a widget sees the
/// press, so the press is caught at the window, and then nothing of the click is delivered.
#include <QObject>

class FormWindow;
class QMouseEvent;

class FocusGuard : public QObject {
public:
    explicit FocusGuard(const FormWindow &pWindow) : myWindow(pWindow) {}

    bool eventFilter(QObject *pWatched, QEvent *pEvent) override;

private:
    bool Refuses(const QMouseEvent &pPress) const;

    const FormWindow &myWindow;
    Qt::MouseButtons mySwallowed; ///< the buttons whose press was refused and whose release is still to come
};
