#include "data/Switches.h"

#include "data/clsDatFile.h"
#include "text/Text.h"

std::string SwitchName(std::string_view pWord) {
    return pWord.starts_with('/') || pWord.starts_with('-') ? LCase(pWord.substr(1)) : std::string();
}

std::optional<std::int16_t> SwitchFormat(std::string_view pName) {
    if (pName == "csv") {
        return clsDatFile::fmtCsv;
    }
    return pName == "csvh" ? std::optional(clsDatFile::fmtCsvWithHeaders) : std::nullopt;
}
