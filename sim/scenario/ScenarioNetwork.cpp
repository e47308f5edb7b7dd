#include "ScenarioNetwork.h"

#include <algorithm>

#include <arpa/inet.h>

#include "Nearest.h"

namespace udsim {

namespace {

constexpr uint64_t MOST_SPACE = 1'000'000; // MiB
constexpr size_t FIRST_ADDRESS = 11;       // 127.0.0.11
constexpr size_t LONGEST_VERSION = 31;
// Used only for suggestions for an unknown key.
const std::vector<std::string> NETWORK_KEYS{
    "host",       "listening",     "server-mode", "server-version", "web-version", "interface-version",
    "disc-space", "third-stacker", "drives-used", "retries",        "error-mark",  "known-kind"};

/// Accepts only an address of the loopback network.
std::string setHost(const Entry& entry, std::string& target)
{
    in_addr address{};
    if (::inet_pton(AF_INET, entry.value.c_str(), &address) != 1 || !entry.value.starts_with("127.")) {
        return "\"host\" needs an address of the loopback network, such as 127.0.0.11";
    }
    target = entry.value;
    return {};
}

std::string setSpace(const Entry& entry, uint64_t& target)
{
    uint64_t space = 0;
    std::string mistake = setNumber(entry, MOST_SPACE, space);
    target = space * ServerSetup::MIB;
    return mistake;
}

/// Returns the mistake in the entry; empty on success.
std::string apply(const Entry& entry, ServerSetup& setup)
{
    const std::string& key = entry.key;
    if (key == "model" || key == "server-mode") {
        return {}; // read before all other keys, which depend on these two
    }
    if (key == "host") {
        return setHost(entry, setup.host);
    }
    if (key == "server-version") {
        return setText(entry, LONGEST_VERSION, setup.serverVersion);
    }
    if (key == "web-version") {
        return setText(entry, LONGEST_VERSION, setup.webVersion);
    }
    if (key == "interface-version") {
        return setText(entry, LONGEST_VERSION, setup.interfaceVersion);
    }
    if (key == "disc-space") {
        return setSpace(entry, setup.discSpace);
    }
    if (key == "third-stacker") {
        return setYesNo(entry, setup.thirdStacker);
    }
    if (key == "listening") {
        return setYesNo(entry, setup.listening);
    }
    if (key == "error-mark") {
        return setYesNo(entry, setup.errorMark);
    }
    if (key == "known-kind") {
        return setNumber(entry, 3, setup.knownKind);
    }
    if (key == "drives-used") {
        return setNumber(entry, 2, setup.drivesUsed);
    }
    if (key == "retries") {
        return setNumber(entry, UINT32_MAX, setup.retries);
    }
    if (key == "guid" || key == "mode" || key == "usb" || key == "maintenance-box") {
        return unknownKey(key, "a network publisher", NETWORK_KEYS);
    }
    return applyToMachine(entry, setup.machine, NETWORK_KEYS);
}

} // namespace

std::string addNetwork(const Section& section, Scenario& scenario)
{
    const Entry* const model = find(section, "model");
    if (model == nullptr) {
        return modelIsMissing(section, "the network publisher");
    }
    const NetworkModel* const known = findNetworkModel(model->value);
    if (known == nullptr) {
        std::vector<std::string> names;
        for (const NetworkModel& one : networkModels()) {
            names.emplace_back(one.machine.name);
        }
        return at(model->line,
                  "unknown network model \"" + model->value + "\"" + suggestion(model->value, names));
    }
    ServerSetup setup = ServerSetup::ofModel(*known);
    const size_t number = scenario.servers.size() + 1;
    setup.host = "127.0.0." + std::to_string(FIRST_ADDRESS + scenario.servers.size());
    setup.machine.name = section.name;
    setup.machine.shownName = section.name;
    setup.machine.registId = "{ARPUB20260106_" + std::to_string(number) + "}";
    setup.machine.serial = "NET" + decimal(number, 7);
    if (const Entry* const mode = find(section, "server-mode")) {
        uint32_t value = 0;
        if (const std::string mistake = setNumber(*mode, 4, value); !mistake.empty()) {
            return at(mode->line, mistake);
        }
        setup.setServerMode(value);
    }
    for (const Entry& entry : section.entries) {
        if (const std::string mistake = apply(entry, setup); !mistake.empty()) {
            return at(entry.line, mistake);
        }
    }
    if (!isPlainText(setup.machine.name, LONGEST_NAME)) {
        return at(section.line, "a name has up to 64 bytes and none of \\ / \" [ ] ; =");
    }
    if (setup.machine.jobs.size() > setup.machine.mostJobs) {
        return at(section.line, "more than " + std::to_string(setup.machine.mostJobs) + " jobs");
    }
    const bool hostTaken = std::any_of(scenario.servers.begin(), scenario.servers.end(),
                                       [&](const ServerSetup& other) { return other.host == setup.host; });
    if (hostTaken || isTaken(scenario, setup.machine)) {
        return at(section.line, "another publisher has this name, host or id");
    }
    scenario.servers.push_back(setup);
    return {};
}

std::string addNetworkFault(const Section& section, Scenario& scenario)
{
    const Entry* const what = find(section, "do");
    if (what == nullptr) {
        return at(section.line, "a fault needs \"do\"");
    }
    std::string mistake;
    HttpFault fault = HttpFault::parse(what->value, mistake).value_or(HttpFault{});
    if (!mistake.empty()) {
        return at(what->line, mistake);
    }
    for (const Entry& entry : section.entries) {
        if (entry.key == "method") {
            fault.method = entry.value;
        } else if (entry.key == "path") {
            fault.path = entry.value;
        } else if (entry.key == "after") {
            mistake = setNumber(entry, UINT32_MAX, fault.after);
        } else if (entry.key == "times") {
            mistake = setNumber(entry, UINT32_MAX, fault.times);
        } else if (entry.key == "publisher") {
            fault.publisher = entry.value;
            mistake = isNetworkPublisher(scenario, entry.value)
                          ? ""
                          : "unknown network publisher \"" + entry.value + "\"";
        } else if (entry.key != "do") {
            mistake = unknownKey(entry.key, "a network fault",
                                 {"do", "method", "path", "publisher", "times", "after"});
        }
        if (!mistake.empty()) {
            return at(entry.line, mistake);
        }
    }
    scenario.networkFaults.push_back(fault);
    return {};
}

} // namespace udsim
