#pragma once
/// The program's version record. The version is defined only here: CMakeLists.txt reads the three numbers
/// and passes them on to packages, metainfo and archives.
#include "forms/Runtime.h"

#include <string>
#include <string_view>

namespace versionRecord {

inline constexpr int versionMajor = 1;
inline constexpr int versionMinor = 0;
inline constexpr int versionRevision = 20;

inline constexpr std::string_view comments = "Easily edit data files.";
inline constexpr std::string_view companyName = "Norvo";
inline constexpr std::string_view fileDescription = "Norvo Data File Editor";
inline constexpr std::string_view productName = "NorvoEditDat";
inline constexpr std::string_view internalName = "NorvoEditDat";
inline constexpr std::string_view originalFilename = "NorvoEditDat.exe";
inline constexpr std::string_view legalCopyright = "© 2026 the authors";

/// FileVersion and ProductVersion, such as "1.00.0020".
std::string FileVersion();

} // namespace versionRecord

/// The record as the running program sees it. pProgramFile is the full path of the program's file.
AppRecord MakeAppRecord(const std::string &pProgramFile);
