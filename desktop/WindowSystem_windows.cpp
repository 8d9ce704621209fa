// Windows. Qt's sizes can be relied on here.
#include "desktop/WindowSystem.h"

#include <QApplication>
#include <QWidget>

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

namespace {

HWND HandleOf(const QWidget &pWindow) {
    return reinterpret_cast<HWND>(pWindow.internalWinId());
}

bool IsContrastHigh() {
    HIGHCONTRASTW contrast{};
    contrast.cbSize = sizeof contrast;
    return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0) != 0 &&
           (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

/// Whether the user has chosen dark colours for programs. The system has no call for it.
bool AreColoursDark() {
    DWORD isLight = 1;
    DWORD size = sizeof isLight;
    const LSTATUS status =
        RegGetValueW(HKEY_CURRENT_USER, L"Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize",
                     L"AppsUseLightTheme", RRF_RT_REG_DWORD, nullptr, &isLight, &size);
    return status == ERROR_SUCCESS && isLight == 0;
}

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
    return GetAsyncKeyState(VK_LBUTTON) < 0;
}

void FollowSystemColours() {
    // Qt's native style is drawn by the system, which has no dark drawing for it. High contrast has colours
    // of its own, which that style takes.
    if (AreColoursDark() && !IsContrastHigh() && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "windows:darkmode=2");
        QApplication::setStyle(QStringLiteral("fusion"));
    }
}
