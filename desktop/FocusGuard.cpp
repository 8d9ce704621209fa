#include "desktop/FocusGuard.h"

#include "desktop/FormWindow.h"

#include <QApplication>
#include <QMouseEvent>

namespace {

const QWidget &ProxyOf(const QWidget &pWidget) {
    const QWidget *widget = &pWidget;
    while (widget->focusProxy() != nullptr) {
        widget = widget->focusProxy();
    }
    return *widget;
}

/// The widget that would get the focus by a click on pWidget; null if the focus would stay.
const QWidget *FocusedByClickOn(const QWidget *pWidget) {
    for (const QWidget *widget = pWidget; widget != nullptr; widget = widget->parentWidget()) {
        const QWidget &proxy = ProxyOf(*widget);
        const bool takesClicks =
            (widget->focusPolicy() & Qt::ClickFocus) != 0 && (proxy.focusPolicy() & Qt::ClickFocus) != 0;
        if (widget->isEnabled() && takesClicks) {
            return &proxy;
        }
        if (widget->isWindow()) {
            break;
        }
    }
    return nullptr;
}

} // namespace

bool FocusGuard::Refuses(const QMouseEvent &pPress) const {
    // An open popup, such as the field's own list, takes the click and closes. A waiting box blocks it.
    if (QApplication::activePopupWidget() != nullptr || QApplication::activeModalWidget() != nullptr) {
        return false;
    }
    const QWidget *pressed = myWindow.childAt(pPress.position().toPoint());
    const QWidget *target = FocusedByClickOn(pressed);
    return target != nullptr && !myWindow.MayFocusMoveTo(target);
}

bool FocusGuard::eventFilter(QObject * /*pWatched*/, QEvent *pEvent) {
    const auto type = pEvent->type();
    const bool isPress = type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick;
    if (!isPress && type != QEvent::MouseButtonRelease) {
        return false;
    }
    const auto &mouse = static_cast<const QMouseEvent &>(*pEvent);
    if (isPress) {
        mySwallowed.setFlag(mouse.button(), Refuses(mouse));
        return mySwallowed.testFlag(mouse.button());
    }
    const bool isSwallowed = mySwallowed.testFlag(mouse.button());
    mySwallowed.setFlag(mouse.button(), false);
    return isSwallowed;
}
