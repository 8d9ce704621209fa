#pragma once
/// Qt's keys as the runtime's virtual-key codes.
#include <QKeyEvent>

/// The key's code: 8 Backspace, 13 Enter, 16 to 18 Shift, Control and Alt, 48 to 57 and 65 to 90 digits and
/// letters, 96 to 111 the numeric keypad, 112 and above the function keys, 186 and above punctuation. A
/// shifted key has the code of the key without Shift on an American keyboard. Any letter outside ASCII, and
/// any key that the table doesn't know, counts as 255.
int VirtualKey(const QKeyEvent &pEvent);

/// Bit field of the modifiers held: 1 Shift, 2 Control, 4 Alt.
int ShiftState(const QKeyEvent &pEvent);
