#include "platform/TextRow.h"

#include <utility>

TextRow::TextRow(std::string_view pRun, const std::vector<std::size_t> &pEnds)
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

void TextRowBuilder::Begin(std::size_t pMostBytes) {
    if (myRoom.size() < pMostBytes + shortTextBytes) {
        myRoom.resize(pMostBytes + shortTextBytes);
    }
    myEnd = myRoom.data();
    myEnds.clear();
}

TextRow TextRowBuilder::Row() const {
    return {std::string_view(myRoom).substr(0, static_cast<std::size_t>(myEnd - myRoom.data())), myEnds};
}
