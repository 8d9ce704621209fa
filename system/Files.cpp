#include "system/Files.h"

#include "text/Cursor.h"

#include <algorithm>
#include <utility>

namespace {

/// Large enough that the system's calls cost nothing, and small enough for the processor's cache.
constexpr std::size_t blockBytes = std::size_t{64} << 10U;

constexpr std::string_view lineEnd = "\r\n";

} // namespace

std::string Dir(const std::string &pPath) {
    if (!os::IsFile(pPath)) {
        return {};
    }
    const std::string path = os::NativePath(pPath);
    return path.substr(path.find_last_of('/') + 1);
}

std::string NamedOrBeside(const std::string &pName, const std::string &pFolder) {
    return Dir(pName).empty() ? pFolder + "\\" + pName : pName;
}

bool TextInput::AtEnd() {
    return Unread().empty() && !ReadMore();
}

/// Appends the next bytes of the file to the unread ones. Returns false, and moves nothing, at the end of the
/// file.
bool TextInput::ReadMore() {
    if (!myHasMore) {
        return false;
    }
    if (myEnd == mySize) {
        MakeRoom();
    }
    const std::size_t count = myFile.Read(&myBuffer[myEnd], mySize - myEnd);
    myEnd += count;
    myHasMore = count > 0;
    return myHasMore;
}

void TextInput::MakeRoom() {
    const std::string_view unread = Unread();
    if (2 * unread.size() < mySize) {
        std::copy(unread.begin(), unread.end(), myBuffer.get());
    } else { // One line takes up most of the buffer.
        const std::size_t size = std::max(2 * mySize, blockBytes);
        auto larger = std::make_unique_for_overwrite<char[]>(size);
        std::copy(unread.begin(), unread.end(), larger.get());
        myBuffer = std::move(larger);
        mySize = size;
    }
    myEnd -= std::exchange(myAt, 0);
}

/// Length of the rest of the current line. Reads until all of it is in the buffer.
std::size_t TextInput::LineLength() {
    std::size_t searched = 0;
    for (;;) {
        const std::size_t length = Unread().find('\r', searched);
        if (length != std::string_view::npos) {
            return length;
        }
        searched = Unread().size();
        if (!ReadMore()) {
            return Unread().size();
        }
    }
}

std::string_view TextInput::LineInput() {
    const std::size_t length = LineLength();
    if (Unread().size() < length + 2) {
        ReadMore(); // The LF after the CR may come with the next block.
    }
    const std::string_view line = Unread().substr(0, length);
    const std::string_view end = Unread().substr(length, 2);
    myAt += length + (end == "\r\n" ? 2 : std::min<std::size_t>(end.size(), 1));
    return line;
}

std::optional<std::string_view> TextInput::InputItem() {
    const std::size_t length = LineLength(); // First, since this may move the unread bytes.
    Cursor line(Unread().substr(0, length));
    line.TakeBlanks();
    const bool isThere = !line.AtEnd();
    const std::string_view item =
        line.TakeWhile([](char pCharacter) { return pCharacter != ',' && pCharacter != ' '; });
    line.TakeBlanks();
    line.Take(',');
    myAt += line.Position();
    return isThere ? std::optional(item) : std::nullopt;
}

TextOutput::TextOutput(const std::string &pName, std::size_t pMostBytes)
    : myBlock(std::make_unique_for_overwrite<char[]>(blockBytes + pMostBytes + lineEnd.size())),
      myEnd(myBlock.get()), myFile(pName) {}

void TextOutput::PrintLine(std::string_view pText) {
    EndLine(std::copy(pText.begin(), pText.end(), BeginLine()));
}

void TextOutput::EndLine(char *pEnd) {
    myEnd = std::copy(lineEnd.begin(), lineEnd.end(), pEnd);
    if (myEnd - myBlock.get() > static_cast<std::ptrdiff_t>(blockBytes)) {
        WriteBlock();
    }
}

void TextOutput::WriteBlock() {
    myFile.Write({myBlock.get(), myEnd});
    myEnd = myBlock.get();
}

void TextOutput::Close() {
    WriteBlock();
    myFile.Close();
}
