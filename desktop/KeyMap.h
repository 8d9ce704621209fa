#pragma once
/// Qt's keys as the runtime's key codes.
#include <QKeyEvent>

/// The key's code, one of forms/KeyCodes.h. A shifted key has the code of the key without Shift on an
/// American keyboard.
int VirtualKey(const QKeyEvent &pEvent);

/// Bit field of the modifiers held: 1 Shift, 2 Control, 4 Alt.
int ShiftState(const QKeyEvent &pEvent);
