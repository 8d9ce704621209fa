#pragma once
/// Why something failed, in a few words. It needs no memory of its own, since memory may be what is lacking.
#include <cstddef>
#include <string_view>

class Reason {
public:
    /// Empty while nothing has failed.
    std::string_view Words() const { return {myWords, mySize}; }
    /// Takes pWords, or as many whole characters of them as there is room for.
    void Words(std::string_view pWords) {
        mySize = pWords.copy(myWords, mostBytes);
        constexpr auto isInside = [](char pByte) { return (pByte & '\xC0') == '\x80'; };
        while (mySize > 0 && mySize < pWords.size() && isInside(pWords[mySize])) {
            --mySize;
        }
    }

    static constexpr std::size_t mostBytes = 600;

private:
    char myWords[mostBytes] = {};
    std::size_t mySize = 0;
};
