#pragma once
/// A row of texts, such as the cells of a record, in one block of memory: where each text ends, and behind
/// that the texts one after another. The block never changes, so copies of a row share it, and a record that
/// goes from a file into a table and on into a list is in memory once. To set a text is to make another
/// block.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

class TextRow {
public:
    using Place =
        std::uint32_t; ///< in the row's block; half of what a pointer takes, for each cell of a table

    /// No texts.
    TextRow() = default;
    /// The texts that stand one after another in pRun (below 4 GB), each up to its place in pEnds, which
    /// rises to the length of pRun.
    TextRow(std::string_view pRun, std::span<const Place> pEnds);
    explicit TextRow(const std::vector<std::string> &pTexts);

    int Count() const { return myCount; }

    /// Text pPlace, from 1; empty where there is none. It holds as long as this row or a copy does.
    std::string_view operator()(int pPlace) const;

    /// All texts, one after another.
    std::string_view Run() const { return {Begin(), myCount == 0 ? 0 : myBlock[myCount - 1]}; }
    /// Where in Run each of them ends.
    std::span<const Place> Ends() const { return {myBlock.get(), static_cast<std::size_t>(myCount)}; }

    /// Sets text pPlace, from 1, and makes those before it where they are missing.
    void Set(int pPlace, std::string_view pText);

    /// Whether both are copies of one row.
    bool Shares(const TextRow &pOther) const { return myBlock == pOther.myBlock; }

private:
    const char *Begin() const { return reinterpret_cast<const char *>(myBlock.get() + myCount); }

    std::shared_ptr<const Place[]> myBlock; ///< nothing while there are no texts
    int myCount = 0;
};

inline std::string_view TextRow::operator()(int pPlace) const {
    if (pPlace < 1 || pPlace > myCount) {
        return Run().substr(Run().size());
    }
    const Place from = pPlace == 1 ? 0 : myBlock[pPlace - 2];
    return {Begin() + from, myBlock[pPlace - 1] - from};
}

/// Up to this many bytes CopyText copies at once.
inline constexpr std::size_t shortTextBytes = 32;

/// Copies pText, behind which memory can be read up to pReadableEnd, to pTo, and returns the end of the copy.
/// Cells are mostly short: to copy as many bytes as no short text has takes less time than to find out, text
/// by text, how few would do. So pTo needs room for shortTextBytes more than pText has, and what the copy
/// leaves behind its end has no meaning.
inline char *CopyText(std::string_view pText, const char *pReadableEnd, char *pTo) {
    const auto readable = static_cast<std::size_t>(pReadableEnd - pText.data());
    if (pText.size() <= shortTextBytes && readable >= shortTextBytes) {
        std::memcpy(pTo, pText.data(), shortTextBytes);
        return pTo + pText.size();
    }
    return std::copy(pText.begin(), pText.end(), pTo);
}

/// Memory in which the texts of a row are gathered, row after row.
struct TextRowRoom {
    std::string run;
    std::vector<TextRow::Place> ends;

    /// Makes room for pMostTexts texts of pMostBytes in all, and for what CopyText needs.
    void Reserve(std::size_t pMostBytes, std::size_t pMostTexts);
};
