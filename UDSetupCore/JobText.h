// The text of a maintenance job: what the device is to print, on which disc, and under which name.
#pragma once

#include "JobStamp.h"
#include "PublisherMgrIF.h"

#include <cstddef>
#include <string>

enum class MaintenanceJob
{
    headCleaning,
    nozzleCheck
};

/// Where a nozzle check puts its disc, an enJobMgrEjectStacker: decided by the mode and by stacker 3.
UINT nozzleCheckEjectStacker(UINT uiPublishMode, UINT uiStacker3DiscType);

/// The installation's print data for the job.
const char* printDataPath(MaintenanceJob job);

/// For the control service of this computer. Its name for the job does not depend on the language of the
/// interface.
std::string localJobText(MaintenanceJob job, const PUBLISHERINFO& info, const JobStamp& stamp);

/// Longest job text that a network publisher is sent, in bytes without a NUL.
constexpr size_t longestNetworkJobText = 1023;

/// For a network publisher, which shows `jobName` (UTF-8) in its list of jobs. Cut at the longest length.
std::string networkJobText(MaintenanceJob job, const PUBLISHERINFO& info, const JobStamp& stamp,
                           const std::string& jobName);
