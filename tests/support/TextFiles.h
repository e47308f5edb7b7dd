// Files in the fixed locations of the installation: what a test puts there and what it finds.
#pragma once

#include "InstallPaths.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

/// The folder of the registry file, with everything above it.
inline void MakeConfFolder()
{
    std::filesystem::create_directories(CONF_DIR);
}

/// Replaces the file's text in place: the file keeps its identity.
inline void WriteText(const std::string& path, const std::string& text)
{
    std::ofstream(path, std::ios::binary | std::ios::trunc) << text;
}

/// All bytes; empty when there is no such file.
inline std::string ReadText(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// The registry's file with its folder.
inline void WriteRegistry(const std::string& text)
{
    MakeConfFolder();
    WriteText(REGISTRY_FILE, text);
}
