// A file held under the exclusive lock that all programs of the suite take.
#pragma once

#include <optional>
#include <string>

#include "Descriptor.h"

namespace udsim {

class ExclusiveFile
{
public:
    /// Opens with the flags of open() and takes the lock; nothing, with the reason in `error`, when either
    /// fails.
    static std::optional<ExclusiveFile> acquire(const std::string& path, int flags, std::string& error);

    /// All of it; nothing when it cannot be read or is larger than 64 MiB.
    std::optional<std::string> read(std::string& error) const;
    /// Overwrites it. The old end goes only after the new text stands.
    bool write(const std::string& text, std::string& error) const;

private:
    ExclusiveFile(std::string path, Descriptor file);

    std::string m_path;
    Descriptor m_file; ///< closing it gives the lock back
};

} // namespace udsim
