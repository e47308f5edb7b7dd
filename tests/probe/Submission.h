// Sends jobs and job commands to a publisher server.
#pragma once

#include <string>
#include <vector>

#include "NW_Com_Lib.h"

namespace probe {

/// A job and its files. The disc information and the disc write information are generated.
struct NewJob
{
    std::string name;
    unsigned copies = 1;
    std::vector<std::string> images; ///< paths
    std::vector<std::string> prints; ///< paths
    size_t piece = 4U << 20;         ///< bytes of an image per call
    bool commit = true;              ///< otherwise the job is cancelled at the end
};

/// Sends a job stage by stage and prints the result of each. False at the first failure; if a file fails, the
/// job is cancelled.
bool submit(DWORD handle, const NewJob& job);
/// Sends a maintenance job, "cleaning" or "nozzle-check", with this file of print data.
bool submitSpecial(DWORD handle, const std::string& which, const std::string& print);
/// Sends "cancel", "stop", "restart" or "front" for a job number in hexadecimal digits, or "bridge-cancel" or
/// "bridge-front" for a submitter's id. False if the command fails or is unknown.
bool command(DWORD handle, const std::string& what, const std::string& job);

} // namespace probe
