#include "desktop/FormWindow.h"

#include "desktop/Look.h"
#include "desktop/TextCodec.h"
#include "desktop/WindowSystem.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QWindow>

#include <algorithm>

FormWindow::FormWindow(Acts &pActs, Form &pForm) : myActs(pActs), myForm(pForm), myClient(new QWidget(this)) {
    myChecking.setSingleShot(true);
    connect(&myChecking, &QTimer::timeout, this, [this] { Check(); });

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
    windowHandle()->installEventFilter(this);
    if (myForm.Border() == Form::BorderStyle::FixedDialog) {
        StandAlone(*this);
    }
    Sync();
    Arrange();
    myIsReady = true;
}

FormWindow::~FormWindow() {
    // Qt moves the focus once more when this is no FormWindow any more.
    disconnect(qApp, nullptr, this, nullptr);
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

void FormWindow::Sync() {
    myMenu->Sync();
    for (const auto &view : myViews) {
        view->Sync();
    }
    if (myShownRevision != myForm.Revision()) {
        myShownRevision = myForm.Revision();
        ShowCaptionAndState();
        FollowForm();
    }
}

void FormWindow::Retire() {
    myIsReady = false;
    myChecking.stop(); // The form may go before the window does.
    hide();
    deleteLater();
}

void FormWindow::Run(const std::function<void()> &pAct) {
    if (myIsReady) {
        myActs.Run(pAct);
    }
}

void FormWindow::RunEvenUnderBox(const std::function<void()> &pAct) {
    if (myIsReady) {
        myActs.RunEvenUnderBox(pAct);
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
    const bool isHandled = QWidget::event(pEvent);
    if (pEvent->type() == QEvent::WindowActivate) {
        // Enter acts on the focused control from the first moment, so the user must see which one it is
        // before any Tab.
        setAttribute(Qt::WA_KeyboardFocusChange);
        if (focusWidget() != nullptr) {
            focusWidget()->update();
        }
    }
    // The menu bar wants another height, for example because the system's font has changed.
    if (pEvent->type() == QEvent::LayoutRequest && myIsReady && myBar != nullptr &&
        myBar->height() != MenuHeight(width())) {
        if (State() == Form::stateNormal) {
            ResizeToForm();
        }
        Arrange();
        ReportSize();
    }
    return isHandled;
}

void FormWindow::closeEvent(QCloseEvent *pEvent) {
    Run([this] { myForm.UserCloses(); });
    pEvent->setAccepted(!myIsReady); // The form stays loaded only if a box is waiting.
}

void FormWindow::keyPressEvent(QKeyEvent *pEvent) {
    if (pEvent->key() == Qt::Key_Escape) {
        Run([this] { myForm.UserPressesEscape(); });
    } else if (pEvent->key() == Qt::Key_Return || pEvent->key() == Qt::Key_Enter) {
        Run([this] { myForm.UserPressesEnter(); });
    } else {
        QWidget::keyPressEvent(pEvent);
    }
}
