// Registers a network publisher: its default name, the check for duplicates and its regist id.
#pragma once

#include "PublisherMgrIF.h"

#include <functional>

/// The first of "RT-300N 1" to "RT-300N 999" that `names` does not contain, ignoring case; empty if all are
/// taken.
CString freeDefaultName(const CStringArray& names);

/// Whether a registered publisher has this name or this host (UTF-8). Case matters. Local publishers have an
/// empty host.
bool isTakenBy(const PUBLISHERINFO& registered, const CString& name, const CString& host);

/// The regist id for a day and a number, for example "{ARPUB20260304_1}". At most 33 bytes for any arguments.
CString newRegistID(const SYSTEMTIME& today, int number);

/// Calls `add` with the record of a network publisher under each regist id of the day in turn until it
/// returns true; false is taken to mean that the id is in use. Ids in `taken` are skipped, ignoring case.
/// Returns false if none of the 1000 ids of the day succeeds.
bool addUnderFreeID(const CStringArray& taken, const SYSTEMTIME& today, const CString& name,
                    const CString& host, const std::function<bool(const PUBLISHERINFO&)>& add);
