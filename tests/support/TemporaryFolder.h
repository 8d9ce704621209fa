#pragma once
/// A fresh, empty folder for the files of one test, removed with all that is in it when the test ends.
#include <string>
#include <string_view>

class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder &) = delete;
    TemporaryFolder &operator=(const TemporaryFolder &) = delete;

    /// Full path of the folder, without a closing separator.
    const std::string &Path() const { return myPath; }

    /// Full path of pName in the folder; no file is made.
    std::string File(std::string_view pName) const;

    /// Makes a file of exactly these bytes and gives its full path. Folders named in pName are made too.
    std::string Write(std::string_view pName, std::string_view pBytes) const;

    /// All bytes of a file of the folder; a failure of the test and empty when it isn't there.
    std::string Read(std::string_view pName) const;

private:
    std::string myPath;
};
