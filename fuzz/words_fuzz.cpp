/// The word splitter on any line, against a reading of the same rules that looks ahead, where the splitter
/// itself goes from character to character.
#include "data/modGetWords.h"
#include "fuzz/FuzzSupport.h"

namespace {

constexpr auto none = std::string_view::npos;

std::string WithoutOuterBlanks(std::string_view pText) {
    const std::size_t first = pText.find_first_not_of(' ');
    return first == none ? "" : std::string(pText.substr(first, pText.find_last_not_of(' ') - first + 1));
}

/// Takes the word whose opening quote stands before pAt, up to the character that ends it, and moves pAt
/// behind that character; nothing when the quotes don't come out.
std::optional<std::string> QuotedWord(std::string_view pLine, std::size_t &pAt) {
    std::string word;
    for (;;) {
        const std::size_t quote = pLine.find('"', pAt);
        if (quote == none) {
            return std::nullopt;
        }
        word += pLine.substr(pAt, quote - pAt);
        const std::size_t next = pLine.find_first_not_of(' ', quote + 1);
        pAt = next + 1;
        if (pLine[next] == ',' || pLine[next] == '\n') {
            return word;
        }
        if (pLine[next] != '"') {
            return std::nullopt;
        }
        word += pLine.substr(quote, next - quote);
    }
}

std::vector<std::string> OtherWords(const std::string &pLine) {
    const std::vector<std::string> noWords;
    const std::string line = pLine + "\n";
    std::vector<std::string> words;
    for (std::size_t at = line.find_first_not_of(' '); at != none; at = line.find_first_not_of(' ', at)) {
        if (line[at] == '"') {
            const auto word = QuotedWord(line, ++at);
            if (!word) {
                return noWords;
            }
            words.push_back(WithoutOuterBlanks(*word));
            continue;
        }
        const std::size_t end = line[at] == ',' ? at : line.find_first_of(",\n", at + 1);
        if (end == none) {
            return noWords;
        }
        words.push_back(WithoutOuterBlanks(line.substr(at, end - at)));
        at = end + 1;
    }
    return words;
}

std::string Quoted(const std::vector<std::string> &pWords) {
    std::string line;
    for (const std::string &word : pWords) {
        line += line.empty() ? "\"" : ",\"";
        for (const char character : word) {
            line += character == '"' ? "\"\"" : std::string(1, character);
        }
        line += '"';
    }
    return line;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *pBytes, std::size_t pSize) {
    const std::string line(Text(pBytes, pSize));
    const std::vector<std::string> words = Texts(modGetWords::GetWords(line));
    Require(words == OtherWords(line), "both readings of the rules give the same words");
    Require(Texts(modGetWords::GetWords(Quoted(words))) == words, "words that are quoted come back");
    return 0;
}
