#include "Text.h"

#include <charconv>

namespace udsim {

namespace {

constexpr std::string_view BLANKS = " \t\r";
constexpr uint64_t MILLISECONDS_A_DAY = 86'400'000;

} // namespace

std::string trim(std::string_view text)
{
    const size_t first = text.find_first_not_of(BLANKS);
    if (first == std::string_view::npos) {
        return {};
    }
    return std::string(text.substr(first, text.find_last_not_of(BLANKS) - first + 1));
}

std::pair<std::string, std::string> splitFirstWord(std::string_view text)
{
    const std::string whole = trim(text);
    const size_t end = whole.find_first_of(BLANKS);
    if (end == std::string::npos) {
        return {whole, {}};
    }
    return {whole.substr(0, end), trim(std::string_view(whole).substr(end))};
}

std::vector<std::string> split(std::string_view text, char separator)
{
    std::vector<std::string> pieces;
    for (size_t start = 0;;) {
        const size_t end = text.find(separator, start);
        pieces.push_back(trim(text.substr(start, end - start)));
        if (end == std::string_view::npos) {
            return pieces;
        }
        start = end + 1;
    }
}

std::vector<std::string> splitLines(std::string_view text)
{
    std::vector<std::string> lines;
    for (size_t start = 0; start < text.size();) {
        const size_t end = text.find('\n', start);
        lines.emplace_back(text.substr(start, end - start));
        if (end == std::string_view::npos) {
            break;
        }
        start = end + 1;
    }
    return lines;
}

std::optional<uint64_t> parseNumber(std::string_view text, uint64_t highest)
{
    int base = 10;
    if (text.starts_with("0x")) {
        base = 16;
        text.remove_prefix(2);
    }
    uint64_t value = 0;
    const char* const begin = text.data();
    const char* const end = begin + text.size();
    const auto [stopped, failure] = std::from_chars(begin, end, value, base);
    if (failure != std::errc() || stopped != end || value > highest) {
        return std::nullopt;
    }
    return value;
}

std::optional<uint64_t> parseDuration(std::string_view text)
{
    const size_t digits = text.find_first_not_of("0123456789");
    if (digits == 0 || digits == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view unit = text.substr(digits);
    const uint64_t factor = unit == "ms" ? 1 : unit == "s" ? 1000 : unit == "m" ? 60'000 : 0;
    const auto number = parseNumber(text.substr(0, digits), MILLISECONDS_A_DAY);
    if (factor == 0 || !number || *number * factor > MILLISECONDS_A_DAY) {
        return std::nullopt;
    }
    return *number * factor;
}

std::optional<bool> parseYesNo(std::string_view text)
{
    if (text != "yes" && text != "no") {
        return std::nullopt;
    }
    return text == "yes";
}

} // namespace udsim
