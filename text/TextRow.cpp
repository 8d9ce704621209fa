#include "text/TextRow.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <new>

TextRow::TextRow(std::string_view pRun, std::span<const Place> pEnds)
    : myCount(static_cast<int>(pEnds.size())) {
    if (pEnds.empty()) {
        return;
    }
    if (pRun.size() > std::numeric_limits<Place>::max()) {
        throw std::bad_alloc();
    }
    const std::size_t places = (pRun.size() + sizeof(Place) - 1) / sizeof(Place);
    auto block = std::make_shared_for_overwrite<Place[]>(pEnds.size() + places);
    std::copy(pEnds.begin(), pEnds.end(), block.get());
    std::memcpy(block.get() + pEnds.size(), pRun.data(), pRun.size());
    myBlock = std::move(block);
}

TextRow::TextRow(std::span<const std::string> pTexts) {
    std::size_t bytes = 0;
    for (const std::string &text : pTexts) {
        bytes += text.size();
    }
    TextRowRoom room;
    TextRowBuilder builder(room, pTexts.size(), bytes);
    for (const std::string &text : pTexts) {
        builder.Append(text);
    }
    *this = builder.Row();
}

std::string_view TextRow::operator()(int pPlace) const {
    if (pPlace < 1 || pPlace > myCount) {
        return {};
    }
    const Place from = pPlace == 1 ? 0 : myBlock[pPlace - 2];
    return {Begin() + from, myBlock[pPlace - 1] - from};
}

void TextRow::Set(int pPlace, std::string_view pText) {
    if (pPlace < 1) {
        return;
    }
    const int count = std::max(pPlace, myCount);
    TextRowRoom room;
    TextRowBuilder builder(room, static_cast<std::size_t>(count), Run().size() + pText.size(), Run());
    for (int place = 1; place <= count; ++place) {
        builder.Append(place == pPlace ? pText : (*this)(place));
    }
    *this = builder.Row();
}
