#include "platform/Runtime.h"

#include "app/VersionRecord.h"

#include <algorithm>
#include <cstdlib>

AppRecord MakeAppRecord(const std::string &pProgramFile) {
#ifdef _WIN32
    const std::size_t nameAt = pProgramFile.find_last_of("/\\") + 1;
#else
    const std::size_t nameAt = pProgramFile.find_last_of('/') + 1;
#endif
    const std::string name = pProgramFile.substr(nameAt);
    const std::size_t dot = name.find_last_of('.');
    const bool hasExtension = dot != std::string::npos && dot > 0;

    AppRecord app;
    app.Path = pProgramFile.substr(0, nameAt == 0 ? 0 : nameAt - 1);
    app.EXEName = hasExtension ? name.substr(0, dot) : name;
    app.ProductName = versionRecord::productName;
    app.FileDescription = versionRecord::fileDescription;
    app.Comments = versionRecord::comments;
    app.LegalCopyright = versionRecord::legalCopyright;
    app.Major = versionRecord::versionMajor;
    app.Minor = versionRecord::versionMinor;
    app.Revision = versionRecord::versionRevision;
    return app;
}

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

int Runtime::MsgBox(const std::string &pPrompt, int pButtons,
                    const std::optional<std::string> &pTitle) const {
    return myDesktop.ShowMessage({pPrompt, pButtons, pTitle.value_or(myApp.ProductName)});
}

void Runtime::End(int pStatus) const {
    myDesktop.EndProcess(pStatus);
    std::abort(); // Not reached, but the compiler does not believe that of a virtual function.
}

Form &Runtime::NewForm(const std::string &pName) {
    myForms.push_back(std::make_unique<Form>(*this, pName));
    return *myForms.back();
}

void Runtime::EndIfNoFormIsLoaded() const {
    const auto isLoaded = [](const std::unique_ptr<Form> &pForm) { return pForm->IsLoaded(); };
    if (std::none_of(myForms.begin(), myForms.end(), isLoaded)) {
        End();
    }
}
