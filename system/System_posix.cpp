#include "system/System.h"

#include <cerrno>
#include <climits>
#include <clocale>
#include <csignal>
#include <cstring>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// The system would cut a name at a NUL byte, and that would name another file.
bool IsUsable(const std::string &pPath) {
    return !pPath.empty() && pPath.find('\0') == std::string::npos;
}

bool Exists(const std::string &pPath) {
    struct stat status {};
    return lstat(pPath.c_str(), &status) == 0;
}

bool StatusOf(const std::string &pPath, struct stat &pStatus) {
    return IsUsable(pPath) && stat(os::NativePath(pPath).c_str(), &pStatus) == 0;
}

/// The system's words for pError. In the user's own language they could be in any encoding, and would need
/// memory.
const char *WordsFor(int pError) {
    static const locale_t plain = newlocale(LC_ALL_MASK, "C", nullptr);
    return plain == nullptr ? "Fault" : strerror_l(pError, plain);
}

/// A descriptor of pPath; -1, with errno set, if the system refuses. Opening a pipe doesn't wait.
int Open(const std::string &pPath, int pFlags) {
    return open(pPath.c_str(), pFlags | O_CLOEXEC | O_NOCTTY | O_NONBLOCK, 0666);
}

constexpr std::intptr_t noHandle = -1;

int Descriptor(std::intptr_t pHandle) {
    return static_cast<int>(pHandle);
}

/// Closes pHandle. Returns false, with errno set, if the system could not keep all that was written.
bool GiveBack(std::intptr_t &pHandle) {
    const std::intptr_t handle = std::exchange(pHandle, noHandle);
    return handle == noHandle || close(Descriptor(handle)) == 0;
}

bool IsPipe(const struct stat &pStatus) {
    return S_ISFIFO(pStatus.st_mode) || S_ISSOCK(pStatus.st_mode);
}

/// Flushes to the disk. It is no fault if a device doesn't support that.
bool Flush(int pNumber) {
    return fsync(pNumber) == 0 || errno == EINVAL || errno == EROFS || errno == ENOTSUP;
}

} // namespace

namespace os {

std::string NativePath(const std::string &pPath) {
    if (!IsUsable(pPath) || Exists(pPath)) {
        return pPath;
    }
    std::string path = pPath;
    for (char &character : path) {
        character = character == '\\' ? '/' : character;
    }
    return path;
}

bool IsFile(const std::string &pPath) {
    struct stat status {};
    if (StatusOf(pPath, status)) {
        return !S_ISDIR(status.st_mode);
    }
    return IsUsable(pPath) && errno != ENOENT && errno != ENOTDIR;
}

bool IsFolder(const std::string &pPath) {
    struct stat status {};
    return StatusOf(pPath, status) && S_ISDIR(status.st_mode);
}

Reason MakeNewFile(const std::string &pPath) {
    Reason reason;
    std::intptr_t handle = Open(NativePath(pPath), O_WRONLY | O_CREAT | O_EXCL);
    if (handle == noHandle || !GiveBack(handle)) {
        reason.Words(WordsFor(errno));
    }
    return reason;
}

void RemoveFile(const std::string &pPath) {
    unlink(NativePath(pPath).c_str());
}

FileReader::FileReader(const std::string &pPath)
    : myHandle(IsUsable(pPath) ? Open(NativePath(pPath), O_RDONLY) : noHandle) {
    struct stat status {};
    if (!IsUsable(pPath)) {
        myFault.Words(WordsFor(ENOENT));
    } else if (myHandle == noHandle || fstat(Descriptor(myHandle), &status) != 0) {
        myFault.Words(WordsFor(errno));
    } else if (S_ISDIR(status.st_mode)) {
        myFault.Words(WordsFor(EISDIR));
    } else if (!S_ISREG(status.st_mode)) {
        myFault.Words("Not a regular file");
    }
}

FileReader::~FileReader() {
    GiveBack(myHandle);
}

std::size_t FileReader::Read(char *pRoom, std::size_t pSize) {
    while (Fault().empty()) {
        const ssize_t count = read(Descriptor(myHandle), pRoom, pSize);
        if (count >= 0) {
            return static_cast<std::size_t>(count);
        }
        if (errno != EINTR) {
            myFault.Words(WordsFor(errno));
        }
    }
    return 0;
}

FileWriter::FileWriter(const std::string &pPath) : myHandle(noHandle) {
    if (!IsUsable(pPath)) {
        myFault.Words(WordsFor(ENOENT));
        return;
    }
    const std::string path = NativePath(pPath);
    struct stat status {};
    const bool wasThere = stat(path.c_str(), &status) == 0;
    if (wasThere && IsPipe(status)) {
        myFault.Words("Not a regular file");
        return;
    }
    myHandle = Open(path, O_WRONLY | O_CREAT);
    if (myHandle == noHandle || fstat(Descriptor(myHandle), &status) != 0) {
        myFault.Words(WordsFor(errno));
    } else if (IsPipe(status)) {
        myFault.Words("Not a regular file"); // It has replaced the file since the first look.
    } else {
        const bool hasContent = S_ISREG(status.st_mode); // A device has no content.
        const bool isEmpty = !hasContent || ftruncate(Descriptor(myHandle), 0) == 0;
        myFault.Words(isEmpty ? "" : WordsFor(errno));
        myWasEmptied = isEmpty ? hasContent : !wasThere;
    }
}

FileWriter::~FileWriter() {
    GiveBack(myHandle);
}

void FileWriter::Write(std::string_view pBytes) {
    while (Fault().empty() && !pBytes.empty()) {
        const ssize_t written = write(Descriptor(myHandle), pBytes.data(), pBytes.size());
        if (written > 0) {
            pBytes.remove_prefix(static_cast<std::size_t>(written));
        } else if (written == 0) {
            myFault.Words(WordsFor(ENOSPC)); // The system took nothing, and would take nothing again.
        } else if (errno != EINTR) {
            myFault.Words(WordsFor(errno));
        }
    }
}

void FileWriter::Close() {
    if (Fault().empty() && (!Flush(Descriptor(myHandle)) || !GiveBack(myHandle))) {
        myFault.Words(WordsFor(errno));
    }
}

std::vector<std::string> ProgramWords(int pCount, char *pWords[]) {
    return {pWords + (pCount > 0 ? 1 : 0), pWords + pCount};
}

std::optional<std::string> CommandLine() {
    return std::nullopt; // The shell has made words of it.
}

void PrintUtf8() {
    // Bytes go out as they are.
}

std::string ProgramFile() {
    std::string path(PATH_MAX, '\0');
    const ssize_t length = readlink("/proc/self/exe", path.data(), path.size());
    path.resize(length < 0 ? 0 : static_cast<std::size_t>(length));
    return path;
}

void LetCallsFail() {
    std::signal(SIGXFSZ, SIG_IGN);
    std::signal(SIGPIPE, SIG_IGN);
}

} // namespace os
