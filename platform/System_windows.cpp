#include "platform/System.h"

#include <algorithm>
#include <limits>
#include <new>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

namespace {

/// One call reads or writes at most this many bytes; the system counts them in 32 bits.
constexpr std::size_t mostBytesPerCall = std::size_t{1} << 30U;

/// pText for the wide interface; empty when it can't name a file: bytes that are not UTF-8 would be replaced
/// and a NUL would end the name, and either would mean another file.
std::wstring Wide(const std::string &pText) {
    const bool fits = pText.size() <= static_cast<std::size_t>(std::numeric_limits<int>::max());
    if (pText.empty() || !fits || pText.find('\0') != std::string::npos) {
        return {};
    }
    const int size = static_cast<int>(pText.size());
    std::wstring wide(pText.size(), L'\0'); // UTF-16 never has more units than UTF-8 has bytes.
    const int length =
        MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, pText.data(), size, wide.data(), size);
    wide.resize(static_cast<std::size_t>(length));
    return wide;
}

std::string Utf8(const wchar_t *pText, std::size_t pLength) {
    const int units = static_cast<int>(pLength);
    const int size = WideCharToMultiByte(CP_UTF8, 0, pText, units, nullptr, 0, nullptr, nullptr);
    std::string text(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, pText, units, text.data(), size, nullptr, nullptr);
    return text;
}

/// The system's words for pError, without the full stop and the line end that it puts behind them.
std::string Reason(DWORD pError) {
    wchar_t words[512];
    constexpr DWORD how = FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS;
    const DWORD length = FormatMessageW(how, nullptr, pError, 0, words, std::size(words), nullptr);
    std::string reason = Utf8(words, length);
    reason.erase(reason.find_last_not_of(" .\r\n") + 1);
    return reason.empty() ? "Error " + std::to_string(pError) : reason;
}

std::string LastReason() {
    return Reason(GetLastError());
}

/// INVALID_FILE_ATTRIBUTES when nothing of that name is there.
DWORD AttributesOf(const std::wstring &pPath) {
    return pPath.empty() ? INVALID_FILE_ATTRIBUTES : GetFileAttributesW(pPath.c_str());
}

bool HasAny(DWORD pAttributes, DWORD pWanted) {
    return pAttributes != INVALID_FILE_ATTRIBUTES && (pAttributes & pWanted) != 0;
}

/// An open file, closed when this goes unless Close was called.
class File {
public:
    File(const std::wstring &pPath, DWORD pAccess, DWORD pShare, DWORD pDisposition)
        : myHandle(CreateFileW(pPath.c_str(), pAccess, pShare, nullptr, pDisposition, FILE_ATTRIBUTE_NORMAL,
                               nullptr)) {}
    ~File() { Close(); }
    File(const File &) = delete;
    File &operator=(const File &) = delete;

    HANDLE Handle() const { return myHandle; }
    bool IsOpen() const { return myHandle != INVALID_HANDLE_VALUE; }

    bool Close() {
        const HANDLE handle = myHandle;
        myHandle = INVALID_HANDLE_VALUE;
        return handle == INVALID_HANDLE_VALUE || CloseHandle(handle) != 0;
    }

private:
    HANDLE myHandle;
};

/// Writes all of pBytes; false when the system takes no more.
bool WriteAll(const File &pFile, std::string_view pBytes) {
    while (!pBytes.empty()) {
        const DWORD size = static_cast<DWORD>(std::min(pBytes.size(), mostBytesPerCall));
        DWORD written = 0;
        if (::WriteFile(pFile.Handle(), pBytes.data(), size, &written, nullptr) == 0) {
            return false;
        }
        if (written == 0) {
            SetLastError(ERROR_DISK_FULL); // It took nothing and gave no reason; asking on would never end.
            return false;
        }
        pBytes.remove_prefix(written);
    }
    return true;
}

/// Flushes to the disk. A file system that has no notion of it says so, and that is no fault.
bool Flush(const File &pFile) {
    if (FlushFileBuffers(pFile.Handle()) != 0) {
        return true;
    }
    const DWORD error = GetLastError();
    return error == ERROR_INVALID_FUNCTION || error == ERROR_NOT_SUPPORTED;
}

/// All bytes of an open file that has pSize of them, or had when it was asked. Throws std::bad_alloc for a
/// file that memory can't hold.
os::ReadResult ReadAll(HANDLE pHandle, std::size_t pSize) {
    os::ReadResult result;
    // One byte more than the file has, so that the read that finds its end needs no further room.
    result.bytes.resize(pSize + 1);
    std::size_t filled = 0;
    for (;;) {
        if (filled == result.bytes.size()) {
            result.bytes.resize(result.bytes.size() * 2); // It grew while it was read.
        }
        const DWORD room = static_cast<DWORD>(std::min(result.bytes.size() - filled, mostBytesPerCall));
        DWORD count = 0;
        if (::ReadFile(pHandle, result.bytes.data() + filled, room, &count, nullptr) == 0) {
            return {{}, LastReason()};
        }
        if (count == 0) {
            break;
        }
        filled += count;
    }
    result.bytes.resize(filled);
    return result;
}

} // namespace

namespace os {

std::string NativePath(const std::string &pPath) {
    // Both separators mean the same here, so this names the same file; its callers split at "/" alone.
    std::string path = pPath;
    std::replace(path.begin(), path.end(), '\\', '/');
    return path;
}

bool IsFile(const std::string &pPath) {
    const DWORD attributes = AttributesOf(Wide(NativePath(pPath)));
    constexpr DWORD unseen = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
    return attributes != INVALID_FILE_ATTRIBUTES && !HasAny(attributes, unseen);
}

bool IsFolder(const std::string &pPath) {
    return HasAny(AttributesOf(Wide(NativePath(pPath))), FILE_ATTRIBUTE_DIRECTORY);
}

ReadResult ReadFile(const std::string &pPath) {
    const std::wstring path = Wide(NativePath(pPath));
    if (path.empty()) {
        return {{}, Reason(ERROR_INVALID_NAME)};
    }
    if (HasAny(AttributesOf(path), FILE_ATTRIBUTE_DIRECTORY)) {
        return {{}, "Is a folder"};
    }
    constexpr DWORD share = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const File file(path, GENERIC_READ, share, OPEN_EXISTING);
    if (!file.IsOpen()) {
        return {{}, LastReason()};
    }
    if (GetFileType(file.Handle()) != FILE_TYPE_DISK) {
        return {{}, "Not a regular file"};
    }
    LARGE_INTEGER size{};
    if (GetFileSizeEx(file.Handle(), &size) == 0) {
        return {{}, LastReason()};
    }
    try {
        return ReadAll(file.Handle(), static_cast<std::size_t>(size.QuadPart));
    } catch (const std::bad_alloc &) {
        return {{}, Reason(ERROR_NOT_ENOUGH_MEMORY)};
    }
}

WriteResult WriteFile(const std::string &pPath, std::string_view pBytes) {
    const std::wstring path = Wide(NativePath(pPath));
    if (path.empty()) {
        return {Reason(ERROR_INVALID_NAME), false};
    }
    const DWORD attributes = AttributesOf(path);
    if (HasAny(attributes, FILE_ATTRIBUTE_DIRECTORY)) {
        return {"Is a folder", false};
    }
    const bool wasThere = attributes != INVALID_FILE_ATTRIBUTES;
    // Not CREATE_ALWAYS: that refuses to empty a hidden file, and would empty before the kind is known.
    File file(path, GENERIC_WRITE, FILE_SHARE_READ, OPEN_ALWAYS);
    if (!file.IsOpen()) {
        return {LastReason(), false};
    }
    const DWORD kind = GetFileType(file.Handle());
    if (kind != FILE_TYPE_DISK && kind != FILE_TYPE_CHAR) {
        return {"Not a regular file", false};
    }
    const bool hasContent = kind == FILE_TYPE_DISK;
    if (hasContent && SetEndOfFile(file.Handle()) == 0) {
        return {LastReason(), !wasThere};
    }
    if (!WriteAll(file, pBytes) || (hasContent && !Flush(file)) || !file.Close()) {
        return {LastReason(), hasContent};
    }
    return {};
}

char32_t LowerCase(char32_t pCharacter) {
    if (pCharacter == 0 || pCharacter > 0xFFFF) {
        return pCharacter; // The system's rule knows single UTF-16 units alone.
    }
    wchar_t text[] = {static_cast<wchar_t>(pCharacter), L'\0'};
    CharLowerW(text);
    return static_cast<char32_t>(text[0]);
}

std::string ProgramFile() {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size()) {
            return Utf8(path.data(), length);
        }
        path.resize(path.size() * 2); // A name that fills all the room was cut.
    }
}

void ReportWriteLimits() {
    // No signal is raised here: a write beyond a limit fails like any other.
}

} // namespace os
