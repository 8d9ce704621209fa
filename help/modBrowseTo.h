#pragma once
/// Hands files and addresses over to the desktop.
#include <string>

class Runtime;

namespace modBrowseTo {

/// Opens pTarget, the path of a file or a web address, with the program that the system has for it. Doesn't
/// report failure.
void BrowseTo(const Runtime &pRuntime, const std::string &pTarget);

/// Opens the help page from the folder "Help" beside the program. The page bears the name of the program's
/// file, else that of the product, else "index".
void BrowseToHelp(const Runtime &pRuntime);

} // namespace modBrowseTo
