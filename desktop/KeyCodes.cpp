#include "desktop/KeyCodes.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace {

struct KeyCode {
    int key;
    int code;
};

constexpr int otherKey = 255;

constexpr std::array named{
    KeyCode{Qt::Key_Backspace, 8}, KeyCode{Qt::Key_Tab, 9},         KeyCode{Qt::Key_Backtab, 9},
    KeyCode{Qt::Key_Clear, 12},    KeyCode{Qt::Key_Return, 13},     KeyCode{Qt::Key_Enter, 13},
    KeyCode{Qt::Key_Shift, 16},    KeyCode{Qt::Key_Control, 17},    KeyCode{Qt::Key_Alt, 18},
    KeyCode{Qt::Key_AltGr, 18},    KeyCode{Qt::Key_Pause, 19},      KeyCode{Qt::Key_CapsLock, 20},
    KeyCode{Qt::Key_Escape, 27},   KeyCode{Qt::Key_Space, 32},      KeyCode{Qt::Key_PageUp, 33},
    KeyCode{Qt::Key_PageDown, 34}, KeyCode{Qt::Key_End, 35},        KeyCode{Qt::Key_Home, 36},
    KeyCode{Qt::Key_Left, 37},     KeyCode{Qt::Key_Up, 38},         KeyCode{Qt::Key_Right, 39},
    KeyCode{Qt::Key_Down, 40},     KeyCode{Qt::Key_Print, 44},      KeyCode{Qt::Key_Insert, 45},
    KeyCode{Qt::Key_Delete, 46},   KeyCode{Qt::Key_Help, 47},       KeyCode{Qt::Key_Super_L, 91},
    KeyCode{Qt::Key_Super_R, 92},  KeyCode{Qt::Key_Meta, 91},       KeyCode{Qt::Key_Menu, 93},
    KeyCode{Qt::Key_NumLock, 144}, KeyCode{Qt::Key_ScrollLock, 145}};

constexpr std::array keypad{KeyCode{Qt::Key_Asterisk, 106}, KeyCode{Qt::Key_Plus, 107},
                            KeyCode{Qt::Key_Minus, 109},    KeyCode{Qt::Key_Period, 110},
                            KeyCode{Qt::Key_Comma, 110},    KeyCode{Qt::Key_Slash, 111}};

constexpr std::string_view shiftedDigits = ")!@#$%^&*(";

/// The characters of each punctuation key, without and with Shift.
constexpr std::array punctuation{
    std::pair{std::string_view(";:"), 186},  std::pair{std::string_view("=+"), 187},
    std::pair{std::string_view(",<"), 188},  std::pair{std::string_view("-_"), 189},
    std::pair{std::string_view(".>"), 190},  std::pair{std::string_view("/?"), 191},
    std::pair{std::string_view("`~"), 192},  std::pair{std::string_view("[{"), 219},
    std::pair{std::string_view("\\|"), 220}, std::pair{std::string_view("]}"), 221},
    std::pair{std::string_view("'\""), 222}};

template <typename Table> int Find(const Table &pTable, int pKey) {
    const auto found =
        std::find_if(pTable.begin(), pTable.end(), [&](const KeyCode &k) { return k.key == pKey; });
    return found == pTable.end() ? otherKey : found->code;
}

int CharacterKey(int pKey) {
    if (pKey > 0x7F) {
        return otherKey;
    }
    const char character = static_cast<char>(pKey);
    const std::size_t digit = shiftedDigits.find(character);
    if (digit != std::string_view::npos) {
        return '0' + static_cast<int>(digit);
    }
    for (const auto &[characters, code] : punctuation) {
        if (characters.find(character) != std::string_view::npos) {
            return code;
        }
    }
    return otherKey;
}

} // namespace

int VirtualKey(const QKeyEvent &pEvent) {
    const int key = pEvent.key();
    const bool isDigit = key >= Qt::Key_0 && key <= Qt::Key_9;
    if (pEvent.modifiers().testFlag(Qt::KeypadModifier)) {
        const int code = isDigit ? key - Qt::Key_0 + 96 : Find(keypad, key);
        if (code != otherKey) {
            return code;
        }
    }
    if (isDigit || (key >= Qt::Key_A && key <= Qt::Key_Z)) {
        return key; // Qt numbers these as the runtime does.
    }
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24) {
        return key - Qt::Key_F1 + 112;
    }
    const int code = Find(named, key);
    return code != otherKey ? code : CharacterKey(key);
}

int ShiftState(const QKeyEvent &pEvent) {
    const Qt::KeyboardModifiers held = pEvent.modifiers();
    return (held.testFlag(Qt::ShiftModifier) ? 1 : 0) | (held.testFlag(Qt::ControlModifier) ? 2 : 0) |
           (held.testFlag(Qt::AltModifier) ? 4 : 0);
}
