#pragma once
/// A row of texts, such as the cells of a record. They stand one behind another in a single string, with the
/// end of each kept beside it, and copies of a row share both until one of them is changed. So a record that
/// goes from a file into a table and on into a list is in memory once.
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class TextRow {
public:
    /// No texts.
    TextRow() = default;
    /// The texts that stand one behind another in pRun, each up to its place in pEnds, which rises to the
    /// length of pRun.
    TextRow(std::string_view pRun, const std::vector<std::size_t> &pEnds);

    int Count() const { return myTexts == nullptr ? 0 : static_cast<int>(myTexts->ends.size()); }

    /// Text pPlace, from 1; empty where there is none. It holds until this row is changed.
    std::string_view operator()(int pPlace) const;

    /// Sets text pPlace, from 1, and makes it and those before it where they are missing.
    void Set(int pPlace, std::string_view pText);

    /// Whether both are copies of one row, neither of them changed since.
    bool Shares(const TextRow &pOther) const { return myTexts == pOther.myTexts; }

private:
    struct Texts {
        std::string run;
        std::vector<std::size_t> ends;
    };

    /// Makes the texts this row's own, to be changed.
    Texts &Own();

    std::shared_ptr<Texts> myTexts; ///< nothing while there are no texts
};

inline std::string_view TextRow::operator()(int pPlace) const {
    if (pPlace < 1 || pPlace > Count()) {
        return {};
    }
    const auto last = static_cast<std::size_t>(pPlace) - 1;
    const std::size_t from = last == 0 ? 0 : myTexts->ends[last - 1];
    return {myTexts->run.data() + from, myTexts->ends[last] - from};
}
