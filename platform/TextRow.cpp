#include "platform/TextRow.h"

TextRow::TextRow(std::string_view pRun, const std::vector<std::size_t> &pEnds)
    : myTexts(pEnds.empty() ? nullptr : std::make_shared<Texts>(Texts{std::string(pRun), pEnds})) {}

TextRow::Texts &TextRow::Own() {
    if (myTexts == nullptr) {
        myTexts = std::make_shared<Texts>();
    } else if (myTexts.use_count() > 1) {
        myTexts = std::make_shared<Texts>(*myTexts);
    }
    return *myTexts;
}

void TextRow::Set(int pPlace, std::string_view pText) {
    if (pPlace < 1) {
        return;
    }
    Texts &texts = Own();
    const auto index = static_cast<std::size_t>(pPlace) - 1;
    if (index >= texts.ends.size()) {
        texts.ends.resize(index + 1, texts.run.size());
    }
    const std::size_t begin = index == 0 ? 0 : texts.ends[index - 1];
    const std::size_t before = texts.ends[index] - begin;
    texts.run.replace(begin, before, pText);
    for (std::size_t i = index; i < texts.ends.size(); ++i) {
        texts.ends[i] += pText.size() - before; // It may wrap around when the text gets shorter, and back.
    }
}
