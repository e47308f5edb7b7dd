#include "Recording.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <utility>

#include "ScenarioEntries.h"
#include "Text.h"

namespace udsim {

namespace {

constexpr char FIRST_WORDS[] = "udsim-recording 1 ";
constexpr size_t SHORTEST_RUN = 4; ///< minimum number of zero bytes that are written as a count
constexpr size_t LARGEST_MESSAGE = 64U << 20;
constexpr std::array<std::pair<char, char>, 5> ESCAPES{
    {{'r', '\r'}, {'n', '\n'}, {'t', '\t'}, {'\\', '\\'}, {'"', '"'}}};
constexpr std::array<std::pair<const char*, Message::Kind>, 3> MESSAGE_KINDS{
    {{"ask", Message::Kind::ask}, {"answer", Message::Kind::answer}, {"closed", Message::Kind::closed}}};
constexpr std::array<std::pair<const char*, Recording::Of>, 2> SIDES{
    {{"service", Recording::Of::service}, {"server", Recording::Of::server}}};

void appendQuoted(char byte, std::string& text)
{
    constexpr char DIGITS[] = "0123456789abcdef";
    const auto value = static_cast<unsigned char>(byte);
    if (value >= ' ' && value < 0x7F && byte != '"' && byte != '\\') {
        text += byte;
        return;
    }
    text += '\\';
    for (const auto& [letter, meaning] : ESCAPES) {
        if (byte == meaning) {
            text += letter;
            return;
        }
    }
    text += 'x';
    text += DIGITS[value / 16];
    text += DIGITS[value % 16];
}

/// Removes one escape, without its backslash, from the start of `text` and appends its bytes. Returns false
/// if it is invalid.
bool takeEscape(std::string_view& text, size_t most, std::string& bytes)
{
    if (text.starts_with("x") && text.size() >= 3) {
        const auto value = parseNumber("0x" + std::string(text.substr(1, 2)), 0xFF);
        text.remove_prefix(3);
        bytes += static_cast<char>(value.value_or(0));
        return value.has_value();
    }
    if (text.starts_with("0{")) {
        const size_t end = text.find('}');
        const auto count =
            end == std::string_view::npos ? std::nullopt : parseNumber(text.substr(2, end - 2), most);
        if (!count || *count > most - bytes.size()) {
            return false;
        }
        bytes.append(*count, '\0');
        text.remove_prefix(end + 1);
        return true;
    }
    for (const auto& [letter, meaning] : ESCAPES) {
        if (text.starts_with(letter)) {
            bytes += meaning;
            text.remove_prefix(1);
            return true;
        }
    }
    return false;
}

std::string seconds(uint64_t milliseconds)
{
    return std::to_string(milliseconds / 1000) + "." + decimal(milliseconds % 1000, 3);
}

std::optional<uint64_t> parseSeconds(const std::string& text)
{
    const size_t point = text.find('.');
    if (point == std::string::npos || text.size() != point + 4 || text.find('x') != std::string::npos) {
        return std::nullopt;
    }
    const auto whole = parseNumber(text.substr(0, point), UINT32_MAX);
    const auto rest = parseNumber(text.substr(point + 1), 999);
    return whole && rest ? std::optional(*whole * 1000 + *rest) : std::nullopt;
}

/// Returns the mistake in the line; empty if it is valid.
std::string parseLine(const std::string& line, Message& message)
{
    const auto [time, behindTime] = splitFirstWord(line);
    const auto [connection, behindConnection] = splitFirstWord(behindTime);
    const auto [kind, behindKind] = splitFirstWord(behindConnection);
    const auto moment = parseSeconds(time);
    const auto number = parseNumber(connection, UINT32_MAX);
    if (!moment || !number) {
        return "neither a comment nor a message with time and connection";
    }
    message.time = *moment;
    message.connection = static_cast<unsigned>(*number);
    bool known = false;
    for (const auto& [name, value] : MESSAGE_KINDS) {
        if (kind == name) {
            message.kind = value;
            known = true;
        }
    }
    if (!known) {
        return "\"" + kind + "\" is not ask, answer or closed";
    }
    if (message.kind == Message::Kind::closed) {
        return behindKind.empty() ? "" : "unexpected text after \"closed\"";
    }
    const auto [size, quoted] = splitFirstWord(behindKind);
    const auto whole = parseNumber(size, UINT64_MAX);
    auto bytes = unquotedBytes(quoted, LARGEST_MESSAGE);
    if (!whole) {
        return "the message has no size";
    }
    if (!bytes) {
        return "the bytes of the message are malformed";
    }
    if (bytes->size() > *whole) {
        return "the message has more bytes than its size";
    }
    message.size = *whole;
    message.bytes = std::move(*bytes);
    return {};
}

} // namespace

std::string quotedBytes(std::string_view bytes)
{
    std::string text = "\"";
    for (size_t at = 0; at < bytes.size();) {
        const size_t run =
            bytes[at] != '\0' ? 0 : std::min(bytes.find_first_not_of('\0', at), bytes.size()) - at;
        if (run >= SHORTEST_RUN) {
            text += "\\0{" + std::to_string(run) + "}";
            at += run;
        } else {
            appendQuoted(bytes[at++], text);
        }
    }
    return text + "\"";
}

std::optional<std::string> unquotedBytes(std::string_view text, size_t most)
{
    if (text.size() < 2 || !text.starts_with('"') || !text.ends_with('"')) {
        return std::nullopt;
    }
    text = text.substr(1, text.size() - 2);
    std::string bytes;
    while (!text.empty()) {
        const char byte = text.front();
        text.remove_prefix(1);
        if (byte == '"' || byte < ' ' || byte > '~' || bytes.size() >= most) {
            return std::nullopt;
        }
        if (byte != '\\') {
            bytes += byte;
        } else if (!takeEscape(text, most, bytes)) {
            return std::nullopt;
        }
    }
    return bytes;
}

std::string Message::line() const
{
    std::string text = seconds(time) + " " + std::to_string(connection);
    for (const auto& [name, value] : MESSAGE_KINDS) {
        if (kind == value) {
            text += std::string(" ") + name;
        }
    }
    return kind == Kind::closed ? text : text + " " + std::to_string(size) + " " + quotedBytes(bytes);
}

std::string Recording::firstLine(Of of)
{
    return std::string(FIRST_WORDS) + (of == Of::service ? "service" : "server");
}

std::optional<Recording> Recording::parse(const std::string& text, std::string& error)
{
    Recording recording;
    std::vector<std::string> lines = splitLines(text);
    if (!lines.empty() && !text.ends_with('\n')) {
        recording.remark = at(lines.size(), "the recording is cut off here; this line is ignored");
        lines.pop_back();
    }
    bool known = false;
    for (const auto& [name, value] : SIDES) {
        if (!lines.empty() && lines.front() == firstLine(value)) {
            recording.of = value;
            known = true;
        }
    }
    if (!known) {
        error = at(1, "not a udsim recording, or a recording of another version");
        return std::nullopt;
    }
    uint64_t bytes = 0;
    for (size_t i = 1; i < lines.size(); ++i) {
        if (lines[i].empty() || lines[i].starts_with('#')) {
            continue;
        }
        Message message;
        if (const std::string mistake = parseLine(lines[i], message); !mistake.empty()) {
            error = at(i + 1, mistake);
            return std::nullopt;
        }
        bytes += message.bytes.size();
        if (bytes > MOST_BYTES) {
            error = at(i + 1, "the messages have more than " + std::to_string(MOST_BYTES) + " bytes");
            return std::nullopt;
        }
        recording.messages.push_back(std::move(message));
    }
    return recording;
}

std::optional<Recording> Recording::load(const std::string& path, std::string& error)
{
    const auto text = readFile(path, LARGEST_FILE, error);
    if (!text) {
        return std::nullopt;
    }
    auto recording = parse(*text, error);
    if (!recording) {
        error = atLineOf(path, error);
    }
    return recording;
}

} // namespace udsim
