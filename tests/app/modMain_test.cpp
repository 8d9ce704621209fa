#include "app/modMain.h"

#include "app/modArgcArgv.h"
#include "tests/support/Program.h"

#ifdef __linux__
#include <sys/stat.h>
#endif

const std::string caption = "Norvo Data File Editor";
const std::string startFolder = std::filesystem::is_directory("c:\\") ? "c:\\" : "";

TEST(Start, KnowsItsFileVersionAndCommandLine) {
    const AppRecord app = MakeAppRecord("/usr/lib/Edit.v2.exe");
    EXPECT_EQ(app.Path + "|" + app.EXEName + "|" + app.Comments, "/usr/lib|Edit.v2|Easily edit data files.");
    EXPECT_EQ(MakeAppRecord("C:/a/Norvo-1.2").EXEName + "|" + MakeAppRecord("/b/X.ExE").EXEName,
              "Norvo-1.2|X");
    EXPECT_EQ(ProgramFolder("/usr/lib/Edit"), "/usr/lib");
    EXPECT_EQ(CommandText({"a", "b c", "", "d\"e f"}),
              R"(a "b c" "" d"e f)"); // where the system has words only
                                      // clang-format off
    for (const auto &[command, words] : {std::pair("  ", ""), {"a   b", "a;b;"}, {R"("a b" c)", "a b;c;"}, {R"("a"b)", "a;b;"},
             {R"("")", ";"}, {R"(a"b c"d)", "ab;cd;"}, {R"("a b )", "a b ;"}, {"a\tb ", "a\tb;"}}) {
        // clang-format on
        std::string found = modArgcArgv::argv(command, 0);
        for (int index = 1; index <= modArgcArgv::argc(command); ++index) {
            found += modArgcArgv::argv(command, index) + ";";
        }
        EXPECT_EQ(found + modArgcArgv::argv(command, modArgcArgv::argc(command) + 1), words) << command;
    }
}

TEST(Start, ReadsFilesTitleAndFormatFromTheCommandLine) {
    const std::string row = R"("x","","")";
    // clang-format off
    const std::tuple<std::string, std::string, std::string, std::string> cases[] = {
        {"", caption, "|", "1,3"}, {"NorvoEditDat.dat none.dat", caption, "./|none.dat", "1,3"}, // found beside the program
        {R"(/T "My Title" none.dat)", "My Title", "./|none.dat", "1,3"}, {"none.dat -t", "", "./|none.dat", "1,3"},
        {"-t /v /v /csvh -csv none.dat", "/v", "./|none.dat", row}, {"-V /csv none.dat", caption, "./|none.dat", "1,3"},
        {"/CSV none.dat", caption, "./|none.dat", row}, {"-CsvH /csv", caption, "|", row},
        {"/csv /csvh", caption, "|", R"("Name","City","Kind")"}, {"/csvx", caption, "/|csvx", "1,3"}}; // a file's name
    // clang-format on
    for (const auto &[command, title, name, firstLine] : cases) {
        Program program;
        EXPECT_EQ(program.Start(command).Window(), "Name[]City[]Kind[] A----C");
        EXPECT_EQ(program.Main().Caption(), title);
        EXPECT_EQ(LookOf(program.Main().Controls("mnuFileOpen")).ends_with("1 "), name == "|") << command;
        // Saving shows the file's name in the dialog, and the format in what it writes.
        program.Type(0, "x").Press("Add").SaveAs(program.files.File("saved"));
        const char *const type =
            firstLine == "1,3" ? "|Data (*.dat)|*.dat" : "|Comma Separated Values (*.csv)|*.csv";
        EXPECT_EQ(program.script.asked, (name == "|" ? startFolder : "") + (name + type)) << command;
        EXPECT_TRUE(program.files.Read("saved").starts_with(firstLine + "\r\n")) << command;
    }
}

TEST(Start, EndsWithOneMessageOnABadCommandLineOrSpecification) {
    Program program;
    const auto ends = [&](const std::string &pCommand, const std::string &pMessage,
                          const std::string &pTitle) {
        const auto buttons = pTitle == caption ? MessageButtons::CriticalStop : MessageButtons::Ok;
        program.script.Expect(pMessage, pTitle, buttons);
        EXPECT_EQ(program.Start(pCommand).ExitStatus(), 1);
    };
    for (const char *command : {"a b c", "\"\" b /csv c", "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17"}) {
        ends(command, "Usage: \r\nNorvoEditDat [[specfile] datfile] [/t title] [/csv|/csvh]", "NorvoEditDat");
    }
    const std::string spec =
        program.files.File("spec.csv"); // The program sets the title of the command line later.
    ends("/t Title \"no spec\" a.dat",
         "Specification file: " + program.files.Path() + "\\no spec doesn't exist.", caption);
    // clang-format off
    const std::pair<std::string, std::string> cases[] = {{"", "It should have 4 columns."}, {"0,4\n", "It has no rows."},
        {"2,4\na,1,0,-\n", "File " + spec + " is too short. Its first line announces 2 records, but it holds only 1."},
        {"2,4\na,1,0,-\nb,1,0\n", "Row 2 is empty: its fields are, or its line or one before it doesn't have 4 fields."},
        {"2,4\n,1,0,-\na,1x,0,-\n", "Row 2 has the width \"1x\", which is not a number from -32768 to 32767."},
        {"1,4\na,1,-32769,x\n", "Row 1 has the mode \"-32769\", which is beyond -32768 to 32767."},
        {"2,4\na,20000,x,-\nb,20000,0,-\n", "Row 2 brings the sum of the widths beyond -32768 to 32767."}};
    // clang-format on
    for (const auto &[bytes, fault] : cases) {
        program.files.Write("spec.csv", CrLf(bytes));
        ends("/csv /t Title " + spec + " a.dat", "Error in specification file:\n" + spec + "\n" + fault,
             caption);
    }
}

#ifdef __linux__
TEST(Start, SaysWhyAFileThatIsThereCanNotBeRead) {
    Program program;
    const std::string pipe = program.files.File("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0); // Nobody writes to it: a reader that waits hangs.
    for (const auto &[name, reason] : {std::pair(pipe, "Not a regular file"),
                                       {program.files.File(std::string(256, 'n')), "File name too long"},
                                       {"/proc/self/mem", "Input/output error"}}) {
        const std::string fault = name + " can't be read: " + reason + ".";
        program.files.Write("NorvoEditDat.dat", "1,4\r\nA,100,1," + name + "\r\n");
        program.script.Expect(
            "List file " + fault + " The list of \"A\" is empty, and the field takes any text.", caption);
        program.script.Expect("File " + fault, "T");
        EXPECT_EQ(program.Start("/t T " + name).Type(0, "any").Press("Add").Window(), "A[any] any A---SC");
    }
}
#endif
