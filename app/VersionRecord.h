#pragma once
/// The program's version record. The version is defined only here: CMakeLists.txt reads it and passes it on
/// to packages, metainfo and archives.
#include <string>
#include <string_view>

namespace versionRecord {

/// FileVersion and ProductVersion: major, minor in two digits, revision in four.
inline constexpr std::string_view fileVersion = "1.00.0020";

inline constexpr std::string_view comments = "Easily edit data files.";
inline constexpr std::string_view companyName = "Norvo";
inline constexpr std::string_view fileDescription = "Norvo Data File Editor";
inline constexpr std::string_view productName = "NorvoEditDat";
inline constexpr std::string_view internalName = "NorvoEditDat";
inline constexpr std::string_view originalFilename = "NorvoEditDat.exe";
inline constexpr std::string_view legalCopyright = "© 2026 the authors";

} // namespace versionRecord

/// The folder of the program whose file has the full path pProgramFile, without a closing separator.
std::string ProgramFolder(const std::string &pProgramFile);

struct AppRecord;
/// The record as that program sees it.
AppRecord MakeAppRecord(const std::string &pProgramFile);
