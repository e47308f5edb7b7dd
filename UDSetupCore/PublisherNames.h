// The names that users give to publishers: which publisher a typed name means, and which names are close to
// it.
#pragma once

#include "PublisherMgr.h"

#include <QStringList>

/// Whether a publisher has exactly this stored name, compared byte by byte. False if its file cannot be read.
/// Asks no device.
bool hasName(CPublisherMgr& publisherMgr, const CString& id, const char* szName);

/// At most three of `known`, the closest first, in their order if equally close. A name is close if it
/// differs from `name` only in case, begins with it (three characters or more), or has at most one typing
/// error per three characters: a character that is missing, extra, wrong, or swapped with its neighbour.
QStringList closeNames(const QString& name, const QStringList& known);
