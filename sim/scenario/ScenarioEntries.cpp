#include "ScenarioEntries.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <string_view>

#include "Nearest.h"

namespace udsim {

namespace {

const std::vector<std::string> SECTIONS{"publisher", "network", "event", "fault", "network-fault"};

} // namespace

std::string at(size_t line, const std::string& what)
{
    return "line " + std::to_string(line) + ": " + what;
}

std::string atLineOf(const std::string& path, const std::string& mistake)
{
    constexpr std::string_view LINE = "line ";
    return path + (mistake.starts_with(LINE) ? ":" + mistake.substr(LINE.size()) : ": " + mistake);
}

std::optional<std::string> readFile(const std::string& path, uint64_t most, std::string& error)
{
    std::ifstream file(path, std::ios::binary);
    file.peek(); // opening a folder succeeds, and reading it fails here
    if (!file.is_open() || file.bad()) {
        error = path + ": " + std::strerror(errno);
        return std::nullopt;
    }
    std::string text;
    std::array<char, 65'536> piece{};
    while (file.read(piece.data(), piece.size()) || file.gcount() > 0) {
        text.append(piece.data(), static_cast<size_t>(file.gcount()));
        if (text.size() > most) {
            error = path + ": larger than " + std::to_string(most) + " bytes";
            return std::nullopt;
        }
    }
    return text;
}

bool isPlainText(const std::string& text, size_t longest)
{
    return !text.empty() && text.size() <= longest && text.find_first_of("\\/\"[];=") == std::string::npos &&
           std::none_of(text.begin(), text.end(), [](unsigned char c) { return c < ' ' || c == 0x7F; });
}

std::string decimal(size_t number, size_t digits)
{
    std::string text = std::to_string(number);
    return std::string(digits - std::min(digits, text.size()), '0') + text;
}

std::optional<std::vector<Section>> readSections(const std::string& text, std::string& error)
{
    std::vector<Section> sections;
    size_t number = 0;
    for (const std::string& raw : splitLines(text)) {
        ++number;
        const std::string line = trim(raw);
        if (line.empty() || line[0] == '#' || line[0] == ';') {
            continue;
        }
        if (line[0] == '[') {
            if (line.back() != ']') {
                error = at(number, "a section header without \"]\"");
                return std::nullopt;
            }
            const auto [kind, name] = splitFirstWord(line.substr(1, line.size() - 2));
            const bool isPublisher = kind == "publisher" || kind == "network";
            if (std::find(SECTIONS.begin(), SECTIONS.end(), kind) == SECTIONS.end()) {
                error = at(number, "unknown section \"" + kind +
                                       "\" (publisher NAME, network NAME, event, fault or network-fault)");
                return std::nullopt;
            }
            if (isPublisher == name.empty()) {
                error = at(number, isPublisher ? "a publisher needs a name: [" + kind + " NAME]"
                                               : "the section \"" + kind + "\" takes no name");
                return std::nullopt;
            }
            sections.push_back({number, kind, name, {}});
            continue;
        }
        const size_t equals = line.find('=');
        if (equals == std::string::npos) {
            error = at(number, "neither a section nor \"key = value\"");
            return std::nullopt;
        }
        if (sections.empty()) {
            error = at(number, "a key before the first section");
            return std::nullopt;
        }
        Entry entry{number, trim(line.substr(0, equals)), trim(line.substr(equals + 1))};
        const auto& before = sections.back().entries;
        if (entry.key != "job" &&
            std::any_of(before.begin(), before.end(), [&](const Entry& e) { return e.key == entry.key; })) {
            error = at(number, "duplicate key \"" + entry.key + "\"");
            return std::nullopt;
        }
        sections.back().entries.push_back(std::move(entry));
    }
    return sections;
}

const Entry* find(const Section& section, const std::string& key)
{
    const auto found = std::find_if(section.entries.begin(), section.entries.end(),
                                    [&](const Entry& entry) { return entry.key == key; });
    return found == section.entries.end() ? nullptr : &*found;
}

bool isNetworkPublisher(const Scenario& scenario, const std::string& name)
{
    return std::any_of(scenario.servers.begin(), scenario.servers.end(),
                       [&](const ServerSetup& setup) { return setup.machine.name == name; });
}

bool isKnownPublisher(const Scenario& scenario, const std::string& name)
{
    return isNetworkPublisher(scenario, name) ||
           std::any_of(scenario.publishers.begin(), scenario.publishers.end(),
                       [&](const PublisherSetup& setup) { return setup.name == name; });
}

std::string unknownKey(const std::string& key, const std::string& owner,
                       const std::vector<std::string>& known)
{
    return "unknown key \"" + key + "\" of " + owner + suggestion(key, known);
}

std::string modelIsMissing(const Section& section, const std::string& owner)
{
    for (const Entry& entry : section.entries) {
        if (const std::string meant = suggestion(entry.key, {"model"}); !meant.empty()) {
            return at(entry.line, "unknown key \"" + entry.key + "\"" + meant);
        }
    }
    return at(section.line, owner + " \"" + section.name + "\" needs a model");
}

std::string unknownPublisher(const Scenario& scenario, const std::string& name)
{
    if (isKnownPublisher(scenario, name)) {
        return {};
    }
    std::vector<std::string> names;
    names.reserve(scenario.publishers.size() + scenario.servers.size());
    for (const PublisherSetup& setup : scenario.publishers) {
        names.push_back(setup.name);
    }
    for (const ServerSetup& setup : scenario.servers) {
        names.push_back(setup.machine.name);
    }
    return "unknown publisher \"" + name + "\"" + suggestion(name, names);
}

bool isTaken(const Scenario& scenario, const PublisherSetup& setup)
{
    const auto clashes = [&](const PublisherSetup& other) {
        return other.name == setup.name || other.registId == setup.registId ||
               (!setup.guid.empty() && other.guid == setup.guid);
    };
    return std::any_of(scenario.publishers.begin(), scenario.publishers.end(), clashes) ||
           std::any_of(scenario.servers.begin(), scenario.servers.end(),
                       [&](const ServerSetup& other) { return clashes(other.machine); });
}

std::string setYesNo(const Entry& entry, bool& target)
{
    const auto answer = parseYesNo(entry.value);
    if (!answer) {
        return "\"" + entry.key + "\" needs yes or no";
    }
    target = *answer;
    return {};
}

std::string setTime(const Entry& entry, uint64_t& target)
{
    const auto time = parseDuration(entry.value);
    if (!time || *time == 0) {
        return "\"" + entry.key + "\" needs a time such as 250ms, 8s or 2m";
    }
    target = *time;
    return {};
}

std::string setText(const Entry& entry, size_t longest, std::string& target)
{
    if (!isPlainText(entry.value, longest)) {
        return "\"" + entry.key + "\" needs a text of up to " + std::to_string(longest) +
               " bytes without any of \\ / \" [ ] ; =";
    }
    target = entry.value;
    return {};
}

} // namespace udsim
