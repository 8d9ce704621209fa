// A system without the library of X11.
#include "desktop/WindowSystem.h"

void StandAlone(const QWidget & /*pWindow*/) {}

std::optional<QSize> SizeOnScreen(const QWidget & /*pWindow*/) {
    return std::nullopt;
}

void AskForSize(const QWidget & /*pWindow*/, QSize /*pSize*/) {}

bool IsMouseHeld() {
    return false;
}
