#pragma once
/// Why something failed, in a few words. It needs no memory of its own, since memory may be what is lacking.
#include <cstddef>
#include <string_view>

class Reason {
public:
    /// Empty while nothing has failed.
    std::string_view Words() const { return {myWords, mySize}; }
    /// Takes pWords, or as much of them as there is room for.
    void Words(std::string_view pWords) { mySize = pWords.copy(myWords, mostBytes); }

    static constexpr std::size_t mostBytes = 250;

private:
    char myWords[mostBytes] = {};
    std::size_t mySize = 0;
};
