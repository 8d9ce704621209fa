#pragma once
/// Lower case by a table of Unicode's simple mappings (UnicodeData.txt, field 13, version 15). Windows' own
/// rule knows fewer, and case has to be the same on all systems.

/// pCharacter in lower case; itself if it has none.
char32_t LowerCaseByTable(char32_t pCharacter);
