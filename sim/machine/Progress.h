// How far the jobs in the room have come, as lines for a person to watch.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Publisher.h"

namespace udsim {

/// The job that a machine is at.
struct JobProgress
{
    std::string publisher; ///< as users see it
    std::string job;
    uint32_t disc = 0;    ///< the present one, from 1
    uint32_t discs = 0;   ///< of the job; 0: it counts none
    uint32_t percent = 0; ///< of the whole job
    std::string state;    ///< "writing", "paused", "error 19"
};

/// Nothing when no job is under way.
std::optional<JobProgress> progressOf(const Publisher& publisher);

/// One line a job, in columns: publisher, job, disc, bar, percent and state. Each is shorter than `width`
/// columns; of more than `height` jobs the last line tells how many there are besides.
std::vector<std::string> progressLines(const std::vector<JobProgress>& jobs, size_t width, size_t height);

/// How many columns a UTF-8 text takes on a terminal.
size_t columnsOf(const std::string& text);
/// The text without control characters and broken UTF-8, cut or filled with blanks to so many columns.
std::string fit(const std::string& text, size_t columns);

} // namespace udsim
