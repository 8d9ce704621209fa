#include "data/clsDatFile.h"

#include "tests/support/Scarcity.h"
#include "tests/support/TemporaryFolder.h"

using namespace std::string_literals;
using Texts = std::vector<std::string>;

constexpr std::int16_t dat = clsDatFile::fmtDat;
constexpr std::int16_t csv = clsDatFile::fmtCsv;
constexpr std::int16_t csvh = clsDatFile::fmtCsvWithHeaders;

/// One table loads all files of a test, so each case starts with what the last one left in it.
class DatFile : public testing::Test {
protected:
    /// Saves the table and returns the file's bytes.
    std::string Save(std::int16_t pFmt) {
        myTable.Headers({"One", "Tw\"o", "Three"});
        myTable.Fmt(pFmt);
        myTable.FileName(myFiles.File("table"));
        myTable.Save();
        EXPECT_EQ(myTable.Fault(), "");
        return myFiles.Read("table");
    }

    /// The size and the cells, such as "2x2: a|b/c|d".
    std::string Table() const {
        std::string text = std::to_string(myTable.Rows()) + "x" + std::to_string(myTable.Cols()) + ":";
        for (std::int16_t i = 0; i < myTable.Rows(); ++i) {
            for (std::int16_t j = 0; j < myTable.Cols(); ++j) {
                text += (j > 0 ? "|" : i > 0 ? "/" : " ") + myTable.Data(i, j);
            }
        }
        return text;
    }

    /// Loads a file of these bytes. Returns the table, "?" if the file couldn't be read, and the fault after
    /// the file's name; or the text with which the table ends the program.
    std::string Read(std::int16_t pFmt, std::string_view pBytes) {
        myTable.FileName(myFiles.Write("table", pBytes));
        myTable.Fmt(pFmt);
        myTable.Headers({"One", "Two"});
        if (const std::string stopped = Stopped([this] { myTable.Load(); }); !stopped.empty()) {
            return stopped;
        }
        EXPECT_NE(myTable.Fault().find(myTable.Cause()), std::string::npos);
        const std::size_t start = ("File " + myFiles.File("table")).size();
        return Table() + (myTable.WasRead() ? "" : "?") +
               (myTable.Fault().empty() ? "" : myTable.Fault().substr(start));
    }

    /// The text with which pAct ends the program; empty if it doesn't.
    static std::string Stopped(const std::function<void()> &pAct) {
        try {
            pAct();
        } catch (const std::logic_error &stop) {
            return stop.what();
        }
        return {};
    }

    TemporaryFolder myFiles;
    clsDatFile myTable{[](std::string_view pText) { throw std::logic_error(std::string(pText)); }};
};

TEST_F(DatFile, WritesThreeFormsAsItReadsThem) {
    const std::string rows = "\"a\"\"b\",\"c,\n\",\"\t\",\"É𝄞\xFF\xC3\",\"\"\r\n\"\",\"x  "
                             "y\",\"\"\"\"\"\",\"\"\",\"\"\",\"1\"\r\n";
    EXPECT_EQ(Read(csv, rows), "2x5: a\"b|c,\n|\t|É𝄞\xFF\xC3|/|x  y|\"\"|\",\"|1");
    EXPECT_EQ(Save(csv), rows);
    EXPECT_EQ(Save(dat), "2,5\r\n" + rows);
    EXPECT_EQ(Save(csvh), "\"One\",\"Tw\"\"o\",\"Three\",\"\",\"\"\r\n" + rows); // two titles too few
    myTable.Cols(2);
    EXPECT_TRUE(Save(csvh).starts_with("\"One\",\"Tw\"\"o\"\r\n\"a\"\"b\",\"c,\n\"\r\n")); // one too many
    // Blanks at the ends of a cell don't come back, nor do the rows from a line break in a cell on.
    myTable.Data(0, 0, "  ");
    myTable.Data(1, 1, "b\r\nc");
    EXPECT_EQ(Save(dat), "2,2\r\n\"  \",\"c,\n\"\r\n\"\",\"b\r\nc\"\r\n");
    EXPECT_EQ(Read(dat, Save(dat)), "2x2: |c,\n/|");
    for (std::size_t size = 0; size < 70; ++size) { // Short and long cells are copied in different ways.
        const std::string row =
            '"' + std::string(70 - size, 'x') + "\",\"" + std::string(size, 'y') + "\"\r\n";
        Read(csv, row);
        EXPECT_EQ(Save(csv), row);
    }
    for (std::size_t shift = 0; shift < 16;
         ++shift) { // Files go in blocks, and one of them ends within a line end.
        std::string bytes = '"' + std::string(shift, 'x') + "\"\r\n";
        while (bytes.size() < 150'000) {
            bytes += "\"twelve bytes\"\r\n";
        }
        Read(csv, bytes);
        EXPECT_EQ(Save(csv), bytes) << shift;
    }
}

TEST_F(DatFile, ReadsWhatAFileHolds) {
    const std::string noNumber = " doesn't begin with the number of its records, so none were read.";
    const std::string none = " records. A table holds at most 32767, so none were read.";
    const std::string noFields = "clsDatFile.Cols out of bounds ( 0)";
    // After a ragged line the rows of a .dat file are there, but empty. A CSV file ends before that line.
    // clang-format off
    const std::tuple<std::int16_t, std::string, std::string> cases[] = {
        {dat, "2,2\r\n\"a\",\"b\"\r\nc, d\r\n", "2x2: a|b/c|d"}, {dat, "3,2\r\na,b\r\nc,\"d\r\ne,f", "3x2: a|b/|/|"},
        {dat, "2,2\r\na,b\r\nc\r\ne,f\r\n", "2x2: a|b/|"}, {dat, "2,2\r\na,b\r\nc,d,e\r\n", "2x2: a|b/|"},
        {dat, "  1 2,junk\r\na,b\r\n", "1x2: a|b"}, {dat, "1 , 2\r\na,b", "1x2: a|b"}, {dat, "1,2\ra,b\rc,d\r", "1x2: a|b"},
        {dat, "0,2\r\n", "0x2:"}, {dat, "", "0x0:"}, {csv, "", "0x2:"}, {dat, "-40000,2\r\n", "0x0:"}, {dat, "-1,2\r\n", "0x0:"},
        {dat, "3,2\r\na,b\r\nc,d\r\n", "2x2: a|b/c|d is too short. Its first line announces 3 records, but it holds only 2."},
        {dat, "32768,2\r\na,b\r\n", "0x2: announces 32768" + none}, {dat, "1e9,3\r\n", "0x3: announces far too many" + none},
        {dat, "999999999,3\r\n", "0x3: announces 999999999" + none}, {dat, "1,-2\r\n", "0x0:"}, {dat, "1,32768\r\na\r\n", "0x0:"},
        {dat, "x,2\r\na,b\r\n", "0x2:" + noNumber}, {dat, "2\r\na,b\r\n", "0x0:"},
        {csv, "a , \"b\"\r\nc,d", "2x2: a|b/c|d"}, {csv, "a,b\r\nc\r\nd,e\r\n", "1x2: a|b"}, {csv, "a,b\nc,d", "1x4: a|b|c|d"},
        {csv, "a,b\r\nc,d\r\n\r\ne,f\r\n", "2x2: a|b/c|d"}, {csvh, "x\r\na,b\r\nc,d\r\n", "2x2: a|b/c|d"},
        {csv, std::string(32767, ',') + "a\r\n", "0x0:? has too many columns. A table holds at most 32767."},
        {csvh, "One,Two\r\n", "0x2:"}, {csv, "a,\r\nb,c\r\n", noFields}, {csvh, "a,b\r\n\r\nc,d\r\n", noFields},
        // NUL bytes, stray bytes and line ends of all kinds
        {csvh, "\xFF\0\r\n\"\0\",\xFF\0\x1A z\r"s, "1x2: \0|\xFF\0\x1A z"s},
        {dat, "4,1\ra\r\n\"b\n\"\r\r\nc\r\n", "4x1: a/b\n//"}, {csv, "a\r\n\"b\n\"\rc\r\nd\n", "3x1: a/b\n/c"}};
    // clang-format on
    for (const auto &[fmt, bytes, table] : cases) {
        EXPECT_EQ(Read(fmt, bytes), table) << fmt << ": " << testing::PrintToString(bytes);
    }
#ifdef __linux__
    for (const std::int16_t fmt : {dat, csv, csvh}) {
        Scarcity::readable = 15; // The disk fails in the middle.
        EXPECT_EQ(Read(fmt, "3,2\r\na,b\r\nc,d\r\ne,f\r\n"), "0x0:? can't be read: Input/output error.");
        Scarcity::readable = -1;
        EXPECT_EQ(Read(dat, "1,2\r\na,b\r\n"), "1x2: a|b") << "the fault was that of another file";
    }
#endif
}

TEST_F(DatFile, HoldsCellsByRowAndColumn) {
    for (const std::int16_t fmt : {dat, csv, csvh}) {
        myTable.Fmt(fmt);
        EXPECT_EQ(Stopped([this] { myTable.Load(); }), "clsDatFile.Load: Filename not set");
        EXPECT_EQ(Stopped([this] { myTable.Save(); }) + myTable.Fault() + Table() + myTable.FileName(),
                  "0x0:");
    }
    EXPECT_FALSE(myTable.Exists());
    EXPECT_EQ(Read(csv, "a,b\r\nc,d\r\ne,f\r\n"), "3x2: a|b/c|d/e|f");
    EXPECT_EQ(Read(3, "1,1\r\nc\r\n"), "3x2: a|b/c|d/e|f"); // There is no such format.
    EXPECT_EQ(Save(-1) + myTable.FileType(), "1,1\r\nc\r\ndat");
    EXPECT_TRUE(myTable.Exists());
    for (const auto &[row, col] : {std::pair<std::int16_t, std::int16_t>(-1, 0), {3, 0}, {0, -1}, {0, 2}}) {
        myTable.Data(row, col, "x");
        EXPECT_EQ(myTable.Data(row, col), "");
    }
    for (const std::int16_t row : std::initializer_list<std::int16_t>{-1, 0, 3, 2, 1, 1, 1}) {
        myTable.MoveRowUp(row); // The last two calls undo each other.
    }
    EXPECT_EQ(Table(), "3x2: e|f/a|b/c|d");
    EXPECT_EQ(myTable.Col(1), (Texts{"f", "b", "d"}));
    EXPECT_TRUE(myTable.Col(-1) == Texts(3) && myTable.Col(2) == Texts(3) && myTable.Row(3).Count() == 0);
    EXPECT_EQ(Stopped([this] { myTable.Rows(0); }), "clsDatFile.Rows out of bounds ( 0)");
    EXPECT_EQ(Stopped([this] { myTable.Cols(-1); }), "clsDatFile.Cols out of bounds (-1)");
    myTable.Rows(4); // The numbers alone: no storage follows them.
    myTable.Cols(3);
    myTable.Data(3, 0, "x");
    myTable.Data(0, 2, "x");
    EXPECT_EQ(Table(), "4x3: e|f|/a|b|/c|d|/||");
    EXPECT_TRUE(Save(dat).ends_with("\"c\",\"d\",\"\"\r\n\"\",\"\",\"\"\r\n"));
    myTable.Clear();
    EXPECT_EQ(Table(), "4x3: ||/||/||/||");
}
