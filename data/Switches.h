#pragma once
/// The switches of a command line, as the editor and the checker read them. Which ones there are is up to
/// each program.
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// What pWord, a word of a command line, calls a switch: "csv" of "/CSV" and "-csv". Empty if it is no
/// switch.
std::string SwitchName(std::string_view pWord);

/// The format that the switch pName chooses, one of clsDatFile's. Null if it chooses none.
std::optional<std::int16_t> SwitchFormat(std::string_view pName);
