#include "app/VersionRecord.h"

#include "forms/Runtime.h"
#include "text/Text.h"

#include <algorithm>
#include <charconv>

namespace {

/// Where in pProgramFile the name begins.
std::size_t NameIn(const std::string &pProgramFile) {
#ifdef _WIN32
    return pProgramFile.find_last_of("/\\") + 1;
#else
    return pProgramFile.find_last_of('/') + 1;
#endif
}

} // namespace

std::string ProgramFolder(const std::string &pProgramFile) {
    const std::size_t nameAt = NameIn(pProgramFile);
    return pProgramFile.substr(0, nameAt == 0 ? 0 : nameAt - 1);
}

AppRecord MakeAppRecord(const std::string &pProgramFile) {
    const std::string name = pProgramFile.substr(NameIn(pProgramFile));
    // Any other full stop belongs to the name, as in "Norvo-1.2".
    constexpr std::string_view extension = ".exe";
    const std::size_t stem = name.size() - std::min(name.size(), extension.size());
    const bool hasExtension = stem > 0 && EqualIgnoringCase(std::string_view(name).substr(stem), extension);

    AppRecord app;
    app.Path = ProgramFolder(pProgramFile);
    app.EXEName = hasExtension ? name.substr(0, stem) : name;
    app.ProductName = versionRecord::productName;
    app.FileDescription = versionRecord::fileDescription;
    app.Comments = versionRecord::comments;
    app.LegalCopyright = versionRecord::legalCopyright;
    const char *digits = versionRecord::fileVersion.data();
    const char *const end = digits + versionRecord::fileVersion.size();
    for (int *const part : {&app.Major, &app.Minor, &app.Revision}) {
        const char *const stop = std::from_chars(digits, end, *part).ptr;
        digits = stop == end ? end : stop + 1;
    }
    return app;
}
