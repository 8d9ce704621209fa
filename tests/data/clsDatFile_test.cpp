#include "data/clsDatFile.h"

#include "tests/support/TemporaryFolder.h"

using namespace std::string_view_literals;

namespace {

constexpr std::int16_t dat = clsDatFile::fmtDat;
constexpr std::int16_t csv = clsDatFile::fmtCsv;
constexpr std::int16_t csvh = clsDatFile::fmtCsvWithHeaders;

/// One table loads all files of a test, so each case starts with what the last one left in it.
class DatFile : public testing::Test {
protected:
    void Fill(const std::vector<std::vector<std::string>> &pCells) {
        myTable.Rows(static_cast<std::int16_t>(pCells.size()));
        myTable.Cols(static_cast<std::int16_t>(pCells[0].size()));
        myTable.Clear();
        for (std::int16_t i = 0; i < myTable.Rows(); ++i) {
            myTable.Row(i, TextRow(pCells[static_cast<std::size_t>(i)]));
        }
    }

    /// Saves the table and returns the file's bytes.
    std::string Save(std::int16_t pFmt) {
        myTable.Headers({"One", "Tw\"o", "Three"});
        myTable.Fmt(pFmt);
        myTable.FileName(myFiles.File("table"));
        myTable.Save();
        EXPECT_EQ(myTable.Fault(), "");
        return myFiles.Read("table");
    }

    /// Loads the file pName and returns the table: its size and cells, such as "2x2: a|b/c|d". "!" at the end
    /// stands for a wrong size, "?" for a file that couldn't be read.
    std::string Load(std::int16_t pFmt, const std::string &pName) {
        myTable.FileName(pName);
        myTable.Fmt(pFmt);
        myTable.Headers({"One", "Two"});
        myTable.Load();
        std::string text = std::to_string(myTable.Rows()) + "x" + std::to_string(myTable.Cols()) + ":";
        for (std::int16_t i = 0; i < myTable.Rows(); ++i) {
            for (std::int16_t j = 0; j < myTable.Cols(); ++j) {
                text += (j > 0 ? "|" : i > 0 ? "/" : " ") + myTable.Data(i, j);
            }
        }
        return text + (!myTable.WasRead() ? "?" : myTable.Fault().empty() ? "" : "!");
    }
    /// The same for a file of these bytes.
    std::string Read(std::int16_t pFmt, std::string_view pBytes) {
        return Load(pFmt, myFiles.Write("table", pBytes));
    }

    TemporaryFolder myFiles;
    clsDatFile myTable{[](std::string_view pText) { throw std::logic_error(std::string(pText)); }};
};

} // namespace

TEST_F(DatFile, WritesThreeFormsAndReadsThemBack) {
    Fill({{"a\"b", "c,\n", "\t", "É𝄞\xFF\xC3", ""}, {"", " ", "\"\"", "\",\"", "1"}});
    const std::string rows = "\"a\"\"b\",\"c,\n\",\"\t\",\"É𝄞\xFF\xC3\",\"\"\r\n"
                             "\"\",\" \",\"\"\"\"\"\",\"\"\",\"\"\",\"1\"\r\n";
    EXPECT_EQ(Save(dat), "2,5\r\n" + rows);
    EXPECT_EQ(Save(csv), rows);
    EXPECT_EQ(Save(csvh), "\"One\",\"Tw\"\"o\",\"Three\",\"\",\"\"\r\n" + rows);
    for (const std::int16_t fmt : {csvh, csv, dat}) { // Blanks at the ends of a cell don't come back.
        EXPECT_EQ(Read(fmt, Save(fmt)), "2x5: a\"b|c,\n|\t|É𝄞\xFF\xC3|/||\"\"|\",\"|1") << fmt;
    }
    // The rows after a line break in a cell don't come back either.
    Fill({{"a"}, {"b\r\nc"}, {"d"}});
    EXPECT_EQ(Read(dat, Save(dat)), "3x1: a//");
}

TEST_F(DatFile, ReadsWhatAFileHolds) {
    // After a ragged line the rows of a .dat file are there, but empty. A CSV file ends before that line.
    // clang-format off
    const std::tuple<std::int16_t, std::string_view, std::string_view> cases[] = {
        {dat, "2,2\r\n\"a\",\"b\"\r\nc, d\r\n", "2x2: a|b/c|d"}, {dat, "3,2\r\na,b\r\nc,\"d\r\ne,f", "3x2: a|b/|/|"},
        {dat, "2,2\r\na,b\r\nc\r\ne,f\r\n", "2x2: a|b/|"},       {dat, "2,2\r\na,b\r\nc,d,e\r\n", "2x2: a|b/|"},
        {dat, "  1 2,junk\r\na,b\r\n", "1x2: a|b"},              {dat, "1 , 2\r\na,b", "1x2: a|b"},
        {dat, "2,2\r\na,b\r\n", "1x2: a|b!"},                    {dat, "1,2\ra,b\rc,d\r", "1x2: a|b"},
        {dat, "32768,2\r\na,b\r\n", "0x2:!"},                    {dat, "1,32768\r\na\r\n", "0x0:"},
        {dat, "-1,2\r\n", "0x0:"},                               {dat, "1,-2\r\n", "0x0:"},
        {dat, "x,2\r\na,b\r\n", "0x2:!"},                        {dat, "2\r\na,b\r\n", "0x0:"},
        {dat, "1,2\na,b\n", "0x0:!"},                            {dat, "0,2\r\n", "0x2:"},
        {dat, "", "0x0:"},                                       {csv, "", "0x2:"},
        {csv, "a , \"b\"\r\nc,d", "2x2: a|b/c|d"},               {csv, "a,b\r\nc\r\nd,e\r\n", "1x2: a|b"},
        {csv, "a,b\r\nc,d\r\n\r\ne,f\r\n", "2x2: a|b/c|d"},      {csv, "a,b\nc,d", "1x4: a|b|c|d"},
        {csvh, "x\r\na,b\r\nc,d\r\n", "2x2: a|b/c|d"},           {csvh, "One,Two\r\n", "0x2:"},
        // NUL bytes, stray bytes and line ends of all kinds
        {csvh, "\xFF\0\r\n\"\0\",\xFF\0\x1A z\r"sv, "1x2: \0|\xFF\0\x1A z"sv},
        {dat, "4,1\ra\r\n\"b\n\"\r\r\nc\r\n", "4x1: a/b\n//"},   {csv, "a\r\n\"b\n\"\rc\r\nd\n", "3x1: a/b\n/c"}};
    // clang-format on
    for (const auto &[fmt, bytes, table] : cases) {
        EXPECT_EQ(Read(fmt, bytes), table) << fmt << ": " << testing::PrintToString(bytes);
    }
}

// A reader that takes more than one pass over a huge file runs into the tests' time limit.
TEST_F(DatFile, ReadsHugeFilesOrRefusesThem) {
    constexpr std::size_t fiveMillion = 5'000'000;
    EXPECT_EQ(Read(dat, std::string(fiveMillion, '9') + ",2\r\na,b\r\n"), "0x2:!");
    EXPECT_NE(myTable.Fault().find(" announces far too many records."), std::string::npos);
    const std::string tooWide = std::string(fiveMillion, ',') + 'x';
    EXPECT_EQ(Read(csv, tooWide), "0x0:?");
    EXPECT_EQ(Read(dat, "1,2\r\n" + tooWide), "1x2: |");
    std::string cell(fiveMillion, '"');
    cell += std::string(fiveMillion, ' ') + '.';
    Fill({{"", cell}});
    EXPECT_EQ(Read(csv, Save(csv) + "x\r\n"), "1x2: |" + cell);
    myTable.Rows(32767);
    myTable.Cols(32767);
    myTable.Clear();
    myTable.Data(32766, 32766, "there is room");
    EXPECT_EQ(myTable.Data(32766, 32766), "there is room") << "cells that are empty take no memory";
}

TEST_F(DatFile, ForgetsAFaultWithTheNextFile) {
    for (const std::int16_t fmt : {dat, csv, csvh}) {
        EXPECT_EQ(Load(fmt, myFiles.File("none")), "0x0:?");
        EXPECT_NE(myTable.Fault(), "");
        EXPECT_EQ(Read(dat, "1,2\r\na,b\r\n"), "1x2: a|b");
    }
}
