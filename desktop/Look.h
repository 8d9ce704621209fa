#pragma once
/// How the program looks beyond what the system's theme settles: places in pixels, the forms' own font, the
/// palette of dialogs, and the program's icon.
#include "platform/Control.h"

#include <QFont>
#include <QIcon>
#include <QPalette>
#include <QRect>

/// pTwips in logical pixels, 15 twips each, rounded.
int Pixels(double pTwips);

/// The place of pControl in logical pixels. Both edges are rounded, so that neighbours meet; a negative size
/// counts as 0.
QRect PixelRect(const SizedControl &pControl);

/// The font of what stands in a form's client area, whatever the system's own is.
QFont FormFont();

/// A light palette for windows that keep it in every theme.
QPalette LightPalette();

QIcon ProgramIcon();
