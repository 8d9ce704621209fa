#pragma once
/// A row of texts, such as the cells of a record, in one block of memory: first where each text ends, then
/// the texts one after another. The block never changes, so copies of a row share it, and a record that goes
/// from a file into a table and on into a list is in memory once.
#include "text/PartCopier.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

class TextRow {
public:
    /// An offset in the row's texts. A table has one for each cell, and a pointer would take twice the room.
    using Offset = std::uint32_t;

    /// A row without texts.
    TextRow() = default;
    /// A row of the texts that stand one after another in pRun. pEnds says where each of them ends; its
    /// offsets rise to the length of pRun. A run of 4 GB or more counts as a lack of memory.
    TextRow(std::string_view pRun, std::span<const Offset> pEnds);
    explicit TextRow(std::span<const std::string> pTexts);

    int Count() const { return myCount; }

    /// Text pNumber, from 1; empty where there is none. It stays valid as long as this row or a copy of it
    /// exists.
    std::string_view operator()(int pNumber) const;

    /// All texts, one after another.
    std::string_view Run() const { return {Begin(), myCount == 0 ? 0 : myBlock[myCount - 1]}; }
    /// Where in Run each of them ends.
    std::span<const Offset> Ends() const { return {myBlock.get(), static_cast<std::size_t>(myCount)}; }

    /// Sets text pNumber, from 1, and adds empty texts before it where there are too few. Makes a new block.
    void Set(int pNumber, std::string_view pText);

private:
    const char *Begin() const { return reinterpret_cast<const char *>(myBlock.get() + myCount); }

    std::shared_ptr<const Offset[]> myBlock; ///< null while there are no texts
    int myCount = 0;
};

/// Memory in which rows are built, one after another.
struct TextRowRoom {
    std::string run;
    std::vector<TextRow::Offset> ends;
};

/// Builds one row, text by text.
class TextRowBuilder {
public:
    /// Makes room for pMostTexts texts of pMostBytes bytes in all. Texts that lie in pSource are copied
    /// faster than others.
    TextRowBuilder(TextRowRoom &pRoom, std::size_t pMostTexts, std::size_t pMostBytes,
                   std::string_view pSource = {});

    /// Appends pText. A row that is full stays as it is.
    void Append(std::string_view pText) {
        AddPart(pText);
        EndText();
    }

    /// Adds pPart to the text that EndText will append.
    void AddPart(std::string_view pPart) { myTextEnd = mySource.Copy(pPart, myTextEnd); }
    /// Removes the blanks at the end of that text.
    void DropBlanksAtEnd();
    /// Appends the text made of the parts added since the last text. A row that is full stays as it is.
    void EndText();

    /// The row of the texts appended so far.
    TextRow Row() const { return TextRow({myRun, myText}, {myEnds, myNextEnd}); }

private:
    PartCopier mySource;
    char *myRun;
    char *myText; ///< start of the text not yet appended
    char *myTextEnd;
    TextRow::Offset *myEnds;
    TextRow::Offset *myNextEnd;
    TextRow::Offset *myEndsEnd; ///< end of the room for the ends
};

inline TextRowBuilder::TextRowBuilder(TextRowRoom &pRoom, std::size_t pMostTexts, std::size_t pMostBytes,
                                      std::string_view pSource)
    : mySource(pSource) {
    pRoom.run.resize(std::max(pRoom.run.size(), pMostBytes + copySlack));
    pRoom.ends.resize(std::max(pRoom.ends.size(), pMostTexts));
    myRun = myText = myTextEnd = pRoom.run.data();
    myEnds = myNextEnd = pRoom.ends.data();
    myEndsEnd = myEnds + pMostTexts;
}

inline void TextRowBuilder::DropBlanksAtEnd() {
    while (myTextEnd != myText && myTextEnd[-1] == ' ') {
        --myTextEnd;
    }
}

inline void TextRowBuilder::EndText() {
    if (myNextEnd != myEndsEnd) {
        *myNextEnd++ = static_cast<TextRow::Offset>(myTextEnd - myRun);
        myText = myTextEnd;
    }
}
