#pragma once
/// Converts texts of the runtime, which are UTF-8 with stray bytes, to Qt's UTF-16 and back. A stray byte b
/// becomes the lone surrogate U+DC00 + b, which Qt's widgets return unchanged.
#include <QString>

#include <limits>
#include <string>
#include <string_view>

/// The first pMostUnits UTF-16 units of pText at most, and never half a character.
QString ToQt(std::string_view pText, int pMostUnits = std::numeric_limits<int>::max());

/// A text that is only shown is cut after this many UTF-16 units. No screen shows more, and longer text slows
/// Qt down.
inline constexpr int mostShown = 1000;

std::string FromQt(const QString &pText);

/// pText on one line, with a blank for each line break.
QString ToQtLine(std::string_view pText, int pMostUnits = std::numeric_limits<int>::max());

/// pText as the title of a window. Qt gives "[*]" a meaning there, so it is escaped.
QString ToQtTitle(std::string_view pText);
