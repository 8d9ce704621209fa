#include "text/TextRow.h"

#include <utility>

TextRow::TextRow(std::string_view pRun, std::span<const Place> pEnds)
    : myCount(static_cast<int>(pEnds.size())) {
    if (pEnds.empty()) {
        return;
    }
    const std::size_t places = (pRun.size() + sizeof(Place) - 1) / sizeof(Place);
    auto block = std::make_shared_for_overwrite<Place[]>(pEnds.size() + places);
    std::copy(pEnds.begin(), pEnds.end(), block.get());
    std::memcpy(block.get() + pEnds.size(), pRun.data(), pRun.size());
    myBlock = std::move(block);
}

TextRow::TextRow(const std::vector<std::string> &pTexts) {
    std::string run;
    std::vector<Place> ends;
    for (const std::string &text : pTexts) {
        run += text;
        ends.push_back(static_cast<Place>(run.size()));
    }
    *this = TextRow(run, ends);
}

void TextRow::Set(int pPlace, std::string_view pText) {
    if (pPlace < 1) {
        return;
    }
    std::string run;
    std::vector<Place> ends;
    for (int place = 1; place <= std::max(pPlace, myCount); ++place) {
        run += place == pPlace ? pText : (*this)(place);
        ends.push_back(static_cast<Place>(run.size()));
    }
    *this = TextRow(run, ends);
}

void TextRowRoom::Reserve(std::size_t pMostBytes, std::size_t pMostTexts) {
    if (run.size() < pMostBytes + shortTextBytes) {
        run.resize(pMostBytes + shortTextBytes);
    }
    if (ends.size() < pMostTexts) {
        ends.resize(pMostTexts);
    }
}
