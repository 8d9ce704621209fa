#pragma once
/// Keeps a window off the task bar by the hint for its state, which leaves it an ordinary window in all else.
class QWidget;

/// pWindow has been created and was not shown yet. Where the window system has no such hint nothing is done.
void KeepOffTaskBar(const QWidget &pWindow);
