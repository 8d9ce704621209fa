#include "forms/Runtime.h"

#include "forms/Control.h"
#include "system/Memory.h"

#include <algorithm>
#include <cstdlib>

std::string CommandText(const std::vector<std::string> &pWords) {
    std::string text;
    for (const std::string &word : pWords) {
        const bool holdsQuote = word.find('"') != std::string::npos;
        const bool needsQuotes = !holdsQuote && (word.empty() || word.find(' ') != std::string::npos);
        text += (text.empty() ? "" : " ") + (needsQuotes ? '"' + word + '"' : word);
    }
    return text;
}

Runtime::Runtime(::Desktop &pDesktop, AppRecord pApp, std::string pCommand)
    : myDesktop(pDesktop), myApp(std::move(pApp)), myCommand(std::move(pCommand)) {}

MessageAnswer Runtime::MsgBox(std::string_view pPrompt, MessageButtons pButtons,
                              std::optional<std::string_view> pTitle) const {
    return myDesktop.ShowMessage({pPrompt, pButtons, pTitle.value_or(myApp.ProductName)});
}

void Runtime::Stop(std::string_view pPrompt) const {
    MsgBox(pPrompt);
    End(1);
}

void Runtime::End(int pStatus) const {
    myDesktop.EndProcess(pStatus);
    std::abort(); // Not reached, but the compiler ignores [[noreturn]] on a virtual function.
}

void Runtime::Run(const std::function<void()> &pAct) const {
    if (!HasMemoryFor(pAct)) {
        RecoverFromLackOfMemory();
    }
}

void Runtime::RecoverFromLackOfMemory() const {
    const auto isShown = [](const std::unique_ptr<Form> &pForm) { return pForm->IsShown(); };
    if (std::none_of(myForms.begin(), myForms.end(), isShown)) {
        Stop("There is not enough memory to start the program.");
    }
    for (const std::unique_ptr<Form> &form : myForms) {
        for (const auto &control : form->Controls()) {
            control->Touch(); // The desktop may show what the user has typed in vain.
        }
    }
    MsgBox("There is not enough memory for this. Nothing has changed.");
}

Form &Runtime::NewForm() {
    myForms.push_back(std::make_unique<Form>(*this));
    return *myForms.back();
}

void Runtime::EndIfNoFormIsLoaded() const {
    const auto isLoaded = [](const std::unique_ptr<Form> &pForm) { return pForm->IsLoaded(); };
    if (std::none_of(myForms.begin(), myForms.end(), isLoaded)) {
        End();
    }
}
