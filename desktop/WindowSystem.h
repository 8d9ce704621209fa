#pragma once
/// What the window system has to be told, or asked, past Qt. Where it need not be, and in a build without the
/// library of X11, these functions do nothing and know nothing.
#include <QSize>

#include <optional>
#include <string_view>

class QWidget;

/// Keeps a window off the task bar, and out of the group of the program's windows: a window manager may take
/// a dialog for one of all the windows in its group, keep it above them and minimise it with them. Call it
/// when pWindow has been created and before it is shown.
void StandAlone(const QWidget &pWindow);

/// The size that pWindow has on the screen, in logical pixels; nothing if that isn't known. Qt takes the size
/// that it has asked for as given, while a window manager may drop what is asked during a drag of the frame.
std::optional<QSize> SizeOnScreen(const QWidget &pWindow);

/// Asks for pSize, in logical pixels, even if Qt believes that pWindow has it.
void AskForSize(const QWidget &pWindow, QSize pSize);

/// Whether the user holds the left mouse button down, over the frame of a window too.
bool IsMouseHeld();

/// Whether the user has chosen the system's high contrast, whose colours then go before the program's own.
bool IsContrastHigh();

/// Chooses colours and style as the user has chosen the system's, where Qt doesn't by itself. Call it before
/// there is an application.
void FollowSystemColours();

/// Makes the system's sound for a message box, where Qt doesn't by itself. pIsCritical: it has that icon.
void SoundMessage(bool pIsCritical);

/// Leaves what the user has copied to other programs, where it ends with this one and Qt can't tell. Call it
/// before the program ends.
void KeepCopiedText();

/// Shows a text, UTF-8, in a message box that needs less memory than Qt's. Returns false where the system has
/// none, and if it can't show it.
bool ShowPlainMessage(std::string_view pText, std::string_view pTitle);
