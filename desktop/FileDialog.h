#pragma once
/// A file dialog by the runtime's rules: one name, whatever its characters. Opening accepts a name that
/// doesn't exist. Saving asks nothing and adds no suffix.
#include "forms/Desktop.h"

#include <optional>
#include <string>

class QWidget;

/// Shows the dialog over pParent and waits. Returns the chosen path; null if the user dismissed the dialog.
std::optional<std::string> AskForFile(QWidget *pParent, const FileDialogRequest &pRequest);
