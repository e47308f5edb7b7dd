// The number of open descriptors of this process, to find those that a call leaves open.
#pragma once

#include <filesystem>
#include <iterator>

/// Includes the descriptor of the listing itself.
inline size_t OpenDescriptors()
{
    const std::filesystem::directory_iterator entries("/proc/self/fd");
    return static_cast<size_t>(std::distance(begin(entries), end(entries)));
}
