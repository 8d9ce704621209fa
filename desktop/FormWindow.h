#pragma once
/// The window of one form: a menu bar, a view for each control, and what the user does to the window itself.
/// It shows the controls that the form has when the window is made.
#include "desktop/Acts.h"
#include "desktop/ControlView.h"
#include "desktop/FormMenu.h"
#include "forms/Form.h"

#include <QTimer>
#include <QWidget>

#include <memory>
#include <vector>

class FormWindow : public QWidget, public Acts {
public:
    FormWindow(Acts &pActs, Form &pForm);
    ~FormWindow() override;

    /// Brings the window and all its controls up to date with the form.
    void Sync();

    /// Takes the window off the screen and stops it from passing anything on. Its form has been unloaded.
    void Retire();

    /// Pass on the acts of the views as long as the form is there.
    void Run(const std::function<void()> &pAct) override;
    void RunEvenUnderBox(const std::function<void()> &pAct) override;

    /// Whether the control that has the focus lets the user move it to pTarget; null stands for the target
    /// of Tab. While the menu bar has the focus, the control that had it before is asked, and gets it back
    /// if it refuses.
    bool MayFocusMoveTo(const QWidget *pTarget);

    /// Moves the focus away from a button that is about to be disabled.
    void FocusFallback() const;

protected:
    void resizeEvent(QResizeEvent *pEvent) override;
    void changeEvent(QEvent *pEvent) override;
    void closeEvent(QCloseEvent *pEvent) override;
    void keyPressEvent(QKeyEvent *pEvent) override;
    bool event(QEvent *pEvent) override;
    bool eventFilter(QObject *pWatched, QEvent *pEvent) override;
    bool focusNextPrevChild(bool pNext) override;

private:
    void SetFrame();
    void AddViews();
    void SetTabOrder() const;
    void FocusMoved(const QWidget *pNow);
    /// Whether a press of the mouse there would take the focus from a field that refuses.
    bool RefusesPress(const QPoint &pAt);
    /// The first view that passes pTest; null if none does.
    template <typename Test> ControlView *FirstView(Test pTest) const;
    int MenuHeight(int pWidth) const;
    void Arrange();
    void ReportSize();
    int State() const;
    void ShowCaptionAndState();
    /// The client area that the form wants, and the window around it, in pixels.
    QSize WantedClient() const;
    QSize WantedSize() const;
    void ResizeToForm();
    void FollowForm();
    /// Ask the window system for the size that the form wants, and look whether it has come.
    void Ask();
    void Check();

    Acts &myActs;
    Form &myForm;
    QMenuBar *myBar = nullptr; ///< null if the form has no menu
    QWidget *myClient = nullptr;
    std::unique_ptr<FormMenu> myMenu;
    std::vector<std::unique_ptr<ControlView>> myViews;
    ControlView *myFocused = nullptr; ///< the view that has the focus, or had it last
    Qt::MouseButtons myDropped;       ///< buttons whose press was dropped and whose release is still to come
    bool myIsReady = false;
    int myShownRevision = 0;
    QSize myGiven;  ///< the size that the window system gave last
    int myAsks = 0; ///< how often the window has asked for another since then
    QTimer myChecking;
};
