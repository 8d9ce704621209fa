// The views of the controls that take no focus: label, picture, line.
#include "desktop/Look.h"
#include "desktop/TextCodec.h"
#include "desktop/Views.h"
#include "desktop/WholeText.h"
#include "desktop/WindowSystem.h"
#include "forms/Controls.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

#include <utility>

namespace {

/// A label of one line ends in an ellipsis if it is cut. A higher one wraps its text. A cut text shows whole
/// as a tool tip.
class LabelView : public QLabel, public ControlView {
public:
    LabelView(Acts &pActs, const Label &pLabel, QWidget &pParent)
        : QLabel(&pParent), ControlView(pActs, pLabel), myLabel(pLabel) {
        setTextFormat(Qt::PlainText);
        setAlignment(Qt::AlignLeft | Qt::AlignTop);
    }
    QWidget &Widget() override { return *this; }

protected:
    void Show() override {
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

    void paintEvent(QPaintEvent *pEvent) override {
        if (wordWrap()) {
            QLabel::paintEvent(pEvent);
            return;
        }
        QPainter painter(this);
        const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, width());
        style()->drawItemText(&painter, rect(), static_cast<int>(alignment()), palette(), isEnabled(), shown,
                              QPalette::WindowText);
    }

    void mousePressEvent(QMouseEvent * /*pEvent*/) override { myIsPressed = true; }

    void mouseDoubleClickEvent(QMouseEvent * /*pEvent*/) override {
        // The second press of a double click opens nothing again.
    }

    void mouseReleaseEvent(QMouseEvent *pEvent) override {
        if (std::exchange(myIsPressed, false) && myLabel.IsLink() && pEvent->button() == Qt::LeftButton &&
            rect().contains(pEvent->position().toPoint())) {
            myActs.Run([this] { myLabel.Click.Raise(); });
        }
    }

    bool event(QEvent *pEvent) override {
        if (pEvent->type() != QEvent::ToolTip) {
            return QLabel::event(pEvent);
        }
        ShowWholeText(static_cast<const QHelpEvent &>(*pEvent), *this,
                      IsCut() ? std::string_view(myLabel.Caption()) : std::string_view());
        return true;
    }

private:
    bool IsCut() const {
        return wordWrap() ? heightForWidth(width()) > height()
                          : fontMetrics().horizontalAdvance(text()) > width();
    }

    const Label &myLabel;
    bool myIsPressed = false;
};

class PictureView : public QLabel, public ControlView {
public:
    PictureView(Acts &pActs, const PictureBox &pBox, QWidget &pParent)
        : QLabel(&pParent), ControlView(pActs, pBox) {}
    QWidget &Widget() override { return *this; }

protected:
    void Show() override { setPixmap(ProgramIcon().pixmap(size(), devicePixelRatio())); }
};

class LineView : public QWidget, public ControlView {
public:
    LineView(Acts &pActs, const Line &pLine, QWidget &pParent)
        : QWidget(&pParent), ControlView(pActs, pLine), myLine(pLine) {
        setAutoFillBackground(true);
    }
    QWidget &Widget() override { return *this; }

protected:
    void Show() override { setPalette(QPalette(QColor::fromRgb(myLine.BorderColor()))); }

private:
    const Line &myLine;
};

} // namespace

std::unique_ptr<ControlView> MakeLabelView(Acts &pActs, ::Control &pControl, QWidget &pParent) {
    return MakeViewOf<LabelView, Label>(pActs, pControl, pParent);
}

std::unique_ptr<ControlView> MakePictureView(Acts &pActs, ::Control &pControl, QWidget &pParent) {
    return MakeViewOf<PictureView, PictureBox>(pActs, pControl, pParent);
}

std::unique_ptr<ControlView> MakeLineView(Acts &pActs, ::Control &pControl, QWidget &pParent) {
    return MakeViewOf<LineView, Line>(pActs, pControl, pParent);
}
