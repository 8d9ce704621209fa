#include "data/clsDatFile.h"

#include "platform/Runtime.h"
#include "tests/support/Program.h"

#ifndef _WIN32
#include <sys/stat.h>
#endif

using namespace std::string_literals;
using namespace std::string_view_literals;
#include "text/Text.h"

namespace {

using Grid = std::vector<std::vector<std::string>>;

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

    std::string Saved(clsDatFile pTable, std::int16_t pFmt) const {
        pTable.Headers({"One", "Tw\"o", "Three"});
        pTable.Fmt(pFmt);
        pTable.FileName(myFiles.File("table"));
        pTable.Save();
        EXPECT_EQ(pTable.Fault(), "");
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

    TemporaryFolder myFiles;
    ScriptedDesktop myDesktop;
    Runtime myRuntime{myDesktop, {}, ""};
};

/// Size and cells: "2x2: a|b/c|d"; an exclamation mark behind them when the file's size is wrong.
std::string InWords(const clsDatFile &pTable) {
    std::string text = std::to_string(pTable.Rows()) + "x" + std::to_string(pTable.Cols()) + ":";
    for (std::int16_t i = 0; i < pTable.Rows(); ++i) {
        for (std::int16_t j = 0; j < pTable.Cols(); ++j) {
            text += (j > 0 ? "|" : i > 0 ? "/" : " ") + pTable.Data(i, j);
        }
    }
    return text + (!pTable.Fault().empty() && pTable.WasRead() ? "!" : "");
}

} // namespace

TEST_F(DatFile, WritesThreeFormsThatDifferOnlyBeforeTheFirstRow) {
    const clsDatFile table = Filled({{"a\"b", " c,d "}, {"", "1"}});
    const std::string rows = "\"a\"\"b\",\" c,d \"\r\n\"\",\"1\"\r\n";
    EXPECT_EQ(Saved(table, 0), "2,2\r\n" + rows);
    EXPECT_EQ(Saved(table, 1), rows);
    EXPECT_EQ(Saved(table, 2), "\"One\",\"Tw\"\"o\"\r\n" + rows);
    EXPECT_EQ(Saved(Filled({{"x"}}), 0), "1,1\r\n\"x\"\r\n");
    EXPECT_EQ(Saved(Filled({{"x", "", "", ""}}), 2),
              "\"One\",\"Tw\"\"o\",\"Three\",\"\"\r\n\"x\",\"\",\"\",\"\"\r\n");
}

TEST_F(DatFile, ReadsWhatAFileHolds) {
    // From a ragged line on the rows of a .dat file are there, but empty; a CSV file ends before it.
    // clang-format off
    const std::tuple<std::int16_t, std::string_view, std::string_view> cases[] = {
        {0, "2,2\r\n\"a\",\"b\"\r\nc, d\r\n", "2x2: a|b/c|d"}, {0, "2,2\r\n\"a\",\"b\"\r\nc,d", "2x2: a|b/c|d"},
        {0, "3,2\r\na,b\r\nc\r\ne,f\r\n", "3x2: a|b/|/|"},     {0, "3,2\r\na,b\r\nc,\"d\r\ne,f", "3x2: a|b/|/|"},
        {0, "  1 2,junk\r\na,b\r\n", "1x2: a|b"},               {0, "1,2\ra,b\rc,d\r", "1x2: a|b"},
        {0, "2,2\r\na,b\r\n", "1x2: a|b!"},                     {0, "32767,32767\r\n", "0x32767:!"},
        {0, "32768,2\r\na,b\r\n", "0x2:!"},                     {0, "1,32768\r\na\r\n", "0x0:"},
        {0, "-1,2\r\n", "0x0:"},                                {0, "1,-2\r\n", "0x0:"},
        {0, "x,2\r\na,b\r\n", "0x2:!"},                         {0, "2\r\na,b\r\n", "0x0:"},
        {0, "1,2\na,b\n", "0x0:!"},                             {0, "0,2\r\n", "0x2:"},
        {0, "", "0x0:"},                                        {1, "a,b\rc,d\r", "2x2: a|b/c|d"},
        {1, "a , \"b\"\r\nc,d", "2x2: a|b/c|d"},                {1, "a,b\r\nc\r\nd,e\r\n", "1x2: a|b"},
        {1, "a,b\r\nc,d\r\n\r\ne,f\r\n", "2x2: a|b/c|d"},       {1, "a,b\r\nc,\r\n", "1x2: a|b"},
        {1, "a,b\nc,d", "1x4: a|b|c|d"},                        {1, "", "0x2:"},
        {2, "x\r\na,b\r\nc,d\r\n", "2x2: a|b/c|d"},             {2, "One,Two\r\n", "0x2:"},
        {2, "", "0x2:"},                                        {0, "1 , 2\r\na,b\r\n", "1x2: a|b"},
        {0, "2,2\r\na,b\r\nc,d,e\r\n", "2x2: a|b/|"},
        // NUL bytes, stray bytes and line ends of all kinds
        {2, "\xFF\0\r\n\"\0\",\xFF\0\x1A z\r"sv, "1x2: \0|\xFF\0\x1A z"sv},
        {0, "4,1\ra\r\n\"b\n\"\r\r\nc\r\n", "4x1: a/b\n//"}, {1, "a\r\n\"b\n\"\rc\r\nd\n", "3x1: a/b\n/c"}};
    // clang-format on
    for (const auto &[fmt, bytes, table] : cases) {
        EXPECT_EQ(InWords(Loaded(fmt, std::string(bytes))), table)
            << fmt << ": " << testing::PrintToString(bytes);
    }
}

// What comes back is what was there, but for the blanks at the ends and what stands behind a line break.
TEST_F(DatFile, GivesATableBack) {
    const std::vector<std::string> pieces{"\"", ",", " ", "\n", "\t", "a", "", "É", "𝄞", "\xFF", "\xC3"};
    Grid cells(2);
    Grid trimmed(2);
    for (std::size_t i = 0; i < 11 * 11 * 11; ++i) {
        const std::string cell = pieces[i % 11] + pieces[i / 11 % 11] + pieces[i / 121];
        for (std::size_t row = 0; row < 2; ++row) {
            cells[row].push_back(cell);
            trimmed[row].emplace_back(Trim(cell));
        }
    }
    for (std::int16_t fmt = 0; fmt <= 2; ++fmt) {
        EXPECT_EQ(InWords(Loaded(fmt, Saved(Filled(cells), fmt))), InWords(Filled(trimmed))) << fmt;
        const clsDatFile broken = Filled({{"a"}, {"b\r\nc"}, {"d"}});
        EXPECT_EQ(InWords(Loaded(fmt, Saved(broken, fmt))), fmt == 0 ? "3x1: a//" : "1x1: a");
    }
}

// A reader that takes more than one pass over a huge file meets the time limit of the tests.
TEST_F(DatFile, ReadsHugeFilesOrRefusesThem) {
    clsDatFile table = Loaded(0, "32767,32767\r\na,b\r\n");
    table.Data(32766, 32766, "there is room");
    EXPECT_EQ(table.Data(32766, 32766), "there is room") << "the announced size costs nothing";
    constexpr std::size_t fiveMillion = 5'000'000;
    const clsDatFile announced = Loaded(0, std::string(fiveMillion, '9') + ",2\r\na,b\r\n");
    EXPECT_NE(announced.Fault().find(" announces far too many records."), std::string::npos);
    const std::string word(fiveMillion, 'x');
    for (const std::string &line : {word, '"' + std::string(fiveMillion, ' ') + word + '"'}) {
        EXPECT_EQ(InWords(Loaded(1, line + "\r\nx\r\nx,x")), "2x1: " + word + "/x");
        EXPECT_EQ(Loaded(0, line + "\r\nx").Rows(), 0);
    }
    const std::string tooWide = std::string(fiveMillion, ',') + 'x';
    EXPECT_FALSE(Loaded(1, tooWide).WasRead());
    EXPECT_EQ(InWords(Loaded(0, "1,2\r\n" + tooWide)), "1x2: |");
    std::string cell;
    while (cell.size() < fiveMillion) {
        cell += "\" , \"\" \n";
    }
    cell += '.';
    EXPECT_EQ(InWords(Loaded(0, Saved(Filled({{"", cell}}), 0))), "1x2: |" + cell);
}

TEST_F(DatFile, KeepsAFaultUntilTheNextLoadOrSave) {
    clsDatFile table(myRuntime);
    std::vector<std::string> unreadable{myFiles.Path(), myFiles.File("none")};
#ifndef _WIN32
    unreadable.push_back(myFiles.File("pipe"));
    ASSERT_EQ(mkfifo(unreadable.back().c_str(), 0600), 0); // Who waits for it waits for ever.
    unreadable.emplace_back("/dev/zero");
#endif
    const std::string good = myFiles.Write("good", "1,1\r\nx\r\n");
    for (const std::string &name : unreadable) {
        for (const std::int16_t fmt :
             {clsDatFile::fmtDat, clsDatFile::fmtCsv, clsDatFile::fmtCsvWithHeaders}) {
            table.Fmt(fmt);
            table.FileName(name);
            table.Load();
            EXPECT_EQ(InWords(table), "0x0:") << name;
            EXPECT_FALSE(table.WasRead() || table.Fault().empty()) << name;
        }
        table.Fmt(clsDatFile::fmtDat);
        table.FileName(good);
        table.Load();
        EXPECT_TRUE(table.WasRead() && table.Fault().empty()) << table.Fault();
    }
    table.FileName(myFiles.Path());
    table.Save();
    EXPECT_NE(table.Fault(), "");
    table.FileName(good);
    table.Save();
    EXPECT_EQ(table.Fault(), "");
}
