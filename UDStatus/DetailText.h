// Everything known about one publisher, as lines for people.
#pragma once

#include "PublisherReport.h"
#include "TableText.h"

QStringList detailLines(const PublisherReport& report, const TableStyle& style);

/// A duration as "1:02:03", "2:03" for less than an hour; "-" for 0, which is unknown.
QString durationText(quint64 seconds);
