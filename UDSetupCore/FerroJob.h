// Submits a maintenance job to a publisher: as a file in the job folder, which the control service watches,
// or over the connection to a network publisher.
#pragma once

#include "JobText.h"

/// Failures are not reported; the job is dropped. User-interface thread only.
class CFerroJob
{
public:
    /// Creates an empty job file with the publisher's lowest free number and opens it for writing; the caller
    /// closes it. Returns -1 if no number is free or the file cannot be created.
    int openNewJobFile(const PUBLISHERINFO& info);
    /// The current time and its local date. Each call gives a time at least one millisecond after the
    /// previous one.
    void getCurrentTimeForFileName(timeb& time, tm& date);
    /// `szJobNameUtf8` is the name that a network publisher shows; a local one uses a fixed name. Blocks
    /// while it connects to a network publisher and sends the print data.
    void SubmitHeadCleaningJob(const PUBLISHERINFO& info, const char* szJobNameUtf8);
    void SubmitNozzleCheckJob(const PUBLISHERINFO& info, const char* szJobNameUtf8);

private:
    void submit(MaintenanceJob job, const PUBLISHERINFO& info, const char* szJobNameUtf8);
    void sendToServer(MaintenanceJob job, const PUBLISHERINFO& info, const JobStamp& stamp,
                      const std::string& jobName);
    void writeJobFile(const PUBLISHERINFO& info, const std::string& text);
};
