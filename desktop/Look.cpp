#include "desktop/Look.h"

#include <QFontDatabase>
#include <QGuiApplication>

#include <algorithm>
#include <cmath>

int Pixels(double pTwips) {
    // Sizes beyond any screen must not overflow.
    constexpr double most = 1 << 23;
    return static_cast<int>(std::lround(std::clamp(pTwips / twipsPerPixel, -most, most)));
}

QRect PixelRect(const SizedControl &pControl) {
    const int left = Pixels(pControl.Left());
    const int top = Pixels(pControl.Top());
    const int right = Pixels(pControl.Left() + pControl.Width());
    const int bottom = Pixels(pControl.Top() + pControl.Height());
    return {left, top, std::max(right - left, 0), std::max(bottom - top, 0)};
}

QFont FormFont() {
    constexpr int formFontPixels = 11;
    QFont font;
    // Only an installed family will do. The system would replace any other with one of its own choice.
    const QStringList installed = QFontDatabase::families();
    for (const auto *family : {"Tahoma", "Liberation Sans", "DejaVu Sans Condensed"}) {
        if (installed.contains(QLatin1String(family), Qt::CaseInsensitive)) {
            font = QFont(QLatin1String(family));
            break;
        }
    }
    font.setPixelSize(formFontPixels);
    font.setWeight(QFont::Normal);
    font.setItalic(false);
    if (qGuiApp->devicePixelRatio() > 1) {
        // Qt would turn hinting off. Text in a field would then move by a pixel as soon as a letter reaches
        // below the line.
        font.setHintingPreference(QFont::PreferVerticalHinting);
    }
    return font;
}

QPalette LightPalette() {
    QPalette palette;
    const auto set = [&](QPalette::ColorRole pRole, const QColor &pColour) {
        palette.setColor(pRole, pColour);
    };
    set(QPalette::Window, QColor(0xF0, 0xF0, 0xF0));
    set(QPalette::Button, QColor(0xF0, 0xF0, 0xF0));
    set(QPalette::Base, Qt::white);
    set(QPalette::AlternateBase, QColor(0xF7, 0xF7, 0xF7));
    set(QPalette::Light, Qt::white);
    set(QPalette::Midlight, QColor(0xE3, 0xE3, 0xE3));
    set(QPalette::Mid, QColor(0xB8, 0xB8, 0xB8));
    set(QPalette::Dark, QColor(0x9F, 0x9F, 0x9F));
    set(QPalette::Shadow, QColor(0x69, 0x69, 0x69));
    set(QPalette::Highlight, QColor(0x30, 0x8C, 0xC6));
    set(QPalette::HighlightedText, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, Qt::black);
        palette.setColor(QPalette::Disabled, role, QColor(0x80, 0x80, 0x80));
    }
    return palette;
}

QIcon ProgramIcon() {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128}) {
        // Without the name of the format Qt would load every installed picture reader and ask each one.
        icon.addPixmap(QPixmap(QStringLiteral(":/icons/%1.png").arg(size), "PNG"));
    }
    return icon;
}
