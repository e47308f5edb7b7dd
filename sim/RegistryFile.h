// The registry file that all programs of the suite share, as the service writes it.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace udsim {

struct RegistryValues
{
    std::map<std::string, std::string> texts;
    std::map<std::string, uint32_t> numbers;
};

/// The values of several keys, by the key's full path with forward slashes.
using RegistryKeys = std::map<std::string, RegistryValues>;

/// The file's text with these values set. Every other section, value and line stays as it is, byte for byte.
std::string withRegistryKeys(std::string_view fileText, const RegistryKeys& keys);

/// Does so to a file, in place and under its lock; a missing one is made. False, with the reason in `error`,
/// when the file cannot be read or written.
bool writeRegistryKeys(const std::string& path, const RegistryKeys& keys, std::string& error);

} // namespace udsim
