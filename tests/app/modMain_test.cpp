#include "app/modMain.h"

#include "tests/support/Program.h"

#ifdef __linux__
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace std::string_literals;

const std::string caption = "Norvo Data File Editor";

TEST(Start, ReadsFilesTitleAndFormatFromTheCommandLine) {
    const std::string row = R"("x","","")";
    std::string many = "none.dat";
    for (int i = 0; i < 200'000; ++i) {
        many += " /t x";
    }
    const std::tuple<const char *, std::string, const char *, std::string> cases[] = {
        {"", caption, "", "1,3"},
        {"NorvoEditDat.dat none.dat", caption, "none.dat", "1,3"}, // found beside the program
        {R"(/T "My Title" none.dat)", "My Title", "none.dat", "1,3"},
        {"none.dat -t", "", "none.dat", "1,3"},
        {"/v /csv none.dat", caption, "none.dat", "1,3"},
        {"/CSV none.dat", caption, "none.dat", row},
        {"/csv /csvh", caption, "", R"("Name","City","Kind")"},
        {"-CsvH /csv", caption, "", row},
        {"/csvx", caption, "csvx", "1,3"},       // no switch, so a file's name
        {many.c_str(), "x", "none.dat", "1,3"}}; // A walk for each word runs into the tests' time limit.
    for (const auto &[command, title, dataFile, firstLine] : cases) {
        Program program;
        // Saving shows the file's name in the dialog, and the format in what it writes.
        program.Start(command).Type("Name", "x").Press("Add").SaveAs(program.Files().File("saved"));
        EXPECT_EQ(program.Main().Caption(), title) << command;
        EXPECT_EQ(program.Script().Dialogs().back().name, dataFile) << command;
        EXPECT_EQ(program.Script().Dialogs().back().pattern, firstLine == "1,3" ? "*.dat" : "*.csv");
        EXPECT_TRUE(program.Files().Read("saved").starts_with(firstLine + "\r\n")) << command;
    }
}

TEST(Start, EndsWithOneMessageOnABadCommandLineOrSpecification) {
    const std::string usage = "Usage: \r\nNorvoEditDat [[specfile] datfile] [/t title] [/csv|/csvh]";
    for (const char *command : {"a b c", "\"\" b /csv c", "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17"}) {
        Program program;
        program.Script().Expect({usage, MessageButtons::Ok, "NorvoEditDat"});
        EXPECT_EQ(program.Start(command).ExitStatus(), 1);
    }
    // The program sets the title of the command line only later.
    Program program;
    program.Script().Expect({"Specification file: " + program.Files().Path() + "\\no spec doesn't exist.",
                             MessageButtons::CriticalStop, caption});
    EXPECT_EQ(program.Start("/t Title \"no spec\" a.dat").ExitStatus(), 1);
    const std::string spec = program.Files().Write("spec.csv", "0,4\r\n");
    program.Script().Expect({"Error in specification file:\n" + spec + "\nIt has no rows.",
                             MessageButtons::CriticalStop, caption});
    EXPECT_EQ(program.Start("/csv /t Title \"" + spec + "\" a.dat").ExitStatus(), 1);
}

#ifdef __linux__
TEST(Start, SaysWhyAFileThatIsThereCanNotBeRead) {
    Program program;
    const TemporaryFolder &files = program.Files();
    ASSERT_EQ(mkfifo(files.File("pipe").c_str(), 0600), 0); // Nobody writes to it: a reader that waits hangs.
    ASSERT_EQ(symlink("loop", files.File("loop").c_str()), 0);
    for (const auto &[name, reason] : {std::pair("/dev/zero"s, "Not a regular file"),
                                       {files.File("pipe"), "Not a regular file"},
                                       {files.File("loop"), "Too many levels of symbolic links"},
                                       {files.File(std::string(256, 'n')), "File name too long"},
                                       {"/proc/self/mem", "Input/output error"}}) {
        program.Files().Write("NorvoEditDat.dat", "1,4\r\nA,100,1," + name + "\r\n");
        program.Script().Expect({"List file " + name + " can't be read: " + reason +
                                     ". The list of \"A\" is empty, and the field takes any text.",
                                 MessageButtons::Ok, caption});
        program.Script().Expect(
            {"File " + name + " can't be read: " + reason + ".", MessageButtons::Ok, "T"});
        program.Start("/t T " + name).Type("A", "any").Press("Add");
        EXPECT_EQ(program.Window(), "T\nA[any]\n  any\nAdd (Move Up) (Delete) (Move Down) Save As Cancel\n");
    }
}
#endif
