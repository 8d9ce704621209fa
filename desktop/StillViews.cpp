#include "desktop/StillViews.h"

#include "desktop/Look.h"
#include "desktop/TextCodec.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

LabelView::LabelView(Acts &pActs, const Label &pLabel, QWidget &pParent)
    : QLabel(&pParent), ControlView(pActs, pLabel), myLabel(pLabel) {
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

void LabelView::Show() {
    setText(ToQtLine(myLabel.Caption(), mostShown));
    setWordWrap(height() >= 2 * fontMetrics().lineSpacing());
    if (myLabel.IsLink()) {
        QPalette colours = palette();
        colours.setColor(QPalette::WindowText, QColor::fromRgb(myLabel.ForeColor()));
        setPalette(colours);
        setCursor(Qt::PointingHandCursor);
    }
}

void LabelView::paintEvent(QPaintEvent *pEvent) {
    if (wordWrap()) {
        QLabel::paintEvent(pEvent);
        return;
    }
    QPainter painter(this);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, width());
    style()->drawItemText(&painter, rect(), static_cast<int>(alignment()), palette(), isEnabled(), shown,
                          QPalette::WindowText);
}

void LabelView::mouseReleaseEvent(QMouseEvent *pEvent) {
    if (myLabel.IsLink() && pEvent->button() == Qt::LeftButton &&
        rect().contains(pEvent->position().toPoint())) {
        myActs.Handle([this] { myLabel.Click.Raise(); });
    }
}

PictureView::PictureView(Acts &pActs, const PictureBox &pBox, QWidget &pParent)
    : QLabel(&pParent), ControlView(pActs, pBox) {}

void PictureView::Show() {
    setPixmap(ProgramIcon().pixmap(size(), devicePixelRatio()));
}

LineView::LineView(Acts &pActs, const Line &pLine, QWidget &pParent)
    : QWidget(&pParent), ControlView(pActs, pLine), myLine(pLine) {
    setAutoFillBackground(true);
}

void LineView::Show() {
    setPalette(QPalette(QColor::fromRgb(myLine.BorderColor())));
}
