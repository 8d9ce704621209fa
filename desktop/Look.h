#pragma once
/// The look of the program, beyond the system's theme: places in pixels, the font of forms, the palette of
/// dialogs, and the icon.
#include "forms/Control.h"

#include <QFont>
#include <QIcon>
#include <QPalette>
#include <QRect>

/// pTwips in logical pixels, rounded.
int Pixels(double pTwips);

/// The place of pControl in logical pixels. Rounds both edges, so that neighbours meet. A negative size
/// counts as 0.
QRect PixelRect(const SizedControl &pControl);

/// The font of a form's client area, whatever the system's font is.
QFont FormFont();

/// A light palette, for windows that are light in every theme.
QPalette LightPalette();

QIcon ProgramIcon();
