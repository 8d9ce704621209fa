#include "desktop/ButtonView.h"

#include "desktop/FormWindow.h"
#include "desktop/TextCodec.h"

#include <QKeyEvent>
#include <QPainter>

namespace {

/// A triangle in the middle of pRect, on a picture of 16 by 16 pixels.
QPolygonF Triangle(CommandButton::Picture pPicture, const QRectF &pRect) {
    constexpr double halfWidth = 5;
    constexpr double halfHeight = 3;
    const double tip = pPicture == CommandButton::Picture::TriangleUp ? -halfHeight : halfHeight;
    const QPointF middle = pRect.center();
    return QPolygonF(
        {middle + QPointF(-halfWidth, -tip), middle + QPointF(halfWidth, -tip), middle + QPointF(0, tip)});
}

} // namespace

ButtonView::ButtonView(Acts &pActs, const CommandButton &pButton, QWidget &pParent)
    : QPushButton(&pParent), ControlView(pActs, pButton), myButton(pButton) {
    setAutoDefault(false);
    connect(this, &QPushButton::clicked, this, [this] {
        if (MayTakeFocus()) {
            myActs.Handle([this] { myButton.Press(); });
        }
    });
}

void ButtonView::Show() {
    const QString caption = ToQt(myButton.Caption());
    if (text() != caption) {
        setText(caption);
    }
    setDefault(myButton.Default());
    if (accessibleName().isEmpty() && caption.isEmpty()) {
        setAccessibleName(ToQt(myButton.ToolTipText()));
    }
}

void ButtonView::ShowEnabled() {
    // Qt would move the focus from a disabled button to the next one. A second press of the space bar would
    // then act on that one.
    auto *form = dynamic_cast<FormWindow *>(window());
    if (!myButton.Enabled() && form != nullptr && form->focusWidget() == this) {
        form->FocusFallback();
    }
    setEnabled(myButton.Enabled());
}

bool ButtonView::event(QEvent *pEvent) {
    if (pEvent->type() == QEvent::Shortcut) {
        PressByAccessKey();
        return true;
    }
    return QPushButton::event(pEvent);
}

void ButtonView::PressByAccessKey() {
    if (MayTakeFocus()) {
        setFocus(Qt::ShortcutFocusReason);
        click();
    }
}

void ButtonView::keyPressEvent(QKeyEvent *pEvent) {
    const bool isEnter = pEvent->key() == Qt::Key_Return || pEvent->key() == Qt::Key_Enter;
    if (!isEnter) {
        QPushButton::keyPressEvent(pEvent);
    } else {
        click();
    }
}

void ButtonView::paintEvent(QPaintEvent *pEvent) {
    QPushButton::paintEvent(pEvent);
    if (myButton.Shows() == CommandButton::Picture::None) {
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().brush(QPalette::ButtonText));
    painter.drawPolygon(Triangle(myButton.Shows(), rect()));
}
