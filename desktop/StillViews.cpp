#include "desktop/StillViews.h"

#include "desktop/Look.h"
#include "desktop/TextCodec.h"
#include "desktop/WholeText.h"
#include "desktop/WindowSystem.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

#include <utility>

LabelView::LabelView(Acts &pActs, const Label &pLabel, QWidget &pParent)
    : QLabel(&pParent), ControlView(pActs, pLabel), myLabel(pLabel) {
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

void LabelView::Show() {
    setText(ToQtLine(myLabel.Caption(), mostShown));
    setWordWrap(height() >= 2 * fontMetrics().lineSpacing());
    if (myLabel.IsLink()) {
        if (!IsContrastHigh()) {
            QPalette colours = palette();
            colours.setColor(QPalette::WindowText, QColor::fromRgb(myLabel.ForeColor()));
            setPalette(colours);
        }
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

bool LabelView::IsCut() const {
    const int needed = wordWrap() ? heightForWidth(width()) : fontMetrics().horizontalAdvance(text());
    return needed > (wordWrap() ? height() : width());
}

bool LabelView::event(QEvent *pEvent) {
    if (pEvent->type() != QEvent::ToolTip) {
        return QLabel::event(pEvent);
    }
    ShowWholeText(static_cast<const QHelpEvent &>(*pEvent), *this,
                  IsCut() ? std::string_view(myLabel.Caption()) : std::string_view());
    return true;
}

void LabelView::mousePressEvent(QMouseEvent * /*pEvent*/) {
    myIsPressed = true;
}

void LabelView::mouseDoubleClickEvent(QMouseEvent * /*pEvent*/) {
    // The second press of a double click opens nothing again.
}

void LabelView::mouseReleaseEvent(QMouseEvent *pEvent) {
    if (std::exchange(myIsPressed, false) && myLabel.IsLink() && pEvent->button() == Qt::LeftButton &&
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
