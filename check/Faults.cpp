#include "check/Faults.h"

#include <algorithm>

namespace {

using enum Fault;
using enum Kind;

constexpr FaultRow catalogue[] = {
    {Utf16, Lost, "the file is in UTF-16, and the editor takes it for UTF-8", "",
     "the file is in UTF-16, and the editor takes it for UTF-8"},
    {LfAlone, Lost, "LF alone ends {}", "{} got the line end CR LF"},
    {Separator, Lost, "{} separate the fields, and the editor takes them for text",
     "{} got commas between the fields"},
    {ColumnOrder, Note, "", "the columns are put into the specification's order, in {}"},
    {Counts, Note, "", "the numbers of records and columns are counted"},
    {NotTaken, Lost, "the file {}{}"},
    {NoSize, Lost, "the first line {}, so the editor refuses the file. Is it CSV? Then say /csv or /csvh."},
    {Announced, Lost, "the first line announces {}, {}"},
    {WrongColumns, Lost, "the first {} and the specification has {}, so the editor refuses the file"},
    {FirstLine, Lost, "{}, and with a first line without fields the editor ends with a message"},
    {ReadOtherwise, Lost, "the editor {}"},
    {BlankLine, Lost, "the line is blank", "{} without text left out"},
    {CommaAtEnd, Lost, "the line ends in a comma"},
    {MarkBeforeQuote, Lost, "a byte-order mark stands before a quote"},
    {OpenQuote, Lost, "a quote is left open", "", "a quote is left open"},
    {TextAfterQuote, Lost, "text follows a closing quote", "", "text follows a closing quote"},
    {CrInQuotes, Lost, "a line end inside quotes ends the {}"},
    {FieldCount, Lost, "{}, not {}"},
    {TooFew, Note, "", "{} with too few fields filled with empty ones"},
    {TooMany, Note, "", "{} with too many fields lost empty ones at the end"},
    {Surplus, Note, "", "", "{}, not {}, and those at the end are not empty"},
    {ManyRecords, Lost, "a table holds at most 32767 records, and this is one more, so the editor reads none",
     "", "a table holds at most 32767 records"},
    {ManyColumns, Lost, "a table holds at most 32767 columns", "", "a table holds at most 32767 columns"},
    {LineBreaks, Note, "", "line breaks inside cells made blanks, in {}"},
    {Blanks, Changed, "blanks at the ends of cells are left out",
     "blanks at the ends of cells left out, in {}"},
    {ByteOrderMark, Changed, "a byte-order mark stands {}", "the byte-order mark is left out"},
    {TitleOrder, Changed,
     "the titles are the specification's in another order; the specification's order would be written over "
     "columns that stay where they are"},
    {Title, Changed, "the title of column {} is {}, and the specification's, which would be written, is {}"},
    {TitleCount, Changed, "the header line has {} and the first record {}"},
    {NoCounts, Note, "", "", "the first line isn't the numbers of records and columns"},
    {NotUtf8, Note, "bytes that aren't UTF-8"},
    {Nul, Note, "NUL bytes"},
    {NotListed, Note, "{} has {}, which isn't in its list, in {}"},
    {BadSpecification, Lost, "{}"},
    {TooWide, Note, "the widths sum to more than 100 percent, so fields lie beyond the window"},
    {NoList, Note, "the list file {} isn't there, and neither is {}; the field takes any text"},
    {UnreadableList, Lost, "the list can't be read: {}; the field takes any text"},
    {EmptyList, Note, "the list is empty; the field takes any text"},
    {EmptyEntry, Note, "an empty entry; it lets the field be left empty"},
    {BlankEntry, Note, "an entry of blanks, which no saved cell keeps"},
    {TwiceInList, Note, "{} stands in line {} already"},
    {EntryWithBlanks, Note, "{} has blanks at its ends, which no saved cell keeps"},
    {InTheCopy, Note, "in the copy {}"},
};
static_assert(std::size(catalogue) == faultCount &&
              std::is_sorted(std::begin(catalogue), std::end(catalogue),
                             [](const FaultRow &pOne, const FaultRow &pOther) {
                                 return pOne.fault <= pOther.fault;
                             }));

} // namespace

const FaultRow &RowOf(Fault pFault) {
    return catalogue[static_cast<std::size_t>(pFault)];
}

std::string Filled(std::string_view pWords, std::initializer_list<std::string> pTexts) {
    std::string filled(pWords);
    std::size_t at = 0;
    for (const std::string &text : pTexts) {
        at = filled.find("{}", at);
        if (at == std::string::npos) {
            break;
        }
        filled.replace(at, 2, text);
        at += text.size(); // A text may hold "{}" itself.
    }
    return filled;
}

std::string Counted(std::size_t pCount, const std::string &pNoun) {
    return std::to_string(pCount) + " " + pNoun + (pCount == 1 ? "" : "s");
}
