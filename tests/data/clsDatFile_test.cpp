#include "data/clsDatFile.h"

#include "platform/Runtime.h"
#include "platform/Text.h"
#include "tests/support/Program.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace {

using Grid = std::vector<std::vector<std::string>>;
using Kind = clsDatFile::Fault::Kind;

class DatFile : public testing::Test {
protected:
    clsDatFile Filled(const Grid &pCells) const {
        clsDatFile table(myRuntime);
        table.Rows(static_cast<std::int16_t>(pCells.size()));
        table.Cols(static_cast<std::int16_t>(pCells.front().size()));
        table.Clear();
        for (std::int16_t i = 0; i < table.Rows(); ++i) {
            for (std::int16_t j = 0; j < table.Cols(); ++j) {
                table.Data(i, j, pCells[static_cast<std::size_t>(i)][static_cast<std::size_t>(j)]);
            }
        }
        return table;
    }

    std::string Saved(clsDatFile &pTable, std::int16_t pFmt) const {
        pTable.Fmt(pFmt);
        pTable.FileName(myFiles.File("table"));
        pTable.Save();
        EXPECT_EQ(pTable.LastFault().text, "");
        return myFiles.Read("table");
    }

    clsDatFile Loaded(std::int16_t pFmt, const std::string &pBytes) const {
        clsDatFile table(myRuntime);
        table.FileName(myFiles.Write("table", pBytes));
        table.Fmt(pFmt);
        table.Headers({"One", "Two"});
        table.Load();
        return table;
    }

    /// The status with which pAct ends the program, after the message pPrompt.
    template <typename Act> int StatusAfter(const std::string &pPrompt, Act pAct) {
        myDesktop.Expect({pPrompt, 0, "NorvoEditDat"});
        try {
            pAct();
        } catch (const ProgramEnded &end) {
            return end.status;
        }
        return -1;
    }

    TemporaryFolder myFiles;
    ScriptedDesktop myDesktop;
    Runtime myRuntime{myDesktop, MakeAppRecord("/somewhere/NorvoEditDat"), ""};
};

Grid CellsOf(const clsDatFile &pTable) {
    Grid cells(static_cast<std::size_t>(pTable.Rows()));
    for (std::int16_t i = 0; i < pTable.Rows(); ++i) {
        for (std::int16_t j = 0; j < pTable.Cols(); ++j) {
            cells[static_cast<std::size_t>(i)].push_back(pTable.Data(i, j));
        }
    }
    return cells;
}

/// Texts of what the forms have to keep apart, at random.
class Maker {
public:
    explicit Maker(unsigned pSeed) : myEngine(pSeed) {}

    std::size_t UpTo(std::size_t pMost) { return myEngine() % (pMost + 1); }

    std::string Cell() {
        static const std::vector<std::string> pieces{"\"", "\"\"", ",", " ", "  ", "\n",   "\t",   "a",
                                                     "0",  "É",    "€", "𝄞", "-",  "\xFF", "\x80", "\xC3"};
        std::string text;
        for (std::size_t left = UpTo(6); left > 0; --left) {
            text += pieces[UpTo(pieces.size() - 1)];
        }
        return text;
    }

    Grid Cells() {
        Grid cells(2 + UpTo(6), std::vector<std::string>(1 + UpTo(UpTo(3) == 0 ? 199 : 5)));
        for (auto &row : cells) {
            std::generate(row.begin(), row.end(), [&] { return Cell(); });
        }
        return cells;
    }

private:
    std::mt19937 myEngine;
};

/// Size and cells: "2x2: a|b/c|d".
std::string InWords(const clsDatFile &pTable) {
    std::string text = std::to_string(pTable.Rows()) + "x" + std::to_string(pTable.Cols()) + ":";
    for (const auto &row : CellsOf(pTable)) {
        text += text.back() == ':' ? " " : "/";
        for (std::size_t j = 0; j < row.size(); ++j) {
            text += (j == 0 ? "" : "|") + row[j];
        }
    }
    return text;
}

} // namespace

TEST_F(DatFile, WritesThreeFormsThatDifferOnlyBeforeTheFirstRow) {
    clsDatFile table = Filled({{"a\"b", " c,d "}, {"", "1"}});
    table.Headers({"One", "Tw\"o", "Three"});
    const std::string rows = "\"a\"\"b\",\" c,d \"\r\n\"\",\"1\"\r\n";
    EXPECT_EQ(Saved(table, 0), "2,2\r\n" + rows);
    EXPECT_EQ(Saved(table, 1), rows);
    EXPECT_EQ(Saved(table, 2), "\"One\",\"Tw\"\"o\"\r\n" + rows);
    table.Headers({"One"});
    EXPECT_EQ(Saved(table, 2), "\"One\",\"\"\r\n" + rows);
    clsDatFile narrow = Filled({{"x"}});
    narrow.Headers({"One"});
    EXPECT_EQ(Saved(narrow, 0), "1,1\r\n\"x\"\r\n");
    EXPECT_EQ(Saved(narrow, 2), "\"One\"\r\n\"x\"\r\n");
}

TEST_F(DatFile, ReadsWhatAFileHolds) {
    struct Case {
        std::int16_t fmt;
        std::string bytes;
        std::string table;
        Kind fault = Kind::None;
    };
    const std::vector<Case> cases{
        {0, "2,2\r\n\"a\",\"b\"\r\nc, d\r\n", "2x2: a|b/c|d"},
        {0, "2,2\r\n\"a\",\"b\"\r\nc,d", "2x2: a|b/c|d"},
        {0, "  1 2,junk\r\na,b\r\n", "1x2: a|b"},
        {0, "1,2\ra,b\rc,d\r", "1x2: a|b"},                    // CR alone ends a line; row 2 isn't announced
        {0, "3,2\r\na,b\r\nc\r\ne,f\r\n", "3x2: a|b/|/|"},     // ragged: the rest is there, but empty
        {0, "3,2\r\na,b\r\nc,\"d\r\ne,f\r\n", "3x2: a|b/|/|"}, // a row without words
        {0, "0,2\r\n", "0x2:"},
        {0, "2,2\r\na,b\r\n", "1x2: a|b", Kind::WrongSize},
        {0, "32767,32767\r\n", "0x32767:", Kind::WrongSize},
        {0, "32768,2\r\na,b\r\n", "0x2:", Kind::WrongSize},
        {0, "1,32768\r\na\r\n", "0x0:"},
        {0, "-1,2\r\n", "0x0:"},
        {0, "1,-2\r\n", "0x0:"},
        {0, "x,2\r\na,b\r\n", "0x2:"},
        {0, "2\r\na,b\r\n", "0x0:"},
        {0, "", "0x0:"},
        {0, "1,2\na,b\n", "0x0:", Kind::WrongSize}, // LF alone is no line end: the size line is the file
        {1, "a , \"b\"\r\nc,d", "2x2: a|b/c|d"},
        {1, "a,b\rc,d\r", "2x2: a|b/c|d"},
        {1, "\"a\",\"b\"\r\n\"c\"\r\n\"d\",\"e\"\r\n", "1x2: a|b"}, // ragged: the table ends before it
        {1, "a,b\r\nc,d\r\n\r\ne,f\r\n", "2x2: a|b/c|d"},
        {1, "a,b\r\nc,\r\n", "1x2: a|b"},
        {1, "a,b\nc,d", "1x4: a|b|c|d"},
        {1, "", "0x2:"},
        {2, "x\r\na,b\r\nc,d\r\n", "2x2: a|b/c|d"}, // what the header line holds is nobody's business
        {2, "One,Two\r\n", "0x2:"},
        {2, "", "0x2:"},
    };
    for (const Case &c : cases) {
        const clsDatFile table = Loaded(c.fmt, c.bytes);
        EXPECT_EQ(InWords(table), c.table) << c.fmt << ": " << testing::PrintToString(c.bytes);
        EXPECT_EQ(table.LastFault().kind, c.fault) << c.fmt << ": " << testing::PrintToString(c.bytes);
    }
}

TEST_F(DatFile, SaysWhatIsWrongWithAFile) {
    const std::string name = "File " + myFiles.File("table");
    EXPECT_EQ(Loaded(0, "3,1\r\na\r\n").LastFault().text,
              name + " is too short. Its first line announces 3 records, but it holds only 1.");
    EXPECT_EQ(Loaded(0, "32768,1\r\na\r\n").LastFault().text,
              name + " announces 32768 records. A table holds at most 32767, so none were read.");
    std::string rows;
    for (int i = 0; i < 32767; ++i) {
        rows += "x\r\n";
    }
    EXPECT_EQ(Loaded(1, rows).Rows(), 32767);
    const clsDatFile tooLong = Loaded(1, rows + "x\r\n");
    EXPECT_EQ(tooLong.Rows(), 0);
    EXPECT_EQ(tooLong.LastFault().text,
              name + " has too many records. A table holds at most 32767, so none were read.");
}

TEST_F(DatFile, StopsTheProgramOnABadSize) {
    clsDatFile table = Filled({{"a", "b"}});
    EXPECT_EQ(StatusAfter("clsDatFile.Rows out of bounds ( 0)", [&] { table.Rows(0); }), 1);
    EXPECT_EQ(StatusAfter("clsDatFile.Rows out of bounds (-1)", [&] { table.Rows(-1); }), 1);
    EXPECT_EQ(StatusAfter("clsDatFile.Cols out of bounds ( 0)", [&] { table.Cols(0); }), 1);
    EXPECT_EQ(InWords(table), "1x2: a|b");
    EXPECT_EQ(StatusAfter("clsDatFile.Load: Filename not set", [&] { table.Load(); }), 1);
    for (const std::string bytes :
         {"\r\na\r\n", "   \r\na\r\n", "a,\r\na,b\r\n", "\"a\r\n", "\"a\"b\r\n", "a\nb\n"}) {
        EXPECT_EQ(StatusAfter("clsDatFile.Cols out of bounds ( 0)", [&] { Loaded(1, bytes); }), 1);
    }
}

TEST_F(DatFile, KeepsToItsCells) {
    clsDatFile table = Filled({{"a", "b"}, {"c", "d"}, {"e", "f"}});
    for (const auto &[row, col] :
         std::vector<std::pair<std::int16_t, std::int16_t>>{{-1, 0}, {3, 0}, {0, -1}, {0, 2}}) {
        table.Data(row, col, "x");
        EXPECT_EQ(table.Data(row, col), "");
    }
    for (const std::int16_t row : std::vector<std::int16_t>{0, 3, -1}) {
        table.MoveRowUp(row);
    }
    EXPECT_EQ(InWords(table), "3x2: a|b/c|d/e|f");
    table.MoveRowUp(2);
    EXPECT_EQ(InWords(table), "3x2: a|b/e|f/c|d");
    table.MoveRowUp(2);
    EXPECT_EQ(table.Col(1), (std::vector<std::string>{"b", "d", "f"}));
    EXPECT_EQ(table.Col(2), std::vector<std::string>(3));
    EXPECT_EQ(table.Col(-1), std::vector<std::string>(3));
    table.Rows(4); // The numbers alone: storage for row and column comes with Clear.
    table.Cols(3);
    table.Data(3, 0, "x");
    table.Data(0, 2, "x");
    EXPECT_EQ(InWords(table), "4x3: a|b|/c|d|/e|f|/||");
    table.Rows(3);
    table.Cols(2);
    table.Clear();
    EXPECT_EQ(InWords(table), "3x2: |/|/|");
}

TEST_F(DatFile, TouchesNoFileWithoutAFormOrAName) {
    clsDatFile table = Filled({{"a"}});
    EXPECT_FALSE(table.Exists());
    table.Save();
    table.FileName(myFiles.Write("kept", "1,1\r\nkept\r\n"));
    EXPECT_TRUE(table.Exists());
    for (const std::int16_t fmt : std::vector<std::int16_t>{3, 5, -1}) {
        table.Fmt(fmt);
        table.Save();
        table.Load();
        EXPECT_EQ(table.FileType(), "dat");
    }
    EXPECT_EQ(InWords(table), "1x1: a");
    EXPECT_EQ(myFiles.Read("kept"), "1,1\r\nkept\r\n");
    table.FileName(myFiles.Path());
    EXPECT_FALSE(table.Exists());
}

// What comes back is what was there, but for what the forms lose, which is lost exactly so.
TEST_F(DatFile, GivesRandomTablesBack) {
    for (unsigned seed = 1; seed <= 120; ++seed) {
        Maker maker(seed);
        Grid cells = maker.Cells();
        Grid csv = cells;
        for (auto &row : csv) {
            for (std::string &cell : row) {
                cell = std::string(Trim(cell));
            }
        }
        Grid dat = csv;
        if (seed % 3 == 0) { // A CR in a cell ends the table at that row.
            const std::size_t at = 1 + maker.UpTo(cells.size() - 2);
            cells[at][maker.UpTo(cells[at].size() - 1)] += seed % 2 == 0 ? "\rx" : "\r\nx";
            csv.resize(at);
            std::fill(dat.begin() + static_cast<std::ptrdiff_t>(at), dat.end(),
                      std::vector<std::string>(cells[0].size()));
        }
        for (std::int16_t fmt = 0; fmt <= 2; ++fmt) {
            clsDatFile table = Filled(cells);
            const clsDatFile back = Loaded(fmt, Saved(table, fmt));
            EXPECT_EQ(back.LastFault().text, "");
            EXPECT_EQ(CellsOf(back), fmt == 0 ? dat : csv) << "seed " << seed << ", format " << fmt;
        }
    }
}
