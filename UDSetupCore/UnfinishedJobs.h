// Whether a publisher still has work to do, which stands in the way of removing or changing it.
#pragma once

#include "PublisherMgr.h"

/// True when one of the publisher's jobs is neither finished nor cancelled. False when its job list cannot be
/// fetched: a silent service or device does not stand in the way. Waits for the service or the device.
bool hasUnfinishedJobs(CPublisherMgr& publisherMgr, const char* szPublisherRegistID);
