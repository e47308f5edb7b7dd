// The payloads of the service's answers: records and status bits of one machine.
#pragma once

#include <cstdint>
#include <string>

#include "Publisher.h"

namespace udsim {

/// Status words.
uint64_t loaderStatus(const Publisher& publisher);
uint64_t printerStatus(const Publisher& publisher);
uint64_t maintenanceBoxStatus(const Publisher& publisher);
uint64_t activity(const Publisher& publisher); ///< which parts of the machine are moving

/// Records as they travel.
std::string jobList(const Publisher& publisher, uint64_t which); ///< `which`: 1 unfinished, 2 ended, 3 both
std::string inkStatus(const Publisher& publisher);
std::string driveStatus(const Publisher& publisher);   ///< of two drives, whatever the model has
std::string stackerStatus(const Publisher& publisher); ///< of four stackers, likewise
std::string stackerMedia(const Publisher& publisher);
std::string loaderInfo(const Publisher& publisher);
std::string printerInfo(const Publisher& publisher);
std::string driveInfo(const Publisher& publisher);
std::string maintenanceInfo(const Publisher& publisher);

} // namespace udsim
