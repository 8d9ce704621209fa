#pragma once
/// A copy for many short texts that lie in one long one, such as the cells of a line.
#include <algorithm>
#include <cstddef>
#include <cstring>
#include <functional>
#include <string_view>

/// CopyPart may write this many bytes more than the text has; they have no meaning.
inline constexpr std::size_t copySlack = 32;

/// Copies pPart to pTo, which needs room for copySlack bytes more, and returns the end of the copy.
/// Most texts are short, and copying a fixed number of bytes takes less time than finding out how few would
/// do. So a short part that lies in pWhole, at least copySlack bytes before its end, is copied with the bytes
/// after it. Nothing outside pPart and pWhole is read.
inline char *CopyPart(std::string_view pPart, std::string_view pWhole, char *pTo) {
    const std::less_equal<const char *> isUpTo;
    const bool isInside = pWhole.size() >= copySlack && isUpTo(pWhole.data(), pPart.data()) &&
                          isUpTo(pPart.data(), pWhole.data() + (pWhole.size() - copySlack));
    if (isInside && pPart.size() <= copySlack) {
        std::memcpy(pTo, pPart.data(), copySlack);
        return pTo + pPart.size();
    }
    return std::copy(pPart.begin(), pPart.end(), pTo);
}
