// A network publisher that is about to be registered: the name that it is offered, whether it is there
// already, and the regist id that it gets.
#pragma once

#include "PublisherMgrIF.h"

#include <functional>

/// The first of "RT-300N 1" to "RT-300N 999" that none of `names` is, in whatever case; empty when all are
/// taken.
CString freeDefaultName(const CStringArray& names);

/// Whether a registered publisher has this name or this host (UTF-8). Case matters. Local publishers have an
/// empty host.
bool isTakenBy(const PUBLISHERINFO& registered, const CString& name, const CString& host);

/// The regist id of that number among those of a day, "{ARPUB20260304_1}": at most 33 bytes, whatever the
/// numbers.
CString newRegistID(const SYSTEMTIME& today, int number);

/// Calls `add` with the record of a network publisher, under one regist id of the day after the other, until
/// it returns true: a refusal is taken for an id in use. Ids that `taken` holds, in whatever case, are left
/// out. False when all 1000 of the day are used up.
bool addUnderFreeID(const CStringArray& taken, const SYSTEMTIME& today, const CString& name,
                    const CString& host, const std::function<bool(const PUBLISHERINFO&)>& add);
