// The elements of a scenario's text: sections, entries, and values of common types.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Scenario.h"
#include "Text.h"

namespace udsim {

struct Entry
{
    size_t line = 0;
    std::string key;
    std::string value;
};

struct Section
{
    size_t line = 0;
    std::string kind;
    std::string name;
    std::vector<Entry> entries;
};

inline constexpr size_t LONGEST_NAME = 64;
inline constexpr size_t LONGEST_ID = 128;
inline constexpr size_t LONGEST_SERIAL = 31;

/// "line 7: ..."
std::string at(size_t line, const std::string& what);
/// The same for a file, in the format that editors and terminals recognise: "room.udsim:7: ..."
std::string atLineOf(const std::string& path, const std::string& mistake);
/// Returns the contents of a file; nothing, with the reason in `error`, if it cannot be read or is larger
/// than `most` bytes.
std::optional<std::string> readFile(const std::string& path, uint64_t most, std::string& error);
/// Returns whether the text is valid in a setting file, in the registry file, and as a file name.
bool isPlainText(const std::string& text, size_t longest);
/// Formats a number with leading zeros.
std::string decimal(size_t number, size_t digits);

/// Returns nothing on a mistake, with the mistake and its line in `error`.
std::optional<std::vector<Section>> readSections(const std::string& text, std::string& error);
/// Returns null if the section does not contain the key.
const Entry* find(const Section& section, const std::string& key);

/// Returns whether the scenario has a publisher of this name, local or network.
bool isKnownPublisher(const Scenario& scenario, const std::string& name);
bool isNetworkPublisher(const Scenario& scenario, const std::string& name);
/// Returns whether another publisher has this name, GUID or regist id.
bool isTaken(const Scenario& scenario, const PublisherSetup& setup);

// Each sets `target`, or returns the mistake in the entry.
std::string setYesNo(const Entry& entry, bool& target);
std::string setTime(const Entry& entry, uint64_t& target);
std::string setText(const Entry& entry, size_t longest, std::string& target);
template <class Number>
std::string setNumber(const Entry& entry, uint64_t highest, Number& target)
{
    const auto number = parseNumber(entry.value, highest);
    if (!number) {
        return "\"" + entry.key + "\" needs a number up to " + std::to_string(highest);
    }
    target = static_cast<Number>(*number);
    return {};
}

/// `unknown key "disk-time" of a publisher (did you mean "disc-time"?)`
std::string unknownKey(const std::string& key, const std::string& owner,
                       const std::vector<std::string>& known);
/// Returns the mistake, with its line, that the section (`owner`: "the publisher") has no model, or the
/// mistyped key.
std::string modelIsMissing(const Section& section, const std::string& owner);
/// `unknown publisher "Stdio A" (did you mean "Studio A"?)`; empty if the scenario has this publisher.
std::string unknownPublisher(const Scenario& scenario, const std::string& name);

/// Applies an entry about the machine itself. Returns the mistake in it; empty on success. `others` are the
/// further keys of its section, for suggestions.
std::string applyToMachine(const Entry& entry, PublisherSetup& setup,
                           const std::vector<std::string>& others = {});

} // namespace udsim
