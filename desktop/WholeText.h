#pragma once
/// Tool tips for texts that are cut where they stand.
#include <QHelpEvent>
#include <QWidget>

#include <string_view>

/// Shows pText as the tool tip of pWidget, for a pointer that rests where pEvent says. Hides the tip if pText
/// is empty.
void ShowWholeText(const QHelpEvent &pEvent, QWidget &pWidget, std::string_view pText);
