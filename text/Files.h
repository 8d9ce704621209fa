#pragma once
/// Text files as the logic sees them: looked for by Dir, read in sequence by lines and items, written in
/// sequence. The line rule stands here and nowhere else: CR or CR LF ends a line, LF alone does not.
#include "text/System.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

/// The last part of pPath when a file of that name is there, else empty. Folders are not found; "*" and "?"
/// are ordinary characters; a relative path counts from the current folder.
std::string Dir(const std::string &pPath);

/// A file open for input. It is read block by block, so that only the line that is asked for is in memory.
class TextInput {
public:
    explicit TextInput(const std::string &pName) : myFile(pName) {}

    /// No line is longer than this many bytes: 2 GB are no line of any table, but would fill the memory.
    static constexpr std::size_t mostLineBytes = std::size_t{1} << 31U;

    /// The reason why the file could not be read, mostly the system's; empty as long as it could. From a
    /// fault on the file reads as if it ended there, so it has to be asked for at the end as well.
    const std::string &Fault() const { return myFault.empty() ? myFile.Fault() : myFault; }

    /// True when the next read would find nothing.
    bool AtEnd();

    /// The next line without its line end; empty at the end of the file. It holds until the next read.
    std::string_view LineInput();

    /// The next item of the current line: what stands up to a comma, a blank or the end of the line, blanks
    /// before it skipped, and what ends it taken too: a comma, or blanks and a comma if one follows them.
    /// Nothing when the line has no further item. It holds until the next line is read.
    std::optional<std::string_view> InputItem();

private:
    std::string_view Unread() const { return std::string_view(myBuffer).substr(myAt, myEnd - myAt); }
    bool ReadMore();
    void MakeRoom();
    std::size_t LineLength();

    os::FileReader myFile;
    std::string myFault;
    std::string myBuffer; ///< what was read and not yet handed out stands from myAt to myEnd
    std::size_t myAt = 0;
    std::size_t myEnd = 0;
    bool myHasMore = true;
};

/// A file open for output, which loses what was in it. Its lines go to the disk block by block.
class TextOutput {
public:
    /// pMostBytes: as much room as any line needs, made before the file is touched, so that memory can't run
    /// out in the middle.
    TextOutput(const std::string &pName, std::size_t pMostBytes);

    /// Adds pText, of at most pMostBytes, and a line end, CR LF.
    void PrintLine(std::string_view pText);

    /// The room for the next line, pMostBytes from here on; EndLine adds what was put there, up to pEnd, and
    /// a line end.
    char *BeginLine() { return myEnd; }
    void EndLine(char *pEnd);

    /// Writes what is left and flushes the file to the disk. Nothing more can be printed.
    void Close();

    /// The system's reason for the first fault since the file was opened. Empty while there was none; after
    /// Close the file is then complete on disk.
    const std::string &Fault() const { return myFile.Fault(); }
    /// Whether a fault has left the file without its old content and without all of the new one.
    bool MayBeIncomplete() const { return !Fault().empty() && myFile.WasEmptied(); }

private:
    void WriteBlock();

    std::unique_ptr<char[]> myBlock;
    char *myEnd; ///< of what is in the block
    os::FileWriter myFile;
};
