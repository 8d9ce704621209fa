// The system's own dialog, past Qt, which would keep the last folder in settings of its own. The system
// itself remembers what is chosen in its dialogs, as for every program.
#include "desktop/FileDialog.h"

#include "desktop/TextCodec.h"
#include "desktop/WindowSystem.h"

#include <QApplication>
#include <QDir>
#include <QWidget>

#include <memory>
#include <vector>

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <shobjidl.h>

namespace {

struct ReleaseObject {
    void operator()(IUnknown *pObject) const { pObject->Release(); }
};
template <typename Interface> using Object = std::unique_ptr<Interface, ReleaseObject>;

struct FreeText {
    void operator()(wchar_t *pText) const { CoTaskMemFree(pText); }
};

/// pText for the system, whose strings and Qt's are both UTF-16.
std::wstring Wide(const std::string &pText) {
    return ToQt(pText).toStdWString();
}

Object<IFileDialog> Create(bool pIsSave) {
    IFileDialog *dialog = nullptr;
    CoCreateInstance(pIsSave ? CLSID_FileSaveDialog : CLSID_FileOpenDialog, nullptr, CLSCTX_INPROC_SERVER,
                     IID_IFileDialog, reinterpret_cast<void **>(&dialog));
    return Object<IFileDialog>(dialog);
}

/// pPath without the prefix for names of any length, which the dialog doesn't know.
QString WithoutPrefix(const QString &pPath) {
    static const QString prefix = QStringLiteral("//?/");
    static const QString serverPrefix = QStringLiteral("//?/UNC/");
    if (pPath.startsWith(serverPrefix, Qt::CaseInsensitive)) {
        return QStringLiteral("//") + pPath.sliced(serverPrefix.size());
    }
    return pPath.startsWith(prefix) ? pPath.sliced(prefix.size()) : pPath;
}

/// Shows the dialog in pFolder, or in the last file's folder if the system has no way to pFolder.
bool SetFolder(IFileDialog &pDialog, const QString &pFolder) {
    IShellItem *item = nullptr;
    SHCreateItemFromParsingName(QDir::toNativeSeparators(pFolder).toStdWString().c_str(), nullptr,
                                IID_IShellItem, reinterpret_cast<void **>(&item));
    const Object<IShellItem> owned(item);
    return item != nullptr && SUCCEEDED(pDialog.SetFolder(item));
}

bool SetUp(IFileDialog &pDialog, const FileDialogRequest &pRequest) {
    // Neither a name that isn't there nor one that is gets a question. The current folder stays.
    constexpr DWORD options = FOS_NOCHANGEDIR | FOS_FORCEFILESYSTEM | FOS_PATHMUSTEXIST |
                              FOS_NOTESTFILECREATE | FOS_DONTADDTORECENT;
    if (!pRequest.pattern.empty()) {
        const std::wstring description = Wide(pRequest.description);
        const std::wstring pattern = Wide(pRequest.pattern);
        const COMDLG_FILTERSPEC filter{description.c_str(), pattern.c_str()};
        pDialog.SetFileTypes(1, &filter);
    }
    const QDir folder(WithoutPrefix(QDir(ToQt(pRequest.folder)).absolutePath()));
    QString name = ToQt(pRequest.name);
    if (!SetFolder(pDialog, folder.path()) && !name.isEmpty()) {
        name = folder.filePath(name); // Elsewhere the bare name would be another file.
    }
    pDialog.SetFileName(QDir::toNativeSeparators(name).toStdWString().c_str()); // Without it one is typed.
    return SUCCEEDED(pDialog.SetOptions(options));
}

std::optional<std::string> Chosen(IFileDialog &pDialog) {
    IShellItem *item = nullptr;
    pDialog.GetResult(&item);
    const Object<IShellItem> owned(item);
    wchar_t *path = nullptr;
    if (item != nullptr) {
        item->GetDisplayName(SIGDN_FILESYSPATH, &path);
    }
    const std::unique_ptr<wchar_t, FreeText> text(path);
    return path == nullptr ? std::nullopt : std::optional(FromQt(QString::fromWCharArray(path)));
}

/// Disables the program's windows but for the dialog's owner, which the system disables, while it lives.
class OthersDisabled {
public:
    explicit OthersDisabled(const QWidget *pOwner) {
        const QWidgetList windows = QApplication::topLevelWidgets();
        myHandles.reserve(
            static_cast<std::size_t>(windows.size())); // None stays disabled for want of memory.
        for (const QWidget *window : windows) {
            const HWND handle = reinterpret_cast<HWND>(window->internalWinId());
            if (window != pOwner && window->isVisible() && EnableWindow(handle, FALSE) == FALSE) {
                myHandles.push_back(handle);
            }
        }
    }
    ~OthersDisabled() {
        for (const HWND handle : myHandles) {
            EnableWindow(handle, TRUE);
        }
    }
    OthersDisabled(const OthersDisabled &) = delete;
    OthersDisabled &operator=(const OthersDisabled &) = delete;

private:
    std::vector<HWND> myHandles;
};

} // namespace

std::optional<std::string> AskForFile(QWidget *pParent, const FileDialogRequest &pRequest) {
    const HWND owner = pParent == nullptr ? nullptr : reinterpret_cast<HWND>(pParent->winId());
    const Object<IFileDialog> dialog = Create(pRequest.isSave);
    const bool isReady = dialog != nullptr && SetUp(*dialog, pRequest);
    const OthersDisabled others(pParent);
    const HRESULT shown = isReady ? dialog->Show(owner) : E_FAIL;
    if (shown == HRESULT_FROM_WIN32(ERROR_CANCELLED)) {
        return std::nullopt; // A dismissed dialog still has its preset name.
    }
    const std::optional<std::string> file = SUCCEEDED(shown) ? Chosen(*dialog) : std::nullopt;
    if (!file) {
        const QString title = pParent == nullptr ? QString() : pParent->windowTitle();
        ShowPlainMessage("Windows can't show its file dialog. Nothing has changed.", FromQt(title));
    }
    return file;
}
