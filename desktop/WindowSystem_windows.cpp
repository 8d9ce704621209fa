// Windows. Qt's sizes can be relied on here.
#include "desktop/WindowSystem.h"

#include <QAccessible>
#include <QApplication>
#include <QWidget>

#include <algorithm>
#include <iterator>
#include <utility>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <ole2.h>

namespace {

HWND HandleOf(const QWidget &pWindow) {
    return reinterpret_cast<HWND>(pWindow.internalWinId());
}

/// Chooses the style anew when the user changes the system's colours while the program runs.
class StyleByColours : public QObject {
public:
    using QObject::QObject;

    void Choose() {
        // The system draws Qt's native style, and has no dark drawing for it. High contrast has colours of
        // its own, which that style takes.
        constexpr int middle = 128; // of 255
        const bool isDark =
            !IsContrastHigh() && QApplication::palette().color(QPalette::Window).lightness() < middle;
        if (std::exchange(myIsDark, isDark) != isDark) {
            QApplication::setStyle(isDark ? QStringLiteral("fusion") : QStringLiteral("windowsvista"));
        }
    }

    bool eventFilter(QObject *pWatched, QEvent *pEvent) override {
        if (pWatched == qApp && pEvent->type() == QEvent::ApplicationPaletteChange) {
            Choose();
        }
        return false;
    }

private:
    bool myIsDark = false;
};

/// As much of a UTF-8 text as there is room for. It takes no memory of its own.
struct WideText {
    wchar_t units[1000] = {};
    explicit WideText(std::string_view pText) {
        const int size =
            static_cast<int>(std::min(pText.size(), std::size(units) - 1)); // At most a unit a byte.
        MultiByteToWideChar(CP_UTF8, 0, pText.data(), size, units, size);
    }
};

} // namespace

void StandAlone(const QWidget &pWindow) {
    // A window that has an owner isn't in the task bar. With one that never shows it is nobody's otherwise.
    static QWidget owner;
    owner.winId();
    SetWindowLongPtrW(HandleOf(pWindow), GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(HandleOf(owner)));
}

std::optional<QSize> SizeOnScreen(const QWidget & /*pWindow*/) {
    return std::nullopt;
}

void AskForSize(const QWidget & /*pWindow*/, QSize /*pSize*/) {}

bool IsMouseHeld() {
    // It knows the buttons by their place, and a left-handed user may have swapped them.
    return GetAsyncKeyState(GetSystemMetrics(SM_SWAPBUTTON) != 0 ? VK_RBUTTON : VK_LBUTTON) < 0;
}

bool IsContrastHigh() {
    HIGHCONTRASTW contrast{};
    contrast.cbSize = sizeof contrast;
    return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0) != 0 &&
           (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

std::string_view PlatformOption() {
    return "windows:darkmode=2"; // Frames and colours are dark while the user wants programs to be.
}

void FollowSystemColours() {
    auto *style = new StyleByColours(qApp);
    style->Choose();
    qApp->installEventFilter(style);
}

void SoundMessage(bool pIsCritical) {
    // Once a program such as a screen reader has asked for Qt's accessible objects, Qt plays those of icons.
    if (!pIsCritical || !QAccessible::isActive()) {
        MessageBeep(pIsCritical ? MB_ICONHAND : MB_OK);
    }
}

void KeepCopiedText() {
    OleFlushClipboard();
}

bool ShowPlainMessage(std::string_view pText, std::string_view pTitle) {
    const WideText text(pText);
    const WideText title(pTitle);
    return MessageBoxW(GetActiveWindow(), text.units, title.units, MB_ICONHAND) != 0;
}
