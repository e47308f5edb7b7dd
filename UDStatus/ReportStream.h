// Transfers reports between processes of this program: each report is a frame of its length (32 bits, as the
// machine stores it) and its fields.
#pragma once

#include "PublisherReport.h"

QByteArray frameOf(const PublisherReport& report);

/// Removes the complete frames from the front of `data` and decodes the last of them into `report`. Returns
/// false if there is no complete frame.
bool takeLastFrame(QByteArray& data, PublisherReport& report);
