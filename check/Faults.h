#pragma once
/// The catalogue of what can be wrong with a file: how bad it is, in what words it is told, and what a copy
/// does about it. Where a fault lies is found elsewhere.
#include <bitset>
#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>

enum class Kind {
    Lost,    ///< the editor would not show it, or would stop or refuse
    Changed, ///< it would come back different when saved
    Note,    ///< worth knowing, nothing is lost
};

/// In the order in which those of one line are told. The catalogue says what each is.
enum class Fault {
    Utf16,
    LfAlone,
    Separator,
    ColumnOrder,
    Counts,
    NotTaken,
    NoSize,
    Announced,
    WrongColumns,
    FirstLine,
    ReadOtherwise,
    BlankLine,
    CommaAtEnd,
    MarkBeforeQuote,
    OpenQuote,
    TextAfterQuote,
    CrInQuotes,
    FieldCount,
    TooFew,
    TooMany,
    Surplus,
    ManyRecords,
    ManyColumns,
    LineBreaks,
    Blanks,
    ByteOrderMark,
    TitleOrder,
    Title,
    TitleCount,
    NoCounts,
    NotUtf8,
    Nul,
    NotListed,
    BadSpecification,
    TooWide,
    NoList,
    UnreadableList,
    EmptyList,
    EmptyEntry,
    BlankEntry,
    TwiceInList,
    EntryWithBlanks,
    InTheCopy,
    Count, ///< how many there are
};
inline constexpr auto faultCount = static_cast<std::size_t>(Fault::Count);

/// The faults of one line.
class FaultSet {
public:
    void Set(Fault pFault, bool pIs = true) { myBits.set(static_cast<std::size_t>(pFault), pIs); }
    bool Has(Fault pFault) const { return myBits.test(static_cast<std::size_t>(pFault)); }

private:
    std::bitset<faultCount> myBits;
};

/// One row of the catalogue. In its texts "{}" is a gap.
struct FaultRow {
    Fault fault;
    Kind kind;
    std::string_view finding;
    std::string_view mended{};  ///< what the copy does about it; the gap is for "2 lines". Empty: nothing
    std::string_view refusal{}; ///< why there is no copy of a file with it. Empty: there is one
};
const FaultRow &RowOf(Fault pFault);

/// pWords with the first of pTexts in its first gap, and so on. Surplus texts are left out.
std::string Filled(std::string_view pWords, std::initializer_list<std::string> pTexts);

/// "1 line" and "2 lines", of pNoun "line".
std::string Counted(std::size_t pCount, const std::string &pNoun);
