#include "platform/Runtime.h"

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

MessageAnswer Runtime::MsgBox(const std::string &pPrompt, MessageButtons pButtons,
                              const std::optional<std::string> &pTitle) const {
    return myDesktop.ShowMessage({pPrompt, pButtons, pTitle.value_or(myApp.ProductName)});
}

void Runtime::Stop(const std::string &pPrompt) const {
    MsgBox(pPrompt);
    End(1);
}

void Runtime::End(int pStatus) const {
    myDesktop.EndProcess(pStatus);
    std::abort(); // Not reached. The compiler ignores that a virtual function never returns.
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
