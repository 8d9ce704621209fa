#pragma once
/// The window of one form: menu bar, client area with a view for each control, and the user's acts on the
/// window itself. It is made from what the form holds when it is shown.
#include "desktop/ControlView.h"
#include "desktop/FocusGuard.h"
#include "desktop/FormMenu.h"
#include "platform/Form.h"

#include <QTimer>
#include <QWidget>

#include <memory>
#include <vector>

class FormWindow : public QWidget {
public:
    FormWindow(Acts &pActs, Form &pForm);
    ~FormWindow() override;

    /// Brings the window and all its controls up to date with the form.
    void Sync();

    /// The form is gone: the window leaves the screen and hands on nothing any more.
    void Retire();

    /// Whether the focus may leave where it is, by the user's choice, for pTarget; nothing: for wherever Tab
    /// leads.
    bool MayFocusMoveTo(const QWidget *pTarget) const;

    /// Gives the focus to the control that takes it when the one that has it is disabled.
    void FocusFallback() const;

protected:
    void resizeEvent(QResizeEvent *pEvent) override;
    void changeEvent(QEvent *pEvent) override;
    void closeEvent(QCloseEvent *pEvent) override;
    void keyPressEvent(QKeyEvent *pEvent) override;
    bool event(QEvent *pEvent) override;
    bool focusNextPrevChild(bool pNext) override;

private:
    void SetFrame();
    void AddViews();
    void SetTabOrder() const;
    void ShowFocus();
    int MenuHeight(int pWidth) const;
    void Arrange();
    void ReportSize();
    int State() const;
    void ShowCaptionAndState();
    /// The client area that the form wants, in pixels.
    QSize WantedClient() const;
    void ResizeToForm();
    void FollowForm();
    void Settled();

    Acts &myActs;
    Form &myForm;
    QMenuBar *myBar = nullptr; ///< none when the form has no menu
    QWidget *myClient = nullptr;
    std::unique_ptr<FormMenu> myMenu;
    std::vector<std::unique_ptr<ControlView>> myViews;
    FocusGuard myGuard;
    bool myIsReady = false;
    int myShownRevision = 0;
    QSize myCorrected; ///< the size given by the window system that was corrected last
    bool myHasAskedAgain = false;
    QTimer mySettling;
};
