#include "UnfinishedJobs.h"

#include <algorithm>

bool hasUnfinishedJobs(CPublisherMgr& publisherMgr, const char* szPublisherRegistID)
{
    JobStatusArray jobs;
    long result = 0;
    publisherMgr.GetServiceJobStatusUnfinish(szPublisherRegistID, &jobs, &result);
    return result == 0 && std::any_of(jobs.rbegin(), jobs.rend(), [](const ST_PC_JOB_STATUS& job) {
               return job.ulJobStatus != ARV_PC_JOB_CANCELLED && job.ulJobStatus != ARV_PC_JOB_FINISHED;
           });
}
