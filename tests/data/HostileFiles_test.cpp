// Files that nobody means to open: damaged, huge, or no files at all. What takes more than one pass over a
// huge one meets the time limit of the tests.
#include "data/clsDatFile.h"

#include "platform/ComboBox.h"
#include "platform/Form.h"
#include "platform/Runtime.h"
#include "tests/support/ScriptedDesktop.h"
#include "tests/support/TemporaryFolder.h"
#include "ui/clsCombo.h"

#include <gtest/gtest.h>

#ifndef _WIN32
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace std::string_literals;

namespace {

constexpr std::size_t fiveMillion = 5'000'000;

class HostileFiles : public testing::Test {
protected:
    /// Loads the file in the form pFmt and gives the number of rows and columns.
    std::string SizeOf(std::int16_t pFmt, const std::string &pName) {
        myTable.FileName(pName);
        myTable.Fmt(pFmt);
        myTable.Load();
        return std::to_string(myTable.Rows()) + "x" + std::to_string(myTable.Cols());
    }
    std::string Size(std::int16_t pFmt, const std::string &pBytes) {
        return SizeOf(pFmt, myFiles.Write("table", pBytes));
    }

    TemporaryFolder myFiles;
    ScriptedDesktop myDesktop;
    Runtime myRuntime{myDesktop, {}, ""};
    clsDatFile myTable{myRuntime};
};

} // namespace

TEST_F(HostileFiles, AnAnnouncedSizeCostsNothing) {
    EXPECT_EQ(Size(0, "32767,32767\r\na,b\r\n"), "32767x32767");
    myTable.Data(32766, 32766, "there is room");
    EXPECT_EQ(myTable.Data(32766, 32766), "there is room");
    EXPECT_EQ(Size(0, std::string(fiveMillion, '9') + ",2\r\na,b\r\n"), "0x2");
    EXPECT_NE(myTable.Fault().find(" announces far too many records."), std::string::npos);
    EXPECT_EQ(Size(0, "32767,0" + std::string(fiveMillion, '\r')), "32767x0");
}

TEST_F(HostileFiles, NulBytesStrayBytesAndMixedLineEndsAreTakenAsTheyStand) {
    EXPECT_EQ(Size(2, "\xFF\0\r\n\"\0\",\xFF\0\x1A z\r"s), "1x2");
    EXPECT_EQ(myTable.Data(0, 0) + "|" + myTable.Data(0, 1), "\0|\xFF\0\x1A z"s);
    EXPECT_EQ(Size(0, "4,1\ra\r\n\"b\n\"\r\r\nc\r\n"), "4x1"); // Row 2 has no words, and reading stops.
    EXPECT_EQ(myTable.Col(0), (std::vector<std::string>{"a", "b\n", "", ""}));
    EXPECT_EQ(Size(1, "a\r\n\"b\n\"\rc\r\nd\n"), "3x1"); // An LF outside a word begins one that never ends.
    EXPECT_EQ(myTable.Col(0), (std::vector<std::string>{"a", "b\n", "c"}));
}

TEST_F(HostileFiles, HugeLinesAreReadOrRefused) {
    const std::string word(fiveMillion, 'x');
    for (const std::string &line : {word, '"' + word + '"', '"' + std::string(fiveMillion, ' ') + "x\""}) {
        EXPECT_EQ(Size(1, line + "\r\nx\r\nx,x"), "2x1");
        EXPECT_EQ(Size(2, line + "\r\nx,x\r\n" + line), "1x2");
        EXPECT_EQ(Size(0, line + "\r\nx"), "0x0");
    }
    const std::string tooWide = std::string(fiveMillion, ',') + 'x';
    EXPECT_EQ(Size(1, tooWide), "0x0");
    EXPECT_FALSE(myTable.WasRead());
    EXPECT_EQ(Size(0, "1,2\r\n" + tooWide), "1x2");
    EXPECT_EQ(myTable.Data(0, 1), "");
}

TEST_F(HostileFiles, AHugeCellComesBack) {
    std::string cell;
    while (cell.size() < 2 * fiveMillion) {
        cell += "\" , \"\" \n";
    }
    cell += '.';
    myTable.Rows(1);
    myTable.Cols(2);
    myTable.Clear();
    myTable.Data(0, 1, cell);
    myTable.FileName(myFiles.File("table"));
    myTable.Save();
    EXPECT_EQ(SizeOf(0, myFiles.File("table")), "1x2");
    EXPECT_TRUE(myTable.Data(0, 1) == cell);
}

TEST_F(HostileFiles, AListOf200000EntriesIsSearchedToItsEnd) {
    std::string lines;
    for (int i = 0; i < 200000; ++i) {
        lines += "Entry " + std::to_string(i) + "\r\n";
    }
    auto &box = myRuntime.NewForm("form").Add<ComboBox>("box");
    clsCombo combo;
    combo.cb(box);
    combo.Mode(1);
    combo.LoadFromTxtFile(myFiles.Write("list.txt", lines));
    EXPECT_EQ(combo.Fault(), "");
    EXPECT_EQ(box.FindString("ENTRY 199999"), 199999);
    box.Text("entry 200000");
    EXPECT_FALSE(box.MayLoseFocus());
}

#ifndef _WIN32
TEST_F(HostileFiles, WhatIsNoFileOrMayNotBeReadIsRefusedWithoutWaiting) {
    ASSERT_EQ(mkfifo(myFiles.File("pipe").c_str(), 0600), 0);
    const std::string locked = myFiles.Write("locked", "1,1\r\nx\r\n");
    chmod(locked.c_str(), 0);
    for (const std::string &name : {myFiles.File("pipe"), myFiles.File("none"), "/dev/zero"s, locked}) {
        if (access(name.c_str(), R_OK) == 0 && name == locked) {
            continue; // This user may read every file.
        }
        for (std::int16_t fmt = 0; fmt <= 2; ++fmt) {
            EXPECT_EQ(SizeOf(fmt, name), "0x0") << name;
            EXPECT_FALSE(myTable.WasRead()) << name;
        }
    }
}
#endif
