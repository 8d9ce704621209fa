#pragma once
/// The command NorvoCheckDat: its words, what it prints, and its status.
#include "platform/Runtime.h"

#include <string>
#include <vector>

/// What the command prints, and its exit status: 0 if nothing is lost or changed, 1 if something is, 2 if the
/// command line is wrong, a file can't be read, or the copy can't be written.
struct Outcome {
    int status = 0;
    std::string output;
    std::string errors;
};

/// Runs the command with pWords, the words after the program's name as the shell gives them. pApp says where
/// the program is; pVersion is its version.
Outcome RunCheck(const std::vector<std::string> &pWords, const AppRecord &pApp, const std::string &pVersion);
