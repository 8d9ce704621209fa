#include "help/modBrowseTo.h"

#include "forms/Runtime.h"
#include "system/Files.h"

namespace modBrowseTo {

void BrowseTo(const Runtime &pRuntime, const std::string &pTarget) {
    pRuntime.Desktop().OpenTarget(pTarget);
}

void BrowseToHelp(const Runtime &pRuntime) {
    const AppRecord &app = pRuntime.App();
    const std::string folder = app.Path + "\\Help\\";
    std::string page = folder + app.EXEName + ".html";
    if (Dir(page).empty()) {
        page = folder + app.ProductName + ".html";
    }
    if (Dir(page).empty()) {
        page = folder + "index.html";
    }
    BrowseTo(pRuntime, page);
}

} // namespace modBrowseTo
