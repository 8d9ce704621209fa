#include "system/System.h"

#include <algorithm>
#include <cstdlib>
#include <cwchar>
#include <limits>
#include <utility>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <shellapi.h>

namespace {

/// The most bytes that one call reads or writes: the system counts them in 32 bits.
constexpr std::size_t mostBytesPerCall = std::size_t{1} << 30U;

/// pPath as the system takes it at any length. More than 260 characters it takes as they stand only where its
/// owner has allowed that (Microsoft Windows App Development, "Maximum Path Length Limitation"). Empty when a
/// colon behind the drive's makes it name a stream in a file, which nobody would find again.
std::wstring OfAnyLength(const std::wstring &pPath) {
    std::wstring full(GetFullPathNameW(pPath.c_str(), 0, nullptr, nullptr), L'\0');
    full.resize(GetFullPathNameW(pPath.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
    const bool isPrefixed = full.starts_with(LR"(\\?\)") || full.starts_with(LR"(\\.\)");
    if (full.find(L':', isPrefixed ? 6 : 2) != std::wstring::npos) {
        return {};
    }
    if (full.size() < MAX_PATH) {
        return pPath;
    }
    if (isPrefixed) {
        return full;
    }
    return full.starts_with(LR"(\\)") ? LR"(\\?\UNC)" + full.substr(1) : LR"(\\?\)" + full;
}

/// pText for the wide interface. Empty when it can't name a file: the system would replace bytes that are not
/// UTF-8 and end the name at a NUL, and either would name another file.
std::wstring Wide(const std::string &pText) {
    const bool fits = pText.size() <= static_cast<std::size_t>(std::numeric_limits<int>::max());
    if (pText.empty() || !fits || pText.find('\0') != std::string::npos) {
        return {};
    }
    if (pText.ends_with('.') || pText.ends_with(' ')) {
        // The system would leave it out, and so name another file. Only "." and ".." mean something.
        const std::string_view last = std::string_view(pText).substr(pText.find_last_of('/') + 1);
        if (last != "." && last != "..") {
            return {};
        }
    }
    const int size = static_cast<int>(pText.size());
    std::wstring wide(pText.size(), L'\0'); // UTF-16 never has more units than UTF-8 has bytes.
    const int length =
        MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, pText.data(), size, wide.data(), size);
    wide.resize(static_cast<std::size_t>(length));
    return OfAnyLength(wide);
}

std::string Utf8(const wchar_t *pText, std::size_t pLength) {
    const int units = static_cast<int>(pLength);
    const int size = WideCharToMultiByte(CP_UTF8, 0, pText, units, nullptr, 0, nullptr, nullptr);
    std::string text(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, pText, units, text.data(), size, nullptr, nullptr);
    return text;
}

/// Puts the system's words for pError into pReason, without the full stop and the line end that it adds.
void Tell(Reason &pReason, DWORD pError) {
    wchar_t words[1000]; // Where the words don't fit in, the system gives none. Some languages need many.
    constexpr DWORD how =
        FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK;
    const DWORD length = FormatMessageW(how, nullptr, pError, 0, words, std::size(words), nullptr);
    const std::size_t kept = std::wstring_view(words, length).find_last_not_of(L" .\u3002\r\n") + 1;
    char bytes[3 * std::size(words)]; // A UTF-16 unit takes three bytes at most.
    const int size = WideCharToMultiByte(CP_UTF8, 0, words, static_cast<int>(kept), bytes,
                                         static_cast<int>(std::size(bytes)), nullptr, nullptr);
    pReason.Words(std::string_view(bytes, static_cast<std::size_t>(size)));
    if (pReason.Words().empty()) {
        pReason.Words("Fault");
    }
}

void TellLast(Reason &pReason) {
    Tell(pReason, GetLastError());
}

/// INVALID_FILE_ATTRIBUTES when nothing of that name is there.
DWORD AttributesOf(const std::wstring &pPath) {
    return pPath.empty() ? INVALID_FILE_ATTRIBUTES : GetFileAttributesW(pPath.c_str());
}

bool HasAny(DWORD pAttributes, DWORD pWanted) {
    return pAttributes != INVALID_FILE_ATTRIBUTES && (pAttributes & pWanted) != 0;
}

/// Whether pPath begins with a drive that isn't there. The system's error doesn't tell that from a folder.
bool IsDriveGone(const std::wstring &pPath) {
    const std::size_t drive = pPath.starts_with(LR"(\\?\)") ? 4 : 0;
    return pPath.size() > drive + 1 && pPath[drive + 1] == L':' &&
           GetDriveTypeW((pPath.substr(drive, 2) + L'\\').c_str()) == DRIVE_NO_ROOT_DIR;
}

/// Whether pError says that there is nothing of the name pPath, or can't be.
bool IsAbsence(DWORD pError, const std::wstring &pPath) {
    const bool isMissing = pError == ERROR_FILE_NOT_FOUND || pError == ERROR_PATH_NOT_FOUND;
    return pError == ERROR_INVALID_NAME || (isMissing && !IsDriveGone(pPath));
}

const std::intptr_t noHandle = reinterpret_cast<std::intptr_t>(INVALID_HANDLE_VALUE);

/// A handle of pPath; noHandle, with the last error set, if the system refuses or pPath is empty.
std::intptr_t Open(const std::wstring &pPath, DWORD pAccess, DWORD pShare, DWORD pDisposition) {
    if (pPath.empty()) {
        SetLastError(ERROR_INVALID_NAME);
        return noHandle;
    }
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

/// What follows the program's name on a command line. The name ends at the first blank or tab outside
/// quotation marks, which may enclose any part of it (Microsoft C++ reference, "main function and
/// command-line arguments").
std::wstring_view BehindProgramName(std::wstring_view pLine) {
    bool isQuoted = false;
    const auto isEnd = [&](wchar_t pUnit) {
        isQuoted = isQuoted != (pUnit == L'"');
        return !isQuoted && (pUnit == L' ' || pUnit == L'\t');
    };
    const auto end = std::find_if(pLine.begin(), pLine.end(), isEnd);
    return pLine.substr(static_cast<std::size_t>(end - pLine.begin()));
}

/// Flushes to the disk. It is no fault if the file system doesn't support that.
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
    const std::wstring path = Wide(NativePath(pPath));
    const DWORD attributes = AttributesOf(path);
    if (!path.empty() && attributes == INVALID_FILE_ATTRIBUTES) {
        return !IsAbsence(GetLastError(), path);
    }
    constexpr DWORD unseen = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
    return attributes != INVALID_FILE_ATTRIBUTES && !HasAny(attributes, unseen);
}

bool IsFolder(const std::string &pPath) {
    return HasAny(AttributesOf(Wide(NativePath(pPath))), FILE_ATTRIBUTE_DIRECTORY);
}

Reason MakeNewFile(const std::string &pPath) {
    Reason reason;
    std::intptr_t handle = Open(Wide(NativePath(pPath)), GENERIC_WRITE, FILE_SHARE_READ, CREATE_NEW);
    if (handle == noHandle || !GiveBack(handle)) {
        TellLast(reason);
    }
    return reason;
}

void RemoveFile(const std::string &pPath) {
    DeleteFileW(Wide(NativePath(pPath)).c_str());
}

FileReader::FileReader(const std::string &pPath) : myHandle(noHandle) {
    const std::wstring path = Wide(NativePath(pPath));
    if (HasAny(AttributesOf(path), FILE_ATTRIBUTE_DIRECTORY)) {
        myFault.Words("Is a folder");
        return;
    }
    constexpr DWORD share = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    myHandle = Open(path, GENERIC_READ, share, OPEN_EXISTING);
    if (myHandle == noHandle) {
        TellLast(myFault);
    } else if (GetFileType(Native(myHandle)) != FILE_TYPE_DISK) {
        myFault.Words("Not a regular file");
    }
}

FileReader::~FileReader() {
    GiveBack(myHandle);
}

std::size_t FileReader::Read(char *pRoom, std::size_t pSize) {
    DWORD count = 0;
    if (Fault().empty() && ::ReadFile(Native(myHandle), pRoom, SizeForCall(pSize), &count, nullptr) == 0) {
        TellLast(myFault);
        return 0;
    }
    return count;
}

FileWriter::FileWriter(const std::string &pPath) : myHandle(noHandle) {
    const std::wstring path = Wide(NativePath(pPath));
    const DWORD attributes = AttributesOf(path);
    if (HasAny(attributes, FILE_ATTRIBUTE_DIRECTORY)) {
        myFault.Words("Is a folder");
        return;
    }
    if (HasAny(attributes, FILE_ATTRIBUTE_READONLY)) {
        Tell(myFault, ERROR_ACCESS_DENIED); // Some file systems would let an administrator write it.
        return;
    }
    const bool wasThere = attributes != INVALID_FILE_ATTRIBUTES;
    // Not CREATE_ALWAYS: it refuses to empty a hidden file, and it empties before the kind is known.
    myHandle = Open(path, GENERIC_WRITE, FILE_SHARE_READ, OPEN_ALWAYS);
    if (myHandle == noHandle) {
        TellLast(myFault);
        return;
    }
    if (GetFileType(Native(myHandle)) != FILE_TYPE_DISK) {
        myFault.Words("Not a regular file"); // A device, such as "NUL", which has its name in every folder.
        return;
    }
    const bool isEmpty = SetEndOfFile(Native(myHandle)) != 0;
    if (!isEmpty) {
        TellLast(myFault);
    }
    myWasEmptied = isEmpty || !wasThere;
}

FileWriter::~FileWriter() {
    GiveBack(myHandle);
}

void FileWriter::Write(std::string_view pBytes) {
    while (Fault().empty() && !pBytes.empty()) {
        DWORD written = 0;
        if (::WriteFile(Native(myHandle), pBytes.data(), SizeForCall(pBytes.size()), &written, nullptr) ==
            0) {
            TellLast(myFault);
        } else if (written == 0) {
            Tell(myFault, ERROR_DISK_FULL); // The system took nothing, and would take nothing again.
        }
        pBytes.remove_prefix(written);
    }
}

void FileWriter::Close() {
    if (Fault().empty() && (!Flush(Native(myHandle)) || !GiveBack(myHandle))) {
        TellLast(myFault);
    }
}

std::vector<std::string> ProgramWords(int /*pCount*/, char * /*pWords*/[]) {
    // Those that main has are in the system's code page, which may lack characters of the names.
    int count = 0;
    const std::wstring line = L"x " + std::wstring(BehindProgramName(GetCommandLineW()));
    wchar_t **const wide = CommandLineToArgvW(line.c_str(), &count);
    std::vector<std::string> words;
    for (int place = 1; place < count; ++place) {
        words.push_back(Utf8(wide[place], std::wcslen(wide[place])));
    }
    LocalFree(wide);
    return words;
}

std::optional<std::string> CommandLine() {
    const std::wstring_view line = BehindProgramName(GetCommandLineW());
    return Utf8(line.data(), line.size());
}

void PrintUtf8() {
    static const UINT before = GetConsoleOutputCP();
    SetConsoleOutputCP(CP_UTF8);
    std::atexit([] { SetConsoleOutputCP(before); });
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

void LetCallsFail() {
    SetErrorMode(GetErrorMode() | SEM_FAILCRITICALERRORS);
}

} // namespace os
