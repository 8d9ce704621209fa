#pragma once
/// The few calls that only the operating system can answer, behind one face for POSIX and Windows
/// (System_posix.cpp, System_windows.cpp). Paths are UTF-8 and go by NativePath's rule.
#include <string>
#include <string_view>

namespace os {

/// pPath as the system is to see it: unchanged when a file or folder of that very name exists; otherwise each
/// "\" counts as the folder separator.
std::string NativePath(const std::string &pPath);

/// Whether pPath names something that is there and is no folder and, where the system has such attributes,
/// neither hidden nor a system file.
bool IsFile(const std::string &pPath);

/// Whether pPath names a folder.
bool IsFolder(const std::string &pPath);

struct ReadResult {
    std::string bytes;
    std::string fault; ///< the system's reason in words; empty when all bytes were read
};

/// All bytes of the regular file pPath. Anything else (a pipe, a device, a folder) is a fault, at once and
/// without waiting for it.
ReadResult ReadFile(const std::string &pPath);

struct WriteResult {
    std::string fault;       ///< the system's reason in words; empty when all bytes are on the disk
    bool wasEmptied = false; ///< the file had been created or emptied when the fault came
};

/// Makes pBytes the content of pPath: empties or creates the file, writes, flushes to the disk, closes, and
/// looks at the result of each step. A pipe or a socket is refused untouched; a device that can't be emptied
/// or flushed is none the worse for it.
WriteResult WriteFile(const std::string &pPath, std::string_view pBytes);

/// pCharacter in lower case by the system's rule for Unicode, the same in every locale.
char32_t LowerCase(char32_t pCharacter);

/// The file that the running program was started from, with links followed; empty when the system won't tell.
std::string ProgramFile();

/// Makes a write beyond a limit of file size fail with a reason, instead of ending the process.
void ReportWriteLimits();

} // namespace os
