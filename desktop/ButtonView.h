#pragma once
/// The view of a command button, with a caption or a drawn triangle.
#include "desktop/ControlView.h"
#include "forms/Controls.h"

#include <QPushButton>

class ButtonView : public QPushButton, public ControlView {
public:
    ButtonView(Acts &pActs, const CommandButton &pButton, QWidget &pParent);
    QWidget &Widget() override { return *this; }

protected:
    Qt::FocusPolicy FocusPolicy() const override { return Qt::StrongFocus; }
    void Show() override;
    void ShowEnabled() override;
    bool event(QEvent *pEvent) override;
    void keyPressEvent(QKeyEvent *pEvent) override;
    void paintEvent(QPaintEvent *pEvent) override;

private:
    void PressByAccessKey();

    const CommandButton &myButton;
};
