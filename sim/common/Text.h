// Parses words and numbers of text files and commands.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace udsim {

/// Removes blanks, tabs and carriage returns at both ends.
std::string trim(std::string_view text);
/// Returns the first word, and the trimmed rest.
std::pair<std::string, std::string> splitFirstWord(std::string_view text);
/// Returns the trimmed pieces between the separators; a text without a separator is one piece.
std::vector<std::string> split(std::string_view text, char separator);
/// Returns the lines without their line feeds; a line feed at the end adds no empty line.
std::vector<std::string> splitLines(std::string_view text);
/// Parses a decimal ("19") or hexadecimal ("0x13") integer up to `highest`; nothing for any other text.
std::optional<uint64_t> parseNumber(std::string_view text, uint64_t highest);
/// Parses a time with its unit ("250ms", "8s", "2m"), at most a day, to milliseconds; nothing for any other
/// text.
std::optional<uint64_t> parseDuration(std::string_view text);
/// Parses "yes" or "no"; nothing for any other text.
std::optional<bool> parseYesNo(std::string_view text);

} // namespace udsim
