// The state of the publishers as OpenMetrics text.
#pragma once

#include "PublisherReport.h"

/// Ends with "# EOF". Unknown values have no sample. Never translated.
QByteArray metricsText(const std::vector<PublisherReport>& reports);
