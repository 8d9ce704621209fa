#include "desktop/KeyMap.h"

#include "forms/KeyCodes.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace {

struct KeyCode {
    int key;
    int code;
};

constexpr std::array named{KeyCode{Qt::Key_Backspace, keyCode::back},
                           KeyCode{Qt::Key_Tab, keyCode::tab},
                           KeyCode{Qt::Key_Backtab, keyCode::tab},
                           KeyCode{Qt::Key_Clear, keyCode::clear},
                           KeyCode{Qt::Key_Return, keyCode::enter},
                           KeyCode{Qt::Key_Enter, keyCode::enter},
                           KeyCode{Qt::Key_Shift, keyCode::shift},
                           KeyCode{Qt::Key_Control, keyCode::control},
                           KeyCode{Qt::Key_Alt, keyCode::alt},
                           KeyCode{Qt::Key_AltGr, keyCode::alt},
                           KeyCode{Qt::Key_Pause, keyCode::pause},
                           KeyCode{Qt::Key_CapsLock, keyCode::capsLock},
                           KeyCode{Qt::Key_Escape, keyCode::escape},
                           KeyCode{Qt::Key_Space, keyCode::space},
                           KeyCode{Qt::Key_PageUp, keyCode::pageUp},
                           KeyCode{Qt::Key_PageDown, keyCode::pageDown},
                           KeyCode{Qt::Key_End, keyCode::end},
                           KeyCode{Qt::Key_Home, keyCode::home},
                           KeyCode{Qt::Key_Left, keyCode::left},
                           KeyCode{Qt::Key_Up, keyCode::up},
                           KeyCode{Qt::Key_Right, keyCode::right},
                           KeyCode{Qt::Key_Down, keyCode::down},
                           KeyCode{Qt::Key_Print, keyCode::print},
                           KeyCode{Qt::Key_Insert, keyCode::insert},
                           KeyCode{Qt::Key_Delete, keyCode::del},
                           KeyCode{Qt::Key_Help, keyCode::help},
                           KeyCode{Qt::Key_Super_L, keyCode::leftSystem},
                           KeyCode{Qt::Key_Super_R, keyCode::rightSystem},
                           KeyCode{Qt::Key_Meta, keyCode::leftSystem},
                           KeyCode{Qt::Key_Menu, keyCode::menu},
                           KeyCode{Qt::Key_NumLock, keyCode::numLock},
                           KeyCode{Qt::Key_ScrollLock, keyCode::scrollLock}};

constexpr std::array keypad{
    KeyCode{Qt::Key_Asterisk, keyCode::keypadMultiply}, KeyCode{Qt::Key_Plus, keyCode::keypadAdd},
    KeyCode{Qt::Key_Minus, keyCode::keypadSubtract},    KeyCode{Qt::Key_Period, keyCode::keypadDecimal},
    KeyCode{Qt::Key_Comma, keyCode::keypadDecimal},     KeyCode{Qt::Key_Slash, keyCode::keypadDivide}};

constexpr std::string_view shiftedDigits = ")!@#$%^&*(";

/// The characters of each punctuation key, without and with Shift.
constexpr std::array punctuation{std::pair{std::string_view(";:"), keyCode::semicolon},
                                 std::pair{std::string_view("=+"), keyCode::equals},
                                 std::pair{std::string_view(",<"), keyCode::comma},
                                 std::pair{std::string_view("-_"), keyCode::minus},
                                 std::pair{std::string_view(".>"), keyCode::period},
                                 std::pair{std::string_view("/?"), keyCode::slash},
                                 std::pair{std::string_view("`~"), keyCode::backquote},
                                 std::pair{std::string_view("[{"), keyCode::leftBracket},
                                 std::pair{std::string_view("\\|"), keyCode::backslash},
                                 std::pair{std::string_view("]}"), keyCode::rightBracket},
                                 std::pair{std::string_view("'\""), keyCode::quote}};

template <typename Table> int Find(const Table &pTable, int pKey) {
    const auto found =
        std::find_if(pTable.begin(), pTable.end(), [&](const KeyCode &k) { return k.key == pKey; });
    return found == pTable.end() ? keyCode::other : found->code;
}

int CharacterKey(int pKey) {
    if (pKey > 0x7F) {
        return keyCode::other;
    }
    const char character = static_cast<char>(pKey);
    const std::size_t digit = shiftedDigits.find(character);
    if (digit != std::string_view::npos) {
        return keyCode::digit0 + static_cast<int>(digit);
    }
    for (const auto &[characters, code] : punctuation) {
        if (characters.find(character) != std::string_view::npos) {
            return code;
        }
    }
    return keyCode::other;
}

} // namespace

int VirtualKey(const QKeyEvent &pEvent) {
    const int key = pEvent.key();
    const bool isDigit = key >= Qt::Key_0 && key <= Qt::Key_9;
    if (pEvent.modifiers().testFlag(Qt::KeypadModifier)) {
        const int code = isDigit ? key - Qt::Key_0 + keyCode::keypad0 : Find(keypad, key);
        if (code != keyCode::other) {
            return code;
        }
    }
    if (isDigit || (key >= Qt::Key_A && key <= Qt::Key_Z)) {
        return key; // Qt numbers these as the runtime does.
    }
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24) {
        return key - Qt::Key_F1 + keyCode::f1;
    }
    const int code = Find(named, key);
    return code != keyCode::other ? code : CharacterKey(key);
}

int ShiftState(const QKeyEvent &pEvent) {
    const Qt::KeyboardModifiers held = pEvent.modifiers();
    return (held.testFlag(Qt::ShiftModifier) ? 1 : 0) | (held.testFlag(Qt::ControlModifier) ? 2 : 0) |
           (held.testFlag(Qt::AltModifier) ? 4 : 0);
}
