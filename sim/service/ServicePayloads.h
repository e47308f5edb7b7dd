// The payloads of the control service's replies: structures and status words of one machine.
#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "Publisher.h"

namespace udsim {

inline constexpr char LOADER_FIRMWARE[] = "02.14";
inline constexpr char PRINTER_FIRMWARE[] = "01.37";
inline constexpr char DRIVE_FIRMWARE[] = "1.05";
inline constexpr uint32_t NEAR_EMPTY_PERCENT =
    10; ///< of a cartridge, from which on it counts as near its end

/// Status words.
uint64_t oneDriveStatus(const Publisher& publisher, unsigned which); ///< of a drive, from 0
uint64_t driveProgress(const Publisher& publisher, unsigned which); ///< percent of what it writes or verifies
uint64_t loaderStatus(const Publisher& publisher);
uint64_t printerStatus(const Publisher& publisher);
uint64_t maintenanceBoxStatus(const Publisher& publisher);
uint64_t activity(const Publisher& publisher); ///< which parts of the machine are moving

/// The stackers that a job's discs come from and go to, each a sum of bits; a cleaning has none.
std::pair<uint64_t, uint64_t> routeOf(const Publisher& publisher, const Job& job);

/// Structures, packed as on the wire.
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
