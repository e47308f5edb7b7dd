// Which setting files name a server.
#pragma once

#include <string>
#include <vector>

struct ServerFile
{
    std::string path;
    unsigned int kind = 0; ///< NCL_NPTYPE_*, as stored in the file
};

/// The setting files that name the server, in the order in which the folder lists them. The addresses are
/// compared byte by byte. Any thread.
std::vector<ServerFile> FilesOfServer(const std::string& address);
