#pragma once
/// Qt's file dialog by the runtime's rules: one name, whatever it is; an open accepts a name that isn't
/// there, a save asks nothing.
#include "platform/Desktop.h"

#include <QFileDialog>
#include <QLineEdit>

#include <optional>
#include <string>

class FileDialog : public QFileDialog {
public:
    FileDialog(QWidget *pParent, const FileDialogRequest &pRequest);

    /// Shows the dialog and waits. The chosen path; nothing when it was dismissed.
    std::optional<std::string> Ask();

protected:
    void accept() override;

private:
    void FitColumns();

    QLineEdit *myNameEdit = nullptr;
    QString myChosen;
};
