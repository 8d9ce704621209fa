// The window's size: what the form wants, what the window system gives, and how the two agree.
#include "desktop/FormWindow.h"

#include "desktop/FormMenu.h"
#include "desktop/Look.h"
#include "desktop/WindowSystem.h"

#include <QMenuBar>

#include <algorithm>

namespace {

/// pPixels in twips. Gives pNow back if it rounds to pPixels, so that rounding does not look like a change.
float TwipsOf(int pPixels, float pNow) {
    return Pixels(pNow) == pPixels ? pNow : static_cast<float>(pPixels * twipsPerPixel);
}

} // namespace

int FormWindow::State() const {
    if (isMinimized()) {
        return Form::stateMinimized;
    }
    return isMaximized() || isFullScreen() ? Form::stateMaximized : Form::stateNormal;
}

void FormWindow::ShowLeastSize() {
    const int width = Pixels(myForm.LeastClientWidth());
    const int height = Pixels(myForm.LeastClientHeight());
    if (width > 0 && height > 0) {
        // A window manager that heeds it stops the drag of the frame there.
        setMinimumSize(width, height + MenuHeight(width));
    }
}

QSize FormWindow::WantedClient() const {
    return {std::max(Pixels(myForm.ClientWidth()), 1), std::max(Pixels(myForm.ClientHeight()), 1)};
}

int FormWindow::MenuHeight(int pWidth) const {
    return myBar == nullptr ? 0 : std::max(myBar->heightForWidth(pWidth), 0);
}

void FormWindow::Arrange() {
    const int menuHeight = MenuHeight(width());
    if (myBar != nullptr) {
        myBar->setGeometry(0, 0, width(), menuHeight);
    }
    myClient->setGeometry(0, menuHeight, width(), std::max(height() - menuHeight, 0));
}

QSize FormWindow::WantedSize() const {
    const QSize client = WantedClient();
    return {client.width(), client.height() + MenuHeight(client.width())};
}

void FormWindow::ResizeToForm() {
    const QSize size = WantedSize();
    if (myForm.Border() == Form::BorderStyle::FixedDialog) {
        setFixedSize(size);
    } else {
        resize(size);
    }
}

void FormWindow::FollowForm() {
    // While the window system gives sizes, an answer to each would confuse the two. Settled gives one.
    if (State() == Form::stateNormal && myClient->size() != WantedClient() && !mySettling.isActive()) {
        ResizeToForm();
    }
}

void FormWindow::Settled() {
    if (IsMouseHeld()) {
        mySettling.start(); // A window manager may drop what it is asked during a drag.
        return;
    }
    // A window system that insists on a size gives it again. Answering each time would never end.
    const QSize given = SizeOnScreen(*this).value_or(size());
    const bool isOff = State() == Form::stateNormal && given != WantedSize();
    if (isOff && !myHasAskedAgain) {
        myHasAskedAgain = true;
        mySettling.start();
        ResizeToForm();
        AskForSize(*this, WantedSize());
        return;
    }
    myHasAskedAgain = false;
}

void FormWindow::ReportSize() {
    if (!myIsReady) {
        return;
    }
    mySettling.start();
    const QSize client = myClient->size();
    RunEvenUnderBox([&] {
        myForm.UserSizes(TwipsOf(client.width(), myForm.ClientWidth()),
                         TwipsOf(client.height(), myForm.ClientHeight()), State());
    });
}

void FormWindow::resizeEvent(QResizeEvent * /*pEvent*/) {
    Arrange();
    ReportSize();
}
