// The pieces that a scenario's text is read by: sections, entries, and values of the usual kinds.
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
/// The same of a file, as editors and terminals open it: "room.udsim:7: ..."
std::string atLineOf(const std::string& path, const std::string& mistake);
/// All of a file; nothing, with the reason, when it cannot be read or is larger than `most` bytes.
std::optional<std::string> readFile(const std::string& path, uint64_t most, std::string& error);
/// A text that can stand in a setting file and in the registry file, and as a file name.
bool isPlainText(const std::string& text, size_t longest);
/// With leading zeros.
std::string decimal(size_t number, size_t digits);

/// Nothing on a mistake, which `error` names with its line.
std::optional<std::vector<Section>> readSections(const std::string& text, std::string& error);
/// Null when the section has no such key.
const Entry* find(const Section& section, const std::string& key);

/// A publisher of this name stands in the room, local or not.
bool isKnownPublisher(const Scenario& scenario, const std::string& name);
bool isNetworkPublisher(const Scenario& scenario, const std::string& name);
/// Another one has this name, GUID or regist id.
bool isTaken(const Scenario& scenario, const PublisherSetup& setup);

// Each sets `target`, or says what is wrong with the entry.
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
/// That the section, "the publisher", has no model, or the key that was meant to be it; with the line.
std::string modelIsMissing(const Section& section, const std::string& owner);
/// `unknown publisher "Stdio A" (did you mean "Studio A"?)`; empty when the room has it.
std::string unknownPublisher(const Scenario& scenario, const std::string& name);

/// What is wrong with an entry about the machine itself; empty when it was taken. `others` are the keys that
/// its section may have besides.
std::string applyToMachine(const Entry& entry, PublisherSetup& setup,
                           const std::vector<std::string>& others = {});

} // namespace udsim
