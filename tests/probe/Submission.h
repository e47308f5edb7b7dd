// Sends jobs to a publisher server, and commands about them.
#pragma once

#include <string>
#include <vector>

#include "NW_Com_Lib.h"

namespace probe {

/// A job and its files. The disc information and the disc write information are made up.
struct NewJob
{
    std::string name;
    unsigned copies = 1;
    std::vector<std::string> images; ///< paths
    std::vector<std::string> prints; ///< paths
    size_t piece = 4U << 20;         ///< bytes of an image that go at a time
    bool commit = true;              ///< or else the job is cancelled at the end
};

/// Sends it stage by stage and prints how each ended; false at the first failure, when the job is cancelled.
bool submit(DWORD handle, const NewJob& job);
/// A maintenance job, "cleaning" or "nozzle-check", with this file of print data.
bool submitSpecial(DWORD handle, const std::string& which, const std::string& print);
/// "cancel", "stop", "restart", "front" of a job's number in hexadecimal digits, or "bridge-cancel",
/// "bridge-front" of its submitter's id. False when it failed or is none of these.
bool command(DWORD handle, const std::string& what, const std::string& job);

} // namespace probe
