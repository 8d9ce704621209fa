// The window's size: what the form wants, what the window system gives, and how the two agree.
#include "desktop/FormWindow.h"

#include "desktop/FormMenu.h"
#include "desktop/Look.h"
#include "desktop/WindowSystem.h"

#include <QMenuBar>

#include <algorithm>

namespace {

/// Milliseconds from asking for a size to seeing whether the window has it. Doubled each time: a window
/// manager that still handles a drag, or a slow one, gets another chance.
constexpr int firstCheck = 50;
/// A window system may insist on a size of its own. Asking on and on would never end.
constexpr int mostAsks = 4;

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
    if (State() != Form::stateNormal || myClient->size() == WantedClient()) {
        return;
    }
    // During a drag of the frame the user goes on giving sizes, and a window manager may drop what it is
    // asked.
    if (isVisible() && IsMouseHeld()) {
        myChecking.start(firstCheck);
    } else if (myAsks == 0) {
        Ask();
    }
}

void FormWindow::Ask() {
    ++myAsks;
    ResizeToForm();
    AskForSize(*this, WantedSize());
    myChecking.start(firstCheck << (myAsks - 1));
}

void FormWindow::Check() {
    const QSize given = SizeOnScreen(*this).value_or(size());
    if (State() != Form::stateNormal || given == WantedSize()) {
        myAsks = 0;
    } else if (IsMouseHeld()) {
        myChecking.start(firstCheck);
    } else if (myAsks < mostAsks) {
        Ask();
    }
}

void FormWindow::ReportSize() {
    if (!myIsReady) {
        return;
    }
    const QSize client = myClient->size();
    if (client != WantedClient() && size() != myGiven) {
        myGiven = size();
        myAsks = 0;
    }
    RunEvenUnderBox([&] {
        myForm.UserSizes(TwipsOf(client.width(), myForm.ClientWidth()),
                         TwipsOf(client.height(), myForm.ClientHeight()), State());
    });
}

void FormWindow::resizeEvent(QResizeEvent * /*pEvent*/) {
    Arrange();
    ReportSize();
}
