#pragma once
/// Qt's file dialog by the runtime's rules: one name, whatever its characters. Opening accepts a name that
/// doesn't exist; saving asks nothing.
#include "platform/Desktop.h"

#include <QFileDialog>
#include <QLineEdit>

#include <optional>
#include <string>

class FileDialog : public QFileDialog {
public:
    FileDialog(QWidget *pParent, const FileDialogRequest &pRequest);

    /// Shows the dialog and waits. Returns the chosen path; null if the user dismissed the dialog.
    std::optional<std::string> Ask();

protected:
    void accept() override;

private:
    void FitColumns();

    QLineEdit *myNameEdit = nullptr;
    QString myChosen;
};
