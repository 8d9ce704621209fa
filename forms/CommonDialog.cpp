#include "forms/CommonDialog.h"

#include "forms/Desktop.h"
#include "forms/Form.h"
#include "forms/Runtime.h"
#include "system/System.h"
#include "text/Text.h"

#include <algorithm>

namespace {

struct PathParts {
    std::string folder; ///< with its closing separator; empty if the path is a bare name
    std::string name;
};

PathParts SplitPath(const std::string &pPath) {
    const std::string path = os::NativePath(pPath);
    const std::size_t nameAt = path.find_last_of('/') + 1;
    return {path.substr(0, nameAt), path.substr(nameAt)};
}

} // namespace

void CommonDialog::Show(Purpose pPurpose) {
    PathParts preset = SplitPath(FileName());
    if (preset.folder.empty() && !preset.name.empty()) {
        preset.folder = "./";
    }
    if (os::IsFolder(preset.folder)) {
        myLastFolder = preset.folder;
    } else {
        // In another folder the bare name would name another file, perhaps an existing one.
        preset = {"", FileName()};
    }
    const std::string &filter = Filter();
    const std::size_t bar = std::min(filter.find('|'), filter.size());
    FileDialogRequest request;
    request.isSave = pPurpose == Purpose::Save;
    request.description = Trim(std::string_view(filter).substr(0, bar));
    request.pattern = bar < filter.size() ? Trim(std::string_view(filter).substr(bar + 1)) : "";
    request.name = preset.name;
    // The user expects to find the offered file in its own folder.
    request.folder = !preset.folder.empty() ? preset.folder : InitDir();
    if (!os::IsFolder(request.folder)) {
        request.folder = os::IsFolder(myLastFolder) ? myLastFolder : "";
    }
    FileName(Parent().Runtime().Desktop().ShowFileDialog(Parent(), request).value_or(""));
    if (!FileName().empty()) {
        myLastFolder = SplitPath(FileName()).folder;
    }
}
