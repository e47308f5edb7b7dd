// The stackers that a publisher uses.
#pragma once

#include "PublisherReport.h"

/// The discs in the stackers 1 to 4: ARV_PC_STK_STATUS_*.
using StackerCounts = std::array<std::optional<quint32>, stackerCount>;

/// By the model and the publish mode. `info` contains the settings as they are stored; values that the mode
/// overrides, or that a stacker cannot have, are ignored. `devType` is an enPublisherType.
std::vector<StackerReport> usedStackers(quint32 devType, const PUBLISHERINFO& info,
                                        const StackerCounts& counts);
