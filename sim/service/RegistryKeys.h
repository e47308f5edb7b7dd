// Writes and removes the service's keys in the registry file that all programs of the suite share.
#pragma once

#include <cstdint>
#include <map>
#include <set>
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

/// Returns the file's text with these values set. All other sections, values and lines are unchanged, byte
/// for byte.
std::string withRegistryKeys(std::string_view fileText, const RegistryKeys& keys);

/// Applies withRegistryKeys() to a file, in place and under its lock; creates a missing file. Returns false,
/// with the reason in `error`, if the file cannot be read or written.
bool writeRegistryKeys(const std::string& path, const RegistryKeys& keys, std::string& error);

/// Returns the file's text without these keys, and without their common root if no value and no key below it
/// remains. Everything else is unchanged, byte for byte.
std::string withoutRegistryKeys(std::string_view fileText, const std::set<std::string>& keys,
                                const std::string& root);

/// Applies withoutRegistryKeys() to a file, in place and under its lock; a missing file has no keys. Returns
/// false, with the reason in `error`, if the file cannot be read or written.
bool removeRegistryKeys(const std::string& path, const std::set<std::string>& keys, const std::string& root,
                        std::string& error);

} // namespace udsim
