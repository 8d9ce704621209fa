#include "desktop/RefusalFrame.h"

#include <QPainter>

// Most styles put a focus frame under the field, and leave it only what lies outside.

bool RefusalFrame::eventFilter(QObject *pWatched, QEvent *pEvent) {
    const bool isHandled = QFocusFrame::eventFilter(pWatched, pEvent);
    ShowAboveField();
    return isHandled;
}

void RefusalFrame::showEvent(QShowEvent *pEvent) {
    QFocusFrame::showEvent(pEvent);
    ShowAboveField();
}

void RefusalFrame::ShowAboveField() {
    clearMask();
    raise();
}

void RefusalFrame::paintEvent(QPaintEvent * /*pEvent*/) {
    constexpr int thickness = 3;
    constexpr QColor onLight(0xC4, 0x1E, 0x1E);
    constexpr QColor onDark(0xFF, 0x9D, 0x4D);
    constexpr int middle = 128; // of 255
    const bool isDark = palette().color(QPalette::Window).lightness() < middle;
    // On the field itself: the frame's own place is larger than the field, and would cover its neighbours.
    const QRect field(widget()->mapTo(parentWidget(), QPoint()) - pos(), widget()->size());
    QPainter painter(this);
    QPen pen(isDark ? onDark : onLight, thickness);
    pen.setJoinStyle(Qt::MiterJoin);
    painter.setPen(pen);
    painter.drawRect(field.adjusted(1, 1, -2, -2));
}
