#pragma once
/// The entry: settles from the command line which files, title and format a run has, owns the forms, and runs
/// the start sequence.
#include <array>
#include <memory>
#include <string>

class Runtime;
class frmAbout;
class frmMain;

class modMain {
public:
    explicit modMain(Runtime &pRuntime);
    ~modMain();
    modMain(const modMain &) = delete;
    modMain &operator=(const modMain &) = delete;

    /// Reads the command line, loads the main window and shows it; the event loop is the caller's. Ends the
    /// program when the command line or the specification is bad.
    void Main();

    std::string gSpecFile; ///< the specification file
    std::string gDatFile;  ///< the data file named on the command line, or empty
    std::string gTitle;    ///< the main window's title
    bool gCanOpen = false; ///< no file was named: File Open is enabled, and none is opened at start

private:
    /// The words of the command line that are no switches. All are counted, the first 21 kept.
    struct Positional {
        std::array<std::string, 21> args;
        int nArgs = 0;
    };

    Positional ReadWords();
    void SettleFiles(const Positional &pWords);
    void StartWindow();
    [[noreturn]] void Usage() const;

    Runtime &myRuntime;
    std::string fmtArg = "0"; ///< "0" .dat, "1" CSV, "2" CSV with a header line
    std::unique_ptr<frmAbout> myAbout;
    std::unique_ptr<frmMain> myMain;
};
