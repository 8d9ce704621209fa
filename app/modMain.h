#pragma once
/// The program's entry point. It takes files, title and format from the command line, owns the forms, and
/// runs the start sequence.
#include <memory>
#include <string>
#include <vector>

class Runtime;
class frmAbout;
class frmMain;

class modMain {
public:
    explicit modMain(Runtime &pRuntime);
    ~modMain();
    modMain(const modMain &) = delete;
    modMain &operator=(const modMain &) = delete;

    /// Reads the command line, loads the main window and shows it. The caller then runs the event loop. Ends
    /// the program when the command line or the specification is bad.
    void Main();

    std::string gSpecFile; ///< the specification file
    std::string gDatFile;  ///< the data file named on the command line, or empty
    std::string gTitle;    ///< the main window's title
    bool gCanOpen =
        false; ///< the command line names no file: File Open is enabled, and nothing is opened at start

private:
    /// Reads the switches, and returns the other words of the command line in their order. Stops as soon as
    /// there is one word too many.
    std::vector<std::string> ReadWords();
    void SettleFiles(const std::vector<std::string> &args);
    void StartWindow();
    [[noreturn]] void Usage() const;

    Runtime &myRuntime;
    std::string fmtArg = "0"; ///< the format of the data file, as text: see clsDatFile::Fmt
    std::unique_ptr<frmAbout> myAbout;
    std::unique_ptr<frmMain> myMain;
};
