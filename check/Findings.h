#pragma once
/// What a check has found, line by line, for people and for editors that jump to a line.
#include <cstddef>
#include <map>
#include <string>
#include <vector>

/// How bad a finding is.
enum class Kind {
    Lost,    ///< the editor would not show it, or would stop, or refuse the file
    Changed, ///< it would come back different when the editor saves
    Note,    ///< worth knowing; nothing is lost
};

class Findings {
public:
    /// The findings of the file pFile, whose name stands before each.
    explicit Findings(std::string pFile) : myFile(std::move(pFile)) {}
    const std::string &File() const { return myFile; }

    /// Adds a finding about line pLine, counted from 1. pSort tells findings of different sorts apart: only
    /// the first mostOfASort of each are kept.
    void Add(int pLine, Kind pKind, const std::string &pSort, const std::string &pText);

    static constexpr std::size_t mostOfASort = 20;

    /// Whether something is lost, and whether something is lost or changed.
    bool HasLost() const { return Count(Kind::Lost) > 0; }
    bool HasLostOrChanged() const { return HasLost() || Count(Kind::Changed) > 0; }

    /// The findings as text, one a line, in the order of lines; then how many more there are of a sort.
    std::string Text() const;

private:
    struct Finding {
        int line;
        Kind kind;
        std::string text;
    };
    struct Sort {
        Kind kind;
        std::size_t count = 0;
    };

    std::size_t Count(Kind pKind) const;

    std::string myFile;
    std::vector<Finding> myKept;
    std::map<std::string, Sort> mySorts;
};
