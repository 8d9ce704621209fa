#pragma once
/// Copies many short texts that lie in one long text, such as the cells of a line.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

/// PartCopier may write up to this many bytes after the end of a copy; they have no meaning.
inline constexpr std::size_t copySlack = 32;

/// Most texts are short, and copying a fixed number of bytes takes less time than finding out how few would
/// do. So a short part that begins at least copySlack bytes before the end of the whole is copied with the
/// bytes after it. Nothing outside the part and the whole is read.
class PartCopier {
public:
    /// pWhole has to stay where it is.
    explicit PartCopier(std::string_view pWhole)
        : myBegin(Address(pWhole)),
          myFastPlaces(pWhole.size() < copySlack ? 0 : pWhole.size() - copySlack + 1) {}

    /// Copies pPart, which need not lie in the whole, to pTo and returns the end of the copy. pTo needs room
    /// for copySlack bytes more than pPart has.
    char *Copy(std::string_view pPart, char *pTo) const {
        // For a part before the whole the difference wraps to a huge number, so one comparison checks both
        // sides.
        if (Address(pPart) - myBegin < myFastPlaces && pPart.size() <= copySlack) {
            std::memcpy(pTo, pPart.data(), copySlack);
            return pTo + pPart.size();
        }
        return std::copy(pPart.begin(), pPart.end(), pTo);
    }

private:
    /// Unlike pointers into different texts, their addresses can be subtracted.
    static std::uintptr_t Address(std::string_view pText) {
        return reinterpret_cast<std::uintptr_t>(pText.data());
    }

    std::uintptr_t myBegin;
    std::size_t myFastPlaces; ///< how many places, from the start of the whole, have copySlack readable bytes
};
