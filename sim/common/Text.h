// Words and numbers of the text files and commands.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace udsim {

/// Without the blanks, tabs and carriage returns at both ends.
std::string trim(std::string_view text);
/// The first word, and the rest without the blanks around it.
std::pair<std::string, std::string> splitFirstWord(std::string_view text);
/// The pieces between the separators, trimmed; a text without any is one piece.
std::vector<std::string> split(std::string_view text, char separator);
/// The lines, without their line feeds; a line feed at the end opens no further line.
std::vector<std::string> splitLines(std::string_view text);
/// A whole decimal number ("19") or a hexadecimal one ("0x13") up to `highest`; nothing for anything else.
std::optional<uint64_t> parseNumber(std::string_view text, uint64_t highest);
/// A time with its unit, in milliseconds: "250ms", "8s", "2m", at most a day; nothing for anything else.
std::optional<uint64_t> parseDuration(std::string_view text);
/// "yes" or "no"; nothing for anything else.
std::optional<bool> parseYesNo(std::string_view text);

} // namespace udsim
