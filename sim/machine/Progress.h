// The progress of the running jobs, as lines for the terminal.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Publisher.h"

namespace udsim {

/// The active job of a machine.
struct JobProgress
{
    std::string publisher; ///< as users see it
    std::string job;
    uint32_t disc = 0;    ///< the current one, counted from 1
    uint32_t discs = 0;   ///< of the job; 0: the job counts no discs
    uint32_t percent = 0; ///< of the whole job
    std::string state;    ///< "writing", "paused", "error 19"
};

/// Returns nothing if no job is active.
std::optional<JobProgress> progressOf(const Publisher& publisher);

/// Returns one line per job, in columns: publisher, job, disc, bar, percent and state. Each line is shorter
/// than `width` columns. With more than `height` jobs, the last line is the number of the remaining ones.
std::vector<std::string> progressLines(const std::vector<JobProgress>& jobs, size_t width, size_t height);

/// Returns how many columns a UTF-8 text occupies on a terminal.
size_t columnsOf(const std::string& text);
/// Replaces control characters and invalid UTF-8, and cuts or pads the text to this number of columns.
std::string fit(const std::string& text, size_t columns);

} // namespace udsim
