#pragma once
/// The command NorvoCheckDat: reads its words, checks, copies, and prints what was found.
#include <iosfwd>
#include <string>
#include <vector>

namespace modCheck {

// The statuses that Main returns.
inline constexpr int statusGood = 0;  ///< nothing is lost, and nothing would change
inline constexpr int statusFound = 1; ///< something is
inline constexpr int statusImpossible =
    2; ///< the words are wrong, a file can't be read, or a copy not be made

/// Runs the command with pWords, the words after its name. Findings go to pOut, messages to pErrors. Files of
/// the specification are also looked for in pProgramFolder. pVersion is what --version says.
int Main(const std::vector<std::string> &pWords, const std::string &pProgramFolder,
         const std::string &pVersion, std::ostream &pOut, std::ostream &pErrors);

} // namespace modCheck
