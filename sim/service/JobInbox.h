// Job files that programs leave in the job folder for the service.
#pragma once

#include <chrono>
#include <map>
#include <string>
#include <vector>

#include <sys/types.h>

namespace udsim {

/// A file that was taken out of the folder.
struct FoundFile
{
    std::string name;
    std::string text;    ///< not whole when its writer's time was over
    std::string refusal; ///< why it could not be read or removed; else empty
};

class JobInbox
{
public:
    using Clock = std::chrono::steady_clock;

    /// The service reads no more of a file than this: a job is some hundred bytes.
    static constexpr size_t LARGEST = 65'536;
    /// How long a writer may take between the file's creation and its last line.
    static constexpr std::chrono::seconds PATIENCE{3};

    explicit JobInbox(std::string path) : m_path(std::move(path)) {}

    /// Takes out the job files that are there, in the order of their names, through a link that stands in the
    /// folder's place. A file that is not whole stays until its writer's time is over; one that cannot be
    /// removed is left alone for good, or it would be taken over and over. A folder that cannot be opened
    /// has no files.
    std::vector<FoundFile> take(Clock::time_point now);

private:
    struct Sight
    {
        ino_t number = 0;
        Clock::time_point since;
        bool stuck = false; ///< it could not be removed
    };

    std::string m_path;
    std::map<std::string, Sight> m_seen; ///< what stayed in the folder
};

} // namespace udsim
