#include "forms/ComboBox.h"
#include "tests/support/Program.h"
#include "tests/support/Scarcity.h"

using namespace std::string_literals;

namespace {

std::string formSwitch; ///< of the form of data files that is tried

using Step = void (*)(Program &);

void Open(Program &p) {
    p.Start(formSwitch).Open(p.Files().File("saved"));
}
void Pick(Program &p) {
    Open(p);
    p.Pick(0).Type("Name", "A text that is too long for a short one");
}
/// What a user can do, after some preparation.
const std::tuple<const char *, Step, Step> deeds[] = {
    {"start", [](Program &) {}, [](Program &p) { p.Start(formSwitch + " " + p.Files().File("saved")); }},
    {"open", Pick, [](Program &p) { p.Open(p.Files().File("saved")); }},
    {"pick", Open, [](Program &p) { p.Pick(1); }},
    {"type", Pick, [](Program &p) { p.Type("City", "A city with a very long name"); }},
    {"add", Open, [](Program &p) { p.Press("Add"); }},
    {"update", Pick, [](Program &p) { p.Press("Update"); }},
    {"move", Pick, [](Program &p) { p.Press("Move Down"); }},
    {"delete", Pick, [](Program &p) { p.Press("Delete"); }},
    {"save", Pick, [](Program &p) { p.SaveAs(p.Files().File("saved")); }},
#ifdef __linux__
    {"fail to save", Pick, [](Program &p) { WithFileLimit(0, [&] { p.SaveAs(p.Files().File("saved")); }); }},
#endif
    {"about", Pick, [](Program &p) { p.Choose("HelpAbout"); }}};

/// All that the user has: the windows, the content of the main one, and the file.
std::string StateOf(Program &p) {
    const std::vector<Form *> &shown = p.Script().Shown();
    return std::to_string(shown.size()) + (shown.empty() ? "" : p.Window()) + p.Files().Read("saved");
}

/// Whether the program has told of the lack once, and truly.
bool IsTold(Program &p, const std::string &pBefore) {
    const std::string &told = p.Script().Told();
    if (told.empty() || told.find('|') + 1 != told.size()) {
        return false;
    }
    if (told.find("can't be read: There is not enough memory for it.") != std::string::npos) {
        const char *const list = told.find("City") != std::string::npos ? "cbo21" : "cbo22";
        return told.starts_with("List file")
                   ? dynamic_cast<ComboBox &>(p.Main().Controls(list)).ListCount() == 0
                   : p.Script().Shown().empty() || p.Rows().empty();
    }
    return told.ends_with("incomplete.|") ? p.Files().Read("saved").empty() : StateOf(p) == pBefore;
}

/// Does the deed with pGranted allocations. Returns whether that was too few.
bool Lacks(const char *pTop, Step pPrepare, Step pDeed, long pGranted) {
    Program program;
    program.Files().Write("saved", CrLf(pTop + "A long text in the first cell,Rome,b\n\"\",\"\",c\n"s));
    program.Script().TakeAnyMessage();
    pPrepare(program);
    const std::string before = StateOf(program);
    Scarcity::granted = pGranted;
    Scarcity::hasCome = false;
    pDeed(program);
    Scarcity::granted = -1;
    EXPECT_TRUE(!Scarcity::hasCome || IsTold(program, before)) << program.Script().Told() << StateOf(program);
    EXPECT_TRUE(program.Script().Shown().size() != 1 || program.CloseWindow().ExitStatus())
        << "a form is left";
    return Scarcity::hasCome;
}

} // namespace

TEST(Memory, MayRunOutAtAnyPlace) {
    for (const auto &[word, top] : {std::pair("", "2,3\n"), {"/csv", ""}, {"/csvh", "x\n"}}) {
        formSwitch = word;
        for (const auto &[name, prepare, deed] : deeds) {
            for (const bool lasts : {false, true}) {
                Scarcity::lasts = lasts;
                for (long granted = 0; Lacks(top, prepare, deed, granted) && !HasFailure(); ++granted) {
                }
                EXPECT_FALSE(HasFailure()) << name << " " << word << (lasts ? ", lasting" : "");
            }
        }
    }
}
