// The view of a command button, with a caption or a drawn triangle.
#include "desktop/TextCodec.h"
#include "desktop/Views.h"
#include "forms/Controls.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>

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

class ButtonView : public QPushButton, public ControlView {
public:
    ButtonView(Acts &pActs, const CommandButton &pButton, QWidget &pParent)
        : QPushButton(&pParent), ControlView(pActs, pButton), myButton(pButton) {
        setAutoDefault(false);
        connect(this, &QPushButton::clicked, this, [this] {
            if (MayTakeFocus()) {
                myActs.Run([this] { myButton.Press(); });
            }
        });
    }
    QWidget &Widget() override { return *this; }

protected:
    Qt::FocusPolicy FocusPolicy() const override { return Qt::StrongFocus; }

    void Show() override {
        const QString caption = ToQt(myButton.Caption());
        setText(caption);
        setDefault(myButton.Default());
        if (accessibleName().isEmpty() && caption.isEmpty()) {
            setAccessibleName(ToQt(myButton.ToolTipText()));
        }
    }

    bool event(QEvent *pEvent) override {
        if (pEvent->type() != QEvent::Shortcut) {
            return QPushButton::event(pEvent);
        }
        if (MayTakeFocus()) {
            setFocus(Qt::ShortcutFocusReason);
            click();
        }
        return true;
    }

    void keyPressEvent(QKeyEvent *pEvent) override {
        if (pEvent->key() == Qt::Key_Return || pEvent->key() == Qt::Key_Enter) {
            click();
        } else {
            QPushButton::keyPressEvent(pEvent);
        }
    }

    void paintEvent(QPaintEvent *pEvent) override {
        QPushButton::paintEvent(pEvent);
        if (myButton.Shows() != CommandButton::Picture::None) {
            QPainter painter(this);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setPen(Qt::NoPen);
            painter.setBrush(palette().brush(QPalette::ButtonText));
            painter.drawPolygon(Triangle(myButton.Shows(), rect()));
        }
    }

private:
    const CommandButton &myButton;
};

} // namespace

std::unique_ptr<ControlView> MakeButtonView(Acts &pActs, ::Control &pControl, QWidget &pParent) {
    return MakeViewOf<ButtonView, CommandButton>(pActs, pControl, pParent);
}
