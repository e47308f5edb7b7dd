// The text of a maintenance job: what the device prints, on which disc, and under which name.
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

/// The stacker to which a nozzle check ejects its disc (enJobMgrEjectStacker). It depends on the publish mode
/// and on stacker 3.
UINT nozzleCheckEjectStacker(UINT uiPublishMode, UINT uiStacker3DiscType);

/// The path of the installed print data for the job.
const char* printDataPath(MaintenanceJob job);

/// The text for the local control service. Its job name is the same in all languages.
std::string localJobText(MaintenanceJob job, const PUBLISHERINFO& info, const JobStamp& stamp);

/// The longest job text that is sent to a network publisher, in bytes without a NUL.
constexpr size_t longestNetworkJobText = 1023;

/// The text for a network publisher, which shows `jobName` (UTF-8) in its job list. Cut at
/// longestNetworkJobText.
std::string networkJobText(MaintenanceJob job, const PUBLISHERINFO& info, const JobStamp& stamp,
                           const std::string& jobName);
