// The payloads of the control service's replies: structures and status words of a machine.
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
    10; ///< below it, a cartridge is near empty and the maintenance box near full

/// Status words.
uint64_t oneDriveStatus(const Publisher& publisher, unsigned which); ///< of a drive, counted from 0
uint64_t driveProgress(const Publisher& publisher, unsigned which);  ///< percent of writing or verifying
uint64_t loaderStatus(const Publisher& publisher);
uint64_t printerStatus(const Publisher& publisher);
uint64_t maintenanceBoxStatus(const Publisher& publisher);
uint64_t activity(const Publisher& publisher); ///< the active parts of the machine

/// Returns the source and destination stackers of a job, each a sum of bits; 0 for a cleaning.
std::pair<uint64_t, uint64_t> routeOf(const Publisher& publisher, const Job& job);

/// Structures, encoded for the wire.
std::string jobList(const Publisher& publisher, uint64_t which); ///< `which`: 1 unfinished, 2 ended, 3 both
std::string inkStatus(const Publisher& publisher);
std::string driveStatus(const Publisher& publisher);   ///< of two drives, for every model
std::string stackerStatus(const Publisher& publisher); ///< of four stackers, for every model
std::string stackerMedia(const Publisher& publisher);
std::string loaderInfo(const Publisher& publisher);
std::string printerInfo(const Publisher& publisher);
std::string driveInfo(const Publisher& publisher);
std::string maintenanceInfo(const Publisher& publisher);

} // namespace udsim
