#pragma once
/// The hint that keeps a window off the task bar. In all else the window stays an ordinary one.
class QWidget;

/// Call it when pWindow has been created and before it is shown. Does nothing where the window system is not
/// X11, or the build has not found its library.
void KeepOffTaskBar(const QWidget &pWindow);
