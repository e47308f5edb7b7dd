// Reads the data that registers a job on a publisher server.
#pragma once

#include <string>

#include "Publisher.h"
#include "UploadArea.h"

namespace udsim {

struct ServerSetup;

/// Accepts any data. It reads "JobName", "Count", "ID" and "Publisher" from "key = value" lines; the job's
/// files determine whether it writes or prints.
JobSetup normalJobOf(const ServerJob& job);
/// The job's data must be accepted by refusalOfSpecial().
JobSetup specialJobOf(const ServerJob& job);
/// Returns why the server refuses this text as a maintenance job; empty if it accepts it.
std::string refusalOfSpecial(const std::string& data, const ServerSetup& server);

} // namespace udsim
