#pragma once
/// Where an edit has changed a text: what lies between the start and the end that the two have in common.
#include <algorithm>
#include <cstddef>

struct Difference {
    std::size_t start;  ///< length of the common start
    std::size_t before; ///< length of what stands after it in the one text
    std::size_t after;  ///< and in the other
};

/// Text is any kind of text that has a size and gives characters by their number. Where several edits lead
/// from pBefore to pAfter, such as one of two equal characters deleted, it is the one with the longest common
/// start.
template <typename Text> Difference DifferenceBetween(const Text &pBefore, const Text &pAfter) {
    const auto most = std::min(pBefore.size(), pAfter.size());
    auto start = most - most;
    while (start < most && pBefore[start] == pAfter[start]) {
        ++start;
    }
    auto end = most - most;
    while (end < most - start && pBefore[pBefore.size() - 1 - end] == pAfter[pAfter.size() - 1 - end]) {
        ++end;
    }
    return {static_cast<std::size_t>(start), static_cast<std::size_t>(pBefore.size() - end - start),
            static_cast<std::size_t>(pAfter.size() - end - start)};
}
