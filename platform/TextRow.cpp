#include "platform/TextRow.h"

#include <utility>

TextRow::TextRow(std::string_view pRun, std::span<const std::size_t> pEnds)
    : myCount(static_cast<int>(pEnds.size())) {
    if (pEnds.empty()) {
        return;
    }
    const std::size_t units = (pRun.size() + sizeof(std::size_t) - 1) / sizeof(std::size_t);
    auto block = std::make_shared_for_overwrite<std::size_t[]>(pEnds.size() + units);
    std::copy(pEnds.begin(), pEnds.end(), block.get());
    std::memcpy(block.get() + pEnds.size(), pRun.data(), pRun.size());
    myBlock = std::move(block);
}

TextRow::TextRow(const std::vector<std::string> &pTexts) {
    std::string run;
    std::vector<std::size_t> ends;
    for (const std::string &text : pTexts) {
        run += text;
        ends.push_back(run.size());
    }
    *this = TextRow(run, ends);
}

void TextRow::Set(int pPlace, std::string_view pText) {
    if (pPlace < 1) {
        return;
    }
    std::string run;
    std::vector<std::size_t> ends;
    for (int place = 1; place <= std::max(pPlace, myCount); ++place) {
        run += place == pPlace ? pText : (*this)(place);
        ends.push_back(run.size());
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
