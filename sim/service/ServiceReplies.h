// The reply of the control service to each control id, from the state of the machines.
#pragma once

#include <cstdint>
#include <vector>

#include "Publisher.h"
#include "Wire.h"

namespace udsim {

/// Carries out one request. `publisher` is the machine that it names; null if it names none or an unknown
/// one. `all` are the machines of the room. `uniqueNumber` is different for every request.
Reply replyTo(const Request& request, Publisher* publisher, const std::vector<Publisher>& all,
              uint64_t uniqueNumber);

} // namespace udsim
