#include "tests/support/ScriptedDesktop.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace {

const Message question{"Are you sure?", 1, "Editor"};

} // namespace

// The other tests trust the script to fail them; this one shows that it does.
TEST(ScriptedDesktop, FailsOnWhateverIsNotInTheScript) {
    EXPECT_NONFATAL_FAILURE(ScriptedDesktop().ShowMessage(question), "Nobody expected");
    EXPECT_NONFATAL_FAILURE(ScriptedDesktop().Expect(question), "never came");
    for (const Message &other : {Message{"Are you sure", 1, "Editor"}, Message{"Are you sure?", 0, "Editor"},
                                 Message{"Are you sure?", 1, "editor"}}) {
        ScriptedDesktop desktop;
        desktop.Expect(question, ScriptedDesktop::answerOk);
        EXPECT_NONFATAL_FAILURE(desktop.ShowMessage(other), "Nobody expected");
        desktop.ShowMessage(question);
    }
}

TEST(ScriptedDesktop, AnswersInTheOrderOfTheScript) {
    ScriptedDesktop desktop;
    int seen = 0;
    desktop.Expect(question, ScriptedDesktop::answerCancel, [&] { ++seen; });
    desktop.Expect(question);
    EXPECT_EQ(desktop.ShowMessage(question), ScriptedDesktop::answerCancel);
    EXPECT_EQ(seen, 1);
    EXPECT_EQ(desktop.ShowMessage(question), ScriptedDesktop::answerOk);
}
