#pragma once
/// Text files: Dir looks for them, TextInput reads them by lines and items, TextOutput writes them line by
/// line. The rule for line ends is kept only here: CR or CR LF ends a line, LF alone does not.
#include "system/System.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

/// The last part of pPath if such a file exists, else empty. Does not find folders. "*" and "?" are ordinary
/// characters; a relative path starts at the current folder.
std::string Dir(const std::string &pPath);

/// Where the file pName is: as named if Dir finds it there, else in pFolder, whether it is there or not.
std::string NamedOrBeside(const std::string &pName, const std::string &pFolder);

/// A file open for input. It reads block by block, so only the current line has to fit into memory.
class TextInput {
public:
    explicit TextInput(const std::string &pName) : myFile(pName) {}

    /// The reason why the file could not be read; empty while there is none. After a fault the file seems to
    /// end there, so ask again after the last read.
    std::string_view Fault() const { return myFile.Fault(); }

    /// True when the next read would find nothing.
    bool AtEnd();

    /// The next line without its line end; empty at the end of the file. It stays valid until the next read.
    std::string_view LineInput();

    /// The next item of the current line; null when the line has none left. Skips blanks before it. An item
    /// ends at a comma, a blank or the end of the line; blanks after it and one comma are skipped too. The
    /// item stays valid until the next line is read.
    std::optional<std::string_view> InputItem();

private:
    std::string_view Unread() const { return {myBuffer.get() + myAt, myEnd - myAt}; }
    bool ReadMore();
    void MakeRoom();
    std::size_t LineLength();

    os::FileReader myFile;
    std::unique_ptr<char[]> myBuffer; ///< the bytes read but not yet handed out lie from myAt to myEnd
    std::size_t mySize = 0;           ///< of the buffer
    std::size_t myAt = 0;
    std::size_t myEnd = 0;
    bool myHasMore = true;
};

/// A file open for output, whose old content is lost. It writes block by block.
class TextOutput {
public:
    /// pMostBytes is the most that any line needs. The room for it is made before the file is touched. After
    /// that no operation needs memory, so it can't run out halfway.
    TextOutput(const std::string &pName, std::size_t pMostBytes);

    /// Adds pText, at most pMostBytes long, and a line end, CR LF.
    void PrintLine(std::string_view pText);

    /// Room of pMostBytes for the next line. EndLine takes the line written there, which ends at pEnd, and
    /// adds a line end.
    char *BeginLine() { return myEnd; }
    void EndLine(char *pEnd);

    /// Writes what is left and flushes the file to the disk. Nothing more can be printed.
    void Close();

    /// The system's reason for the first fault since the file was opened. Empty while there was none; after
    /// Close the file is then complete on disk.
    std::string_view Fault() const { return myFile.Fault(); }
    /// Whether a fault has left the file without its old content and without all of the new one.
    bool MayBeIncomplete() const { return !Fault().empty() && myFile.WasEmptied(); }

private:
    void WriteBlock();

    std::unique_ptr<char[]> myBlock;
    char *myEnd; ///< the end of the lines in the block
    os::FileWriter myFile;
};
