// The focus in the window: where it begins, and who may move it.
#include "desktop/FormWindow.h"

#include <QApplication>
#include <QMouseEvent>

#include <algorithm>

template <typename Test> ControlView *FormWindow::FirstView(Test pTest) const {
    const auto passes = [&](const std::unique_ptr<ControlView> &pView) { return pTest(*pView); };
    const auto found = std::find_if(myViews.begin(), myViews.end(), passes);
    return found == myViews.end() ? nullptr : found->get();
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
    ControlView *view = FirstView([&](ControlView &pView) { return &pView.Widget() == pNow; });
    if (view == nullptr) {
        return;
    }
    if (MayFocusMoveTo(pNow)) {
        myFocused = view;
    } else {
        // Assistive technology moves the focus without asking. Put it back later: Qt is still moving it.
        QMetaObject::invokeMethod(&myFocused->Widget(), "setFocus", Qt::QueuedConnection);
    }
}

bool FormWindow::focusNextPrevChild(bool pNext) {
    // A refused Tab counts as handled. Otherwise the field would get it as a character.
    return !MayFocusMoveTo(nullptr) || QWidget::focusNextPrevChild(pNext);
}

void FormWindow::FocusFallback() const {
    FirstView(
        [](ControlView &pView) { return pView.TakeFocusOfDisabled(); }); // The first that takes it has it.
}

bool FormWindow::RefusesPress(const QPoint &pAt) {
    // An open popup, such as the field's own list, gets the press and closes. A waiting box blocks it.
    if (QApplication::activePopupWidget() != nullptr || QApplication::activeModalWidget() != nullptr) {
        return false;
    }
    const QWidget *pressed = childAt(pAt);
    ControlView *view = FirstView([&](ControlView &pView) {
        return &pView.Widget() == pressed || pView.Widget().isAncestorOf(pressed);
    });
    return view != nullptr && view->TakesFocus() && view->Widget().isEnabled() &&
           !MayFocusMoveTo(&view->Widget());
}

bool FormWindow::eventFilter(QObject * /*pWatched*/, QEvent *pEvent) {
    // Qt moves the focus before any widget sees the press, so this catches it at the window, and drops the
    // whole click.
    const auto type = pEvent->type();
    const bool isPress = type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick;
    if (!isPress && type != QEvent::MouseButtonRelease) {
        return false;
    }
    const auto &mouse = static_cast<const QMouseEvent &>(*pEvent);
    const bool isDropped =
        isPress ? RefusesPress(mouse.position().toPoint()) : myDropped.testFlag(mouse.button());
    myDropped.setFlag(mouse.button(), isPress && isDropped);
    return isDropped;
}
