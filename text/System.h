#pragma once
/// The few calls that only the operating system can answer, behind one face for POSIX and Windows
/// (System_posix.cpp, System_windows.cpp). Paths are UTF-8 and go by NativePath's rule.
#include <cstddef>
#include <cstdint>
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

/// A regular file open for reading from its start. Anything else (a pipe, a device, a folder) is a fault, at
/// once and without waiting for it.
class FileReader {
public:
    explicit FileReader(const std::string &pPath);
    ~FileReader();
    FileReader(const FileReader &) = delete;
    FileReader &operator=(const FileReader &) = delete;

    /// Puts the file's next bytes to pRoom, at most pSize. How many they are: 0 at the end, and from a fault
    /// on.
    std::size_t Read(char *pRoom, std::size_t pSize);

    /// The system's reason in words; empty while there is no fault.
    const std::string &Fault() const { return myFault; }

private:
    std::intptr_t myHandle;
    std::string myFault;
};

/// A file whose content is replaced. To construct it empties or creates the file; each step's result is
/// looked at. A pipe or a socket is refused untouched; a device that can't be emptied or flushed is none the
/// worse for it.
class FileWriter {
public:
    explicit FileWriter(const std::string &pPath);
    ~FileWriter();
    FileWriter(const FileWriter &) = delete;
    FileWriter &operator=(const FileWriter &) = delete;

    /// Writes pBytes behind what is there; nothing from a fault on.
    void Write(std::string_view pBytes);
    /// Flushes to the disk and closes; nothing more can be written.
    void Close();

    /// The system's reason in words; empty while there is no fault, and after Close when all is on the disk.
    const std::string &Fault() const { return myFault; }
    /// Whether the file had been created or emptied.
    bool WasEmptied() const { return myWasEmptied; }

private:
    std::intptr_t myHandle;
    std::string myFault;
    bool myWasEmptied = false;
};

/// pCharacter in lower case by the system's rule for Unicode, the same in every locale.
char32_t LowerCase(char32_t pCharacter);

/// The file that the running program was started from, with links followed; empty when the system won't tell.
std::string ProgramFile();

/// Makes a write beyond a limit of file size fail with a reason, instead of ending the process.
void ReportWriteLimits();

} // namespace os
