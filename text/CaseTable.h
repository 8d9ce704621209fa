#pragma once
/// Lower case by a table of Unicode's simple mappings (UnicodeData.txt, field 13, version 15). The systems'
/// own rules differ from one another, and case has to be the same everywhere.

/// pCharacter in lower case; itself if it has none.
char32_t LowerCase(char32_t pCharacter);
