#include "app/VersionRecord.h"

#include "text/Numbers.h"

std::string versionRecord::FileVersion() {
    return std::to_string(versionMajor) + "." + FormatDigits(versionMinor, 2) + "." +
           FormatDigits(versionRevision, 4);
}

AppRecord MakeAppRecord(const std::string &pProgramFile) {
#ifdef _WIN32
    const std::size_t nameAt = pProgramFile.find_last_of("/\\") + 1;
#else
    const std::size_t nameAt = pProgramFile.find_last_of('/') + 1;
#endif
    const std::string name = pProgramFile.substr(nameAt);
    const std::size_t dot = name.find_last_of('.');
    const bool hasExtension = dot != std::string::npos && dot > 0;

    AppRecord app;
    app.Path = pProgramFile.substr(0, nameAt == 0 ? 0 : nameAt - 1);
    app.EXEName = hasExtension ? name.substr(0, dot) : name;
    app.ProductName = versionRecord::productName;
    app.FileDescription = versionRecord::fileDescription;
    app.Comments = versionRecord::comments;
    app.LegalCopyright = versionRecord::legalCopyright;
    app.Major = versionRecord::versionMajor;
    app.Minor = versionRecord::versionMinor;
    app.Revision = versionRecord::versionRevision;
    return app;
}
