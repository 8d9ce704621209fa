#pragma once
/// The version record of the program, the one place that its version stands in: the About box shows these
/// values, the help search uses ProductName, and CMakeLists.txt reads the three numbers from here.
#include <string_view>

namespace versionRecord {

inline constexpr std::string_view comments = "Easily edit data files.";
inline constexpr std::string_view companyName = "Norvo";
inline constexpr std::string_view fileDescription = "Norvo Data File Editor";
inline constexpr std::string_view productName = "NorvoEditDat";
inline constexpr std::string_view internalName = "NorvoEditDat";
inline constexpr std::string_view originalFilename = "NorvoEditDat.exe";
inline constexpr std::string_view legalCopyright = "© 2026 the authors";
inline constexpr std::string_view fileVersion = "1.00.0020"; // major, minor, revision: see below

inline constexpr int versionMajor = 1;
inline constexpr int versionMinor = 0;
inline constexpr int versionRevision = 20;

} // namespace versionRecord
