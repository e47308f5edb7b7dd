// The sections of a scenario for network publishers.
#pragma once

#include <string>

#include "ScenarioEntries.h"

namespace udsim {

/// Returns the mistake and its line; empty if the network publisher, or the fault, was added.
std::string addNetwork(const Section& section, Scenario& scenario);
std::string addNetworkFault(const Section& section, Scenario& scenario);

} // namespace udsim
