// What a publisher server reads in the data that registers a job.
#pragma once

#include <string>

#include "Publisher.h"
#include "UploadArea.h"

namespace udsim {

struct ServerSetup;

/// Any data will do. Of lines "key = value" it takes "JobName", "Count", "ID" and "Publisher"; whether the
/// job writes or prints, its files tell.
JobSetup normalJobOf(const ServerJob& job);
/// Of data that refusalOfSpecial() found no fault with.
JobSetup specialJobOf(const ServerJob& job);
/// Why the server does not take this text for a maintenance job; empty when it does.
std::string refusalOfSpecial(const std::string& data, const ServerSetup& server);

} // namespace udsim
