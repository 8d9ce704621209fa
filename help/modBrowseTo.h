#pragma once
/// The hand-over of files and addresses to the desktop.
#include <string>

class Runtime;

namespace modBrowseTo {

/// Hands pTarget, a file's path or a web address, to what the system opens it with. Whether anything opened
/// is not looked at.
void BrowseTo(const Runtime &pRuntime, const std::string &pTarget);

/// Opens the help page: the first that is there of the pages in the folder "Help" beside the program that are
/// named after the program's file, after the product, and "index".
void BrowseToHelp(const Runtime &pRuntime);

} // namespace modBrowseTo
