#include "tests/support/Program.h"

namespace {

/// What a user can do: first, once a file is open, and once a row is picked and a text is typed.
enum class When { First, Open, Picked };
// clang-format off
const std::pair<When, void (*)(Program &)> deeds[] = {
    {When::First, [](Program &p) { p.Start("/csvh " + p.files.File("saved")); }},
    {When::Open, [](Program &p) { p.Pick(1); }}, {When::Open, [](Program &p) { p.Press("Add"); }},
    {When::Picked, [](Program &p) { p.Press("Add"); }}, {When::Picked, [](Program &p) { p.Press("Del"); }},
    {When::Picked, [](Program &p) { p.Press("MoveDown"); }}, {When::Picked, [](Program &p) { p.Choose("HelpAbout"); }},
    {When::Picked, [](Program &p) { p.Type(1, "A city with a very long name"); }},
    {When::Picked, [](Program &p) { p.Open(p.files.File("saved")); }},
#ifdef __linux__
    {When::Picked, [](Program &p) { WithFileLimit(0, [&] { p.SaveAs(p.files.File("saved")); }); }},
#endif
    {When::Picked, [](Program &p) { p.SaveAs(p.files.File("saved")); }}};
// clang-format on

/// All that the user has: the windows, the content of the main one, and the file.
std::string StateOf(Program &p) {
    const std::size_t shown = p.script.shown.size();
    return std::to_string(shown) + (shown == 0 ? "" : p.Window()) + p.files.Read("saved");
}

/// Whether the program has told of the lack once, and truly.
bool IsTold(Program &p, const std::string &pBefore) {
    const std::string &told = p.script.told;
    const auto tells = [&told](const char *pWords) { return told.find(pWords) != std::string::npos; };
    if (told.empty() || told.find('|') + 1 != told.size()) {
        return false;
    }
    if (tells("List file")) {
        return dynamic_cast<ComboBox &>(p.Main().Controls(tells("City") ? "cbo21" : "cbo22")).ListCount() ==
               0;
    }
    if (tells("can't be read: There is not enough memory for it.")) {
        return p.script.shown.empty() || p.List().ListItems.Count() == 0;
    }
    return tells("incomplete.") ? p.files.Read("saved").empty() : StateOf(p) == pBefore;
}

/// Does the deed with pGranted allocations. Returns whether that was too few.
bool Lacks(When pWhen, void (*pDeed)(Program &), long pGranted) {
    Program program;
    program.files.Write("saved", "titles\r\nA long text in the first cell,Rome,b\r\n\"\",\"\",c\r\n");
    program.script.takesAnyMessage = true;
    if (pWhen != When::First) {
        program.Start("/csvh").Open(program.files.File("saved"));
    }
    if (pWhen == When::Picked) {
        program.Pick(0).Type(0, "A text that is too long for a short one");
    }
    const std::string before = StateOf(program);
    Scarcity::granted = pGranted;
    Scarcity::hasCome = false;
    pDeed(program);
    Scarcity::granted = -1;
    EXPECT_TRUE(!Scarcity::hasCome || IsTold(program, before)) << program.script.told << StateOf(program);
    const bool isOpen = program.script.shown.size() == 1;
    EXPECT_TRUE(!isOpen || program.Act([&] { program.Main().UserCloses(); }).ExitStatus())
        << "a form is left";
    return Scarcity::hasCome;
}

} // namespace

TEST(Memory, MayRunOutAtAnyPlace) {
    for (const auto &[when, deed] : deeds) {
        for (const bool lasts : {false, true}) {
            Scarcity::lasts = lasts;
            for (long granted = 0; Lacks(when, deed, granted) && !HasFailure(); ++granted) {
            }
        }
    }
}
