// Systems that need not be told more than Qt tells them.
#include "desktop/WindowSystem.h"

void StandAlone(const QWidget & /*pWindow*/) {}

std::optional<QSize> SizeOnScreen(const QWidget & /*pWindow*/) {
    return std::nullopt;
}

void AskForSize(const QWidget & /*pWindow*/, QSize /*pSize*/) {}

bool IsMouseHeld() {
    return false;
}

bool IsContrastHigh() {
    return false;
}

void FollowSystemColours() {}

void SoundMessage(bool /*pIsCritical*/) {}

void KeepCopiedText() {}

bool ShowPlainMessage(std::string_view /*pText*/, std::string_view /*pTitle*/) {
    return false;
}
