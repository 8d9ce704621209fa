#include "check/MeantLines.h"

#include <algorithm>
#include <utility>

bool MeantLines::Next() {
    myFrom += myAt.next;
    myLf -= std::min(myLf, myAt.next);
    myEditorLine = myAt.endsInLf ? std::nullopt : std::optional(myAt.editorLines);
    myAt.next = 0;
    const bool isThere = Join();
    myUnjoined = myAt;
    return isThere;
}

bool MeantLines::Join() {
    if (Window().size() == myAt.next && !ReadMore()) {
        return false;
    }
    myAt.end = LineEnd();
    if (Window().size() < myAt.end + 2) {
        ReadMore(); // The LF after a CR may come with the next block.
    }
    const std::string_view end = Window().substr(myAt.end, 2);
    myAt.next = myAt.end + (end == "\r\n" ? 2 : std::min<std::size_t>(end.size(), 1));
    myAt.endsInLf = end.starts_with('\n');
    myAt.editorLines += myAt.endsInLf ? 0 : 1;
    ++myAt.lines;
    return true;
}

void MeantLines::Unjoin() {
    myAt = myUnjoined;
    myLf = 0;
}

std::optional<std::size_t> MeantLines::EditorLine() const {
    const bool isWhole = myEditorLine && !myAt.endsInLf && myAt.editorLines == *myEditorLine + 1;
    return isWhole ? myEditorLine : std::nullopt;
}

/// Where the line at myAt.next ends. Reads until all of it is in memory.
std::size_t MeantLines::LineEnd() {
    for (std::size_t at = myAt.next;;) {
        if (myLf <= at) {
            myLf = std::min(Window().find('\n', at), Window().size());
        }
        const std::size_t end = std::min(Window().substr(0, myLf).find('\r', at), myLf);
        at = Window().size();
        if (end < at || !ReadMore()) {
            return end;
        }
    }
}

/// Reads the next bytes of the file. False at its end.
bool MeantLines::ReadMore() {
    constexpr std::size_t blockBytes = std::size_t{64} << 10U;
    myBytes.erase(0, std::exchange(myFrom, 0));
    const std::size_t size = myBytes.size();
    myBytes.resize(size + blockBytes);
    const std::size_t count = myFile.Read(&myBytes[size], blockBytes);
    myBytes.resize(size + count);
    return count > 0;
}
