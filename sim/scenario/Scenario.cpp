#include "Scenario.h"

#include <algorithm>
#include <array>

#include "Nearest.h"
#include "Protocol.h"
#include "ScenarioEntries.h"
#include "ScenarioNetwork.h"
#include "Text.h"

namespace udsim {

namespace {

constexpr uint64_t HIGHEST_PRINT_COUNT = 1'000'000;
constexpr std::array<std::pair<const char*, uint32_t>, 8> MEDIA{{
    {"CD-R", 1},
    {"DVD-R", 6},
    {"DVD-R DL", 7},
    {"BD-R", 8},
    {"BD-R DL", 9},
    {"BD-R TL", 10},
    {"BD-R QL", 11},
    {"not used", media::NOT_USED},
}};

constexpr uint64_t LARGEST_SCENARIO = 16U << 20;
// Used only for suggestions for an unknown key.
const std::vector<std::string> MACHINE_KEYS{"model",
                                            "name",
                                            "guid",
                                            "id",
                                            "serial",
                                            "registered",
                                            "connected",
                                            "mode",
                                            "error",
                                            "disc-time",
                                            "cleaning-time",
                                            "jobs",
                                            "job",
                                            "stacker1",
                                            "stacker2",
                                            "stacker3",
                                            "stacker4",
                                            "stacker1.media",
                                            "stacker2.media",
                                            "stacker3.media",
                                            "stacker4.media",
                                            "ink.cyan",
                                            "ink.magenta",
                                            "ink.yellow",
                                            "ink.light-cyan",
                                            "ink.light-magenta",
                                            "ink.black",
                                            "maintenance-box",
                                            "print-count",
                                            "usb"};

std::string setMedia(const Entry& entry, uint32_t& target)
{
    for (const auto& [name, value] : MEDIA) {
        if (entry.value == name) {
            target = value;
            return {};
        }
    }
    if (entry.value == "output") {
        target = media::OUTPUT;
        return {};
    }
    return "\"" + entry.value + "\" is not a disc type";
}

std::string addJobs(const Entry& entry, PublisherSetup& setup)
{
    if (entry.key == "jobs") {
        uint64_t count = 0;
        std::string mistake = setNumber(entry, setup.mostJobs, count);
        for (uint64_t i = 1; i <= count; ++i) {
            setup.jobs.push_back({.name = "Disc " + std::to_string(i)});
        }
        return mistake;
    }
    std::string error;
    if (const auto job = parseJob(entry.value, error)) {
        setup.jobs.push_back(*job);
    }
    return error;
}

/// "ink.cyan = 80" and "stacker1 = 50" are equivalent to the commands "ink cyan 80" and "stacker 1 50".
std::string setSupply(const Entry& entry, PublisherSetup& setup)
{
    std::string error;
    const bool isInk = entry.key.starts_with("ink.");
    const std::string text = isInk ? "ink " + entry.key.substr(4) + " " + entry.value
                                   : "stacker " + entry.key.substr(7) + " " + entry.value;
    if (const auto command = Command::parse(text, error)) {
        if (isInk) {
            setup.ink[command->index] = command->number;
        } else {
            setup.stackers[command->index].discs = command->number;
        }
    }
    return error;
}

} // namespace

std::string applyToMachine(const Entry& entry, PublisherSetup& setup, const std::vector<std::string>& others)
{
    const std::string& key = entry.key;
    if (key == "model" || key == "mode") {
        return {}; // read before all other keys, which depend on these two
    }
    if (key == "name") {
        return setText(entry, LONGEST_NAME, setup.shownName);
    }
    if (key == "guid") {
        return setText(entry, LONGEST_ID, setup.guid);
    }
    if (key == "id") {
        return setText(entry, LONGEST_ID, setup.registId);
    }
    if (key == "serial") {
        return setText(entry, LONGEST_SERIAL, setup.serial);
    }
    if (key == "registered") {
        return setYesNo(entry, setup.registered);
    }
    if (key == "connected") {
        return setYesNo(entry, setup.connected);
    }
    if (key == "error") {
        return setNumber(entry, 9999, setup.error);
    }
    if (key == "usb") {
        return setNumber(entry, 16, setup.usbMode);
    }
    if (key == "maintenance-box") {
        return setNumber(entry, 100, setup.maintenanceBox);
    }
    if (key == "print-count") {
        return setNumber(entry, HIGHEST_PRINT_COUNT, setup.printCount);
    }
    if (key == "disc-time") {
        return setTime(entry, setup.discTime);
    }
    if (key == "cleaning-time") {
        return setTime(entry, setup.cleaningTime);
    }
    if (key == "jobs" || key == "job") {
        return addJobs(entry, setup);
    }
    if (key.size() == 14 && key.starts_with("stacker") && key.ends_with(".media") && key[7] >= '1' &&
        key[7] <= '4') {
        return setMedia(entry, setup.stackers[static_cast<size_t>(key[7] - '1')].media);
    }
    if (key.starts_with("ink.") || (key.starts_with("stacker") && key.find('.') == std::string::npos)) {
        return setSupply(entry, setup);
    }
    std::vector<std::string> known = MACHINE_KEYS;
    known.insert(known.end(), others.begin(), others.end());
    return unknownKey(key, "a publisher", known);
}

namespace {

/// Returns the mistake and its line; empty if the publisher was added.
std::string addPublisher(const Section& section, Scenario& scenario)
{
    const Entry* const model = find(section, "model");
    if (model == nullptr) {
        return modelIsMissing(section, "the publisher");
    }
    const Model* const known = findModel(model->value);
    if (known == nullptr) {
        std::vector<std::string> names;
        for (const Model& one : models()) {
            names.emplace_back(one.name);
        }
        return at(model->line, "unknown model \"" + model->value + "\"" + suggestion(model->value, names));
    }
    PublisherSetup setup = PublisherSetup::ofModel(*known);
    const size_t number = scenario.publishers.size() + 1;
    setup.name = section.name;
    setup.shownName = section.name;
    setup.guid = "{5D2C0A10-7B3E-4C11-9A60-" + decimal(number, 12) + "}";
    setup.registId = "{ARPUB20260105_" + std::to_string(number) + "}";
    setup.serial = "SIM" + decimal(number, 7);
    if (const Entry* const mode = find(section, "mode")) {
        const auto value = parseNumber(mode->value, 9);
        if (!value || !known->supportsMode(*value)) {
            return at(mode->line, "the model does not support publish mode \"" + mode->value + "\"");
        }
        setup.setMode(static_cast<uint32_t>(*value));
    }
    for (const Entry& entry : section.entries) {
        if (const std::string mistake = applyToMachine(entry, setup); !mistake.empty()) {
            return at(entry.line, mistake);
        }
    }
    if (!isPlainText(setup.name, LONGEST_NAME)) {
        return at(section.line, "a name has up to 64 bytes and none of \\ / \" [ ] ; =");
    }
    if (setup.jobs.size() > Publisher::MAX_JOBS) {
        return at(section.line, "more than " + std::to_string(Publisher::MAX_JOBS) + " jobs");
    }
    if (isTaken(scenario, setup)) {
        return at(section.line, "another publisher has this name, guid or id");
    }
    scenario.publishers.push_back(setup);
    return {};
}

std::string addEvent(const Section& section, Scenario& scenario)
{
    Event event;
    bool hasTime = false;
    for (const Entry& entry : section.entries) {
        std::string mistake;
        if (entry.key == "at" && entry.value == "0s") {
            hasTime = true;
        } else if (entry.key == "at") {
            mistake = setTime(entry, event.at);
            hasTime = true;
        } else if (entry.key == "every") {
            mistake = setTime(entry, event.every);
        } else if (entry.key == "publisher") {
            event.publisher = entry.value;
            mistake = unknownPublisher(scenario, entry.value);
        } else if (entry.key == "do") {
            event.command = Command::parse(entry.value, mistake).value_or(Command{});
        } else {
            mistake = unknownKey(entry.key, "an event", {"do", "at", "every", "publisher"});
        }
        if (!mistake.empty()) {
            return at(entry.line, mistake);
        }
    }
    if (find(section, "do") == nullptr || (!hasTime && event.every == 0)) {
        return at(section.line, "an event needs \"do\", and \"at\" or \"every\"");
    }
    if (event.command.kind == Command::Kind::server && !isNetworkPublisher(scenario, event.publisher)) {
        return at(section.line, "only a network publisher has a server");
    }
    if (event.command.isForService() != event.publisher.empty()) {
        return at(section.line, "an event needs a publisher unless it applies to the service");
    }
    if (!hasTime) {
        event.at = event.every;
    }
    scenario.events.push_back(event);
    return {};
}

std::string addFault(const Section& section, Scenario& scenario)
{
    Fault fault;
    const Entry* const what = find(section, "do");
    if (what == nullptr) {
        return at(section.line, "a fault needs \"do\"");
    }
    std::string mistake;
    fault = Fault::parse(what->value, mistake).value_or(fault);
    if (!mistake.empty()) {
        return at(what->line, mistake);
    }
    for (const Entry& entry : section.entries) {
        if (entry.key == "control") {
            mistake = setNumber(entry, UINT64_MAX, fault.control);
        } else if (entry.key == "times") {
            mistake = setNumber(entry, UINT32_MAX, fault.times);
        } else if (entry.key == "publisher") {
            fault.publisher = entry.value;
            mistake = unknownPublisher(scenario, entry.value);
        } else if (entry.key != "do") {
            mistake = unknownKey(entry.key, "a fault", {"do", "control", "publisher", "times"});
        }
        if (mistake.empty() && fault.kind == Fault::Kind::refuse && entry.key != "do") {
            mistake = "\"refuse\" applies to every connection and takes no control, publisher or times";
        }
        if (!mistake.empty()) {
            return at(entry.line, mistake);
        }
    }
    scenario.faults.push_back(fault);
    return {};
}

} // namespace

std::optional<Scenario> Scenario::parse(const std::string& text, std::string& error)
{
    const auto sections = readSections(text, error);
    if (!sections) {
        return std::nullopt;
    }
    Scenario scenario;
    using Add = std::string (*)(const Section&, Scenario&);
    // Publishers first: events and faults may name publishers that follow in the text.
    constexpr std::array<std::pair<const char*, Add>, 5> SECTION_KINDS{{
        {"publisher", addPublisher},
        {"network", addNetwork},
        {"event", addEvent},
        {"fault", addFault},
        {"network-fault", addNetworkFault},
    }};
    for (const auto& [kind, add] : SECTION_KINDS) {
        for (const Section& section : *sections) {
            if (section.kind != kind) {
                continue;
            }
            std::string mistake = add(section, scenario);
            if (!mistake.empty()) {
                error = std::move(mistake);
                return std::nullopt;
            }
        }
    }
    return scenario;
}

std::optional<Scenario> Scenario::load(const std::string& path, std::string& error)
{
    const auto text = readFile(path, LARGEST_SCENARIO, error);
    auto scenario = text ? parse(*text, error) : std::nullopt;
    if (text && !scenario) {
        error = atLineOf(path, error);
    }
    return scenario;
}

} // namespace udsim
