// The sections of a scenario about network publishers.
#pragma once

#include <string>

#include "ScenarioEntries.h"

namespace udsim {

/// What is wrong, with its line; empty when the network publisher, or the fault, was added.
std::string addNetwork(const Section& section, Scenario& scenario);
std::string addNetworkFault(const Section& section, Scenario& scenario);

} // namespace udsim
