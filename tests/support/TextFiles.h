// Writes and reads files in the fixed locations of the installation.
#pragma once

#include "InstallPaths.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

/// Creates the folder of the registry file with all of its parents.
inline void MakeConfFolder()
{
    std::filesystem::create_directories(CONF_DIR);
}

/// Replaces the file's text in place: the file keeps its inode.
inline void WriteText(const std::string& path, const std::string& text)
{
    std::ofstream(path, std::ios::binary | std::ios::trunc) << text;
}

/// All bytes; empty if the file does not exist.
inline std::string ReadText(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// Writes the registry file and creates its folder.
inline void WriteRegistry(const std::string& text)
{
    MakeConfFolder();
    WriteText(REGISTRY_FILE, text);
}
