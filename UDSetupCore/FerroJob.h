// Hands a maintenance job to a publisher: as a file in the job folder, which the control service watches, or
// over the connection of a network publisher.
#pragma once

#include "JobText.h"

/// Nothing is reported: a job that cannot be handed over is not. For the thread of the windows alone.
class CFerroJob
{
public:
    /// A new empty job file under the publisher's lowest free number, opened for writing; the caller closes
    /// it. -1 when no number is free or the folder takes no file.
    int openNewJobFile(const PUBLISHERINFO& info);
    /// The present time and its local date. Each time is later than the one before, by a millisecond at
    /// least.
    void getCurrentTimeForFileName(timeb& time, tm& date);
    /// `szJobNameUtf8` is the name that a network publisher shows; a local one has its own. Blocks while such
    /// a publisher is connected to and takes the print data.
    void SubmitHeadCleaningJob(const PUBLISHERINFO& info, const char* szJobNameUtf8);
    void SubmitNozzleCheckJob(const PUBLISHERINFO& info, const char* szJobNameUtf8);

private:
    void submit(MaintenanceJob job, const PUBLISHERINFO& info, const char* szJobNameUtf8);
    void sendToServer(MaintenanceJob job, const PUBLISHERINFO& info, const JobStamp& stamp,
                      const std::string& jobName);
    void writeJobFile(const PUBLISHERINFO& info, const std::string& text);
};
