// The names that users give to publishers: which publisher a typed name means, and which names are close to
// it.
#pragma once

#include "PublisherMgr.h"

#include <QStringList>

#include <vector>

/// The regist ids of the publishers with exactly this stored name, compared byte by byte, in the order of
/// EnumRegistedPublisher. Publishers whose files cannot be read are skipped. Asks no device.
std::vector<CString> publishersNamed(CPublisherMgr& publisherMgr, const char* szName);

/// At most three of `known`, the closest first, in their order if equally close. A name is close if it
/// differs from `name` only in case, begins with it (three characters or more), or has at most one typing
/// error per three characters: a character that is missing, extra, wrong, or swapped with its neighbour.
QStringList closeNames(const QString& name, const QStringList& known);
