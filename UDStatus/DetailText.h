// Everything known about one publisher, as lines for people.
#pragma once

#include "PublisherReport.h"
#include "TableText.h"

QStringList detailLines(const PublisherReport& report, const TableStyle& style);
