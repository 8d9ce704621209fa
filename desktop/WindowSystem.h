#pragma once
/// Calls of the window system for what Qt has no function for.
#include <QSize>

#include <optional>
#include <string_view>

class QWidget;

/// Keeps a window off the task bar, and out of the group of the program's windows: a window manager may think
/// that a dialog belongs to all windows of its group, keep it above them and minimise it with them. Call it
/// when pWindow has been created and before it is shown.
void StandAlone(const QWidget &pWindow);

/// The size that pWindow has on the screen, in logical pixels; nothing if Qt's own is right or no other is
/// known. Qt believes that a window gets the size that it asks for, while a window manager may drop the
/// request during a drag of the frame.
std::optional<QSize> SizeOnScreen(const QWidget &pWindow);

/// Asks for pSize, in logical pixels, even if Qt believes that pWindow has it.
void AskForSize(const QWidget &pWindow, QSize pSize);

/// Whether the user holds the left mouse button down, over the frame of a window too.
bool IsMouseHeld();

// What only Windows needs. Elsewhere these do nothing.

#ifdef Q_OS_WIN
/// Whether the user has chosen the system's high contrast, whose colours then go before the program's own.
bool IsContrastHigh();

/// What Qt is told of the window system to use, in the form of its option -platform; empty for its own
/// choice.
std::string_view PlatformOption();

/// Follows the user's choice of dark colours for programs. Call it when there is an application.
void FollowSystemColours();

/// Makes the sound of a message box. pIsCritical: it has that icon.
void SoundMessage(bool pIsCritical);

/// Keeps what the user has copied for other programs to paste. Call it before the program ends.
void KeepCopiedText();

/// Shows a text, UTF-8, in a message box that needs less memory than Qt's. Returns whether it could.
bool ShowPlainMessage(std::string_view pText, std::string_view pTitle);
#else
inline bool IsContrastHigh() {
    return false;
}
inline std::string_view PlatformOption() {
    return {};
}
inline void FollowSystemColours() {}
inline void SoundMessage(bool /*pIsCritical*/) {}
inline void KeepCopiedText() {}
inline bool ShowPlainMessage(std::string_view /*pText*/, std::string_view /*pTitle*/) {
    return false;
}
#endif
