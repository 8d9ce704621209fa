#pragma once
/// Texts of the runtime (UTF-8 with any other bytes among it) to and from Qt's UTF-16. A byte b that is not
/// UTF-8 becomes the lone surrogate U+DC00 + b, which Qt's widgets hand back unchanged.
#include <QString>

#include <limits>
#include <string>
#include <string_view>

/// At most pMostUnits UTF-16 units of pText, never half a character.
QString ToQt(std::string_view pText, int pMostUnits = std::numeric_limits<int>::max());

/// Of a text that is only shown this much, in UTF-16 units, is handed to Qt: no screen shows more, and
/// measuring a longer one is felt.
inline constexpr int mostShown = 1000;

std::string FromQt(const QString &pText);

/// pText for a place of one line: line breaks are shown as blanks.
QString ToQtLine(std::string_view pText, int pMostUnits = std::numeric_limits<int>::max());

/// pText as the title of a window, in which Qt would take "[*]" for a mark of its own.
QString ToQtTitle(std::string_view pText);
