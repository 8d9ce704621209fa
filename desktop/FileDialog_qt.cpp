// Qt's own dialog. The desktop's native one, where Qt has it, doesn't keep the rules.
#include "desktop/FileDialog.h"

#include "desktop/TextCodec.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeView>

namespace {

/// The filter in Qt's form: a description, and the pattern in parentheses.
QString NameFilter(const FileDialogRequest &pRequest) {
    const QString description = ToQt(pRequest.description);
    const QString pattern = QStringLiteral("(%1)").arg(ToQt(pRequest.pattern));
    return description.endsWith(pattern) ? description : description + u' ' + pattern;
}

/// The name to offer in a dialog that shows pShown. Qt can't enter a folder whose name isn't UTF-8. Anywhere
/// else the bare name would be another file, so the whole path stands in for it.
std::string OfferedName(const FileDialogRequest &pRequest, const QDir &pShown) {
    const QString folder = pRequest.folder.empty() ? QDir::currentPath() : ToQt(pRequest.folder);
    const bool isEntered = QDir(folder).exists() && QDir(folder) == pShown;
    if (isEntered || pRequest.name.empty() || QDir::isAbsolutePath(ToQt(pRequest.name))) {
        return pRequest.name;
    }
    const bool needsSlash = !pRequest.folder.ends_with('/');
    return pRequest.folder.empty() ? "" : pRequest.folder + (needsSlash ? "/" : "") + pRequest.name;
}

class FileDialog : public QFileDialog {
public:
    FileDialog(QWidget *pParent, const FileDialogRequest &pRequest);

    std::optional<std::string> Ask();

protected:
    void accept() override;

private:
    void FitColumns();

    QLineEdit *myNameEdit = nullptr;
    QString myChosen;
};

FileDialog::FileDialog(QWidget *pParent, const FileDialogRequest &pRequest) : QFileDialog(pParent) {
    setOptions(DontUseNativeDialog | DontConfirmOverwrite);
    setAcceptMode(pRequest.isSave ? AcceptSave : AcceptOpen);
    setFileMode(AnyFile);
    setWindowTitle(pRequest.isSave ? QStringLiteral("Save As") : QStringLiteral("Open"));
    if (!pRequest.pattern.empty()) {
        setNameFilter(NameFilter(pRequest));
    }
    setDirectory(pRequest.folder.empty() ? QDir::currentPath() : ToQt(pRequest.folder));

    FitColumns();

    myNameEdit = findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    auto *buttons = findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"));
    QPushButton *acceptButton =
        buttons == nullptr
            ? nullptr
            : buttons->button(pRequest.isSave ? QDialogButtonBox::Save : QDialogButtonBox::Open);
    if (myNameEdit == nullptr || acceptButton == nullptr) {
        return;
    }
    // Qt reads a name with a quote as a list of names, and may find none in it.
    connect(myNameEdit, &QLineEdit::textChanged, this, [acceptButton](const QString &pName) {
        acceptButton->setEnabled(acceptButton->isEnabled() || pName.contains(u'"'));
    });
    myNameEdit->setText(ToQt(OfferedName(pRequest, directory())));
    myNameEdit->selectAll();
    myNameEdit->setFocus();
}

void FileDialog::FitColumns() {
    constexpr QSize roomySize(720, 460);
    resize(roomySize.expandedTo(sizeHint()));
    auto *files = findChild<QTreeView *>(QStringLiteral("treeView"));
    if (files != nullptr) {
        // Qt takes these widths from its saved settings. There are none, and its own widths are too small.
        int column = 0;
        for (const int letters : {36, 13, 16}) { // name, size, type
            files->setColumnWidth(column++, files->fontMetrics().averageCharWidth() * letters);
        }
    }
}

void FileDialog::accept() {
    const QString name = myNameEdit == nullptr ? QString() : myNameEdit->text();
    if (name.isEmpty()) {
        QFileDialog::accept();
        return;
    }
    // The text in the field is the name. Qt would prefer the file selected in its list, which may still be
    // the preset one, and would read a name with a quote as a list of names.
    const bool isInHome = name.startsWith(QStringLiteral("~/"));
    const QString path = isInHome                     ? QDir::homePath() + name.mid(1)
                         : QDir::isAbsolutePath(name) ? name
                                                      : directory().filePath(name);
    if (QFileInfo(path).isDir()) {
        setDirectory(path);
        myNameEdit->clear(); // Otherwise the next accept would look for this name in the new folder.
        return;
    }
    myChosen = path;
    done(Accepted);
}

std::optional<std::string> FileDialog::Ask() {
    // A dismissed dialog still has its preset name selected.
    if (exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    const QStringList files = selectedFiles();
    const QString chosen = !myChosen.isEmpty() || files.isEmpty() ? myChosen : files.first();
    return FromQt(chosen);
}

} // namespace

std::optional<std::string> AskForFile(QWidget *pParent, const FileDialogRequest &pRequest) {
    return FileDialog(pParent, pRequest).Ask();
}
