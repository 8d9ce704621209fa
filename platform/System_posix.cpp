#include "platform/System.h"

#include <cerrno>
#include <climits>
#include <clocale>
#include <csignal>
#include <cstring>
#include <cwctype>
#include <new>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// A name with a NUL byte would be cut there by the system and mean another file.
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

std::string Reason(int pError) {
    return std::strerror(pError);
}

/// An open file, closed when this goes unless Close was called.
class Descriptor {
public:
    Descriptor(const std::string &pPath, int pFlags)
        : myNumber(open(pPath.c_str(), pFlags | O_CLOEXEC | O_NOCTTY | O_NONBLOCK, 0666)) {}
    ~Descriptor() { Close(); }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;

    int Number() const { return myNumber; }
    bool IsOpen() const { return myNumber >= 0; }

    bool Close() {
        const int number = myNumber;
        myNumber = -1;
        return number < 0 || close(number) == 0;
    }

private:
    int myNumber;
};

/// All bytes of an open file that has pSize of them, or had when it was asked. Throws std::bad_alloc for a
/// file that memory can't hold.
os::ReadResult ReadAll(int pNumber, std::size_t pSize) {
    os::ReadResult result;
    // One byte more than the file has, so that the read that finds its end needs no further room.
    result.bytes.resize(pSize + 1);
    std::size_t filled = 0;
    for (;;) {
        if (filled == result.bytes.size()) {
            result.bytes.resize(result.bytes.size() * 2); // It grew while it was read.
        }
        const ssize_t count = read(pNumber, result.bytes.data() + filled, result.bytes.size() - filled);
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            return {{}, Reason(errno)};
        }
        if (count == 0) {
            break;
        }
        filled += static_cast<std::size_t>(count);
    }
    result.bytes.resize(filled);
    return result;
}

/// Writes all of pBytes; false with errno set when the system takes no more.
bool WriteAll(int pNumber, std::string_view pBytes) {
    while (!pBytes.empty()) {
        const ssize_t written = write(pNumber, pBytes.data(), pBytes.size());
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written < 0) {
            return false;
        }
        pBytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

/// Flushes to the disk. What has no disk behind it (a device) says so, and that is no fault.
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
    return StatusOf(pPath, status) && !S_ISDIR(status.st_mode);
}

bool IsFolder(const std::string &pPath) {
    struct stat status {};
    return StatusOf(pPath, status) && S_ISDIR(status.st_mode);
}

ReadResult ReadFile(const std::string &pPath) {
    if (!IsUsable(pPath)) {
        return {{}, Reason(ENOENT)};
    }
    const Descriptor file(NativePath(pPath), O_RDONLY);
    struct stat status {};
    if (!file.IsOpen() || fstat(file.Number(), &status) != 0) {
        return {{}, Reason(errno)};
    }
    if (S_ISDIR(status.st_mode)) {
        return {{}, Reason(EISDIR)};
    }
    if (!S_ISREG(status.st_mode)) {
        return {{}, "Not a regular file"};
    }
    try {
        return ReadAll(file.Number(), static_cast<std::size_t>(status.st_size));
    } catch (const std::bad_alloc &) {
        return {{}, Reason(ENOMEM)};
    }
}

WriteResult WriteFile(const std::string &pPath, std::string_view pBytes) {
    if (!IsUsable(pPath)) {
        return {Reason(ENOENT), false};
    }
    const std::string path = NativePath(pPath);
    struct stat status {};
    const bool wasThere = stat(path.c_str(), &status) == 0;
    if (wasThere && (S_ISFIFO(status.st_mode) || S_ISSOCK(status.st_mode))) {
        return {"Not a regular file", false};
    }
    Descriptor file(path, O_WRONLY | O_CREAT);
    if (!file.IsOpen() || fstat(file.Number(), &status) != 0) {
        return {Reason(errno), false};
    }
    if (S_ISFIFO(status.st_mode) || S_ISSOCK(status.st_mode)) {
        return {"Not a regular file", false}; // It took the place of the file in this moment.
    }
    const bool hasContent = S_ISREG(status.st_mode);
    if (hasContent && ftruncate(file.Number(), 0) != 0) {
        return {Reason(errno), !wasThere};
    }
    if (!WriteAll(file.Number(), pBytes) || !Flush(file.Number()) || !file.Close()) {
        return {Reason(errno), hasContent};
    }
    return {};
}

char32_t LowerCase(char32_t pCharacter) {
    static const locale_t unicode = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    return unicode == nullptr ? pCharacter
                              : static_cast<char32_t>(towlower_l(static_cast<wint_t>(pCharacter), unicode));
}

std::string ProgramFile() {
    std::string path(PATH_MAX, '\0');
    const ssize_t length = readlink("/proc/self/exe", path.data(), path.size());
    path.resize(length < 0 ? 0 : static_cast<std::size_t>(length));
    return path;
}

void ReportWriteLimits() {
    std::signal(SIGXFSZ, SIG_IGN);
    std::signal(SIGPIPE, SIG_IGN);
}

} // namespace os
