#include "text/TextRow.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <new>

TextRow::TextRow(std::string_view pRun, std::span<const Offset> pEnds)
    : myCount(static_cast<int>(pEnds.size())) {
    if (pEnds.empty()) {
        return;
    }
    if (pRun.size() > std::numeric_limits<Offset>::max()) {
        throw std::bad_alloc();
    }
    const std::size_t words = (pRun.size() + sizeof(Offset) - 1) / sizeof(Offset);
    auto block = std::make_shared_for_overwrite<Offset[]>(pEnds.size() + words);
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

std::string_view TextRow::operator()(int pNumber) const {
    if (pNumber < 1 || pNumber > myCount) {
        return {};
    }
    const Offset from = pNumber == 1 ? 0 : myBlock[pNumber - 2];
    return {Begin() + from, myBlock[pNumber - 1] - from};
}

void TextRow::Set(int pNumber, std::string_view pText) {
    if (pNumber < 1) {
        return;
    }
    const int count = std::max(pNumber, myCount);
    TextRowRoom room;
    TextRowBuilder builder(room, static_cast<std::size_t>(count), Run().size() + pText.size(), Run());
    for (int number = 1; number <= count; ++number) {
        builder.Append(number == pNumber ? pText : (*this)(number));
    }
    *this = builder.Row();
}
