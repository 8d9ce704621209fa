#pragma once
/// The views of the controls that take no focus: label, picture, line.
#include "desktop/ControlView.h"
#include "forms/Controls.h"

#include <QLabel>

/// A label of one line ends in an ellipsis if it is cut. A higher one wraps its text. A cut text shows whole
/// as a tool tip.
class LabelView : public QLabel, public ControlView {
public:
    LabelView(Acts &pActs, const Label &pLabel, QWidget &pParent);
    QWidget &Widget() override { return *this; }

protected:
    void Show() override;
    void paintEvent(QPaintEvent *pEvent) override;
    void mousePressEvent(QMouseEvent *pEvent) override;
    void mouseDoubleClickEvent(QMouseEvent *pEvent) override;
    void mouseReleaseEvent(QMouseEvent *pEvent) override;
    bool event(QEvent *pEvent) override;

private:
    bool IsCut() const;

    const Label &myLabel;
    bool myIsPressed = false;
};

class PictureView : public QLabel, public ControlView {
public:
    PictureView(Acts &pActs, const PictureBox &pBox, QWidget &pParent);
    QWidget &Widget() override { return *this; }

protected:
    void Show() override;
};

class LineView : public QWidget, public ControlView {
public:
    LineView(Acts &pActs, const Line &pLine, QWidget &pParent);
    QWidget &Widget() override { return *this; }

protected:
    void Show() override;

private:
    const Line &myLine;
};
