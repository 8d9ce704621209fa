#pragma once
/// The virtual-key codes of the runtime. They name keys, not characters: a letter has one code, with Shift or
/// without.

namespace keyCode {

inline constexpr int back = 8;
inline constexpr int tab = 9;
inline constexpr int clear = 12;
inline constexpr int enter = 13;
inline constexpr int shift = 16;
inline constexpr int control = 17;
inline constexpr int alt = 18;
inline constexpr int pause = 19;
inline constexpr int capsLock = 20;
inline constexpr int escape = 27;
inline constexpr int space = 32;
inline constexpr int pageUp = 33;
inline constexpr int pageDown = 34;
inline constexpr int end = 35;
inline constexpr int home = 36;
inline constexpr int left = 37;
inline constexpr int up = 38;
inline constexpr int right = 39;
inline constexpr int down = 40;
inline constexpr int print = 44;
inline constexpr int insert = 45;
inline constexpr int del = 46;
inline constexpr int help = 47;
inline constexpr int digit0 = 48;  ///< and the other digits after it
inline constexpr int letterA = 65; ///< and the other letters after it
inline constexpr int leftSystem = 91;
inline constexpr int rightSystem = 92;
inline constexpr int menu = 93;
inline constexpr int keypad0 = 96; ///< and the other digits of the keypad after it
inline constexpr int keypadMultiply = 106;
inline constexpr int keypadAdd = 107;
inline constexpr int keypadSubtract = 109;
inline constexpr int keypadDecimal = 110;
inline constexpr int keypadDivide = 111;
inline constexpr int f1 = 112;              ///< and F2 to F24 after it
inline constexpr int firstAboveAscii = 128; ///< from here on, all keys but the two locks below type text
inline constexpr int numLock = 144;
inline constexpr int scrollLock = 145;
inline constexpr int semicolon = 186;
inline constexpr int equals = 187;
inline constexpr int comma = 188;
inline constexpr int minus = 189;
inline constexpr int period = 190;
inline constexpr int slash = 191;
inline constexpr int backquote = 192;
inline constexpr int leftBracket = 219;
inline constexpr int backslash = 220;
inline constexpr int rightBracket = 221;
inline constexpr int quote = 222;
inline constexpr int other = 255; ///< a letter outside ASCII, or an unknown key

} // namespace keyCode
