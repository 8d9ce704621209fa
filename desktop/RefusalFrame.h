#pragma once
/// The sign of a field that keeps the focus because of its text: a thick frame in a colour of warning.
/// Assistive technology doesn't see it.
#include <QFocusFrame>

class RefusalFrame : public QFocusFrame {
public:
    explicit RefusalFrame(QWidget &pField) : QFocusFrame(&pField) { hide(); }

protected:
    bool eventFilter(QObject *pWatched, QEvent *pEvent) override;
    void showEvent(QShowEvent *pEvent) override;
    void paintEvent(QPaintEvent *pEvent) override;

private:
    void ShowAboveField();
};
