// Whether a publisher has unfinished jobs, which prevent its removal and changes to it.
#pragma once

#include "PublisherMgr.h"

/// True if one of the publisher's jobs is neither finished nor cancelled. False if its job list cannot be
/// fetched, so that an unresponsive service or device does not prevent changes. Blocks on the service or the
/// device.
bool hasUnfinishedJobs(CPublisherMgr& publisherMgr, const char* szPublisherRegistID);
