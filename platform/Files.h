#pragma once
/// Text files as the logic sees them: looked for by Dir, read in sequence by lines and items, written in
/// sequence. The line rule stands here and nowhere else: CR or CR LF ends a line, LF alone does not.
#include <optional>
#include <string>
#include <string_view>

/// The last part of pPath when a file of that name is there, else empty. Folders are not found; "*" and "?"
/// are ordinary characters; a relative path counts from the current folder.
std::string Dir(const std::string &pPath);

/// A file open for input. Its bytes are taken in when it is opened, so that no file stays open and all views
/// that the operations return hold as long as this object.
class TextInput {
public:
    explicit TextInput(const std::string &pName);

    /// The system's reason why the file could not be read; empty when it could. A file with a fault reads
    /// like one without bytes.
    const std::string &Fault() const { return myFault; }

    /// True when the next read would find nothing.
    bool AtEnd() const { return myAt >= myBytes.size(); }

    /// The next line without its line end; empty at the end of the file.
    std::string_view LineInput();

    /// The next item of the current line: what stands up to a comma, a blank or the end of the line, blanks
    /// before it skipped, and what ends it taken too: a comma, or blanks and a comma if one follows them.
    /// Nothing when the line has no further item.
    std::optional<std::string_view> InputItem();

private:
    std::string myBytes;
    std::string myFault;
    std::size_t myAt = 0;
};

/// A file open for output. What is printed is gathered; Close alone touches the disk.
class TextOutput {
public:
    explicit TextOutput(std::string pName) : myName(std::move(pName)) {}

    /// Adds pText unchanged.
    void Print(std::string_view pText) { myBytes += pText; }

    /// Adds pText and a line end, CR LF.
    void PrintLine(std::string_view pText);

    struct Fault {
        std::string reason;   ///< the system's own words; empty when the file is complete on disk
        bool mayBeIncomplete; ///< the old content is gone and the new one is not all there
    };

    /// Replaces the file's content by all that was printed and has it flushed to the disk.
    Fault Close();

private:
    std::string myName;
    std::string myBytes;
};
