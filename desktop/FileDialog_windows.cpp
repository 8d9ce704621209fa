// The system's own dialog, past Qt, which would keep the last folder in the registry.
#include "desktop/FileDialog.h"

#include "desktop/TextCodec.h"
#include "text/System.h"

#include <QDir>
#include <QWidget>

#include <memory>

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

/// A path as the system writes it. Qt's strings and the system's are both UTF-16.
std::wstring Wide(const QString &pText) {
    return pText.toStdWString();
}

Object<IFileDialog> Create(bool pIsSave) {
    IFileDialog *dialog = nullptr;
    CoCreateInstance(pIsSave ? CLSID_FileSaveDialog : CLSID_FileOpenDialog, nullptr, CLSCTX_INPROC_SERVER,
                     IID_IFileDialog, reinterpret_cast<void **>(&dialog));
    return Object<IFileDialog>(dialog);
}

/// The dialog keeps the folder of the last file, unless it is given one that is there.
void SetFolder(IFileDialog &pDialog, const std::string &pFolder) {
    const QString folder = pFolder.empty() ? QDir::currentPath() : ToQt(pFolder);
    IShellItem *item = nullptr;
    SHCreateItemFromParsingName(Wide(QDir::toNativeSeparators(folder)).c_str(), nullptr, IID_IShellItem,
                                reinterpret_cast<void **>(&item));
    const Object<IShellItem> owned(item);
    if (item != nullptr) {
        pDialog.SetFolder(item);
    }
}

void SetUp(IFileDialog &pDialog, const FileDialogRequest &pRequest) {
    // Neither a name that isn't there nor one that is gets a question. The current folder stays.
    pDialog.SetOptions(FOS_NOCHANGEDIR | FOS_FORCEFILESYSTEM | FOS_PATHMUSTEXIST | FOS_NOTESTFILECREATE |
                       FOS_DONTADDTORECENT);
    if (!pRequest.pattern.empty()) {
        const std::wstring description = Wide(ToQt(pRequest.description));
        const std::wstring pattern = Wide(ToQt(pRequest.pattern));
        const COMDLG_FILTERSPEC filter{description.c_str(), pattern.c_str()};
        pDialog.SetFileTypes(1, &filter);
    }
    SetFolder(pDialog, pRequest.folder);
    pDialog.SetFileName(Wide(ToQt(pRequest.name)).c_str());
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

} // namespace

std::optional<std::string> AskForFile(QWidget *pParent, const FileDialogRequest &pRequest) {
    const Object<IFileDialog> dialog = Create(pRequest.isSave);
    if (dialog == nullptr) {
        return std::nullopt;
    }
    SetUp(*dialog, pRequest);
    const HWND owner = pParent == nullptr ? nullptr : reinterpret_cast<HWND>(pParent->winId());
    // A dismissed dialog still has its preset name.
    return SUCCEEDED(dialog->Show(owner)) ? Chosen(*dialog) : std::nullopt;
}
