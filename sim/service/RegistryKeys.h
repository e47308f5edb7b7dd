// The registry file that all programs of the suite share, as the service writes it.
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

/// The file's text with these values set. Every other section, value and line stays as it is, byte for byte.
std::string withRegistryKeys(std::string_view fileText, const RegistryKeys& keys);

/// Does so to a file, in place and under its lock; a missing one is made. False, with the reason in `error`,
/// when the file cannot be read or written.
bool writeRegistryKeys(const std::string& path, const RegistryKeys& keys, std::string& error);

/// The file's text without these keys, and without their common root if it is left with no value and no key
/// below it. Everything else stays as it is, byte for byte.
std::string withoutRegistryKeys(std::string_view fileText, const std::set<std::string>& keys,
                                const std::string& root);

/// Does so to a file, in place and under its lock; a missing one holds no keys. False, with the reason in
/// `error`, when the file cannot be read or written.
bool removeRegistryKeys(const std::string& path, const std::set<std::string>& keys, const std::string& root,
                        std::string& error);

} // namespace udsim
