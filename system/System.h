#pragma once
/// The calls of the operating system that the program needs, with one implementation for POSIX and one for
/// Windows. Paths are UTF-8; NativePath gives the rule for separators.
#include "system/Reason.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace os {

/// The path to hand to the system. It is pPath itself if a file or folder of that very name exists; otherwise
/// each "\" becomes a folder separator.
std::string NativePath(const std::string &pPath);

/// Whether pPath names something that exists and is no folder. Where the system has such attributes, hidden
/// files and system files do not count. What the system can't look at (no right to its folder, a loop of
/// links, a drive or a server that is gone) counts, so that to open it says why.
bool IsFile(const std::string &pPath);

/// Whether pPath names a folder.
bool IsFolder(const std::string &pPath);

/// Makes pPath, an empty file, if nothing of that name is there. Returns the reason if it can't, and leaves
/// what is there alone.
Reason MakeNewFile(const std::string &pPath);

/// Removes the file pPath, if there is one and the system lets it.
void RemoveFile(const std::string &pPath);

/// A regular file, open for reading from its start. Anything else (a pipe, a device, a folder) is a fault at
/// once: the constructor never waits.
class FileReader {
public:
    explicit FileReader(const std::string &pPath);
    ~FileReader();
    FileReader(const FileReader &) = delete;
    FileReader &operator=(const FileReader &) = delete;

    /// Reads at most pSize bytes into pRoom and returns how many it read: 0 at the end of the file, and after
    /// a fault.
    std::size_t Read(char *pRoom, std::size_t pSize);

    /// The system's reason in words; empty while there is no fault.
    std::string_view Fault() const { return myFault.Words(); }

private:
    std::intptr_t myHandle;
    Reason myFault;
};

/// A file whose content is replaced. The constructor empties or creates the file. A pipe or a socket is a
/// fault and is left alone. It is no fault if a device can't be emptied or flushed; on Windows a device is a
/// fault.
class FileWriter {
public:
    explicit FileWriter(const std::string &pPath);
    ~FileWriter();
    FileWriter(const FileWriter &) = delete;
    FileWriter &operator=(const FileWriter &) = delete;

    /// Appends pBytes. Does nothing after a fault.
    void Write(std::string_view pBytes);
    /// Flushes to the disk and closes the file. Nothing more can be written.
    void Close();

    /// The system's reason in words. Empty while there is no fault; after Close that means that everything is
    /// on the disk. From the constructor on, no operation needs memory.
    std::string_view Fault() const { return myFault.Words(); }
    /// Whether the constructor got as far as creating or emptying the file.
    bool WasEmptied() const { return myWasEmptied; }

private:
    std::intptr_t myHandle;
    Reason myFault;
    bool myWasEmptied = false;
};

/// The words after the program's name on its command line, which main has as pCount and pWords.
std::vector<std::string> ProgramWords(int pCount, char *pWords[]);

/// The command line after the program's name, as the user wrote it; nothing if the system has only the words.
std::optional<std::string> CommandLine();

/// Makes a console take what is printed for UTF-8 until the program ends.
void PrintUtf8();

/// The full path of the running program's file; empty if the system won't tell. POSIX follows links, Windows
/// gives the name by which the program was started.
std::string ProgramFile();

/// Makes calls fail with a reason where the system would otherwise end the process (a write beyond the limit
/// of file size) or ask the user itself (a drive without a medium). Call it first.
void LetCallsFail();

} // namespace os
