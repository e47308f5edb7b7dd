// The JSON document, which docs/ulmar-disc-status.schema.json describes.
#pragma once

#include "PublisherReport.h"

/// The document, indented, with a line end. `generated` is in UTC. It is never translated. The names of its
/// members and words do not change within a version; unknown values are null.
QByteArray jsonText(const std::vector<PublisherReport>& reports, const QDateTime& generated);
