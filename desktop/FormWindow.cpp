#include "desktop/FormWindow.h"

#include "desktop/Look.h"
#include "desktop/TextCodec.h"
#include "desktop/WindowSystem.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QWindow>

#include <algorithm>

namespace {

/// Milliseconds after the last change of size, when the size counts as settled.
constexpr int settlingTime = 250;

} // namespace

FormWindow::FormWindow(Acts &pActs, Form &pForm)
    : myActs(pActs), myForm(pForm), myClient(new QWidget(this)), myGuard(*this) {
    mySettling.setSingleShot(true);
    mySettling.setInterval(settlingTime);
    connect(&mySettling, &QTimer::timeout, this, [this] { Settled(); });

    auto bar = std::make_unique<QMenuBar>(this);
    bar->setNativeMenuBar(false);
    myMenu = std::make_unique<FormMenu>(*this, pForm, *bar);
    if (!myMenu->IsEmpty()) {
        myBar = bar.release();
    }
    myClient->setFont(FormFont());
    SetFrame();
    AddViews();
    SetTabOrder();
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget * /*pBefore*/, const QWidget *pNow) { FocusMoved(pNow); });
    winId();
    windowHandle()->installEventFilter(&myGuard);
    if (myForm.Border() == Form::BorderStyle::FixedDialog) {
        StandAlone(*this);
    }
    Sync();
    Arrange();
    myIsReady = true;
}

FormWindow::~FormWindow() {
    myIsReady = false;
    myViews.clear();
}

void FormWindow::SetFrame() {
    if (myForm.Border() == Form::BorderStyle::FixedDialog) {
        // Not Qt::Dialog: without a parent it would belong to all windows of the program, stay above them and
        // be minimised with them.
        setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                       Qt::WindowCloseButtonHint);
        if (!IsContrastHigh()) {
            setPalette(LightPalette());
        }
    }
}

void FormWindow::AddViews() {
    for (const auto &control : myForm.Controls()) {
        auto view = MakeView(*this, *control, *myClient);
        if (view != nullptr) {
            view->Sync();
            myViews.push_back(std::move(view));
        }
    }
}

void FormWindow::SetTabOrder() const {
    std::vector<ControlView *> order;
    for (const auto &view : myViews) {
        if (view->TakesFocus()) {
            order.push_back(view.get());
        }
    }
    const auto isBefore = [](const ControlView *pOne, const ControlView *pOther) {
        return pOne->Control().TabIndex() < pOther->Control().TabIndex();
    };
    std::stable_sort(order.begin(), order.end(), isBefore);
    for (std::size_t at = 1; at < order.size(); ++at) {
        setTabOrder(&order[at - 1]->Widget(), &order[at]->Widget());
    }
    if (!order.empty()) {
        order.front()->Widget().setFocus();
    }
}

void FormWindow::ShowFocus() {
    // Enter acts on the focused control from the first moment, so the user must see which one it is before
    // any Tab.
    setAttribute(Qt::WA_KeyboardFocusChange);
    if (focusWidget() != nullptr) {
        focusWidget()->update();
    }
}

void FormWindow::Sync() {
    myMenu->Sync();
    for (const auto &view : myViews) {
        view->Sync();
    }
    if (myShownRevision != myForm.Revision()) {
        myShownRevision = myForm.Revision();
        ShowCaptionAndState();
        ShowLeastSize();
        FollowForm();
    }
}

void FormWindow::Retire() {
    myIsReady = false;
    myIsRetired = true;
    hide();
    deleteLater();
}

void FormWindow::Handle(const std::function<void()> &pAct) {
    if (!myIsRetired) {
        myActs.Handle(pAct);
    }
}

void FormWindow::Note(const std::function<void()> &pAct) {
    if (!myIsRetired) {
        myActs.Note(pAct);
    }
}

void FormWindow::ShowCaptionAndState() {
    setWindowTitle(ToQtTitle(myForm.Caption()));
    if (myForm.WindowState() != State()) {
        const Qt::WindowStates kept =
            windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized | Qt::WindowFullScreen);
        const bool isMinimized = myForm.WindowState() == Form::stateMinimized;
        const bool isMaximized = myForm.WindowState() == Form::stateMaximized;
        setWindowState(kept | (isMinimized   ? Qt::WindowMinimized
                               : isMaximized ? Qt::WindowMaximized
                                             : Qt::WindowNoState));
    }
}

void FormWindow::changeEvent(QEvent *pEvent) {
    QWidget::changeEvent(pEvent);
    if (pEvent->type() == QEvent::WindowStateChange) {
        ReportSize();
    }
}

bool FormWindow::event(QEvent *pEvent) {
    const bool isTaken = QWidget::event(pEvent);
    if (pEvent->type() == QEvent::WindowActivate) {
        ShowFocus();
    }
    // The menu bar wants another height, for example because the system's font has changed.
    if (pEvent->type() == QEvent::LayoutRequest && myIsReady && myBar != nullptr &&
        myBar->height() != MenuHeight(width())) {
        ShowLeastSize();
        if (State() == Form::stateNormal) {
            ResizeToForm();
        }
        Arrange();
        ReportSize();
    }
    return isTaken;
}

void FormWindow::closeEvent(QCloseEvent *pEvent) {
    if (myIsReady) {
        myActs.Handle([this] { myForm.UserCloses(); });
    }
    pEvent->setAccepted(!myIsReady); // The form stays loaded only if a box is waiting.
}

void FormWindow::keyPressEvent(QKeyEvent *pEvent) {
    if (!myIsReady) {
        return;
    }
    if (pEvent->key() == Qt::Key_Escape) {
        myActs.Handle([this] { myForm.UserPressesEscape(); });
    } else if (pEvent->key() == Qt::Key_Return || pEvent->key() == Qt::Key_Enter) {
        myActs.Handle([this] { myForm.UserPressesEnter(); });
    } else {
        QWidget::keyPressEvent(pEvent);
    }
}

bool FormWindow::MayFocusMoveTo(const QWidget *pTarget) {
    if (myFocused == nullptr || pTarget == &myFocused->Widget() || myFocused->MayLoseFocus()) {
        return true;
    }
    myFocused->Sync();
    if (focusWidget() == myBar) {
        myFocused->Widget().setFocus(Qt::OtherFocusReason);
    }
    return false;
}

void FormWindow::FocusMoved(const QWidget *pNow) {
    if (!myIsReady) {
        return;
    }
    const auto hasFocus = [&](const auto &pView) { return &pView->Widget() == pNow; };
    const auto view = std::find_if(myViews.begin(), myViews.end(), hasFocus);
    if (view == myViews.end()) {
        return;
    }
    if (MayFocusMoveTo(pNow)) {
        myFocused = view->get();
    } else {
        // Assistive technology moves the focus without asking. Put it back later: Qt is still moving it.
        QTimer::singleShot(0, this, [this] { myFocused->Widget().setFocus(Qt::OtherFocusReason); });
    }
}

bool FormWindow::focusNextPrevChild(bool pNext) {
    // A refused Tab counts as handled. Otherwise the field would get it as a character.
    return !MayFocusMoveTo(nullptr) || QWidget::focusNextPrevChild(pNext);
}

void FormWindow::FocusFallback() const {
    const auto takesIt = [](const auto &pView) { return pView->TakesFocusOfDisabled(); };
    const auto view = std::find_if(myViews.begin(), myViews.end(), takesIt);
    if (view != myViews.end()) {
        (*view)->Widget().setFocus(Qt::OtherFocusReason);
    }
}
