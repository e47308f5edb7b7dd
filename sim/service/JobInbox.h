// Takes the job files that programs write to the job folder.
#pragma once

#include <chrono>
#include <map>
#include <string>
#include <vector>

#include <sys/types.h>

namespace udsim {

/// A file that was taken from the folder.
struct FoundFile
{
    std::string name;
    std::string text;    ///< incomplete if the writer exceeded `PATIENCE`
    std::string refusal; ///< the reason if it could not be read or removed; else empty
};

class JobInbox
{
public:
    using Clock = std::chrono::steady_clock;

    /// Maximum size of a file in bytes; a job file has a few hundred.
    static constexpr size_t LARGEST = 65'536;
    /// Maximum time from the first scan that finds a file until its last line is written.
    static constexpr std::chrono::seconds PATIENCE{3};

    explicit JobInbox(std::string path) : m_path(std::move(path)) {}

    /// Takes the job files from the folder, which may be a link, in the order of their names. An incomplete
    /// file stays for `PATIENCE`. A file that cannot be removed is returned once and then ignored. A folder
    /// that cannot be opened counts as empty.
    std::vector<FoundFile> take(Clock::time_point now);

private:
    struct Sight
    {
        ino_t number = 0;
        Clock::time_point since;
        bool stuck = false; ///< it could not be removed
    };

    std::string m_path;
    std::map<std::string, Sight> m_seen; ///< the files left in the folder by the last call
};

} // namespace udsim
