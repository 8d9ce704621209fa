#include "tests/support/ScriptedDesktop.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

constexpr int buttonsOkAndCancel = 1;

std::string InWords(const Message &pMessage) {
    return "message " + testing::PrintToString(pMessage.prompt) + ", buttons " +
           std::to_string(pMessage.buttons) + ", title " + testing::PrintToString(pMessage.title);
}

std::string DialogInWords(bool pIsSave) {
    return pIsSave ? "file dialog to save" : "file dialog to open";
}

} // namespace

ScriptedDesktop::~ScriptedDesktop() {
    for (const Step &step : myScript) {
        ADD_FAILURE() << "Expected, but never came: " << step.what;
    }
}

void ScriptedDesktop::Expect(const Message &pMessage, int pAnswer, Meanwhile pMeanwhile) {
    myScript.push_back({InWords(pMessage), pAnswer, {}, std::move(pMeanwhile)});
}

void ScriptedDesktop::ExpectOpen(std::optional<std::string> pPath, Meanwhile pMeanwhile) {
    myScript.push_back({DialogInWords(false), answerOk, std::move(pPath), std::move(pMeanwhile)});
}

void ScriptedDesktop::ExpectSave(std::optional<std::string> pPath, Meanwhile pMeanwhile) {
    myScript.push_back({DialogInWords(true), answerOk, std::move(pPath), std::move(pMeanwhile)});
}

std::optional<ScriptedDesktop::Step> ScriptedDesktop::Take(const std::string &pWhat) {
    if (myScript.empty() || myScript.front().what != pWhat) {
        ADD_FAILURE() << "Nobody expected this:  " << pWhat << "\nwhat was expected next: "
                      << (myScript.empty() ? "nothing" : myScript.front().what);
        return std::nullopt;
    }
    Step step = std::move(myScript.front());
    myScript.pop_front();
    if (step.meanwhile) {
        step.meanwhile();
    }
    return step;
}

int ScriptedDesktop::ShowMessage(const Message &pMessage) {
    const std::optional<Step> step = Take(InWords(pMessage));
    // The test has failed already without a step; what the program does least on is the answer then.
    const int unexpected = pMessage.buttons == buttonsOkAndCancel ? answerCancel : answerOk;
    return step ? step->answer : unexpected;
}

std::optional<std::string> ScriptedDesktop::ShowFileDialog(const Form & /*pForm*/,
                                                           const FileDialogRequest &pRequest) {
    myDialogs.push_back(pRequest);
    const std::optional<Step> step = Take(DialogInWords(pRequest.isSave));
    return step ? step->path : std::nullopt;
}

void ScriptedDesktop::ShowForm(Form &pForm) {
    std::erase(myShown, &pForm);
    myShown.push_back(&pForm);
}

void ScriptedDesktop::CloseForm(Form &pForm) {
    std::erase(myShown, &pForm);
    ++myClosedCount;
}

bool ScriptedDesktop::IsShown(const Form &pForm) const {
    return std::find(myShown.begin(), myShown.end(), &pForm) != myShown.end();
}

void ScriptedDesktop::OpenTarget(const std::string &pTarget) {
    myTargets.push_back(pTarget);
}

void ScriptedDesktop::EndProcess(int pStatus) {
    throw ProgramEnded{pStatus};
}
