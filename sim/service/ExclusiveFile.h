// A file held under the exclusive lock that all programs of the suite take.
#pragma once

#include <optional>
#include <string>

#include "Descriptor.h"

namespace udsim {

class ExclusiveFile
{
public:
    /// Opens the file with the flags of open() and waits for the lock. Returns nothing, with the reason in
    /// `error`, on failure.
    static std::optional<ExclusiveFile> acquire(const std::string& path, int flags, std::string& error);

    /// Returns the whole file; nothing, with the reason in `error`, if it cannot be read or is larger than 64
    /// MiB.
    std::optional<std::string> read(std::string& error) const;
    /// Overwrites the file. It is cut to the new length only after the new text is written.
    bool write(const std::string& text, std::string& error) const;

private:
    ExclusiveFile(std::string path, Descriptor file);

    std::string m_path;
    Descriptor m_file; ///< closing it releases the lock
};

} // namespace udsim
