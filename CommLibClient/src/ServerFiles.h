// Finds the setting files that name a server.
#pragma once

#include <string>
#include <vector>

struct ServerFile
{
    std::string path;
    unsigned int kind = 0; ///< NCL_NPTYPE_*, as stored in the file
};

/// The setting files that name the server, in the order in which the folder lists them. Addresses are
/// compared byte by byte. Any thread may call it.
std::vector<ServerFile> FilesOfServer(const std::string& address);
