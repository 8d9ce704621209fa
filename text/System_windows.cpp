#include "text/System.h"

#include <algorithm>
#include <limits>
#include <utility>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

namespace {

/// The most bytes that one call reads or writes: the system counts them in 32 bits.
constexpr std::size_t mostBytesPerCall = std::size_t{1} << 30U;

/// pText for the wide interface. Empty when it can't name a file: the system would replace bytes that are not
/// UTF-8 and end the name at a NUL, and either would name another file.
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

/// The system's words for pError, without the full stop and the line end that it adds.
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

const std::intptr_t noHandle = reinterpret_cast<std::intptr_t>(INVALID_HANDLE_VALUE);

/// A handle of pPath; noHandle, with the last error set, if the system refuses.
std::intptr_t Open(const std::wstring &pPath, DWORD pAccess, DWORD pShare, DWORD pDisposition) {
    return reinterpret_cast<std::intptr_t>(
        CreateFileW(pPath.c_str(), pAccess, pShare, nullptr, pDisposition, FILE_ATTRIBUTE_NORMAL, nullptr));
}

HANDLE Native(std::intptr_t pHandle) {
    return reinterpret_cast<HANDLE>(pHandle);
}

/// Closes pHandle. Returns false, with the last error set, if the system could not keep all that was written.
bool GiveBack(std::intptr_t &pHandle) {
    const std::intptr_t handle = std::exchange(pHandle, noHandle);
    return handle == noHandle || CloseHandle(Native(handle)) != 0;
}

DWORD SizeForCall(std::size_t pSize) {
    return static_cast<DWORD>(std::min(pSize, mostBytesPerCall));
}

/// Flushes to the disk. A file system without that notion is no fault.
bool Flush(HANDLE pFile) {
    if (FlushFileBuffers(pFile) != 0) {
        return true;
    }
    const DWORD error = GetLastError();
    return error == ERROR_INVALID_FUNCTION || error == ERROR_NOT_SUPPORTED;
}

} // namespace

namespace os {

std::string NativePath(const std::string &pPath) {
    // Both separators mean the same to the system, and the callers split at "/" alone.
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

FileReader::FileReader(const std::string &pPath) : myHandle(noHandle) {
    const std::wstring path = Wide(NativePath(pPath));
    if (path.empty()) {
        myFault = Reason(ERROR_INVALID_NAME);
        return;
    }
    if (HasAny(AttributesOf(path), FILE_ATTRIBUTE_DIRECTORY)) {
        myFault = "Is a folder";
        return;
    }
    constexpr DWORD share = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    myHandle = Open(path, GENERIC_READ, share, OPEN_EXISTING);
    if (myHandle == noHandle) {
        myFault = LastReason();
    } else if (GetFileType(Native(myHandle)) != FILE_TYPE_DISK) {
        myFault = "Not a regular file";
    }
}

FileReader::~FileReader() {
    GiveBack(myHandle);
}

std::size_t FileReader::Read(char *pRoom, std::size_t pSize) {
    DWORD count = 0;
    if (myFault.empty() && ::ReadFile(Native(myHandle), pRoom, SizeForCall(pSize), &count, nullptr) == 0) {
        myFault = LastReason();
        return 0;
    }
    return count;
}

FileWriter::FileWriter(const std::string &pPath) : myHandle(noHandle) {
    const std::wstring path = Wide(NativePath(pPath));
    if (path.empty()) {
        myFault = Reason(ERROR_INVALID_NAME);
        return;
    }
    const DWORD attributes = AttributesOf(path);
    if (HasAny(attributes, FILE_ATTRIBUTE_DIRECTORY)) {
        myFault = "Is a folder";
        return;
    }
    const bool wasThere = attributes != INVALID_FILE_ATTRIBUTES;
    // Not CREATE_ALWAYS: it refuses to empty a hidden file, and it empties before the kind is known.
    myHandle = Open(path, GENERIC_WRITE, FILE_SHARE_READ, OPEN_ALWAYS);
    if (myHandle == noHandle) {
        myFault = LastReason();
        return;
    }
    const DWORD kind = GetFileType(Native(myHandle));
    if (kind != FILE_TYPE_DISK && kind != FILE_TYPE_CHAR) {
        myFault = "Not a regular file";
        return;
    }
    const bool hasContent = kind == FILE_TYPE_DISK; // A device has no content.
    const bool isEmpty = !hasContent || SetEndOfFile(Native(myHandle)) != 0;
    myFault = isEmpty ? "" : LastReason();
    myWasEmptied = isEmpty ? hasContent : !wasThere;
}

FileWriter::~FileWriter() {
    GiveBack(myHandle);
}

void FileWriter::Write(std::string_view pBytes) {
    while (myFault.empty() && !pBytes.empty()) {
        DWORD written = 0;
        if (::WriteFile(Native(myHandle), pBytes.data(), SizeForCall(pBytes.size()), &written, nullptr) ==
            0) {
            myFault = LastReason();
        } else if (written == 0) {
            myFault = Reason(ERROR_DISK_FULL); // The system took nothing, and would take nothing again.
        }
        pBytes.remove_prefix(written);
    }
}

void FileWriter::Close() {
    const bool isDevice = !myWasEmptied; // A device has nothing to flush.
    if (myFault.empty() && ((!isDevice && !Flush(Native(myHandle))) || !GiveBack(myHandle))) {
        myFault = LastReason();
    }
}

char32_t LowerCase(char32_t pCharacter) {
    if (pCharacter == 0 || pCharacter > 0xFFFF) {
        return pCharacter; // The system's rule covers single UTF-16 units only.
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
        path.resize(path.size() * 2); // The name fills all the room, so it was cut.
    }
}

void ReportWriteLimits() {
    // This system raises no signal: a write beyond a limit fails like any other.
}

} // namespace os
