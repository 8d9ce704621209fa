/// The word splitter on any line, against a second implementation of the same rules.
#include "data/modGetWords.h"
#include "fuzz/FuzzSupport.h"

#include <iomanip>
#include <sstream>

namespace {

constexpr auto none = std::string_view::npos;

/// Takes the word whose opening quote stands before pAt, up to the character that ends it, and moves pAt past
/// that character. Nothing when the quotes don't match up.
std::optional<std::string> TakeQuotedWord(std::string_view pLine, std::size_t &pAt) {
    std::string word;
    for (std::size_t quote = pLine.find('"', pAt); quote != none; quote = pLine.find('"', pAt)) {
        const std::size_t next = pLine.find_first_not_of(' ', quote + 1);
        word += pLine.substr(pAt, quote - pAt);
        pAt = next + 1;
        if (pLine[next] != '"') {
            const bool endsWord = pLine[next] == ',' || pLine[next] == '\n';
            return endsWord ? std::optional(word) : std::nullopt;
        }
        word += pLine.substr(quote, next - quote);
    }
    return std::nullopt;
}

/// The same for a word without quotes, which begins at pAt.
std::optional<std::string> TakePlainWord(std::string_view pLine, std::size_t &pAt) {
    const std::size_t from = pAt;
    const std::size_t end = pLine[from] == ',' ? from : pLine.find_first_of(",\n", from + 1);
    pAt = end + 1;
    return end == none ? std::nullopt : std::optional<std::string>(pLine.substr(from, end - from));
}

Words OtherWords(const std::string &pLine) {
    const std::string line = pLine + "\n";
    Words words;
    for (std::size_t at = line.find_first_not_of(' '); at != none; at = line.find_first_not_of(' ', at)) {
        const auto word = line[at] == '"' ? TakeQuotedWord(line, ++at) : TakePlainWord(line, at);
        if (!word) {
            return {};
        }
        words.push_back(WithoutOuterBlanks(*word));
    }
    return words;
}

std::string Quoted(const Words &pWords) {
    std::ostringstream line;
    for (const std::string &word : pWords) {
        line << (&word == &pWords.front() ? "" : ",") << std::quoted(word, '"', '"');
    }
    return line.str();
}

} // namespace

void RequireLaws(std::string_view pBytes) {
    const Words words = WordsOf(modGetWords::GetWords(pBytes));
    Require(words == OtherWords(std::string(pBytes)), "both readings of the rules give the same words");
    Require(WordsOf(modGetWords::GetWords(Quoted(words))) == words, "words that are quoted come back");
}
